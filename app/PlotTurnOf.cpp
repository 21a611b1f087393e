#include "app/PlotTurnOf.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "instruments/MathLib.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kDegree = kPi / 180.0;

std::string Whole(double number) { return FormatNumber(ToSingle(number), "0"); }

/// The apparent angle of a true one [deg, any turn], on the same turn.
double ApparentOf(double angle, const InstrumentData& data) {
  const auto folded = static_cast<double>(FoldRelative(angle));
  float speed = 0.0F;
  float apparent = 0.0F;
  WindApparentFromTrue(data.WindSpeedTrue, ToSingle(folded), data.BoatSpeed, speed, apparent);
  return static_cast<double>(apparent) + angle - folded;
}

}  // namespace

std::optional<float> HeldInOtherWind(TrackSide side, float held, const InstrumentData& data) {
  if (!data.WindTrueValid || !data.BoatSpeedValid || !(data.WindSpeedTrue > 0.0F)) {
    return std::nullopt;
  }
  if (side == TrackSide::True) {
    return ToSingle(ApparentOf(static_cast<double>(held), data));
  }
  // The triangle of the winds, of which two sides and the angle opposite to one are known.
  const auto boat = static_cast<double>(data.BoatSpeed);
  const auto wind = static_cast<double>(data.WindSpeedTrue);
  const double across = boat * std::sin(static_cast<double>(held) * kDegree);
  if (std::fabs(across) > wind) {
    return std::nullopt;
  }
  const double apparent =
      boat * std::cos(static_cast<double>(held) * kDegree) + std::sqrt(wind * wind - across * across);
  if (!(apparent > 0.0)) {
    return std::nullopt;
  }
  float speed = 0.0F;
  float angle = 0.0F;
  WindTrueFromApparent(ToSingle(apparent), held, data.BoatSpeed, speed, angle);
  return angle;
}

PlotTurn PlotTurnOf(const TurnPlan& plan, double turned, const InstrumentData& data) {
  const double side = plan.Change < 0.0 ? -1.0 : 1.0;
  PlotTurn turn;
  turn.TrueFrom = plan.Wind - side * turned;
  turn.TrueTo = plan.Wind - plan.Change;
  turn.ApparentFrom = ApparentOf(turn.TrueFrom, data);
  turn.ApparentTo = ApparentOf(turn.TrueTo, data);
  const double left = std::max(0.0, std::fabs(plan.Change) - turned);
  const double past = std::max(0.0, std::fabs(plan.Change + plan.Overshoot) - turned);
  const double seconds = (past + std::fabs(plan.Overshoot)) / plan.Rate;
  turn.Text = Whole(left) + " deg, " + Whole(seconds) + " s";
  return turn;
}

}  // namespace veerwatch
