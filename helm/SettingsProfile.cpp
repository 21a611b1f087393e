#include "helm/SettingsProfile.h"

#include <string>
#include <utility>

#include "instruments/MathLib.h"

namespace veerwatch {

namespace {

/// The highest index of a pair of data sources.
constexpr std::int16_t kLastSource = 1;
constexpr std::int16_t kFirstPort = 1;

}  // namespace

void SettingsDefault(Settings& settings) {
  Settings defaults;
  defaults.m_eTrackMode = settings.m_eTrackMode;
  defaults.m_bNightColours = settings.m_bNightColours;
  defaults.m_sProfileFile = std::move(settings.m_sProfileFile);
  settings = std::move(defaults);
}

void ProfileRead(const Profile& profile, Settings& settings, RememberedWindows& windows) {
  const auto angle = [&profile](const char* section, const char* key, float& value, float (*fold)(double)) {
    profile.ProfileGet(section, key, value);
    value = fold(static_cast<double>(value));
  };

  const auto number = [&profile](const char* section, const char* key, float& value, bool (*fits)(float)) {
    float read = value;
    profile.ProfileGet(section, key, read);
    value = fits(read) ? read : value;
  };

  profile.ProfileGet("Nmea", "Boat Speed", settings.m_iNmeaBoatSpeed, 0, kLastSource);
  profile.ProfileGet("Nmea", "Heading", settings.m_iNmeaHeading, 0, kLastSource);
  profile.ProfileGet("Nmea", "Port", settings.m_iNmeaPort, kFirstPort);
  profile.ProfileGet("Nmea", "Sentence HDG", settings.m_bNmeaSentenceHDG);
  profile.ProfileGet("Nmea", "Sentence HVM", settings.m_bNmeaSentenceHVM);
  profile.ProfileGet("Nmea", "Sentence MWV", settings.m_bNmeaSentenceMWV);
  profile.ProfileGet("Nmea", "Sentence RMB", settings.m_bNmeaSentenceRMB);
  profile.ProfileGet("Nmea", "Sentence RMC", settings.m_bNmeaSentenceRMC);
  profile.ProfileGet("Nmea", "Sentence VHW", settings.m_bNmeaSentenceVHW);
  profile.ProfileGet("Nmea", "Sentence VTG", settings.m_bNmeaSentenceVTG);
  profile.ProfileGet("Nmea", "True Wind", settings.m_iNmeaTrueWind, 0, kLastSource);
  number("Nmea", "True Wind Average", settings.m_fNmeaTrueWindAverage, IsAverageCount);
  profile.ProfileGet("Pilot", "Port", settings.m_iPilotPort, kFirstPort);
  angle("Pilot", "Bearing", settings.m_fAutoPilot, FoldBearing);
  profile.ProfileGet("Simulate", "Nmea", settings.m_bSimulate);
  profile.ProfileGet("Simulate", "Boat Speed", settings.m_fSimulateBoatSpeed);
  profile.ProfileGet("Simulate", "Compass Offset", settings.m_fSimulateCompassOffset);
  profile.ProfileGet("Simulate", "Noise Angle", settings.m_fSimulateNoiseAngle);
  profile.ProfileGet("Simulate", "Noise Speed", settings.m_fSimulateNoiseSpeed);
  profile.ProfileGet("Simulate", "True Wind Angle", settings.m_fSimulateTrueWindAngle);
  profile.ProfileGet("Simulate", "True Wind Speed", settings.m_fSimulateTrueWindSpeed);
  profile.ProfileGet("Simulate", "Variation", settings.m_fSimulateVariation);
  profile.ProfileGet("Simulate", "Waypoint Bearing", settings.m_fSimulateWaypointBearing);
  profile.ProfileGet("Simulate", "Waypoint Range", settings.m_fSimulateWaypointRange);
  profile.ProfileGet("Track", "Alarm", settings.m_bTrackAlarm);
  number("Track", "Alarm Limit", settings.m_fTrackAlarmLimit, [](float limit) { return limit >= 0.0F; });
  number("Track", "Bandwidth", settings.m_fTrackBandwidth, [](float bandwidth) { return bandwidth > 0.0F; });
  profile.ProfileGet("Track", "Damping", settings.m_fTrackDamping);
  angle("Track", "Desired 1", settings.DesiredAngle[1], FoldRelative);
  angle("Track", "Desired 2", settings.DesiredAngle[2], FoldRelative);
  profile.ProfileGet("Track", "Max SteerTo", settings.m_fTrackMaxSteerTo);

  profile.ProfileGet("View", "Night Colours", settings.m_bNightColours);
  profile.ProfileGet("View", "Save While Running", settings.m_bSaveWhileRunning);

  bool visible = false;
  profile.ProfileGet("History Window", "Visible", visible);
  if (visible) {
    windows.HistoryShow();
  }
  visible = false;
  profile.ProfileGet("Polar Window", "Visible", visible);
  if (visible) {
    windows.PolarShow();
  }
}

void ProfileWrite(Profile& profile, const Settings& settings, const RememberedWindows& windows) {
  profile.ProfileSet("Nmea", "Boat Speed", settings.m_iNmeaBoatSpeed);
  profile.ProfileSet("Nmea", "Heading", settings.m_iNmeaHeading);
  profile.ProfileSet("Nmea", "Port", settings.m_iNmeaPort);
  profile.ProfileSet("Nmea", "Sentence HDG", settings.m_bNmeaSentenceHDG);
  profile.ProfileSet("Nmea", "Sentence HVM", settings.m_bNmeaSentenceHVM);
  profile.ProfileSet("Nmea", "Sentence MWV", settings.m_bNmeaSentenceMWV);
  profile.ProfileSet("Nmea", "Sentence RMB", settings.m_bNmeaSentenceRMB);
  profile.ProfileSet("Nmea", "Sentence RMC", settings.m_bNmeaSentenceRMC);
  profile.ProfileSet("Nmea", "Sentence VHW", settings.m_bNmeaSentenceVHW);
  profile.ProfileSet("Nmea", "Sentence VTG", settings.m_bNmeaSentenceVTG);
  profile.ProfileSet("Nmea", "True Wind", settings.m_iNmeaTrueWind);
  profile.ProfileSet("Nmea", "True Wind Average", settings.m_fNmeaTrueWindAverage);
  profile.ProfileSet("Nmea", "Wind Indicator Average", settings.m_fNmeaWindIndicatorAverage);
  profile.ProfileSet("Pilot", "Port", settings.m_iPilotPort);
  profile.ProfileSet("Pilot", "Bearing", settings.m_fAutoPilot);
  profile.ProfileSet("Simulate", "Nmea", settings.m_bSimulate);
  profile.ProfileSet("Simulate", "Boat Speed", settings.m_fSimulateBoatSpeed);
  profile.ProfileSet("Simulate", "Compass Offset", settings.m_fSimulateCompassOffset);
  profile.ProfileSet("Simulate", "Noise Angle", settings.m_fSimulateNoiseAngle);
  profile.ProfileSet("Simulate", "Noise Speed", settings.m_fSimulateNoiseSpeed);
  profile.ProfileSet("Simulate", "True Wind Angle", settings.m_fSimulateTrueWindAngle);
  profile.ProfileSet("Simulate", "True Wind Speed", settings.m_fSimulateTrueWindSpeed);
  profile.ProfileSet("Simulate", "Variation", settings.m_fSimulateVariation);
  profile.ProfileSet("Simulate", "Waypoint Bearing", settings.m_fSimulateWaypointBearing);
  profile.ProfileSet("Simulate", "Waypoint Range", settings.m_fSimulateWaypointRange);
  profile.ProfileSet("Track", "Alarm", settings.m_bTrackAlarm);
  profile.ProfileSet("Track", "Alarm Limit", settings.m_fTrackAlarmLimit);
  profile.ProfileSet("Track", "Bandwidth", settings.m_fTrackBandwidth);
  profile.ProfileSet("Track", "Damping", settings.m_fTrackDamping);
  profile.ProfileSet("Track", "Desired 1", settings.DesiredAngle[1]);
  profile.ProfileSet("Track", "Desired 2", settings.DesiredAngle[2]);
  profile.ProfileSet("Track", "Max SteerTo", settings.m_fTrackMaxSteerTo);
  profile.ProfileSet("View", "Night Colours", settings.m_bNightColours);
  profile.ProfileSet("View", "Save While Running", settings.m_bSaveWhileRunning);
  profile.ProfileSet("History Window", "Visible", windows.HistoryVisible());
  profile.ProfileSet("Polar Window", "Visible", windows.PolarVisible());
}

}  // namespace veerwatch
