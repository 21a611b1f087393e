#include "polar/PolarMarks.h"

#include <algorithm>
#include <cmath>

#include "instruments/MathLib.h"

namespace veerwatch {

namespace {

constexpr double kRadiansPerDegree = kPi / 180.0;

}  // namespace

WindArrow MakeWindArrow(const PolarGeometry& geometry, double angle, double textHeight) {
  // In shares of the outer radius.
  constexpr double kTail = 0.36;
  constexpr double kTip = 0.06;
  constexpr double kHeadLength = 0.12;
  constexpr double kHeadHalf = 0.05;
  const double radius = OuterRadius(geometry);
  const double radians = angle * kRadiansPerDegree;
  const Point tail = AtRadius(geometry, angle, radius * kTail);
  const Point tip = AtRadius(geometry, angle, radius * kTip);
  const Point neck = AtRadius(geometry, angle, radius * (kTip + kHeadLength));
  const double rim = std::max(radius - 3.2 * textHeight, radius * kTail);
  const double acrossX = std::cos(radians) * radius * kHeadHalf;
  const double acrossY = std::sin(radians) * radius * kHeadHalf;
  return {{AtRadius(geometry, angle, rim), tail},
          {tail, tip},
          {neck.X - acrossX, neck.Y - acrossY},
          {neck.X + acrossX, neck.Y + acrossY}};
}

BoatPoint MakeBoatPoint(const PolarGeometry& geometry, double angle, double speed) {
  const double radius = OuterRadius(geometry);
  if (std::fabs(speed) * geometry.ScaleX > radius) {
    return {AtRadius(geometry, angle, std::copysign(radius, speed)), true};
  }
  return {PointAt(geometry, angle, speed), false};
}

LegArrow MakeLegArrow(const PolarGeometry& geometry, double angle, double speed) {
  constexpr double kHeadAngle = 30.0;
  // In shares of the outer radius, and of the line for a short one.
  constexpr double kHead = 0.07;
  constexpr double kMostHead = 0.5;
  const double radius = OuterRadius(geometry);
  const double length = std::min(speed * geometry.ScaleX, radius);
  const Point tip = AtRadius(geometry, angle, length);
  const double head = std::min(kHead * radius, kMostHead * length);
  const auto back = [&](double side) {
    const double radians = (angle + 180.0 + side) * kRadiansPerDegree;
    return Point{tip.X + head * std::sin(radians), tip.Y - head * std::cos(radians)};
  };
  return {{{geometry.CentreX, geometry.CentreY}, tip}, {tip, back(kHeadAngle)}, {tip, back(-kHeadAngle)}};
}

TargetMark MakeTargetMark(const PolarGeometry& geometry, double angle, double textHeight) {
  // In heights of the text.
  constexpr double kLength = 1.0;
  constexpr double kHalfWidth = 0.35;
  const double radius = OuterRadius(geometry);
  const Point rim = AtRadius(geometry, angle, radius);
  const Point waist = AtRadius(geometry, angle, radius - kLength * textHeight / 2.0);
  const Point inner = AtRadius(geometry, angle, radius - kLength * textHeight);
  const double radians = angle * kRadiansPerDegree;
  const double acrossX = std::cos(radians) * kHalfWidth * textHeight;
  const double acrossY = std::sin(radians) * kHalfWidth * textHeight;
  return {{{geometry.CentreX, geometry.CentreY}, rim},
          {rim, {waist.X - acrossX, waist.Y - acrossY}, inner, {waist.X + acrossX, waist.Y + acrossY}}};
}

HeldMark MakeHeldMark(const PolarGeometry& geometry, double angle, double textHeight) {
  // In heights of the text.
  constexpr double kLength = 1.3;
  constexpr double kHalfWidth = 0.55;
  const double radius = OuterRadius(geometry);
  const Point rim = AtRadius(geometry, angle, radius);
  const double radians = angle * kRadiansPerDegree;
  const double acrossX = std::cos(radians) * kHalfWidth * textHeight;
  const double acrossY = std::sin(radians) * kHalfWidth * textHeight;
  return {AtRadius(geometry, angle, radius - kLength * textHeight), Point{rim.X - acrossX, rim.Y - acrossY},
          Point{rim.X + acrossX, rim.Y + acrossY}};
}

TurnArc MakeTurnArc(const PolarGeometry& geometry, double from, double to, double textHeight) {
  // In heights of the text.
  constexpr double kInside = 2.6;
  constexpr double kLabelInside = 4.2;
  constexpr double kHead = 0.9;
  constexpr double kStep = 3.0;  // [deg]
  constexpr double kRound = 360.0;
  const double radius = std::max(OuterRadius(geometry) - kInside * textHeight, textHeight);
  const double way = std::clamp(to - from, -kRound, kRound);
  const int steps = std::max(1, static_cast<int>(std::ceil(std::fabs(way) / kStep)));
  TurnArc arc;
  for (int i = 0; i <= steps; ++i) {
    arc.Line.push_back(AtRadius(geometry, from + way * i / steps, radius));
  }
  const Point& end = arc.Line.back();
  const double back = std::copysign(kHead * textHeight / radius / kRadiansPerDegree, way);
  const double foot = from + way - back;
  const double half = kHead * textHeight / 2.0;
  arc.HeadLeft = {end, AtRadius(geometry, foot, radius - half)};
  arc.HeadRight = {end, AtRadius(geometry, foot, radius + half)};
  arc.Label =
      AtRadius(geometry, from + way / 2.0, std::max(0.0, OuterRadius(geometry) - kLabelInside * textHeight));
  return arc;
}

Polyline MakeGuardBand(const PolarGeometry& geometry, double from, double to, double textHeight) {
  constexpr double kWidth = 0.6;  // heights of the text
  constexpr double kStep = 3.0;   // [deg]
  const double radius = OuterRadius(geometry);
  const int steps = std::max(1, static_cast<int>(std::ceil((to - from) / kStep)));
  Polyline band;
  for (int i = 0; i <= steps; ++i) {
    band.push_back(AtRadius(geometry, from + (to - from) * i / steps, radius));
  }
  for (int i = steps; i >= 0; --i) {
    band.push_back(AtRadius(geometry, from + (to - from) * i / steps, radius - kWidth * textHeight));
  }
  return band;
}

}  // namespace veerwatch
