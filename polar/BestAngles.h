// The wind angles at which a polar makes the most way to windward and to leeward.
#pragma once

#include <optional>

#include "polar/PolarTable.h"

namespace veerwatch {

struct BestAngle {
  float Angle = 0.0F;     ///< [deg, [0, 180]], in tenths
  float MadeGood = 0.0F;  ///< straight to windward or to leeward [kn]
};

struct BestAngles {
  std::optional<BestAngle> Upwind;  ///< nothing where the polar makes no way
  std::optional<BestAngle> Downwind;
};

/// For slot 0 in a wind of `windSpeed` [kn]; of equal angles the one nearest to the bow.
BestAngles FindBestAngles(const PolarTable& table, float windSpeed);

}  // namespace veerwatch
