// How far and how fast the methods by the clock may take the bearing.
#pragma once

#include <optional>

namespace veerwatch {

struct BearingLimits {
  double MaxAhead = 30.0;  ///< of the heading [deg], above 0
  double MaxRate = 3.0;    ///< [deg/s], above 0
};

struct LimitedBearing {
  double Bearing = 0.0;  ///< [deg magnetic, any turn]
  bool Bites = false;    ///< it is not the one that was wanted
  bool ByRate = false;   ///< because it would have been too fast
  bool ByAhead = false;  ///< because it would have been too far from the heading
};

/// The way from `bearing` to `wanted` [deg magnetic, any turn] as far as it may be gone in `seconds`, and no
/// farther than MaxAhead from `heading`, where there is one. A bearing that is already too far from the
/// heading, because the boat does not follow, comes back to it at once.
LimitedBearing LimitBearing(double bearing, double wanted, const std::optional<double>& heading,
                            const BearingLimits& limits, double seconds);

}  // namespace veerwatch
