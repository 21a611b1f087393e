#include "connect/SettingWords.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/Profile.h"
#include "settings/PilotProfile.h"

namespace veerwatch {

namespace {

using S = Settings;

/// A setting in words.
struct Words {
  const char* Section;
  const char* Key;
  PlanPart Part;
  const char* What;  ///< for Tr
  std::string (*Value)(const Settings& settings);
};

template <bool S::*Switch>
std::string OnOff(const S& settings) {
  return settings.*Switch ? Tr("on") : Tr("off");
}

template <bool S::*Switch>
std::string YesNo(const S& settings) {
  return settings.*Switch ? Tr("yes") : Tr("no");
}

template <bool S::*Switch>
std::string Sent(const S& settings) {
  return settings.*Switch ? Tr("sent") : Tr("not sent");
}

template <float S::*Angle>
std::string Offset(const S& settings) {
  const float angle = settings.*Angle;
  return Filled(Tr("%1 deg"), {(angle > 0.0F ? "+" : "") + ShortestText(angle)});
}

template <float S::*Time>
std::string Seconds(const S& settings) {
  return Filled(Tr("%1 s"), {ShortestText(settings.*Time)});
}

template <std::int16_t S::*Count>
std::string Whole(const S& settings) {
  return std::to_string(settings.*Count);
}

std::string SpeedSource(const S& settings) {
  return settings.m_iNmeaBoatSpeed == 0 ? Tr("through the water") : Tr("over ground");
}

std::string HeadingSource(const S& settings) {
  return settings.m_iNmeaHeading == 0 ? Tr("from the compass") : Tr("the course over ground");
}

std::string TrueWindSource(const S& settings) {
  return settings.m_iNmeaTrueWind == 0 ? Tr("from the wind instrument") : Tr("computed");
}

std::string WindUnits(const S& settings) { return settings.m_bNmeaWindUnits ? Tr("read") : Tr("not read"); }

std::string TrueWindAverage(const S& settings) {
  return settings.m_fNmeaTrueWindAverage == 0.0F
             ? Tr("not averaged")
             : Filled(Tr("over %1 values"), {ShortestText(settings.m_fNmeaTrueWindAverage)});
}

std::string ProfileName(const S& settings) {
  return Tr(kPilotProfiles.at(static_cast<std::size_t>(settings.m_ePilotProfile)));
}

std::string WhenLost(const S& settings) {
  return settings.m_bPilotInvalidWhenLost ? Tr("it is told so, then nothing is sent") : Tr("nothing is sent");
}

std::string OwnBearing(const S& settings) {
  return settings.m_ePilotOwnBearing == BearingKind::True ? Tr("true") : Tr("magnetic");
}

constexpr PlanPart kIn = PlanPart::Instruments;
constexpr PlanPart kOut = PlanPart::Autopilot;
constexpr PlanPart kSteers = PlanPart::Steers;

const std::array<Words, 25>& AllWords() {
  static const std::array<Words, 25> kAll{{
      {"Nmea", "Boat Speed", kIn, TrMark("Boat speed"), SpeedSource},
      {"Nmea", "Heading", kIn, TrMark("Heading"), HeadingSource},
      {"Nmea", "Wind Units", kIn, TrMark("Winds in m/s, km/h or mph"), WindUnits},
      {"Nmea", "True Wind", kIn, TrMark("True wind"), TrueWindSource},
      {"Nmea", "True Wind Average", kSteers, TrMark("Average of the true wind"), TrueWindAverage},
      {"Nmea", "Wind Offset", kIn, TrMark("Wind angle offset"), Offset<&S::m_fNmeaWindOffset>},
      {"Nmea", "Boat Speed Factor", kIn, TrMark("Log factor"),
       [](const S& settings) { return ShortestText(settings.m_fNmeaBoatSpeedFactor); }},
      {"Nmea", "Heading Offset", kIn, TrMark("Compass offset"), Offset<&S::m_fNmeaHeadingOffset>},
      {"Pilot", "Profile", kOut, TrMark("What the pilot is sent"), ProfileName},
      {"Pilot", "Invalid When Lost", kOut, TrMark("When no bearing is good"), WhenLost},
      {"Pilot", "Invalid Seconds", kOut, TrMark("So long it is told"), Seconds<&S::m_fPilotInvalidSeconds>},
      {"Pilot", "Own Talker", kOut, TrMark("Own sentences begin with"),
       [](const S& settings) { return settings.m_sPilotOwnTalker; }},
      {"Pilot", "Own Bearing", kOut, TrMark("Own bearings"), OwnBearing},
      {"Pilot", "Own Fields", kOut, TrMark("Own fields of APB"), Whole<&S::m_iPilotOwnFields>},
      {"Pilot", "Own Decimals", kOut, TrMark("Own decimals of the bearings"), Whole<&S::m_iPilotOwnDecimals>},
      {"Pilot", "Own Point", kOut, TrMark("Own name of the point"),
       [](const S& settings) { return settings.m_sPilotOwnPoint; }},
      {"Pilot", "Own APB", kOut, TrMark("Own sentence APB"), Sent<&S::m_bPilotOwnAPB>},
      {"Pilot", "Own RMB", kOut, TrMark("Own sentence RMB"), Sent<&S::m_bPilotOwnRMB>},
      {"Pilot", "Own HSC", kOut, TrMark("Own sentence HSC"), Sent<&S::m_bPilotOwnHSC>},
      {"Pilot", "Own XTE", kOut, TrMark("Own sentence XTE"), Sent<&S::m_bPilotOwnXTE>},
      {"Pilot", "Own BWC", kOut, TrMark("Own sentence BWC"), Sent<&S::m_bPilotOwnBWC>},
      {"Simulate", "Nmea", kIn, TrMark("Simulated boat"), OnOff<&S::m_bSimulate>},
      {"Track", "Bandwidth", kSteers, TrMark("Bandwidth"), Seconds<&S::m_fTrackBandwidth>},
      {"Watch", "Log Fitted", kIn, TrMark("A boat speed is on the wire, and missed when it fails"),
       YesNo<&S::m_bWatchLogFitted>},
      {"Watch", "Compass Fitted", kIn, TrMark("A heading is on the wire, and missed when it fails"),
       YesNo<&S::m_bWatchCompassFitted>},
  }};
  return kAll;
}

/// The one of `all` that is about the key; null for none.
template <class Some>
auto Find(const Some& all, const SettingRow<Settings>& row) -> decltype(all.data()) {
  const auto* found = std::find_if(all.begin(), all.end(), [&row](const auto& each) {
    return row.Section == each.Section && row.Key == each.Key;
  });
  return found != all.end() ? found : nullptr;
}

std::string Changed(const char* what, const std::string& planned, const std::string& present) {
  return Filled(Tr("%1: %2 (now %3)"), {Tr(what), planned, present});
}

/// What the profile would hold.
std::string Kept(const SettingRow<Settings>& row, const Settings& settings) {
  Profile profile;
  row.Value.Write(profile, row.Section, row.Key, settings);
  const std::string text = profile.Text(row.Section, row.Key);
  return text.empty() ? Tr("nothing") : text;
}

}  // namespace

std::string PlanPartText(PlanPart part) {
  switch (part) {
    case PlanPart::Instruments:
      return Tr("Instruments");
    case PlanPart::Autopilot:
      return Tr("Autopilot");
    case PlanPart::Steers:
      break;
  }
  return Tr("How it steers");
}

bool HasWords(const SettingRow<Settings>& row) {
  return Find(AllWords(), row) != nullptr || Find(Recommendations(), row) != nullptr;
}

PlanLine SettingLine(const SettingRow<Settings>& row, const Settings& planned, const Settings& present) {
  if (const Words* words = Find(AllWords(), row)) {
    return {words->Part, Changed(words->What, words->Value(planned), words->Value(present))};
  }
  if (const Recommendation* about = Find(Recommendations(), row)) {
    return RecommendedLine(*about, {planned, false}, {present, false});
  }
  return {PlanPart::Steers, Filled(Tr("Setting \"%1\" of \"%2\": %3 (now %4)"),
                                   {row.Key, row.Section, Kept(row, planned), Kept(row, present)})};
}

PlanLine RecommendedLine(const Recommendation& about, const RecommendedSeen& planned,
                         const RecommendedSeen& present) {
  const PlanPart part = std::string_view(about.Section) == "Pilot" ? PlanPart::Autopilot : PlanPart::Steers;
  return {part, Changed(about.What, about.Now(planned), about.Now(present))};
}

}  // namespace veerwatch
