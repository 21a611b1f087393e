#include "control/TrackGains.h"

#include <cmath>

namespace veerwatch {

std::optional<TrackGains> TrackGainsFor(double bandwidth, double damping) {
  if (bandwidth == 0.0) {
    return std::nullopt;
  }
  const double w = 4.0 / bandwidth;
  TrackGains gains;
  gains.Integral = w / (4.0 * std::pow(damping, 2.0) + 1.0);
  gains.Proportional = w - gains.Integral;
  // It is out of range whenever the integral gain is.
  if (!std::isfinite(gains.Proportional)) {
    return std::nullopt;
  }
  return gains;
}

}  // namespace veerwatch
