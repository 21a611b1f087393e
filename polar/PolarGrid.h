// The grid of the polar plot: rings, spokes, and labels that keep clear of each other.
#pragma once

#include <string>
#include <vector>

#include "polar/PolarCurves.h"

namespace veerwatch {

enum class PlotLabelKind { Angle, Speed, Wind };

/// A label, its text in the middle of its place.
struct PlotLabel : PlacedText {
  PlotLabelKind Kind = PlotLabelKind::Angle;
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
  std::vector<Stroke> Spokes;
  std::vector<Stroke> Ticks;      ///< every ten degrees at the outer ring
  std::vector<PlotLabel> Labels;  ///< none overlaps another or leaves the outer ring's square
};

PolarGrid MakeGrid(const PolarGeometry& geometry, const PolarGridOptions& options,
                   const std::vector<PolarCurve>& curves);

/// Step between the rings [kn]: 1, 2 or 5 times a power of ten, for at most six steps in the range.
double RingStep(double speedRange);

/// Room that a label of `text` takes at most [px].
double LabelWidth(const std::string& text, double textHeight);

}  // namespace veerwatch
