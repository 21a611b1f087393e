// The curves of the polar plot as lines to stroke: one for each wind speed of a table, and that of the wind
// that blows.
#pragma once

#include <vector>

#include "polar/PolarPlot.h"

namespace veerwatch {

/// A smooth line through `knots`, in their order, with a point every few pixels. An end on the vertical
/// through `axisX` leaves it at a right angle, so that it meets its mirror image without a kink.
Polyline SmoothLine(const Polyline& knots, double axisX);

/// What of `line` lies in the disc around (`centreX`, `centreY`).
std::vector<Polyline> ClipToDisc(const Polyline& line, double centreX, double centreY, double radius);

/// The curve of one wind speed, both sides, within the outer ring.
struct PolarCurve {
  float WindSpeed = 0.0F;       ///< [kn]
  bool Major = true;            ///< false for the columns that a dense table has between the others
  std::vector<Polyline> Lines;  ///< starboard lines, then their mirror images
};

/// A curve per column.
std::vector<PolarCurve> PolarCurves(const PolarTable& table, int slot, const PolarGeometry& geometry);

/// The curve of a true wind of `windSpeed` [kn], row by row on the straight line between the two neighbouring
/// columns: the highest column above all, no lines below the lowest one.
PolarCurve WindCurve(const PolarTable& table, int slot, float windSpeed, const PolarGeometry& geometry);

}  // namespace veerwatch
