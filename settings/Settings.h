// Every setting of the program, with its default: the one store. Windows and the command line read and change
// these members directly; the profile (helm/SettingsProfile) keeps them between sessions. Standard library
// only.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "settings/AlarmSound.h"
#include "settings/LineRules.h"
#include "settings/PilotProfile.h"
#include "settings/SimulateModel.h"
#include "settings/TrackMode.h"
#include "settings/WindowLanguage.h"

namespace veerwatch {

/// Title of the program: captions, message boxes and the name of the profile file.
inline constexpr const char* kApplicationTitle = "Veerwatch";

struct Settings {
  // What feeds the instrument record.
  std::int16_t m_iNmeaBoatSpeed = 1;  ///< 0 speed over water ("VHW"), 1 speed over ground ("RMC", "VTG")
  std::int16_t m_iNmeaHeading = 1;  ///< 0 compass heading ("HDG", "VHW"), 1 course over ground ("RMC", "VTG")
  std::int16_t m_iNmeaPort = 5;     ///< number of the instrument port
  bool m_bNmeaSentenceHDG = true;   ///< the sentence types that are decoded
  bool m_bNmeaSentenceHVM = true;
  bool m_bNmeaSentenceMWV = true;
  bool m_bNmeaSentenceRMB = true;
  bool m_bNmeaSentenceRMC = true;
  bool m_bNmeaSentenceVHW = true;
  bool m_bNmeaSentenceVTG = true;
  bool m_bNmeaSentenceHDM = false;
  bool m_bNmeaSentenceHDT = false;
  bool m_bNmeaSentenceMWD = false;
  bool m_bNmeaSentenceTHS = false;
  bool m_bNmeaSentenceVWR = false;
  bool m_bNmeaSentenceVWT = false;
  bool m_bNmeaWindUnits = false;  ///< winds in other units than knots are read, too
  ChecksumRule m_eNmeaChecksum = ChecksumRule::AcceptMissing;
  InvalidRule m_eNmeaInvalidStatus = InvalidRule::Use;
  bool m_bNmeaLowerCase = false;  ///< checksums in lower-case letters are read, too
  ForeignRule m_eNmeaForeignLines = ForeignRule::Error;
  std::int16_t m_iNmeaTrueWind = 1;           ///< 0 true wind from a sensor, 1 computed from the boat speed
  float m_fNmeaTrueWindAverage = 2.0F;        ///< averaging count of the record [samples], by IsAverageCount
  float m_fNmeaWindIndicatorAverage = 60.0F;  ///< the same of the wind indicator
  // What makes good how an instrument is mounted or reads (instruments/Calibration).
  float m_fNmeaWindOffset = 0.0F;       ///< added to the wind's angle [deg, (-180, 180]]
  float m_fNmeaBoatSpeedFactor = 1.0F;  ///< times the speed through the water [0.5, 2]
  float m_fNmeaHeadingOffset = 0.0F;    ///< added to the compass heading [deg, (-180, 180]]

  // The autopilot.
  std::int16_t m_iPilotPort = 5;  ///< number of the pilot port; equal to m_iNmeaPort: one port for both ways
  float m_fAutoPilot = 40.0F;     ///< autopilot bearing [deg magnetic, [0, 360)]
  PilotProfile m_ePilotProfile = PilotProfile::MagneticApb;
  std::int16_t m_iPilotCadence = 0;      ///< how often a bearing leaves [1/s, 1 to 5]; 0 with each wind
  bool m_bPilotInvalidWhenLost = false;  ///< sentences with the status "V" come before the silence
  float m_fPilotInvalidSeconds = 5.0F;   ///< for so long [s], above 0
  // What PilotProfile::Own sends.
  std::string m_sPilotOwnTalker = "EC";  ///< by kTalker
  BearingKind m_ePilotOwnBearing = BearingKind::Magnetic;
  std::int16_t m_iPilotOwnFields = 14;   ///< of APB: 14, or with the mode 15, and the others accordingly
  std::int16_t m_iPilotOwnDecimals = 1;  ///< of the bearings, 0 or 1
  std::string m_sPilotOwnPoint = "1";    ///< name of the point steered to, by kPointName
  bool m_bPilotOwnAPB = true;            ///< the sentences
  bool m_bPilotOwnRMB = false;
  bool m_bPilotOwnHSC = false;
  bool m_bPilotOwnXTE = false;
  bool m_bPilotOwnBWC = false;

  // The simulator.
  bool m_bSimulate = false;                 ///< simulator on instead of the instrument port
  float m_fSimulateBoatSpeed = 8.0F;        ///< [kn]
  float m_fSimulateCompassOffset = 10.0F;   ///< added to the autopilot bearing [deg]
  float m_fSimulateNoiseAngle = 4.0F;       ///< full width of the angle noise [deg]
  float m_fSimulateNoiseSpeed = 2.0F;       ///< full width of the speed noise [kn]
  float m_fSimulateTrueWindAngle = 0.0F;    ///< direction that the true wind blows from [deg true]
  float m_fSimulateTrueWindSpeed = 12.0F;   ///< [kn]
  float m_fSimulateVariation = 11.0F;       ///< magnetic variation [deg, east positive]
  float m_fSimulateWaypointBearing = 5.0F;  ///< bearing of the waypoint at time 0 [deg magnetic]
  float m_fSimulateWaypointRange = 10.0F;   ///< range of the waypoint at time 0 [nm]
  float m_fSimulateTime = 0.0F;             ///< simulated time [h]; not kept in the profile
  SimulateModel m_eSimulateModel = SimulateModel::Steady;
  // What SimulateModel::Boat has besides.
  PilotReads m_eSimulatePilot = PilotReads::All;  ///< the sentences that her pilot reads
  float m_fSimulatePilotLag = 4.0F;               ///< with which it takes up a bearing [s], at least 0
  float m_fSimulateGusts = 10.0F;  ///< standard deviation of the wind's speed [% of it], at least 0
  float m_fSimulateShifts = 4.0F;  ///< standard deviation of the wind's direction [deg], at least 0
  float m_fSimulateLeeway = 4.0F;  ///< the most that she makes, at 45 degrees [deg], at least 0
  Sea m_eSimulateSea = Sea::Slight;
  std::int16_t m_iSimulateSeed = 0;  ///< of her wind, sea and noise, at least 0; 0 another one at each start

  // Tracking.
  bool m_bTrackAlarm = true;        ///< alarm on a wind angle that runs away
  float m_fTrackAlarmLimit = 5.0F;  ///< the error above which the alarm goes off [deg]
  float m_fTrackBandwidth = 20.0F;  ///< time constant of the loop [s], above 0
  float m_fTrackDamping = 4.0F;     ///< damping ratio of the loop
  TrackMethod m_eTrackMethod = TrackMethod::Sentence;
  float m_fTrackMaxAhead = 30.0F;     ///< the bearing stays within it of the heading, but for Sentence [deg]
  float m_fTrackMaxRate = 3.0F;       ///< fastest change of the bearing, but for Sentence [deg/s]
  float m_fTrackAlarmAverage = 0.0F;  ///< the error that the alarm tests is averaged over [s], 0 not at all
  float m_fTrackMaxSteerTo = 10.0F;   ///< largest steering change without a question [deg]
  TrackMode m_eTrackMode = TrackMode::Switching;  ///< the present mode; not kept in the profile

  /// Desired wind angles [deg relative, (-180, 180]]: index 1 apparent, 2 true; index 0 is not used.
  std::array<float, 3> DesiredAngle{0.0F, 45.0F, 92.0F};

  // The watch over what steers.
  bool m_bWatchAct = false;           ///< what is lost does not steer; else it is only told
  bool m_bWatchKeepSending = false;   ///< with Act: sentences go on for 30 s when the wind is lost
  bool m_bWatchHeadingUp = false;     ///< with Act: a lost wind from astern brings the boat up, once
  bool m_bWatchLogFitted = true;      ///< a boat speed is on the wire; else nobody misses it
  bool m_bWatchCompassFitted = true;  ///< the same for the heading
  AlarmSound m_eWatchSound = AlarmSound::Beep;
  std::string m_sWatchCommand;             ///< program that is run while an alarm is heard; "" for none
  bool m_bWatchBlankLost = false;          ///< a lost figure becomes "--"
  float m_fWatchStaleWindApparent = 4.0F;  ///< older values are stale [s], above 0
  float m_fWatchStaleWindTrue = 4.0F;
  float m_fWatchStaleBoatSpeed = 4.0F;
  float m_fWatchStaleHeading = 4.0F;
  float m_fWatchStaleWaypoint = 4.0F;

  // What Track does besides holding an angle.
  bool m_bWindGuard = false;           ///< the boat is kept from pinching and from gybing
  float m_fWindLeastApparent = 25.0F;  ///< no closer to the apparent wind [deg, [10, 60]]
  float m_fWindLargestTrue = 165.0F;   ///< no further from the true wind [deg, [120, 179]]
  bool m_bWindShift = false;           ///< a shift of the true wind is told
  float m_fWindShiftLimit = 15.0F;     ///< a smaller one is not [deg, [5, 90]]
  float m_fWindShiftTime = 30.0F;      ///< nor a shorter one [s, [5, 600]]
  bool m_bWindSide = false;            ///< the apparent wind upwind, the true one downwind
  bool m_bWindPolar = false;           ///< the polar's best angle is held
  bool m_bWindDodge = false;           ///< the keys that dodge

  bool m_bNightColours = false;  ///< red on black in every window

  WindowLanguage m_eLanguage = WindowLanguage::Desktop;  ///< from the next start on

  bool m_bSaveWhileRunning = false;  ///< settings are also saved ten seconds after a change

  /// An emptied box restores, and a large change that is typed is asked about.
  bool m_bCarefulEntry = false;

  /// Path of the profile file.
  std::string m_sProfileFile;

  /// Whether the simulator sails the boat that is on her bearing at once: nobody can fail to follow.
  bool SimulatesSteady() const { return m_bSimulate && m_eSimulateModel == SimulateModel::Steady; }
  /// Whether it sails the one with a pilot that reads what is sent.
  bool SimulatesBoat() const { return m_bSimulate && m_eSimulateModel == SimulateModel::Boat; }
};

}  // namespace veerwatch
