#include "pilot/PilotReader.h"

#include <array>
#include <cstddef>

#include "nmea/Fields.h"
#include "nmea/Sentence.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

std::optional<PilotOrder> Bearing(std::string_view magnetic) {
  constexpr double kTurn = 360.0;
  const auto angle = StrictDouble(magnetic);
  if (!angle || *angle < 0.0 || *angle > kTurn) {
    return std::nullopt;
  }
  return PilotOrder{PilotOrder::What::Bearing, *angle};
}

std::optional<PilotOrder> TrueBearing(std::string_view text, double variation) {
  auto order = Bearing(text);
  if (order) {
    order->Angle -= variation;
  }
  return order;
}

//     $ECAPB,A,A,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M*hh
//            1 2 3    4 5 6 7 8     9 10 11   12 13   14
std::optional<PilotOrder> Apb(const Fields& fields, double variation) {
  if (fields[1] != "A" || fields[2] != "A") {
    return std::nullopt;
  }
  return fields[14] == "T"   ? TrueBearing(fields[13], variation)
         : fields[14] == "M" ? Bearing(fields[13])
                             : std::nullopt;
}

//     $ECRMB,A,0.00,R,,1,,,,,10.0,238.0,,V*hh
//            1 2    3 4 5 6789 10 11   12 13
std::optional<PilotOrder> Rmb(const Fields& fields, double variation) {
  return fields[1] == "A" ? TrueBearing(fields[11], variation) : std::nullopt;
}

//     $ECHSC,238.0,T,245.0,M*hh
//            1     2 3     4
std::optional<PilotOrder> Hsc(const Fields& fields, double variation) {
  return fields[4] == "M"   ? Bearing(fields[3])
         : fields[2] == "T" ? TrueBearing(fields[1], variation)
                            : std::nullopt;
}

//     $ECBWC,,,,,,238.0,T,245.0,M,10.0,N,1,A*hh
//            12345 6    7 8     9 10  11 12 13
std::optional<PilotOrder> Bwc(const Fields& fields, double /*variation*/) {
  return fields[9] == "M" && fields[13] != "N" ? Bearing(fields[8]) : std::nullopt;
}

std::optional<PilotOrder> Wind(std::string_view angle, bool port) {
  auto order = Bearing(angle);
  if (order) {
    order->Tells = PilotOrder::What::Wind;
    order->Angle = port ? -order->Angle : order->Angle;
  }
  return order;
}

//     $ECMWV,321.8,R,12.4,N,A*hh
//            1     2 3    4 5
std::optional<PilotOrder> Mwv(const Fields& fields, double /*variation*/) {
  return fields[2] == "R" && fields[5] == "A" ? Wind(fields[1], false) : std::nullopt;
}

//     $ECVWR,038.2,L,12.4,N,6.4,M,23.0,K*hh
//            1     2
std::optional<PilotOrder> Vwr(const Fields& fields, double /*variation*/) {
  return fields[2] == "L" || fields[2] == "R" ? Wind(fields[1], fields[2] == "L") : std::nullopt;
}

struct Sentence {
  std::string_view Type;
  PilotReads Kind;
  std::optional<PilotOrder> (*Read)(const Fields& fields, double variation);
};

constexpr std::array<Sentence, 6> kSentences{{{"APB", PilotReads::Apb, Apb},
                                              {"RMB", PilotReads::Rmb, Rmb},
                                              {"HSC", PilotReads::Hsc, Hsc},
                                              {"BWC", PilotReads::Bwc, Bwc},
                                              {"MWV", PilotReads::Wind, Mwv},
                                              {"VWR", PilotReads::Wind, Vwr}}};

std::optional<PilotOrder> Read(std::string_view line, PilotReads reads, double variation) {
  constexpr std::size_t kTalkerEnds = 3;
  constexpr std::size_t kTypeSize = 3;
  constexpr FrameRules kWithChecksum{ChecksumRule::Require, false};
  if (CheckFrame(line, kWithChecksum) != Frame::Good || line.size() < kTalkerEnds + kTypeSize) {
    return std::nullopt;
  }
  const std::string_view type = line.substr(kTalkerEnds, kTypeSize);
  for (const Sentence& sentence : kSentences) {
    if (sentence.Type == type && (reads == PilotReads::All || reads == sentence.Kind)) {
      return sentence.Read(Fields(line), variation);
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<PilotOrder> PilotReader::Take(std::string_view bytes, double variation) {
  std::optional<PilotOrder> order;
  m_framer.Feed(
      bytes, [&](std::string_view line) { TakeLine(line, variation, order); },
      [this](std::string_view /*line*/) { ++m_bad; });
  return order;
}

void PilotReader::TakeLine(std::string_view line, double variation, std::optional<PilotOrder>& order) {
  const std::optional<PilotOrder> told = Read(line, m_reads, variation);
  if (!told) {
    ++m_bad;
    return;
  }
  ++m_good;
  order = told;
  if (told->Tells == PilotOrder::What::Bearing && m_told != told->Angle) {
    ++m_changes;
    m_told = told->Angle;
  }
}

}  // namespace veerwatch
