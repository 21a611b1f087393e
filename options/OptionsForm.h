// What stands in the boxes of the options dialog that are bound to settings, as plain texts and choices.
#pragma once

#include <array>
#include <string>

#include "app/Settings.h"

namespace veerwatch {

/// One of the sentence types that can be left out.
struct OptionSentence {
  const char* Key;
  const char* Text;
  bool Settings::*Setting;
};

/// In the order of the list.
inline constexpr std::array<OptionSentence, 7> kOptionSentences{{
    {"HDG", "HDG - Compass (Heading, Deviation, Variation)", &Settings::m_bNmeaSentenceHDG},
    {"HVM", "HVM - Magnetic (Variation)", &Settings::m_bNmeaSentenceHVM},
    {"MWV", "MWV - Wind (Angle, Apparent/True, Speed)", &Settings::m_bNmeaSentenceMWV},
    {"RMB", "RMB - Waypoint (Xte, To Id, From Id, Lat, Lon, Rng, Brg, Vmg)", &Settings::m_bNmeaSentenceRMB},
    {"RMC", "RMC - Gps (Time, Lat, Lon, SOG, COG, Variation)", &Settings::m_bNmeaSentenceRMC},
    {"VHW", "VHW - Vessel (Heading, SOW)", &Settings::m_bNmeaSentenceVHW},
    {"VTG", "VTG - Vessel (COG, SOG)", &Settings::m_bNmeaSentenceVTG},
}};

struct OptionsForm {
  // Data. The sources are indexes of their lists, 0 or 1.
  int NmeaTrueWind = 0;
  int NmeaHeading = 0;
  int NmeaBoatSpeed = 0;
  std::array<bool, kOptionSentences.size()> NmeaSentence{};
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
