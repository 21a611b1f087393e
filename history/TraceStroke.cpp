#include "history/TraceStroke.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace veerwatch {

namespace {

/// From one point to another, of length 1.
Point Direction(const Point& from, const Point& to) {
  const double x = to.X - from.X;
  const double y = to.Y - from.Y;
  const double length = std::sqrt(x * x + y * y);
  return length > 0.0 ? Point{x / length, y / length} : Point{};
}

/// How far two pieces of half a width reach over the corner between them until their outer edges meet; at a
/// corner sharper than a right angle by half the width.
double Reach(const Point& in, const Point& out, double half) {
  const double cosine = in.X * out.X + in.Y * out.Y;
  const double sine = std::fabs(in.X * out.Y - in.Y * out.X);
  return cosine <= 0.0 ? half : half * sine / (1.0 + cosine);
}

Point Along(const Point& point, const Point& direction, double way) {
  return {point.X + direction.X * way, point.Y + direction.Y * way};
}

}  // namespace

void TraceStroke::FindCorners(std::span<const Point> points) {
  m_corners.assign(1, points.front());
  constexpr double kAny = std::numeric_limits<double>::infinity();
  // The slopes of all lines from the last corner that pass near enough to the points since.
  double least = -kAny;
  double most = kAny;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const auto slope = [&] {
      return (points[i].Y - m_corners.back().Y) / (points[i].X - m_corners.back().X);
    };
    if (!(slope() >= least && slope() <= most)) {
      m_corners.push_back(points[i - 1]);
      least = -kAny;
      most = kAny;
    }
    const double aside = kStraight / (points[i].X - m_corners.back().X);
    least = std::max(least, slope() - aside);
    most = std::min(most, slope() + aside);
  }
  m_corners.push_back(points.back());
}

const std::vector<Stroke>& TraceStroke::Pieces(std::span<const Point> points, double width) {
  m_pieces.clear();
  if (points.size() < 2) {
    return m_pieces;
  }
  FindCorners(points);
  const double half = width / 2.0;
  double before = 0.0;  // what the piece reaches over its beginning
  Point direction = Direction(m_corners[0], m_corners[1]);
  for (std::size_t i = 0; i + 1 < m_corners.size(); ++i) {
    const bool last = i + 2 == m_corners.size();
    const Point next = last ? direction : Direction(m_corners[i + 1], m_corners[i + 2]);
    const double after = last ? half : Reach(direction, next, half);
    m_pieces.push_back({Along(m_corners[i], direction, -before), Along(m_corners[i + 1], direction, after)});
    before = after;
    direction = next;
  }
  return m_pieces;
}

}  // namespace veerwatch
