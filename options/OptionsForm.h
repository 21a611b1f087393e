// What stands in the boxes of the options dialog that are bound to settings, as plain texts and choices.
#pragma once

#include <array>
#include <string>

#include "nmea/SentenceTable.h"
#include "settings/Settings.h"

namespace veerwatch {

struct OptionsForm {
  // Data. The sources are indexes of their lists, 0 or 1.
  int NmeaTrueWind = 0;
  int NmeaHeading = 0;
  int NmeaBoatSpeed = 0;
  std::array<bool, kSentences.size()> NmeaSentence{};  ///< in the order of kSentences
  std::string NmeaTrueWindAverage;
  std::string NmeaWindIndicatorAverage;

  std::string NmeaPort;
  std::string PilotPort;

  // Simulate.
  bool Simulate = false;
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

  // Tracking.
  bool TrackAlarm = false;
  std::string TrackAlarmLimit;
  std::string TrackBandwidth;
  std::string TrackDamping;
  std::string TrackMaxSteerTo;
};

/// The form that shows `settings`.
OptionsForm OptionsFormOf(const Settings& settings);

}  // namespace veerwatch
