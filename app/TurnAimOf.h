// The polar's best angle as what a turn ends on.
#pragma once

#include <optional>

#include "polar/PolarTable.h"
#include "tack/TurnPlan.h"

namespace veerwatch {

/// The wind angle of the most way to windward, or to leeward, in a true wind of `windSpeed` [kn], by slot 0
/// of `table` in its true wind; the apparent one belongs to it at the polar's speed. Nothing where the polar
/// makes no way.
std::optional<TurnAim> TurnAimOf(const PolarTable& table, float windSpeed, bool upwind);

}  // namespace veerwatch
