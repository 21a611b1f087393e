// How a polyline is stroked: as straight pieces with flat ends that close at the corners and hardly lie on
// one another, so that the soft edge of a line is as dark over a sample as between two. Stroking polylines
// with joins takes longer, by more than their length. Pure numbers [px], used by StripChartPainterQt.
#pragma once

#include <span>
#include <vector>

#include "draw/Shapes.h"

namespace veerwatch {

class TraceStroke {
 public:
  /// A point this near to the straight line between its neighbours does not bend it [px].
  static constexpr double kStraight = 0.1;

  /// The pieces of a polyline that runs from left to right, in their order, to be stroked `width` [px] wide.
  /// Valid until the next call.
  const std::vector<Stroke>& Pieces(std::span<const Point> points, double width);

 private:
  void FindCorners(std::span<const Point> points);

  Polyline m_corners;
  std::vector<Stroke> m_pieces;
};

}  // namespace veerwatch
