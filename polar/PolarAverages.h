// The running averages of what the polar window is given. Each starts with its first value.
#pragma once

namespace veerwatch {

/// One set of instrument values as it is handed to the polar window.
struct PolarValues {
  bool HeadingValid = false;
  float Heading = 0.0F;            ///< [deg magnetic]
  float BoatSpeed = 0.0F;          ///< [kn]
  float WindAngleApparent = 0.0F;  ///< [deg relative, negative to port]
  float WindSpeedApparent = 0.0F;  ///< [kn]
  float WindAngleTrue = 0.0F;      ///< [deg relative, negative to port]
  float WindSpeedTrue = 0.0F;      ///< [kn]
  bool WaypointValid = false;
  float WaypointBearing = 0.0F;  ///< [deg magnetic]
  float WaypointRange = 0.0F;    ///< [nm]
};

class PolarAverages {
 public:
  /// Takes a set: flags and the waypoint as they are, the other six smoothed with `count` [0 = none]. A
  /// heading that is not valid leaves the average heading alone.
  void Feed(const PolarValues& values, float count);

  /// The smoothed values.
  const PolarValues& Values() const { return m_values; }
  /// False until the first set.
  bool Fed() const { return m_fed; }

 private:
  PolarValues m_values;
  bool m_fed = false;
  bool m_headingFed = false;
};

}  // namespace veerwatch
