#include "instruments/Simulator.h"

#include <cmath>

#include "instruments/MathLib.h"

namespace veerwatch {

double Simulator::AngleNoise() {
  return static_cast<double>(
      ToSingle((m_random.Next() - 0.5) * static_cast<double>(m_settings.m_fSimulateNoiseAngle)));
}

double Simulator::SpeedNoise() {
  return static_cast<double>(
      ToSingle((m_random.Next() - 0.5) * static_cast<double>(m_settings.m_fSimulateNoiseSpeed)));
}

void Simulator::Tick(const Moment& now) {
  const Origin here{{'S', 'I', 'M'}, {}, 0, now};
  const InstrumentData& data = m_record.Data();
  m_record.HeadingUpdate(FoldBearing(static_cast<double>(m_settings.m_fSimulateCompassOffset) +
                                     static_cast<double>(m_settings.m_fAutoPilot)),
                         here);
  m_record.BoatSpeedUpdate(m_settings.m_fSimulateBoatSpeed, here);

  const float trueAngle =
      FoldRelative(static_cast<double>(m_settings.m_fSimulateTrueWindAngle) -
                   static_cast<double>(m_settings.m_fSimulateVariation) - static_cast<double>(data.Heading));
  const float trueSpeed = m_settings.m_fSimulateTrueWindSpeed;
  float angle = 0.0F;
  float speed = 0.0F;
  WindApparentFromTrue(trueSpeed, trueAngle, data.BoatSpeed, speed, angle);
  angle = FoldRelative(AngleNoise() + static_cast<double>(angle));
  speed = ToSingle(SpeedNoise() + static_cast<double>(speed));
  m_record.WindApparentUpdate(angle, speed, false, here);
  angle = FoldRelative(AngleNoise() + static_cast<double>(trueAngle));
  speed = ToSingle(SpeedNoise() + static_cast<double>(trueSpeed));
  m_record.WindTrueSimulated(angle, speed, here);

  m_record.VariationUpdate(m_settings.m_fSimulateVariation, here);
  m_record.WindIndicatorUpdate();

  float bearing = 0.0F;
  float range = 0.0F;
  SimulateTime(m_settings.m_fSimulateTime, bearing, range);
  m_record.WaypointUpdate(range, bearing, here);
}

void Simulator::SimulateTime(float Time, float& TimeWaypointBearing, float& TimeWaypointRange) {
  constexpr double kRadiansPerDegree = kPi / 180.0;
  if (Time == 0.0F) {
    m_waypointBearing = m_settings.m_fSimulateWaypointBearing;
    m_waypointRange = m_settings.m_fSimulateWaypointRange;
    m_settings.m_fSimulateTime = Time;
  } else if (std::isfinite(Time) && Time != m_settings.m_fSimulateTime) {
    const double run = (static_cast<double>(Time) - static_cast<double>(m_settings.m_fSimulateTime)) *
                       static_cast<double>(m_settings.m_fSimulateBoatSpeed);
    const double course = static_cast<double>(m_settings.m_fAutoPilot) * kRadiansPerDegree;
    const double bearing = static_cast<double>(m_waypointBearing) * kRadiansPerDegree;
    const double X = static_cast<double>(m_waypointRange) * std::cos(bearing) - run * std::cos(course);
    const double Y = static_cast<double>(m_waypointRange) * std::sin(bearing) - run * std::sin(course);
    m_waypointRange = ToSingle(std::sqrt(std::pow(X, 2.0) + std::pow(Y, 2.0)));
    m_waypointBearing = ToSingle(Atan2(X, Y) / kRadiansPerDegree);
    m_settings.m_fSimulateTime = Time;
  }
  TimeWaypointBearing = m_waypointBearing;
  TimeWaypointRange = m_waypointRange;
}

}  // namespace veerwatch
