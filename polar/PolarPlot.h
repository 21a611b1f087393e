// Geometry of the polar plot: where a speed at an angle lies, the curves as lines to stroke, rings, spokes
// and labels that keep clear of each other, the legend's places, the wind arrow and the boat's point. Plain
// numbers [px], origin at the upper left, y downwards; PolarCanvasQt strokes them.
#pragma once

#include <string>
#include <vector>

#include "polar/PolarTable.h"

namespace veerwatch {

struct PlotPoint {
  double X = 0.0;
  double Y = 0.0;
};

struct PlotBox {
  double X = 0.0;
  double Y = 0.0;
  double Width = 0.0;
  double Height = 0.0;
};

using PlotLine = std::vector<PlotPoint>;

struct PlotStroke {
  PlotPoint From;
  PlotPoint To;
};

/// Centre and scale of a plot in an area of `width` by `height` [px]: the largest square at the upper left,
/// with `speedRange` [kn, above 0] at its edge.
PolarGeometry PlotGeometry(double width, double height, double speedRange);

/// Radius of the outer ring [px].
double OuterRadius(const PolarGeometry& geometry);

/// Where `speed` [kn] at `angle` [deg, 0 up, positive to the right] lies.
PlotPoint PointAt(const PolarGeometry& geometry, double angle, double speed);

/// A smooth line through `knots`, in their order, with a point every few pixels. An end on the vertical
/// through `axisX` leaves it at a right angle, so that it meets its mirror image without a kink.
PlotLine SmoothLine(const std::vector<PlotPoint>& knots, double axisX);

/// What of `line` lies in the disc around (`centreX`, `centreY`).
std::vector<PlotLine> ClipToDisc(const PlotLine& line, double centreX, double centreY, double radius);

/// The curve of one wind speed, both sides, within the outer ring.
struct PolarCurve {
  float WindSpeed = 0.0F;       ///< [kn]
  bool Major = true;            ///< false for the columns that a dense table has between the others
  std::vector<PlotLine> Lines;  ///< starboard lines, then their mirror images
};

/// A curve per column.
std::vector<PolarCurve> PolarCurves(const PolarTable& table, int slot, const PolarGeometry& geometry);

/// The curve of a true wind of `windSpeed` [kn], row by row on the straight line between the two neighbouring
/// columns: the highest column above all, no lines below the lowest one.
PolarCurve WindCurve(const PolarTable& table, int slot, float windSpeed, const PolarGeometry& geometry);

enum class PlotLabelKind { Angle, Speed, Wind };

struct PlotLabel {
  PlotLabelKind Kind = PlotLabelKind::Angle;
  PlotBox Box;  ///< the text is centred in it
  std::string Text;
};

/// What the grid and its labels depend on.
struct PolarGridOptions {
  double SpeedRange = 10.0;  ///< [kn]
  double TextHeight = 14.0;  ///< [px]
  bool WindLabels = false;   ///< a label on each major curve
  bool SpeedsToPort = true;  ///< ring labels to port of the bow, else to starboard
};

struct PolarGrid {
  std::vector<double> Rings;  ///< radii [px], the outer ring last
  std::vector<PlotStroke> Spokes;
  std::vector<PlotStroke> Ticks;  ///< every ten degrees at the outer ring
  std::vector<PlotLabel> Labels;  ///< none overlaps another or leaves the outer ring's square
};

PolarGrid MakeGrid(const PolarGeometry& geometry, const PolarGridOptions& options,
                   const std::vector<PolarCurve>& curves);

/// Step between the rings [kn]: 1, 2 or 5 times a power of ten, for at most six steps in the range.
double RingStep(double speedRange);

/// Room that a label of `text` takes at most [px].
double LabelWidth(const std::string& text, double textHeight);

/// The wind: an arrow towards the centre, and a thin line from the angle labels to it.
struct WindArrow {
  PlotStroke Line;
  PlotStroke Shaft;
  PlotPoint HeadLeft;
  PlotPoint HeadRight;
};
WindArrow MakeWindArrow(const PolarGeometry& geometry, double angle, double textHeight);

/// The boat's point; one beyond the outer ring is held on it.
struct BoatPoint {
  PlotPoint Point;
  bool Beyond = false;
};
BoatPoint MakeBoatPoint(const PolarGeometry& geometry, double angle, double speed);

/// A leg of the course: a line from the centre with an arrow head of two strokes at its point.
struct LegArrow {
  PlotStroke Line;
  PlotStroke HeadLeft;  ///< from the point backwards, 30 degrees off the line
  PlotStroke HeadRight;
};
/// For `speed` [kn, above 0] at the wind angle `angle` [deg]; a leg beyond the outer ring ends on it.
LegArrow MakeLegArrow(const PolarGeometry& geometry, double angle, double speed);

/// One value of the legend.
struct LegendCell {
  PlotBox Caption;
  PlotBox Value;
  bool Right = false;  ///< texts stand at the right of their boxes
};

/// Where the legend stands: beside or below the plot where there is room, else in the corners that the outer
/// ring leaves free.
struct PolarLegend {
  LegendCell Reference;
  LegendCell Boat;
  LegendCell WindSpeed;
  LegendCell WindAngle;
  std::vector<PlotBox> Keys;  ///< a line each for the polars' names; none where there is no room
  double CaptionText = 0.0;   ///< height of the captions [px]
  double ValueText = 0.0;     ///< height of the values [px]
  bool Corners = false;
};

/// Room that something else takes at the lower right [px].
struct PlotRoom {
  double Width = 0.0;
  double Height = 0.0;
  bool operator==(const PlotRoom&) const = default;
};

/// For an area of `width` by `height` and `keys` names. Beside or below the plot the legend leaves `taken`
/// free, unless too little would be left for it.
PolarLegend LayLegend(double width, double height, int keys, const PlotRoom& taken = {});

}  // namespace veerwatch
