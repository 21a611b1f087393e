// Where things lie on the polar plot: its centre and scale, and the place of a speed at an angle. Plain
// numbers [px], origin at the upper left, y downwards. What is drawn there: polar/PolarCurves, PolarGrid,
// PolarMarks and PolarLegend; PolarCanvasQt strokes it.
#pragma once

#include "draw/Shapes.h"
#include "polar/PolarTable.h"

namespace veerwatch {

/// Centre and scale of a plot in an area of `width` by `height` [px]: the largest square at the upper left,
/// with `speedRange` [kn, above 0] at its edge.
PolarGeometry PlotGeometry(double width, double height, double speedRange);

/// Radius of the outer ring [px].
double OuterRadius(const PolarGeometry& geometry);

/// Where `speed` [kn] at `angle` [deg, 0 up, positive to the right] lies.
Point PointAt(const PolarGeometry& geometry, double angle, double speed);

/// The point `radius` [px] from the centre in the direction `angle` [deg, 0 up, positive to the right].
Point AtRadius(const PolarGeometry& geometry, double angle, double radius);

}  // namespace veerwatch
