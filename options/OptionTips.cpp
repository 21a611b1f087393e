#include "options/OptionTips.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "options/TipLines.h"
#include "options/TrackResponse.h"
#include "options/TrackWindRun.h"
#include "platform/Language.h"
#include "platform/NumberText.h"
#include "settings/SettingsTable.h"

namespace veerwatch {

namespace {

constexpr const char* kDevice = TrMark("Press it on a new boat, and after an adapter was changed.");
constexpr const char* kListOff = TrMark("Leave it so unless you want to see the lines.");
constexpr const char* kPause = TrMark("Tick it to read lines that run by.");
constexpr const char* kCopy = TrMark("Press it to send the lines to somebody who can help.");
constexpr const char* kTwoSentences = TrMark("For a pilot that still asks for a waypoint with APB and RMB.");
constexpr const char* kBounds =
    TrMark("Further off when the line leaves the plot; closer to see more of it.");
constexpr const char* kShift = TrMark("Change it to let the wind shift.");
constexpr const char* kMark = TrMark("As the passage that you want to try.");
constexpr const char* kTime = TrMark("To come closer to the waypoint without waiting, with the steady boat.");
constexpr const char* kStale = TrMark("Longer where the instrument sends it less often.");

constexpr auto kTips = std::to_array<OptionTip>({
    // Input
    {"txtNmeaPort",
     TrMark(
         "Another one when the instruments come in elsewhere; equal to the pilot's for one port both ways."),
     "Nmea", "Port"},
    {"cmdNmeaDevice", kDevice},
    {"optNmeaListOff", kListOff},
    {"optNmeaListOn", TrMark("Choose it when a figure stays blank, to see what comes in.")},
    {"chkNmeaPause", kPause},
    {"cmdNmeaCopy", kCopy},
    {"optNmeaDataFormat(1)", TrMark("Choose it to see every line.")},
    {"optNmeaDataFormat(2)", TrMark("Choose it to see what failed, and why.")},
    {"cmbNmeaType", TrMark("Choose a type when one instrument is to be looked at.")},

    // Data
    {"cmbNmeaTrueWind",
     TrMark("The sensor where the instruments send a true wind that you trust; otherwise computed.")},
    {"cmbNmeaHeading", TrMark("The compass where HDG or a magnetic VHW comes; otherwise the course.")},
    {"cmbNmeaBoatSpeed", TrMark("Over water where a log sends VHW; otherwise over ground.")},
    {"txtNmeaTrueWindAverage",
     TrMark("Larger when wind, heading and speed jump about; smaller when they come late."), "Nmea",
     "True Wind Average"},
    {"txtNmeaWindIndicatorAverage", TrMark("Larger when the wind in the window's title jumps about."), "Nmea",
     "Wind Indicator Average"},
    {"cmbNmeaChecksum", TrMark("Require on a wire with disturbances, if every instrument sends a checksum.")},
    {"cmbNmeaInvalidStatus", TrMark("Ignore where an instrument says itself that its value does not hold.")},
    {"cmbNmeaForeignLines", TrMark("List where an AIS receiver is on the same wire.")},
    {"chkNmeaWindUnits", TrMark("Tick it when the wind stays blank and MWV has no knots.")},
    {"chkNmeaLowerCase", TrMark("Tick it when all lines of one sender are checksum errors.")},
    {"txtNmeaWindOffset",
     TrMark("Motor straight into the wind on a calm day: what is shown then, with the other sign."), "Nmea",
     "Wind Offset"},
    {"txtNmeaHeadingOffset",
     TrMark("Motor straight on without wind and current: the GPS course less the heading."), "Nmea",
     "Heading Offset"},
    {"txtNmeaBoatSpeedFactor", TrMark("Without a current: the speed of the GPS divided by that of the log."),
     "Nmea", "Boat Speed Factor"},
    {"lstNmeaSentence", TrMark("Tick what brings a missing value; untick what a second device sends, too.")},

    // Output
    {"txtPilotPort",
     TrMark("Another one when the pilot is elsewhere; equal to the instruments' for one port both ways."),
     "Pilot", "Port"},
    {"cmdPilotDevice", kDevice},
    {"OptPilotListOff", kListOff},
    {"optPilotListOn", TrMark("Choose it when the pilot does something else, to see what it is sent.")},
    {"chkPilotPause", kPause},
    {"cmdPilotCopy", kCopy},
    {"cmbPilotProfile",
     TrMark("Another one when the pilot beeps, asks for a waypoint or shows a wrong bearing.")},
    {"cmbPilotCadence",
     TrMark("By the clock when the pilot beeps, jumps or comes late; 1 a second suits nearly every one.")},
    {"txtPilotOwnTalker", TrMark("Another one for a pilot that listens to one talker only, as GP, II or AP."),
     "Pilot", "Own Talker"},
    {"cmbPilotOwnBearing", TrMark("T when the pilot shows a bearing that is wrong by the variation.")},
    {"cmbPilotOwnFields", TrMark("15 for a pilot of NMEA 0183 2.3 or later that does not take 14.")},
    {"cmbPilotOwnDecimals", TrMark("0 for an old pilot that does not take the sentence with 1.")},
    {"txtPilotOwnPoint", TrMark("Letters, as WIND, for a pilot that does not take a number."), "Pilot",
     "Own Point"},
    {"chkPilotOwnAPB", TrMark("Leave it ticked for most pilots: they steer by it.")},
    {"chkPilotOwnRMB", TrMark("For a pilot that wants to see a waypoint before it steers.")},
    {"chkPilotOwnHSC", TrMark("For a pilot that takes a heading to steer, and no route.")},
    {"chkPilotOwnXTE", kTwoSentences},
    {"chkPilotOwnBWC", kTwoSentences},
    {"chkPilotInvalidWhenLost",
     TrMark("Tick it when the pilot steers on to an old course after the wind was lost.")},
    {"txtPilotInvalidSeconds", TrMark("Longer for a pilot that sounds its alarm late, or not at all."),
     "Pilot", "Invalid Seconds"},
    {"cmdPilotTest",
     TrMark("Press it on a new boat and after each change of the profile, with room around you.")},

    // Tracking
    {"chkTrackAlarm", TrMark("Leave it ticked unless somebody watches the wind angle all the time.")},
    {"cmbTrackMethod",
     TrMark("Direction with a heading; Clock without a true wind; Sentence without a heading.")},
    {"txtTrackAlarmLimit", TrMark("Larger when a seaway sets it off; smaller where there is little room."),
     "Track", "Alarm Limit"},
    {"txtTrackBandwidth",
     TrMark("Larger when she swings or the rudder works much; smaller when she follows a shift too late."),
     "Track", "Bandwidth"},
    {"txtTrackDamping", TrMark("Leave it at 4; below 1 she swings long after each shift."), "Track",
     "Damping"},
    {"txtTrackMaxSteerTo", TrMark("With Careful Entry: smaller to be asked about smaller changes."), "Track",
     "Max SteerTo"},
    {"txtTrackAlarmAverage", TrMark("5 keeps single gusts quiet; 0 tells at once."), "Track",
     "Alarm Average"},
    {"cmdTrackSuggest", TrMark("Press it on a new boat, and with another wind instrument.")},
    {"txtTrackOffset", TrMark("To see how the loop answers a smaller or a larger change.")},
    {"txtTrackNoise", TrMark("More to see how the loop answers in a seaway.")},
    {"txtTrackTime", TrMark("Longer when the line has not settled at its end.")},
    {"txtTrackMin", kBounds},
    {"txtTrackMax", kBounds},
    {"chkTrackOnMyWind", TrMark("Tick it after two minutes of sailing, to compare the methods.")},
    {"txtTrackLag", TrMark("What Test Pilot... on the tab Output has measured.")},

    // Simulate
    {"chkSimulate", TrMark("Tick it to try the program at the desk; untick it for the real boat.")},
    {"cmbSimulateModel", TrMark("Steady to learn the windows; Boat to try methods and pilots.")},
    {"cmbSimulatePilot", TrMark("What your own pilot reads, to try the profile for it.")},
    {"cmbSimulateSea", TrMark("A rougher one to see whether a method holds in it.")},
    {"txtSimulatePilotLag", TrMark("As your own pilot: Test Pilot... on the tab Output measures it."),
     "Simulate", "Pilot Lag"},
    {"txtSimulateGusts", TrMark("More for a squally day, 0 for a steady wind."), "Simulate", "Gusts"},
    {"txtSimulateShifts", TrMark("More for a shifty day, 0 for a wind that keeps its direction."), "Simulate",
     "Shifts"},
    {"txtSimulateLeeway", TrMark("More for a boat with a shallow keel."), "Simulate", "Leeway"},
    {"txtSimulateSeed",
     TrMark("A number to compare settings on the same gusts: Off and Setup begin them again."), "Simulate",
     "Seed"},
    {"txtSimulateBoatSpeed", TrMark("As fast as your own boat."), "Simulate", "Boat Speed"},
    {"txtSimulateTrueWindAngle", kShift, "Simulate", "True Wind Angle"},
    {"vscSimulateTrueWindAngle(0)", kShift},
    {"vscSimulateTrueWindAngle(1)", kShift},
    {"txtSimulateTrueWindSpeed", TrMark("As the weather that you want to try."), "Simulate",
     "True Wind Speed"},
    {"txtSimulateVariation", TrMark("As the chart of your waters says; east is positive."), "Simulate",
     "Variation"},
    {"txtSimulateCompassOffset", TrMark("To see how a pilot is steered whose compass shows something else."),
     "Simulate", "Compass Offset"},
    {"txtSimulateNoiseSpeed", TrMark("0 for still figures, more for a seaway, with the steady boat."),
     "Simulate", "Noise Speed"},
    {"txtSimulateNoiseAngle", TrMark("0 for still figures, more for a seaway."), "Simulate", "Noise Angle"},
    {"txtSimulateWaypointBrg", kMark, "Simulate", "Waypoint Bearing"},
    {"txtSimulateWaypointRng", kMark, "Simulate", "Waypoint Range"},
    {"txtSimulateTime", kTime},
    {"vscSimulateTime(0)", kTime},
    {"vscSimulateTime(1)", kTime},
    {"chkSimulateAutoApply", TrMark("Tick it to see each step of the small arrows at once.")},

    // Watch
    {"chkWatchAct", TrMark("Tick it unless somebody watches the wind instrument all the time.")},
    {"chkWatchKeepSending", TrMark("Tick it to have time to take the helm before the pilot hears nothing.")},
    {"chkWatchHeadingUp", TrMark("Tick it when you sail before the wind with a small crew.")},
    {"chkWatchLogFitted", TrMark("Leave it ticked where a log sends the boat speed.")},
    {"chkWatchCompassFitted", TrMark("Leave it ticked where a compass sends the heading.")},
    {"chkWatchBlankLost", TrMark("Tick it so that nobody takes an old figure for one of now.")},
    {"chkCarefulEntry", TrMark("Tick it where a slip of the hand must not turn the boat.")},
    {"cmbWatchSound", TrMark("Tone where the computer has no beep, or nobody hears it.")},
    {"cmdWatchTest", TrMark("Press it before you leave, with somebody on deck who listens.")},
    {"txtWatchCommand", TrMark("For a buzzer or a lamp that a program switches."), "Watch", "Alarm Command"},
    {"txtWatchStaleWindApparent", kStale, "Watch", "Stale Apparent Wind"},
    {"txtWatchStaleWindTrue", kStale, "Watch", "Stale True Wind"},
    {"txtWatchStaleBoatSpeed", kStale, "Watch", "Stale Boat Speed"},
    {"txtWatchStaleHeading", kStale, "Watch", "Stale Heading"},
    {"txtWatchStaleWaypoint", kStale, "Watch", "Stale Waypoint"},
});

/// A number that is typed and is no setting.
struct OtherNumber {
  std::string_view Control;
  double Least;
  double Most;
  const char* Unit;
};

constexpr std::array<OtherNumber, 5> kOtherNumbers{{
    {"txtTrackOffset", -kMostTrackBearing, kMostTrackBearing, TrMark("deg")},
    {"txtTrackNoise", -kMostTrackBearing, kMostTrackBearing, TrMark("deg")},
    {"txtTrackMin", -kMostTrackBearing, kMostTrackBearing, TrMark("deg")},
    {"txtTrackMax", -kMostTrackBearing, kMostTrackBearing, TrMark("deg")},
    {"txtTrackLag", 0.0, kMostTrackLag, TrMark("s")},
}};

std::string FromTo(double least, double most) {
  const auto text = [](double number) { return FormatNumber(static_cast<float>(number), "0"); };
  return Filled(Tr("%1 to %2"), {text(least), text(most)});
}

std::string WithUnit(const std::string& range, const char* unit) {
  return *unit == '\0' ? Filled(Tr("Range: %1."), {range})
                       : Filled(Tr("Range: %1, in %2."), {range, Tr(unit)});
}

std::string RangeOfSetting(const OptionTip& tip) {
  const SettingRow<Settings>& row = RowOf(SettingsTable(), tip.Section, tip.Key);
  if (row.Value.FreeText) {
    return Filled(Tr("Takes: %1."), {Tr(row.Value.Range)});
  }
  const auto& whole = row.Value.Whole;
  return WithUnit(whole ? FromTo(whole->Least, whole->Most) : Tr(row.Value.Range), row.Unit);
}

/// "" for what is not typed.
std::string RangeText(const OptionTip& tip) {
  if (!tip.Key.empty()) {
    return RangeOfSetting(tip);
  }
  if (tip.Control == "txtTrackTime") {
    return WithUnit(Tr(kAboveZero.Range), TrMark("s"));
  }
  if (tip.Control == "txtSimulateTime") {
    return Tr("Range: hours and minutes, as 1:30.");
  }
  const auto* const other =
      std::find_if(kOtherNumbers.begin(), kOtherNumbers.end(),
                   [&tip](const OtherNumber& one) { return one.Control == tip.Control; });
  return other != kOtherNumbers.end() ? WithUnit(FromTo(other->Least, other->Most), other->Unit)
                                      : std::string();
}

}  // namespace

std::span<const OptionTip> OptionTips() { return kTips; }

std::string OptionTipText(std::string_view control, const std::string& hint) {
  const auto* const tip = std::find_if(kTips.begin(), kTips.end(),
                                       [control](const OptionTip& one) { return one.Control == control; });
  if (tip == kTips.end()) {
    return hint;
  }
  std::string text;
  for (const std::string& part : {hint, RangeText(*tip), Tr(tip->When)}) {
    if (!part.empty()) {
      text += (text.empty() ? "" : "\n") + TipLines(part);
    }
  }
  return text;
}

}  // namespace veerwatch
