#include "nmea/SentenceTable.h"

#include <algorithm>

#include "nmea/Hdg.h"
#include "nmea/Hdt.h"
#include "nmea/Hvm.h"
#include "nmea/Mwd.h"
#include "nmea/Mwv.h"
#include "nmea/Rmb.h"
#include "nmea/Rmc.h"
#include "nmea/Vhw.h"
#include "nmea/Vwr.h"
#include "platform/Language.h"

namespace veerwatch {

namespace {

/// The decoder of a sentence, as the table keeps it.
template <auto DecodeSentence>
bool Decode(const Fields& fields, Readings& readings) {
  const auto sentence = DecodeSentence(fields);
  sentence.AddTo(readings);
  return sentence.Complete();
}

}  // namespace

const std::array<SentenceKind, 13> kSentences{{
    {"HDG", TrMark("HDG - Compass (Heading, Deviation, Variation)"), &Settings::m_bNmeaSentenceHDG, false,
     Decode<DecodeHdg>},
    {"HVM", TrMark("HVM - Magnetic (Variation)"), &Settings::m_bNmeaSentenceHVM, false, Decode<DecodeHvm>},
    {"MWV", TrMark("MWV - Wind (Angle, Apparent/True, Speed)"), &Settings::m_bNmeaSentenceMWV, true,
     Decode<DecodeMwv>},
    {"RMB", TrMark("RMB - Waypoint (Xte, To Id, From Id, Lat, Lon, Rng, Brg, Vmg)"),
     &Settings::m_bNmeaSentenceRMB, false, Decode<DecodeRmb>},
    {"RMC", TrMark("RMC - Gps (Time, Lat, Lon, SOG, COG, Variation)"), &Settings::m_bNmeaSentenceRMC, false,
     Decode<DecodeRmc>},
    {"VHW", TrMark("VHW - Vessel (Heading, SOW)"), &Settings::m_bNmeaSentenceVHW, false, Decode<DecodeVhw>},
    {"VTG", TrMark("VTG - Vessel (COG, SOG)"), &Settings::m_bNmeaSentenceVTG, false, Decode<DecodeVtg>},
    {"HDM", TrMark("HDM - Compass (Heading Magnetic)"), &Settings::m_bNmeaSentenceHDM, false,
     Decode<DecodeHdm>},
    {"HDT", TrMark("HDT - Gyro (Heading True)"), &Settings::m_bNmeaSentenceHDT, false, Decode<DecodeHdt>},
    {"MWD", TrMark("MWD - Wind (Direction, Speed)"), &Settings::m_bNmeaSentenceMWD, true, Decode<DecodeMwd>},
    {"THS", TrMark("THS - Gyro (Heading True, Status)"), &Settings::m_bNmeaSentenceTHS, false,
     Decode<DecodeThs>},
    {"VWR", TrMark("VWR - Wind (Angle, Apparent, Speed)"), &Settings::m_bNmeaSentenceVWR, true,
     Decode<DecodeVwr>},
    {"VWT", TrMark("VWT - Wind (Angle, True, Speed)"), &Settings::m_bNmeaSentenceVWT, true,
     Decode<DecodeVwt>},
}};

const SentenceKind* FindSentence(std::string_view line) {
  constexpr std::size_t kName = 3;
  if (line.size() < 2 * kName) {
    return nullptr;
  }
  // Letter by letter: this is asked for every line.
  const auto* found = std::find_if(kSentences.begin(), kSentences.end(), [line](const SentenceKind& kind) {
    return kind.Name[0] == line[kName] && kind.Name[1] == line[kName + 1] && kind.Name[2] == line[kName + 2];
  });
  return found == kSentences.end() ? nullptr : found;
}

}  // namespace veerwatch
