// The gains of the control loop, for the loop itself and for the preview of its response.
#pragma once

#include <optional>

namespace veerwatch {

struct TrackGains {
  double Integral = 0.0;      ///< of the accumulator, per pass
  double Proportional = 0.0;  ///< of error plus accumulator, per pass
};

/// The gains for a bandwidth [s] and a damping factor. Nothing when the bandwidth is 0 or so small that a
/// gain is not finite.
std::optional<TrackGains> TrackGainsFor(double bandwidth, double damping);

}  // namespace veerwatch
