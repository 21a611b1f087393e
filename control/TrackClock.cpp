#include "control/TrackClock.h"

#include <cmath>

namespace veerwatch {

LimitedBearing TrackClock::Step(double error, double seconds, double bearing,
                                const std::optional<double>& heading, const BearingLimits& limits) {
  const double wanted = bearing + (error + m_integral) * m_gains.Proportional * seconds;
  const LimitedBearing limited = LimitBearing(bearing, wanted, heading, limits, seconds);
  const double integral = m_integral + error * m_gains.Integral * seconds;
  if (!limited.Bites && std::isfinite(integral)) {
    m_integral = integral;
  }
  return limited;
}

}  // namespace veerwatch
