// What moves on the polar plot beside the curve: the wind, the boat, and the legs and the target of a course.
#pragma once

#include <array>

#include "polar/PolarPlot.h"

namespace veerwatch {

/// The wind: an arrow towards the centre, and a thin line from the angle labels to it.
struct WindArrow {
  Stroke Line;
  Stroke Shaft;
  Point HeadLeft;
  Point HeadRight;
};
WindArrow MakeWindArrow(const PolarGeometry& geometry, double angle, double textHeight);

/// The boat's point; one beyond the outer ring is held on it.
struct BoatPoint {
  Point At;
  bool Beyond = false;
};
BoatPoint MakeBoatPoint(const PolarGeometry& geometry, double angle, double speed);

/// A leg of the course: a line from the centre with an arrow head of two strokes at its point.
struct LegArrow {
  Stroke Line;
  Stroke HeadLeft;  ///< from the point backwards, 30 degrees off the line
  Stroke HeadRight;
};
/// For `speed` [kn, above 0] at the wind angle `angle` [deg]; a leg beyond the outer ring ends on it.
LegArrow MakeLegArrow(const PolarGeometry& geometry, double angle, double speed);

/// The bearing to sail to: a line from the centre to the outer ring, and a diamond inside of it at the ring.
struct TargetMark {
  Stroke Line;
  std::array<Point, 4> Diamond;
};
/// For a target at the wind angle `angle` [deg].
TargetMark MakeTargetMark(const PolarGeometry& geometry, double angle, double textHeight);

/// What Track holds: a triangle on the outer ring that points to the centre, at the wind angle `angle` [deg].
using HeldMark = std::array<Point, 3>;
HeldMark MakeHeldMark(const PolarGeometry& geometry, double angle, double textHeight);

/// A band along the inside of the outer ring, round to starboard from the wind angle `from` to `to` [deg, to
/// at least from]: where the angle guard lets no wind come.
Polyline MakeGuardBand(const PolarGeometry& geometry, double from, double to, double textHeight);

/// A turn to come: an arc inside of the outer ring with an arrow head at its end.
struct TurnArc {
  Polyline Line;
  Stroke HeadLeft;  ///< from the end of the arc backwards
  Stroke HeadRight;
  Point Label;  ///< the middle of its text, inside of the arc's own
};
/// From the wind angle `from` to `to` [deg], the way that the sign of their difference says, at most once
/// round.
TurnArc MakeTurnArc(const PolarGeometry& geometry, double from, double to, double textHeight);

}  // namespace veerwatch
