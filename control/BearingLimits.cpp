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
  if (heading) {
    const double ahead = static_cast<double>(FoldRelative(bearing + change - *heading));
    change += std::clamp(ahead, -limits.MaxAhead, limits.MaxAhead) - ahead;
  }
  return {bearing + change, std::fabs(change - way) > 1e-9};
}

}  // namespace veerwatch
