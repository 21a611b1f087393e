#include "settings/SettingsTable.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Language.h"

namespace veerwatch {

namespace {

using namespace setting;

constexpr const char* kInput = "Options > Input";
constexpr const char* kData = "Options > Data";
constexpr const char* kOutput = "Options > Output";
constexpr const char* kSimulate = "Options > Simulate";
constexpr const char* kTracking = "Options > Tracking";
constexpr const char* kWatch = "Options > Watch";
constexpr const char* kWindMenu = "Options > Wind";
constexpr const char* kMainWindow = "main window";
constexpr const char* kViewMenu = "View menu";
constexpr const char* kProfile = "the profile alone";

constexpr const char* kSeconds = TrMark("s");
constexpr const char* kDegrees = TrMark("deg");
constexpr const char* kDegreesTrue = TrMark("deg true");
constexpr const char* kDegreesMagnetic = TrMark("deg magnetic");
constexpr const char* kKnots = TrMark("kn");
constexpr const char* kMiles = TrMark("nm");
constexpr const char* kSamples = TrMark("samples");
constexpr const char* kPercent = "%";

constexpr std::int16_t kLastSource = 1;
constexpr std::int16_t kFirstPort = 1;

using S = Settings;

template <std::size_t Count>
std::vector<std::string> NamesOf(const std::array<std::string_view, Count>& names) {
  return {names.begin(), names.end()};
}

SettingTable<S> Nmea() {
  const char* section = "Nmea";
  return {
      {section, "Boat Speed", Choice(&S::m_iNmeaBoatSpeed, kLastSource), "",
       "0 speed over water, 1 over ground", kData},
      {section, "Heading", Choice(&S::m_iNmeaHeading, kLastSource), "",
       "0 compass heading, 1 course over ground", kData},
      {section, "Port", Whole(&S::m_iNmeaPort, kFirstPort, INT16_MAX), "", "number of the instrument port",
       kInput},
      {section, "Sentence HDG", Truth(&S::m_bNmeaSentenceHDG), "", "whether HDG is decoded", kData},
      {section, "Sentence HVM", Truth(&S::m_bNmeaSentenceHVM), "", "whether HVM is decoded", kData},
      {section, "Sentence MWV", Truth(&S::m_bNmeaSentenceMWV), "", "whether MWV is decoded", kData},
      {section, "Sentence RMB", Truth(&S::m_bNmeaSentenceRMB), "", "whether RMB is decoded", kData},
      {section, "Sentence RMC", Truth(&S::m_bNmeaSentenceRMC), "", "whether RMC is decoded", kData},
      {section, "Sentence VHW", Truth(&S::m_bNmeaSentenceVHW), "", "whether VHW is decoded", kData},
      {section, "Sentence VTG", Truth(&S::m_bNmeaSentenceVTG), "", "whether VTG is decoded", kData},
      {section, "Sentence HDM", Truth(&S::m_bNmeaSentenceHDM), "", "whether HDM is decoded", kData},
      {section, "Sentence HDT", Truth(&S::m_bNmeaSentenceHDT), "", "whether HDT is decoded", kData},
      {section, "Sentence MWD", Truth(&S::m_bNmeaSentenceMWD), "", "whether MWD is decoded", kData},
      {section, "Sentence THS", Truth(&S::m_bNmeaSentenceTHS), "", "whether THS is decoded", kData},
      {section, "Sentence VWR", Truth(&S::m_bNmeaSentenceVWR), "", "whether VWR is decoded", kData},
      {section, "Sentence VWT", Truth(&S::m_bNmeaSentenceVWT), "", "whether VWT is decoded", kData},
      {section, "Wind Units", Truth(&S::m_bNmeaWindUnits), "",
       "whether a wind of MWV in m/s, km/h or mph is read, too", kData},
      {section, "Checksum", Named(&S::m_eNmeaChecksum, {"Accept missing", "Require"}), "",
       "what becomes of a sentence without a checksum", kData},
      {section, "Invalid Status", Named(&S::m_eNmeaInvalidStatus, {"Use", "Ignore"}), "",
       "what becomes of the values of a sentence with the status V (MWV, RMC, RMB)", kData},
      {section, "Lower Case", Truth(&S::m_bNmeaLowerCase), "",
       "whether a checksum in lower-case letters is read", kData},
      {section, "Foreign Lines", Named(&S::m_eNmeaForeignLines, {"Error", "List"}), "",
       "whether a line that begins with ! is an error, or is only listed", kData},
      {section, "True Wind", Choice(&S::m_iNmeaTrueWind, kLastSource), "",
       "0 from a sensor, 1 computed from the boat speed", kData},
      {section, "True Wind Average", Number(&S::m_fNmeaTrueWindAverage, kAverageCount), kSamples,
       "averaging count of the record, 0 for none", kData},
      {section, "Wind Indicator Average", Number(&S::m_fNmeaWindIndicatorAverage, kAverageCount), kSamples,
       "averaging count of the wind in the window's title; written and never read", kData,
       SettingUse::WrittenOnly},
      {section, "Wind Offset", Number(&S::m_fNmeaWindOffset, kRelative), kDegrees,
       "added to the wind's angle that comes in: what it shows too little while motoring straight into the "
       "wind",
       kData},
      {section, "Boat Speed Factor", Number(&S::m_fNmeaBoatSpeedFactor, kSpeedFactor), "",
       "times the speed through the water that comes in", kData},
      {section, "Heading Offset", Number(&S::m_fNmeaHeadingOffset, kRelative), kDegrees,
       "added to the compass heading that comes in", kData},
  };
}

SettingTable<S> Pilot() {
  constexpr std::int16_t kMostASecond = 5;
  return {
      {"Pilot", "Port", Whole(&S::m_iPilotPort, kFirstPort, INT16_MAX), "",
       "number of the pilot port; the same as the instruments': one port both ways", kOutput},
      {"Pilot", "Bearing", Number(&S::m_fAutoPilot, kBearing), kDegreesMagnetic, "autopilot bearing",
       kMainWindow},
      {"Pilot", "Profile", Named(&S::m_ePilotProfile, NamesOf(kPilotProfiles)), "", "what the pilot is sent",
       kOutput},
      {"Pilot", "Cadence", Whole(&S::m_iPilotCadence, 0, kMostASecond), "a second",
       "how often the bearing is sent, also between two winds; 0: with each wind", kOutput},
      {"Pilot", "Invalid When Lost", Truth(&S::m_bPilotInvalidWhenLost), "",
       "when no bearing is good the pilot is sent the status V for a while; otherwise nothing", kOutput},
      {"Pilot", "Invalid Seconds", Number(&S::m_fPilotInvalidSeconds, kAboveZero), kSeconds,
       "with Invalid When Lost: for how long, before nothing is sent", kOutput},
      {"Pilot", "Own Talker", Text(&S::m_sPilotOwnTalker, kTalker), "",
       "with the profile Own: what its sentences begin with", kOutput},
      {"Pilot", "Own Bearing", Named(&S::m_ePilotOwnBearing, {"M", "T"}), "",
       "with the profile Own: the bearings of APB are magnetic or true", kOutput},
      {"Pilot", "Own Fields", Whole(&S::m_iPilotOwnFields, 14, 15), "",
       "with the profile Own: fields of APB; with 15 the sentences that can end with the mode do", kOutput},
      {"Pilot", "Own Decimals", Whole(&S::m_iPilotOwnDecimals, 0, 1), "",
       "with the profile Own: decimals of the bearings", kOutput},
      {"Pilot", "Own Point", Text(&S::m_sPilotOwnPoint, kPointName), "",
       "with the profile Own: name of the point that is steered to", kOutput},
      {"Pilot", "Own APB", Truth(&S::m_bPilotOwnAPB), "", "with the profile Own: APB is sent", kOutput},
      {"Pilot", "Own RMB", Truth(&S::m_bPilotOwnRMB), "", "with the profile Own: RMB is sent", kOutput},
      {"Pilot", "Own HSC", Truth(&S::m_bPilotOwnHSC), "", "with the profile Own: HSC is sent", kOutput},
      {"Pilot", "Own XTE", Truth(&S::m_bPilotOwnXTE), "", "with the profile Own: XTE is sent", kOutput},
      {"Pilot", "Own BWC", Truth(&S::m_bPilotOwnBWC), "", "with the profile Own: BWC is sent", kOutput},
  };
}

SettingTable<S> Simulate() {
  const char* section = "Simulate";
  return {
      {section, "Nmea", Truth(&S::m_bSimulate), "", "simulate instead of the instrument port", kSimulate},
      {section, "Boat Speed", Number(&S::m_fSimulateBoatSpeed, kAnyNumber), kKnots, "the boat's speed",
       kSimulate},
      {section, "Compass Offset", Number(&S::m_fSimulateCompassOffset, kAnyNumber), kDegrees,
       "what the compass shows more than the autopilot was told", kSimulate},
      {section, "Noise Angle", Number(&S::m_fSimulateNoiseAngle, kAnyNumber), kDegrees,
       "full width of the angles' noise", kSimulate},
      {section, "Noise Speed", Number(&S::m_fSimulateNoiseSpeed, kAnyNumber), kKnots,
       "full width of the speeds' noise", kSimulate},
      {section, "True Wind Angle", Number(&S::m_fSimulateTrueWindAngle, kAnyNumber), kDegreesTrue,
       "direction that the wind blows from", kSimulate},
      {section, "True Wind Speed", Number(&S::m_fSimulateTrueWindSpeed, kAnyNumber), kKnots,
       "speed of the true wind", kSimulate},
      {section, "Variation", Number(&S::m_fSimulateVariation, kAnyNumber), kDegrees,
       "magnetic variation, east positive", kSimulate},
      {section, "Waypoint Bearing", Number(&S::m_fSimulateWaypointBearing, kAnyNumber), kDegreesMagnetic,
       "bearing of the waypoint from where the boat starts", kSimulate},
      {section, "Waypoint Range", Number(&S::m_fSimulateWaypointRange, kAnyNumber), kMiles,
       "range of the waypoint from where the boat starts", kSimulate},
      {section, "Model", Named(&S::m_eSimulateModel, NamesOf(kSimulateModels)), "",
       "which boat: one that lies on the bearing at once, or one with hull, pilot, sea and gusts", kSimulate},
      {section, "Pilot", Named(&S::m_eSimulatePilot, NamesOf(kPilotReadsNames)), "",
       "with the model Boat: the sentences that her pilot reads", kSimulate},
      {section, "Pilot Lag", Number(&S::m_fSimulatePilotLag, kFromZero), kSeconds,
       "with the model Boat: time constant with which her pilot takes up a bearing", kSimulate},
      {section, "Gusts", Number(&S::m_fSimulateGusts, kFromZero), kPercent,
       "with the model Boat: standard deviation of the wind's speed", kSimulate},
      {section, "Shifts", Number(&S::m_fSimulateShifts, kFromZero), kDegrees,
       "with the model Boat: standard deviation of the wind's direction", kSimulate},
      {section, "Leeway", Number(&S::m_fSimulateLeeway, kFromZero), kDegrees,
       "with the model Boat: the most leeway, at 45 degrees off the true wind", kSimulate},
      {section, "Sea", Named(&S::m_eSimulateSea, NamesOf(kSeaNames)), "", "with the model Boat: the sea",
       kSimulate},
      {section, "Seed", Whole(&S::m_iSimulateSeed, 0, INT16_MAX), "",
       "with the model Boat: the same number brings the same gusts, shifts, sea and noise again; 0 brings "
       "others at each start",
       kSimulate},
  };
}

SettingTable<S> Track() {
  const char* section = "Track";
  return {
      {section, "Alarm", Truth(&S::m_bTrackAlarm), "", "alarm on a wind angle that runs away", kTracking},
      {section, "Alarm Limit", Number(&S::m_fTrackAlarmLimit, kFromZero), kDegrees,
       "the error that the alarm goes off beyond", kTracking},
      {section, "Bandwidth", Number(&S::m_fTrackBandwidth, kAboveZero), kSeconds, "time constant of the loop",
       kTracking},
      {section, "Damping", Number(&S::m_fTrackDamping, kFromZero, kAnyNumber), "",
       "damping ratio of the loop", kTracking},
      {section, "Desired 1", Number(Element{&S::DesiredAngle, 1}, kRelative), kDegrees,
       "desired apparent wind angle", kMainWindow},
      {section, "Desired 2", Number(Element{&S::DesiredAngle, 2}, kRelative), kDegrees,
       "desired true wind angle", kMainWindow},
      {section, "Max SteerTo", Number(&S::m_fTrackMaxSteerTo, kAnyNumber), kDegrees,
       "largest steering change without a question", kTracking},
      {section, "Method", Named(&S::m_eTrackMethod, {"Sentence", "Clock", "Direction"}), "",
       "the law of the loop: counted by wind sentences, by the clock, or by the direction of the true wind",
       kTracking},
      {section, "Max Ahead", Number(&S::m_fTrackMaxAhead, kAboveZero), kDegrees,
       "how far the bearing may be from the heading, but for the method Sentence", kProfile},
      {section, "Max Rate", Number(&S::m_fTrackMaxRate, kAboveZero), "deg/s",
       "how fast the bearing may change, but for the method Sentence", kProfile},
      {section, "Alarm Average", Number(&S::m_fTrackAlarmAverage, kFromZero), kSeconds,
       "what the alarm averages the error over, 0 for nothing", kTracking},
  };
}

SettingTable<S> Watch() {
  const char* section = "Watch";
  const char* stale = "a value that is older is stale";
  return {
      {section, "Act", Truth(&S::m_bWatchAct), "", "what is stale, lost or wrong does not steer", kWatch},
      {section, "Keep Sending", Truth(&S::m_bWatchKeepSending), "",
       "with Act: the last bearing is sent on for 30 seconds when the wind is lost", kWatch},
      {section, "Heading Up", Truth(&S::m_bWatchHeadingUp), "",
       "with Act: a wind from astern that is lost brings the boat 20 degrees up, once", kWatch},
      {section, "Sound", Named(&S::m_eWatchSound, {"Beep", "Tone"}), "",
       "how an alarm is heard: the desktop's beep at each step, or tones by level until somebody answers",
       kWatch},
      {section, "Alarm Command", OptionalText(&S::m_sWatchCommand, TrMark("a program with its arguments")),
       "",
       "started with the alarm's text as one more argument each time that an alarm is heard, one at a time "
       "and without "
       "a shell; empty for none",
       kWatch},
      {section, "Blank Lost", Truth(&S::m_bWatchBlankLost), "",
       "a figure that is lost becomes \"--\"; otherwise it stays, in half tone", kWatch},
      {section, "Log Fitted", Truth(&S::m_bWatchLogFitted), "",
       "the boat speed is on the wire; otherwise it is not missed", kWatch},
      {section, "Compass Fitted", Truth(&S::m_bWatchCompassFitted), "",
       "the heading is on the wire; otherwise it is not missed", kWatch},
      {section, "Stale Apparent Wind", Number(&S::m_fWatchStaleWindApparent, kAboveZero), kSeconds, stale,
       kWatch},
      {section, "Stale True Wind", Number(&S::m_fWatchStaleWindTrue, kAboveZero), kSeconds, stale, kWatch},
      {section, "Stale Boat Speed", Number(&S::m_fWatchStaleBoatSpeed, kAboveZero), kSeconds, stale, kWatch},
      {section, "Stale Heading", Number(&S::m_fWatchStaleHeading, kAboveZero), kSeconds, stale, kWatch},
      {section, "Stale Waypoint", Number(&S::m_fWatchStaleWaypoint, kAboveZero), kSeconds, stale, kWatch},
  };
}

SettingTable<S> Wind() {
  const char* section = "Wind";
  return {
      {section, "Angle Guard", Truth(&S::m_bWindGuard), "",
       "Track keeps the boat from pinching and from an accidental gybe", kWindMenu},
      {section, "Least Apparent", Number(&S::m_fWindLeastApparent, kLeastApparent), kDegrees,
       "the guard brings the boat no closer to the apparent wind", kWindMenu},
      {section, "Largest True", Number(&S::m_fWindLargestTrue, kLargestTrue), kDegrees,
       "the guard brings the boat no further from the true wind", kWindMenu},
      {section, "Shift Alarm", Truth(&S::m_bWindShift), "",
       "a lasting shift of the true wind since the angle was set is told", kWindMenu},
      {section, "Shift Limit", Number(&S::m_fWindShiftLimit, kShiftLimit), kDegrees,
       "a smaller shift is not told", kWindMenu},
      {section, "Shift Lasts", Number(&S::m_fWindShiftTime, kShiftTime), kSeconds,
       "a shorter shift is not told", kWindMenu},
      {section, "Side By Itself", Truth(&S::m_bWindSide), "",
       "Track holds the apparent wind below 70 degrees of true wind angle and the true one beyond 80",
       kWindMenu},
      {section, "Polar Angle", Truth(&S::m_bWindPolar), "",
       "Track holds the best angle of the opened polar, to windward or to leeward", kWindMenu},
      {section, "Dodge Keys", Truth(&S::m_bWindDodge), "",
       "Ctrl+Left and Ctrl+Right steer off by 10 degrees in Track, Ctrl+Up back", kWindMenu},
  };
}

SettingTable<S> View() {
  return {
      {"View", "Night Colours", Truth(&S::m_bNightColours), "",
       "red on black in every window; File > Default leaves it", kViewMenu},
      {"View", "Save While Running", Truth(&S::m_bSaveWhileRunning), "",
       "settings are also saved ten seconds after a change; the bearing and the wanted angles go along and "
       "set nothing off",
       kViewMenu},
      {"View", "Careful Entry", Truth(&S::m_bCarefulEntry), "",
       "an emptied box restores instead of steering to 0, and a typed bearing or angle more than Max SteerTo "
       "from the present one is asked about while the pilot is sent to",
       kWatch},
      {"View", "Language",
       Named(&S::m_eLanguage, std::vector<std::string>(kWindowLanguages.begin(), kWindowLanguages.end())), "",
       "language of the windows from the next start on; empty for the desktop's", kViewMenu},
  };
}

SettingTable<S> All() {
  SettingTable<S> all;
  for (const auto& section : {Nmea(), Pilot(), Simulate(), Track(), Watch(), Wind(), View()}) {
    all.insert(all.end(), section.begin(), section.end());
  }
  return all;
}

}  // namespace

const SettingTable<Settings>& SettingsTable() {
  static const SettingTable<Settings> kTable = All();
  return kTable;
}

}  // namespace veerwatch
