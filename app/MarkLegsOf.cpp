#include "app/MarkLegsOf.h"

#include <cstddef>

#include "platform/Angles.h"
#include "polar/CourseTargets.h"

namespace veerwatch {

std::optional<MarkLegs> MarkLegsOf(const PolarTable& table, const MarkAsk& ask) {
  PolarTable inTrueWind = table;
  inTrueWind.Type(PlotType::TrueWind);
  const CourseQuery query{FoldBearing(ask.WindFrom - ask.Wind), FoldBearing(ask.Bearing),
                          FoldRelative(ask.Wind), ToSingle(ask.WindSpeed)};
  const CourseSolution solution = CourseTargets(inTrueWind, query);
  if (!(solution.Best > 0.0F)) {
    return std::nullopt;
  }
  const std::size_t now = LegNow(solution);
  const CourseLeg& leg = solution.Legs[now];
  const CourseLeg& other = solution.Legs[1 - now];
  MarkLegs legs;
  legs.Two = leg.Share > 0.0F && other.Share > 0.0F;
  legs.Now = static_cast<double>(leg.WindAngle);
  legs.Other = static_cast<double>(legs.Two ? other.WindAngle : leg.WindAngle);
  return legs;
}

}  // namespace veerwatch
