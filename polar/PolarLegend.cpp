#include "polar/PolarLegend.h"

#include <algorithm>
#include <cmath>

namespace veerwatch {

namespace {

/// Shares of the space in a legend cell.
constexpr double kCaptionShare = 0.3;
/// Width of the longest usual value, as "12.3 104%", in shares of its height.
constexpr double kLongestValue = 4.9;
/// Most height of a legend cell in shares of its width.
constexpr double kCellShape = 0.56;
/// Least height of the captions [px].
constexpr double kLeastCaption = 7.5;

/// A cell in a box: the caption above the value.
LegendCell CellIn(const Box& box) {
  const double caption = box.Height * kCaptionShare;
  return {
      {box.X, box.Y, box.Width, caption}, {box.X, box.Y + caption, box.Width, box.Height - caption}, false};
}

/// Width that the corner outside of the ring leaves in the rows from the edge to `rows`.
double CornerWidth(double half, double rows) {
  const double up = half - rows;
  return half - std::sqrt(half * half - up * up);
}

/// Height of the captions: legible still, and smaller than the values.
double CaptionBeside(const PolarLegend& legend) {
  return std::max(legend.Boat.Caption.Height * 0.62, std::min(kLeastCaption, legend.ValueText * 0.8));
}

void LayColumn(PolarLegend& legend, const Box& box, int keys) {
  const double keyHeight = std::clamp(box.Height * 0.03, 9.0, 20.0);
  const double cellHeight =
      std::min((box.Height - (keys + 1) * keyHeight * 1.5) / 4.0, box.Width * kCellShape);
  double y = box.Y;
  for (LegendCell* cell : {&legend.Boat, &legend.Reference, &legend.WindSpeed, &legend.WindAngle}) {
    *cell = CellIn({box.X, y, box.Width, cellHeight * 0.9});
    y += cellHeight;
  }
  for (int key = keys; key > 0; --key) {
    legend.Keys.push_back({box.X, box.Y + box.Height - key * keyHeight * 1.4, box.Width, keyHeight * 1.4});
  }
  legend.ValueText = std::min(legend.Boat.Value.Height * 0.92, box.Width / kLongestValue);
  legend.CaptionText = CaptionBeside(legend);
}

void LayRow(PolarLegend& legend, const Box& box, int keys) {
  const double keyHeight = std::clamp(box.Height * 0.11, 9.0, 18.0);
  const double height = box.Height - keys * keyHeight * 1.4;
  // In one row or in two, whichever makes the values larger.
  const bool twice =
      std::min(height / 2.0, box.Width / 2.0 * kCellShape) > std::min(height, box.Width / 4.0 * kCellShape);
  const double cellWidth = box.Width / (twice ? 2.0 : 4.0);
  const double cellHeight = std::min(height / (twice ? 2.0 : 1.0), cellWidth * kCellShape);
  int index = 0;
  for (LegendCell* cell : {&legend.Boat, &legend.Reference, &legend.WindSpeed, &legend.WindAngle}) {
    const int column = twice ? index % 2 : index;
    const int row = twice ? index / 2 : 0;
    *cell =
        CellIn({box.X + column * cellWidth, box.Y + row * cellHeight, cellWidth * 0.96, cellHeight * 0.92});
    ++index;
  }
  for (int key = keys; key > 0; --key) {
    legend.Keys.push_back({box.X, box.Y + box.Height - key * keyHeight * 1.4, box.Width, keyHeight * 1.4});
  }
  legend.ValueText = std::min(legend.Boat.Value.Height * 0.92, legend.Boat.Value.Width / kLongestValue);
  legend.CaptionText = CaptionBeside(legend);
}

void LayCorners(PolarLegend& legend, double width, double height, int keys) {
  const double side = std::min(width, height);
  const double half = side / 2.0;
  const double margin = side * 0.012;
  const double captionHeight = side * 0.036;
  const double valueHeight = side * 0.066;
  // The lower corners have a line more, for the names.
  const double keyHeight = keys > 1 ? captionHeight : 0.0;
  const double moreX = width - side;
  const double keyWidth = CornerWidth(half, margin + keyHeight) - margin;

  const auto cell = [&](bool right, bool low) {
    const double more = right ? moreX : 0.0;
    // Rows from the nearer edge to the far side of each text.
    const double captionRows =
        low ? margin + keyHeight + valueHeight + captionHeight : margin + captionHeight;
    const double valueRows = low ? margin + keyHeight + valueHeight : margin + captionHeight + valueHeight;
    const double captionWidth = CornerWidth(half, captionRows) - margin + more;
    const double valueWidth = CornerWidth(half, valueRows) - margin + more;
    const auto left = [&](double boxWidth) { return right ? width - margin - boxWidth : margin; };
    return LegendCell{
        {left(captionWidth), low ? height - captionRows : margin, captionWidth, captionHeight},
        {left(valueWidth), low ? height - valueRows : margin + captionHeight, valueWidth, valueHeight},
        right};
  };
  legend.WindSpeed = cell(false, false);
  legend.WindAngle = cell(true, false);
  legend.Reference = cell(false, true);
  legend.Boat = cell(true, true);
  if (keys > 1) {
    const double y = height - margin - keyHeight;
    legend.Keys.push_back({margin, y, keyWidth, keyHeight});
    legend.Keys.push_back({width - margin - keyWidth - moreX, y, keyWidth + moreX, keyHeight});
  }
  legend.CaptionText = captionHeight * 0.72;
  legend.ValueText = std::min(valueHeight * 0.86, (legend.Boat.Value.Width - moreX) / kLongestValue);
  legend.Corners = true;
}

/// What of `whole` is the legend's when `taken` is somebody else's.
double LeftOver(double whole, double taken) {
  constexpr double kLeast = 0.3;
  return taken > 0.0 && whole - taken >= kLeast * whole ? whole - taken : whole;
}

}  // namespace

PolarLegend LayLegend(double width, double height, int keys, const PlotRoom& taken) {
  /// Room beside the plot from which on the legend stands there, in shares of the plot.
  constexpr double kRoom = 0.24;
  const double side = std::min(width, height);
  const double margin = side * 0.025;
  PolarLegend legend;
  if (width - side > kRoom * side) {
    const double columnWidth = std::min(width - side - 2.0 * margin, side * 0.6);
    const double free = LeftOver(height, taken.Height);
    LayColumn(legend, {side + margin, margin, columnWidth, free - 2.0 * margin}, keys);
  } else if (height - side > kRoom * side) {
    // To the left of what is taken or, where it is too narrow there, above.
    const double left = LeftOver(width, taken.Width);
    const double above = left < width ? height - side : LeftOver(height - side, taken.Height);
    LayRow(legend, {margin, side + margin, left - 2.0 * margin, above - 2.0 * margin}, keys);
  } else {
    LayCorners(legend, width, height, keys);
  }
  return legend;
}

}  // namespace veerwatch
