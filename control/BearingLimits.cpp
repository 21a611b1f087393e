#include "control/BearingLimits.h"

#include <algorithm>
#include <cmath>

#include "platform/Angles.h"

namespace veerwatch {

LimitedBearing LimitBearing(double bearing, double wanted, const std::optional<double>& heading,
                            const BearingLimits& limits, double seconds) {
  const double way = static_cast<double>(FoldRelative(wanted - bearing));
  const double most = limits.MaxRate * seconds;
  double change = std::clamp(way, -most, most);
  LimitedBearing limited;
  limited.ByRate = change != way;
  if (heading) {
    const double ahead = static_cast<double>(FoldRelative(bearing + change - *heading));
    const double back = std::clamp(ahead, -limits.MaxAhead, limits.MaxAhead) - ahead;
    limited.ByAhead = back != 0.0;
    change += back;
  }
  limited.Bearing = bearing + change;
  limited.Bites = std::fabs(change - way) > 1e-9;
  return limited;
}

}  // namespace veerwatch
