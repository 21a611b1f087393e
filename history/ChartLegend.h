// The legend of a strip chart as numbers: the newest value of each trace beside its panel, all of one size
// and with their decimal points under each other.
#pragma once

#include <string>
#include <vector>

#include "draw/Shapes.h"
#include "draw/TextMeasure.h"
#include "history/StripChartData.h"

namespace veerwatch {

/// A trace with its newest value, beside its panel.
struct ChartLegendEntry {
  int Trace = 0;  ///< counts from 0
  Box Cell;
  Box Swatch;
  PlacedText Name;
  std::string Brief;  ///< the name where there is little room
  PlacedText Value;   ///< drawn bold
  PlacedText Units;
  bool Old = false;  ///< the value is no more of now
};

/// Fills in entries whose Trace and Cell are set; all cells begin at the same X and are equally wide.
/// `text` is the height of the chart's texts [px]. No text leaves its cell or lies on another or on a swatch;
/// a value that is longer than those of instruments is smaller, and units without room are left out.
void ComposeLegend(const StripChartData& data, double text, const TextMeasure& measure,
                   std::vector<ChartLegendEntry>& legend);

/// The least width of a legend in which a short name and a value fit on one line [px].
double LegendLeastWidth(double text, const TextMeasure& measure);

}  // namespace veerwatch
