// What stands in the boxes of the options dialog that are bound to settings, as plain texts and choices.
#pragma once

#include <array>
#include <map>
#include <string>

#include "nmea/SentenceTable.h"
#include "platform/Language.h"
#include "settings/Settings.h"

namespace veerwatch {

struct OptionsForm {
  // Data. The sources are indexes of their lists, 0 or 1.
  int NmeaTrueWind = 0;
  int NmeaHeading = 0;
  int NmeaBoatSpeed = 0;
  std::array<bool, kSentences.size()> NmeaSentence{};  ///< in the order of kSentences
  std::string NmeaTrueWindAverage;
  std::string NmeaWindOffset;
  std::string NmeaBoatSpeedFactor;
  std::string NmeaHeadingOffset;
  std::string NmeaWindIndicatorAverage;
  // What is asked of a line; the rules are indexes in their lists, as the enumerations.
  int NmeaChecksum = 0;
  int NmeaInvalidStatus = 0;
  int NmeaForeignLines = 0;
  bool NmeaWindUnits = false;
  bool NmeaLowerCase = false;

  std::string NmeaPort;
  std::string PilotPort;
  // Output. The choices are indexes in their lists.
  int PilotProfile = 0;
  int PilotCadence = 0;
  int PilotOwnBearing = 0;
  int PilotOwnFields = 0;    ///< 0 for 14
  int PilotOwnDecimals = 0;  ///< as many
  bool PilotInvalidWhenLost = false;
  std::array<bool, 5> PilotOwnSends{};  ///< in the order of kPilotOwnSwitches
  std::string PilotInvalidSeconds;
  std::string PilotOwnTalker;
  std::string PilotOwnPoint;
  std::map<int, std::string> PortDevices;  ///< what was chosen for a port's number, and not stored yet

  // Simulate.
  bool Simulate = false;
  int SimulateModel = 0;  ///< index in its list, as the enumeration
  int SimulatePilot = 0;  ///< the same
  int SimulateSea = 0;    ///< the same
  std::string SimulateBoatSpeed;
  std::string SimulateCompassOffset;
  std::string SimulateNoiseAngle;
  std::string SimulateNoiseSpeed;
  std::string SimulateTime;  ///< hours and minutes
  std::string SimulateTrueWindAngle;
  std::string SimulateTrueWindSpeed;
  std::string SimulateVariation;
  std::string SimulateWaypointBrg;
  std::string SimulateWaypointRng;
  std::string SimulatePilotLag;
  std::string SimulateGusts;
  std::string SimulateShifts;
  std::string SimulateLeeway;
  std::string SimulateSeed;  ///< a whole number

  // Tracking.
  bool TrackAlarm = false;
  int TrackMethod = 0;  ///< index in its list, as the enumeration
  std::string TrackAlarmLimit;
  std::string TrackBandwidth;
  std::string TrackDamping;
  std::string TrackMaxSteerTo;
  std::string TrackAlarmAverage;

  // Watch.
  bool WatchAct = false;
  bool WatchKeepSending = false;
  bool WatchHeadingUp = false;
  bool WatchLogFitted = true;
  bool WatchCompassFitted = true;
  bool WatchBlankLost = false;
  bool CarefulEntry = false;
  int WatchSound = 0;  ///< index in its list, as the enumeration
  std::string WatchCommand;
  std::string WatchStaleWindApparent;
  std::string WatchStaleWindTrue;
  std::string WatchStaleBoatSpeed;
  std::string WatchStaleHeading;
  std::string WatchStaleWaypoint;
};

/// Boxes that are stored one after the other. The simulated time is stored between boat and scene.
enum class OptionGroup { Data, Output, SimulateBoat, SimulateScene, Tracking, Watch };

/// A box for a number and the setting that it shows. SettingsTable says what numbers it takes.
struct OptionBox {
  OptionGroup Group;
  const char* Name;  ///< in the dialog
  std::string OptionsForm::*Text;
  float Settings::*Setting;
};

/// In the order in which they are stored.
inline constexpr std::array<OptionBox, 29> kOptionBoxes{{
    {OptionGroup::Data, TrMark("True Wind Average"), &OptionsForm::NmeaTrueWindAverage,
     &Settings::m_fNmeaTrueWindAverage},
    {OptionGroup::Data, TrMark("Wind Indicator Average"), &OptionsForm::NmeaWindIndicatorAverage,
     &Settings::m_fNmeaWindIndicatorAverage},
    {OptionGroup::Data, TrMark("Wind Offset"), &OptionsForm::NmeaWindOffset, &Settings::m_fNmeaWindOffset},
    {OptionGroup::Data, TrMark("Boat Speed Factor"), &OptionsForm::NmeaBoatSpeedFactor,
     &Settings::m_fNmeaBoatSpeedFactor},
    {OptionGroup::Data, TrMark("Heading Offset"), &OptionsForm::NmeaHeadingOffset,
     &Settings::m_fNmeaHeadingOffset},
    {OptionGroup::Output, TrMark("Invalid When Lost"), &OptionsForm::PilotInvalidSeconds,
     &Settings::m_fPilotInvalidSeconds},
    {OptionGroup::SimulateBoat, TrMark("Boat Speed"), &OptionsForm::SimulateBoatSpeed,
     &Settings::m_fSimulateBoatSpeed},
    {OptionGroup::SimulateBoat, TrMark("Offset"), &OptionsForm::SimulateCompassOffset,
     &Settings::m_fSimulateCompassOffset},
    {OptionGroup::SimulateBoat, TrMark("Angle Noise"), &OptionsForm::SimulateNoiseAngle,
     &Settings::m_fSimulateNoiseAngle},
    {OptionGroup::SimulateBoat, TrMark("Noise"), &OptionsForm::SimulateNoiseSpeed,
     &Settings::m_fSimulateNoiseSpeed},
    {OptionGroup::SimulateScene, TrMark("True Wind Direction"), &OptionsForm::SimulateTrueWindAngle,
     &Settings::m_fSimulateTrueWindAngle},
    {OptionGroup::SimulateScene, TrMark("True Wind Speed"), &OptionsForm::SimulateTrueWindSpeed,
     &Settings::m_fSimulateTrueWindSpeed},
    {OptionGroup::SimulateScene, TrMark("Magnetic Variation"), &OptionsForm::SimulateVariation,
     &Settings::m_fSimulateVariation},
    {OptionGroup::SimulateScene, TrMark("Waypoint Bearing"), &OptionsForm::SimulateWaypointBrg,
     &Settings::m_fSimulateWaypointBearing},
    {OptionGroup::SimulateScene, TrMark("Waypoint Range"), &OptionsForm::SimulateWaypointRng,
     &Settings::m_fSimulateWaypointRange},
    {OptionGroup::SimulateScene, TrMark("Pilot Lag"), &OptionsForm::SimulatePilotLag,
     &Settings::m_fSimulatePilotLag},
    {OptionGroup::SimulateScene, TrMark("Gusts"), &OptionsForm::SimulateGusts, &Settings::m_fSimulateGusts},
    {OptionGroup::SimulateScene, TrMark("Shifts"), &OptionsForm::SimulateShifts,
     &Settings::m_fSimulateShifts},
    {OptionGroup::SimulateScene, TrMark("Leeway"), &OptionsForm::SimulateLeeway,
     &Settings::m_fSimulateLeeway},
    {OptionGroup::Tracking, TrMark("Alarm Limit"), &OptionsForm::TrackAlarmLimit,
     &Settings::m_fTrackAlarmLimit},
    {OptionGroup::Tracking, TrMark("Bandwidth"), &OptionsForm::TrackBandwidth, &Settings::m_fTrackBandwidth},
    {OptionGroup::Tracking, TrMark("Damping"), &OptionsForm::TrackDamping, &Settings::m_fTrackDamping},
    {OptionGroup::Tracking, TrMark("Max Steer To"), &OptionsForm::TrackMaxSteerTo,
     &Settings::m_fTrackMaxSteerTo},
    {OptionGroup::Tracking, TrMark("Alarm Average"), &OptionsForm::TrackAlarmAverage,
     &Settings::m_fTrackAlarmAverage},
    {OptionGroup::Watch, TrMark("Apparent Wind"), &OptionsForm::WatchStaleWindApparent,
     &Settings::m_fWatchStaleWindApparent},
    {OptionGroup::Watch, TrMark("True Wind"), &OptionsForm::WatchStaleWindTrue,
     &Settings::m_fWatchStaleWindTrue},
    {OptionGroup::Watch, TrMark("Boat Speed"), &OptionsForm::WatchStaleBoatSpeed,
     &Settings::m_fWatchStaleBoatSpeed},
    {OptionGroup::Watch, TrMark("Heading"), &OptionsForm::WatchStaleHeading, &Settings::m_fWatchStaleHeading},
    {OptionGroup::Watch, TrMark("Waypoint"), &OptionsForm::WatchStaleWaypoint,
     &Settings::m_fWatchStaleWaypoint},
}};

/// A box to be ticked on the page of the watch and the setting that it shows.
struct OptionSwitch {
  bool OptionsForm::*Checked;
  bool Settings::*Setting;
};
inline constexpr std::array<OptionSwitch, 7> kWatchSwitches{{
    {&OptionsForm::WatchAct, &Settings::m_bWatchAct},
    {&OptionsForm::WatchKeepSending, &Settings::m_bWatchKeepSending},
    {&OptionsForm::WatchHeadingUp, &Settings::m_bWatchHeadingUp},
    {&OptionsForm::WatchLogFitted, &Settings::m_bWatchLogFitted},
    {&OptionsForm::WatchCompassFitted, &Settings::m_bWatchCompassFitted},
    {&OptionsForm::WatchBlankLost, &Settings::m_bWatchBlankLost},
    {&OptionsForm::CarefulEntry, &Settings::m_bCarefulEntry},
}};

/// The sentences that the profile Own may send, in the order in which they leave.
inline constexpr std::array<bool Settings::*, 5> kPilotOwnSwitches{
    &Settings::m_bPilotOwnAPB, &Settings::m_bPilotOwnRMB, &Settings::m_bPilotOwnHSC,
    &Settings::m_bPilotOwnXTE, &Settings::m_bPilotOwnBWC};

/// The form that shows `settings`.
OptionsForm OptionsFormOf(const Settings& settings);

}  // namespace veerwatch
