// The boat's present instrument values. Written by the updates of instruments/InstrumentRecord alone; read
// by everyone.
#pragma once

namespace veerwatch {

struct InstrumentData {
  bool HeadingValid = false;
  float Heading = 0.0F;         ///< [deg magnetic, [0, 360)], raw
  float HeadingAverage = 0.0F;  ///< [deg magnetic], smoothed; its first value is the first sample unfolded

  bool BoatSpeedValid = false;
  float BoatSpeed = 0.0F;         ///< [kn], raw
  float BoatSpeedAverage = 0.0F;  ///< [kn], smoothed

  bool VariationValid = false;
  float Variation = 0.0F;  ///< magnetic variation [deg, east positive]

  bool WaypointValid = false;
  float WaypointBearing = 0.0F;  ///< [deg magnetic], not folded
  float WaypointRange = 0.0F;    ///< [nm]

  bool WindApparentValid = false;
  float WindAngleApparent = 0.0F;         ///< [deg relative, (-180, 180]], raw
  float WindAngleApparentAverage = 0.0F;  ///< [deg relative, [-180, 180]], smoothed
  float WindSpeedApparent = 0.0F;         ///< [kn], raw
  float WindSpeedApparentAverage = 0.0F;  ///< [kn], smoothed

  bool WindTrueValid = false;
  float WindAngleTrue = 0.0F;  ///< [deg relative, [-180, 180]], smoothed
  float WindSpeedTrue = 0.0F;  ///< [kn], smoothed

  bool WindIndicatorValid = false;
  float WindDirectionAverage = 0.0F;  ///< where the true wind blows from [deg true, [0, 360)], smoothed
  float WindSpeedAverage = 0.0F;      ///< true wind speed of the indicator [kn], smoothed
};

}  // namespace veerwatch
