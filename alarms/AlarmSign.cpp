#include "alarms/AlarmSign.h"

#include <cmath>
#include <numbers>

namespace veerwatch {

namespace {

constexpr int kOctagon = 8;
constexpr int kRound = 32;
/// How much of a triangle's height lies above its mark.
constexpr double kTip = 0.25;

/// A regular polygon around the middle of `box`, standing on a side.
Polyline Regular(const Box& box, int corners) {
  const double step = 2.0 * std::numbers::pi / corners;
  // Its flat sides touch the box.
  const double radius = std::fmin(box.Width, box.Height) / 2.0 / std::cos(step / 2.0);
  const Point middle = box.Middle();
  Polyline outline;
  for (int i = 0; i <= corners; ++i) {
    const double angle = step * (i + 0.5);
    outline.push_back({middle.X + radius * std::sin(angle), middle.Y - radius * std::cos(angle)});
  }
  return outline;
}

}  // namespace

Polyline AlarmSign(Level level, const Box& box) {
  if (level == Level::Amber) {
    return {
        {box.X, box.Bottom()}, {box.Middle().X, box.Y}, {box.Right(), box.Bottom()}, {box.X, box.Bottom()}};
  }
  return Regular(box, level == Level::Red ? kOctagon : kRound);
}

Box AlarmSignMark(Level level, const Box& box) {
  const double tip = level == Level::Amber ? box.Height * kTip : 0.0;
  return {box.X, box.Y + tip, box.Width, box.Height - tip};
}

}  // namespace veerwatch
