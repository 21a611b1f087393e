// What the polar plot shows of the loop and of a turn, in the wind that it plots.
#pragma once

#include <optional>

#include "instruments/InstrumentData.h"
#include "polar/PolarModel.h"
#include "settings/TrackMode.h"
#include "tack/TurnPlan.h"

namespace veerwatch {

/// The angle `held` on `side` [deg relative] as it comes to in the other wind, in the true wind and at the
/// boat speed of `data`, with its sign; nothing where there is no such angle, as in a true wind that is
/// slower than the boat.
std::optional<float> HeldInOtherWind(TrackSide side, float held, const InstrumentData& data);

/// What is left of `plan` when the boat has turned by `turned` of it [deg, in its direction], in the winds of
/// `data`: "90 deg, 12 s" by the rate of the bearing.
PlotTurn PlotTurnOf(const TurnPlan& plan, double turned, const InstrumentData& data);

}  // namespace veerwatch
