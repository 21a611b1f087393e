#include "polar/PolarAverages.h"

#include "instruments/MathLib.h"

namespace veerwatch {

void PolarAverages::Feed(const PolarValues& values, float count) {
  // Without averaging a value is taken as it is, which is also how an average starts.
  const float used = m_fed ? count : 0.0F;
  AverageValue(values.BoatSpeed, used, m_values.BoatSpeed);
  AverageAngleRelative(values.WindAngleApparent, used, m_values.WindAngleApparent);
  AverageValue(values.WindSpeedApparent, used, m_values.WindSpeedApparent);
  AverageAngleRelative(values.WindAngleTrue, used, m_values.WindAngleTrue);
  AverageValue(values.WindSpeedTrue, used, m_values.WindSpeedTrue);
  m_fed = true;
  m_values.HeadingValid = values.HeadingValid;
  if (values.HeadingValid) {
    AverageAngleAbsolute(values.Heading, m_headingFed ? count : 0.0F, m_values.Heading);
    m_headingFed = true;
  }
  m_values.WaypointValid = values.WaypointValid;
  m_values.WaypointBearing = values.WaypointBearing;
  m_values.WaypointRange = values.WaypointRange;
}

}  // namespace veerwatch
