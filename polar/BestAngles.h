// The wind angles at which a polar makes the most way to windward and to leeward.
#pragma once

#include <cstdint>
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

/// Whether the table of slot 0 ends at `angle` [deg, [0, 180]]: a best angle there may only be the best of
/// the table. The bow and the stern are no end.
bool IsLastAngle(const PolarTable& table, float angle);

/// Keeps the best angles while table and wind are the same to a tenth of a knot.
class BestAnglesMemory {
 public:
  /// `version` grows with every change of the table.
  const BestAngles& Of(const PolarTable& table, std::uint64_t version, float windSpeed);

 private:
  std::uint64_t m_version = 0;
  std::optional<long> m_wind;  ///< [tenths of a knot]
  BestAngles m_best;
};

}  // namespace veerwatch
