// Where the legend of the polar plot stands.
#pragma once

#include <vector>

#include "polar/PolarPlot.h"

namespace veerwatch {

/// One value of the legend.
struct LegendCell {
  Box Caption;
  Box Value;
  bool Right = false;  ///< texts stand at the right of their boxes
};

/// Where the legend stands: beside or below the plot where there is room, else in the corners that the outer
/// ring leaves free.
struct PolarLegend {
  LegendCell Reference;
  LegendCell Boat;
  LegendCell WindSpeed;
  LegendCell WindAngle;
  std::vector<Box> Keys;     ///< a line each for the polars' names; none where there is no room
  double CaptionText = 0.0;  ///< height of the captions [px]
  double ValueText = 0.0;    ///< height of the values [px]
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
