#include "polar/PolarCurves.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace veerwatch {

namespace {

/// Distance between the points of a smooth line [px], and the most points between two knots.
constexpr double kPointDistance = 7.0;
constexpr double kMostPoints = 24.0;
/// Knots nearer to each other are one [px].
constexpr double kSamePlace = 1e-6;
/// An end so near to the axis lies on it [px].
constexpr double kOnAxis = 1e-3;

/// Up to so many columns all curves are major; a denser table has about kDenseCurves major ones.
constexpr std::size_t kMostMajor = 12;
constexpr std::size_t kDenseCurves = 10;

double Distance(const Point& a, const Point& b) { return std::hypot(a.X - b.X, a.Y - b.Y); }

Point Mirrored(const Point& point, double axisX) { return {2.0 * axisX - point.X, point.Y}; }

/// The neighbour that a line's end lacks: `inner` beyond `end`.
Point Beyond(const Point& end, const Point& inner, double axisX) {
  if (std::fabs(end.X - axisX) < kOnAxis) {
    return Mirrored(inner, axisX);
  }
  return {2.0 * end.X - inner.X, 2.0 * end.Y - inner.Y};
}

/// Slope of a centripetal spline at `b` per unit of the span `own`, one of the spans `before` and `after`.
Point Tangent(const Point& a, const Point& b, const Point& c, double before, double after, double own) {
  const auto slope = [&](double va, double vb, double vc) {
    return own * ((vb - va) / before - (vc - va) / (before + after) + (vc - vb) / after);
  };
  return {slope(a.X, b.X, c.X), slope(a.Y, b.Y, c.Y)};
}

std::vector<Polyline> BothSides(const Polyline& knots, const PolarGeometry& geometry) {
  std::vector<Polyline> lines = ClipToDisc(SmoothLine(knots, geometry.CentreX), geometry.CentreX,
                                           geometry.CentreY, OuterRadius(geometry));
  const std::size_t count = lines.size();
  for (std::size_t i = 0; i < count; ++i) {
    Polyline mirror = lines[i];
    for (Point& point : mirror) {
      point = Mirrored(point, geometry.CentreX);
    }
    lines.push_back(std::move(mirror));
  }
  return lines;
}

}  // namespace

Polyline SmoothLine(const Polyline& knots, double axisX) {
  Polyline k;
  k.reserve(knots.size());
  for (const Point& knot : knots) {
    if (k.empty() || Distance(k.back(), knot) > kSamePlace) {
      k.push_back(knot);
    }
  }
  if (k.size() < 2) {
    return k;
  }
  Polyline line{k.front()};
  for (std::size_t i = 0; i + 1 < k.size(); ++i) {
    const Point& from = k[i];
    const Point& to = k[i + 1];
    const Point before = i > 0 ? k[i - 1] : Beyond(from, to, axisX);
    const Point after = i + 2 < k.size() ? k[i + 2] : Beyond(to, from, axisX);
    const double length = Distance(from, to);
    const double span = std::sqrt(length);
    const double spanBefore = std::sqrt(std::max(Distance(before, from), kSamePlace));
    const double spanAfter = std::sqrt(std::max(Distance(to, after), kSamePlace));
    const Point leave = Tangent(before, from, to, spanBefore, span, span);
    const Point arrive = Tangent(from, to, after, span, spanAfter, span);
    const int count = static_cast<int>(std::clamp(std::ceil(length / kPointDistance), 1.0, kMostPoints));
    for (int step = 1; step < count; ++step) {
      const double t = static_cast<double>(step) / count;
      const double t2 = t * t;
      const double t3 = t2 * t;
      const double h00 = 2.0 * t3 - 3.0 * t2 + 1.0;
      const double h10 = t3 - 2.0 * t2 + t;
      const double h01 = 3.0 * t2 - 2.0 * t3;
      const double h11 = t3 - t2;
      line.push_back({h00 * from.X + h10 * leave.X + h01 * to.X + h11 * arrive.X,
                      h00 * from.Y + h10 * leave.Y + h01 * to.Y + h11 * arrive.Y});
    }
    line.push_back(to);
  }
  return line;
}

std::vector<Polyline> ClipToDisc(const Polyline& line, double centreX, double centreY, double radius) {
  std::vector<Polyline> parts;
  bool open = false;
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    // Where the way from one point (0) to the next (1) crosses the circle.
    const double x = line[i].X - centreX;
    const double y = line[i].Y - centreY;
    const double dx = line[i + 1].X - line[i].X;
    const double dy = line[i + 1].Y - line[i].Y;
    const double a = dx * dx + dy * dy;
    const double b = x * dx + y * dy;
    const double c = x * x + y * y - radius * radius;
    const double discriminant = b * b - a * c;
    if (!(a > 0.0) || discriminant <= 0.0) {
      open = false;
      continue;
    }
    const double root = std::sqrt(discriminant);
    const double enter = std::max(0.0, (-b - root) / a);
    const double leave = std::min(1.0, (-b + root) / a);
    if (enter >= leave) {
      open = false;
      continue;
    }
    const auto at = [&](double t) { return Point{line[i].X + t * dx, line[i].Y + t * dy}; };
    if (!open || enter > 0.0) {
      parts.push_back({at(enter)});
    }
    parts.back().push_back(leave < 1.0 ? at(leave) : line[i + 1]);
    open = leave >= 1.0;
  }
  return parts;
}

std::vector<PolarCurve> PolarCurves(const PolarTable& table, int slot, const PolarGeometry& geometry) {
  std::vector<PolarCurve> curves;
  const auto columns = static_cast<std::size_t>(table.PolarColumns(slot));
  const std::size_t step = columns <= kMostMajor ? 1 : (columns + kDenseCurves - 1) / kDenseCurves;
  for (int column = 1; column <= table.PolarColumns(slot); ++column) {
    Polyline knots;
    for (int row = 1; row <= table.PolarRows(slot); ++row) {
      const PolarCell cell = table.PolarPoint(slot, row, column);
      knots.push_back(
          PointAt(geometry, static_cast<double>(cell.Angle), static_cast<double>(cell.BoatSpeed)));
    }
    curves.push_back({table.Value(slot, 0, column), static_cast<std::size_t>(column - 1) % step == 0,
                      BothSides(knots, geometry)});
  }
  return curves;
}

PolarCurve WindCurve(const PolarTable& table, int slot, float windSpeed, const PolarGeometry& geometry) {
  PolarCurve curve{windSpeed, true, {}};
  const ColumnBracket columns = table.PolarFindColumn(slot, windSpeed);
  if (columns.Lower == 0) {
    return curve;
  }
  Polyline knots;
  for (int row = 1; row <= table.PolarRows(slot); ++row) {
    const PolarCell cell = table.PolarPointAt(slot, row, columns);
    knots.push_back(PointAt(geometry, static_cast<double>(cell.Angle), static_cast<double>(cell.BoatSpeed)));
  }
  curve.Lines = BothSides(knots, geometry);
  return curve;
}

}  // namespace veerwatch
