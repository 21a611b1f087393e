#include "polar/PolarPlot.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "instruments/MathLib.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kRadiansPerDegree = kPi / 180.0;

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

constexpr int kSpokeStep = 30;
constexpr int kTickStep = 10;
/// Where the ring labels stand, away from the bow [deg].
constexpr double kRingLabelAngle = 13.0;
/// Width of a character in shares of the text height, at most, in any usual font.
constexpr double kCharacterWidth = 0.68;
/// Height of a label in shares of the text height.
constexpr double kLabelHeight = 1.2;

double Distance(const PlotPoint& a, const PlotPoint& b) { return std::hypot(a.X - b.X, a.Y - b.Y); }

PlotPoint Mirrored(const PlotPoint& point, double axisX) { return {2.0 * axisX - point.X, point.Y}; }

/// The neighbour that a line's end lacks: `inner` beyond `end`.
PlotPoint Beyond(const PlotPoint& end, const PlotPoint& inner, double axisX) {
  if (std::fabs(end.X - axisX) < kOnAxis) {
    return Mirrored(inner, axisX);
  }
  return {2.0 * end.X - inner.X, 2.0 * end.Y - inner.Y};
}

/// Slope of a centripetal spline at `b` per unit of the span `own`, one of the spans `before` and `after`.
PlotPoint Tangent(const PlotPoint& a, const PlotPoint& b, const PlotPoint& c, double before, double after,
                  double own) {
  const auto slope = [&](double va, double vb, double vc) {
    return own * ((vb - va) / before - (vc - va) / (before + after) + (vc - vb) / after);
  };
  return {slope(a.X, b.X, c.X), slope(a.Y, b.Y, c.Y)};
}

bool Overlap(const PlotBox& a, const PlotBox& b) {
  return a.X < b.X + b.Width && b.X < a.X + a.Width && a.Y < b.Y + b.Height && b.Y < a.Y + a.Height;
}

PlotBox BoxAround(const PlotPoint& centre, const std::string& text, double textHeight) {
  const double width = LabelWidth(text, textHeight);
  const double height = kLabelHeight * textHeight;
  return {centre.X - width / 2.0, centre.Y - height / 2.0, width, height};
}

/// Takes a label where it keeps clear of those before it and of the square's edge.
bool Place(PolarGrid& grid, const PolarGeometry& geometry, PlotLabel label) {
  const double radius = OuterRadius(geometry);
  const PlotBox& box = label.Box;
  if (box.X < geometry.CentreX - radius || box.Y < geometry.CentreY - radius ||
      box.X + box.Width > geometry.CentreX + radius || box.Y + box.Height > geometry.CentreY + radius) {
    return false;
  }
  for (const PlotLabel& other : grid.Labels) {
    if (Overlap(other.Box, box)) {
      return false;
    }
  }
  grid.Labels.push_back(std::move(label));
  return true;
}

PlotPoint AtRadius(const PolarGeometry& geometry, double angle, double radius) {
  const double radians = angle * kRadiansPerDegree;
  return {geometry.CentreX + radius * std::sin(radians), geometry.CentreY - radius * std::cos(radians)};
}

void PlaceAngles(PolarGrid& grid, const PolarGeometry& geometry, double textHeight) {
  const double radius = OuterRadius(geometry);
  for (const int angle : {0, 90, -90, 180, 60, -60, 120, -120, 30, -30, 150, -150}) {
    const std::string text = std::to_string(std::abs(angle)) + "\u00b0";
    // As near to the ring as the box's own extent in that direction allows.
    const double radians = angle * kRadiansPerDegree;
    const double extent = std::fabs(std::sin(radians)) * LabelWidth(text, textHeight) / 2.0 +
                          std::fabs(std::cos(radians)) * kLabelHeight * textHeight / 2.0;
    const PlotPoint centre = AtRadius(geometry, angle, radius - extent - textHeight * 0.7);
    Place(grid, geometry, {PlotLabelKind::Angle, BoxAround(centre, text, textHeight), text});
  }
}

void PlaceSpeeds(PolarGrid& grid, const PolarGeometry& geometry, const PolarGridOptions& options) {
  const double side = options.SpeedsToPort ? -kRingLabelAngle : kRingLabelAngle;
  for (auto ring = grid.Rings.rbegin(); ring != grid.Rings.rend(); ++ring) {
    const float speed = ToSingle(*ring / geometry.ScaleX);
    const std::string text = ShortestText(ToSingle(std::round(static_cast<double>(speed) * 1e4) / 1e4));
    const bool outer = ring == grid.Rings.rbegin();
    const double radius = outer ? *ring - options.TextHeight : *ring;
    Place(
        grid, geometry,
        {PlotLabelKind::Speed, BoxAround(AtRadius(geometry, side, radius), text, options.TextHeight), text});
  }
}

/// The point of a curve's starboard side that is nearest in angle to `angle`; false when none is near.
bool PointNear(const PolarCurve& curve, const PolarGeometry& geometry, double angle, PlotPoint& found) {
  constexpr double kNear = 6.0;
  double best = kNear;
  for (const PlotLine& line : curve.Lines) {
    for (const PlotPoint& point : line) {
      const double at = std::atan2(point.X - geometry.CentreX, geometry.CentreY - point.Y);
      const double off = std::fabs(at / kRadiansPerDegree - angle);
      if (off < best) {
        best = off;
        found = point;
      }
    }
  }
  return best < kNear;
}

void PlaceWinds(PolarGrid& grid, const PolarGeometry& geometry, double textHeight,
                const std::vector<PolarCurve>& curves) {
  for (const PolarCurve& curve : curves) {
    if (!curve.Major) {
      continue;
    }
    const std::string text = ShortestText(curve.WindSpeed);
    for (const double angle : {105.0, 95.0, 115.0, 85.0, 125.0, 75.0, 135.0, 65.0, 145.0, 55.0, 160.0}) {
      PlotPoint point;
      if (PointNear(curve, geometry, angle, point) &&
          Place(grid, geometry, {PlotLabelKind::Wind, BoxAround(point, text, textHeight), text})) {
        break;
      }
    }
  }
}

std::vector<PlotLine> BothSides(const std::vector<PlotPoint>& knots, const PolarGeometry& geometry) {
  std::vector<PlotLine> lines = ClipToDisc(SmoothLine(knots, geometry.CentreX), geometry.CentreX,
                                           geometry.CentreY, OuterRadius(geometry));
  const std::size_t count = lines.size();
  for (std::size_t i = 0; i < count; ++i) {
    PlotLine mirror = lines[i];
    for (PlotPoint& point : mirror) {
      point = Mirrored(point, geometry.CentreX);
    }
    lines.push_back(std::move(mirror));
  }
  return lines;
}

}  // namespace

PolarGeometry PlotGeometry(double width, double height, double speedRange) {
  const double half = static_cast<double>(Min(width, height)) / 2.0;
  const double scale = half / speedRange;
  return {half, half, scale, scale};
}

double OuterRadius(const PolarGeometry& geometry) { return geometry.CentreX; }

PlotPoint PointAt(const PolarGeometry& geometry, double angle, double speed) {
  const double radians = angle * kRadiansPerDegree;
  return {geometry.CentreX + speed * geometry.ScaleX * std::sin(radians),
          geometry.CentreY - speed * geometry.ScaleY * std::cos(radians)};
}

PlotLine SmoothLine(const std::vector<PlotPoint>& knots, double axisX) {
  std::vector<PlotPoint> k;
  k.reserve(knots.size());
  for (const PlotPoint& knot : knots) {
    if (k.empty() || Distance(k.back(), knot) > kSamePlace) {
      k.push_back(knot);
    }
  }
  if (k.size() < 2) {
    return k;
  }
  PlotLine line{k.front()};
  for (std::size_t i = 0; i + 1 < k.size(); ++i) {
    const PlotPoint& from = k[i];
    const PlotPoint& to = k[i + 1];
    const PlotPoint before = i > 0 ? k[i - 1] : Beyond(from, to, axisX);
    const PlotPoint after = i + 2 < k.size() ? k[i + 2] : Beyond(to, from, axisX);
    const double length = Distance(from, to);
    const double span = std::sqrt(length);
    const double spanBefore = std::sqrt(std::max(Distance(before, from), kSamePlace));
    const double spanAfter = std::sqrt(std::max(Distance(to, after), kSamePlace));
    const PlotPoint leave = Tangent(before, from, to, spanBefore, span, span);
    const PlotPoint arrive = Tangent(from, to, after, span, spanAfter, span);
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

std::vector<PlotLine> ClipToDisc(const PlotLine& line, double centreX, double centreY, double radius) {
  std::vector<PlotLine> parts;
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
    const auto at = [&](double t) { return PlotPoint{line[i].X + t * dx, line[i].Y + t * dy}; };
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
    std::vector<PlotPoint> knots;
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
  const int columns = table.PolarColumns(slot);
  int upper = 1;
  while (upper <= columns && table.Value(slot, 0, upper) < windSpeed) {
    ++upper;
  }
  if (columns < 1 || (upper == 1 && windSpeed < table.Value(slot, 0, 1))) {
    return curve;
  }
  upper = std::min(upper, columns);
  const int lower = std::max(1, upper - 1);
  const float wind = std::min(windSpeed, table.Value(slot, 0, upper));
  std::vector<PlotPoint> knots;
  for (int row = 1; row <= table.PolarRows(slot); ++row) {
    const PolarCell cell = table.PolarPointAt(slot, row, lower, upper, wind);
    knots.push_back(PointAt(geometry, static_cast<double>(cell.Angle), static_cast<double>(cell.BoatSpeed)));
  }
  curve.Lines = BothSides(knots, geometry);
  return curve;
}

double RingStep(double speedRange) {
  constexpr double kMostRings = 6.0;
  double step = std::pow(10.0, std::floor(std::log10(speedRange)) - 1.0);
  constexpr std::array<double, 3> kGrowth{2.0, 2.5, 2.0};
  for (std::size_t i = 0; speedRange / step > kMostRings + 1e-6; ++i) {
    step *= kGrowth[i % kGrowth.size()];
  }
  return step;
}

double LabelWidth(const std::string& text, double textHeight) {
  const auto characters = std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
  return (static_cast<double>(characters) * kCharacterWidth + 0.3) * textHeight;
}

PolarGrid MakeGrid(const PolarGeometry& geometry, const PolarGridOptions& options,
                   const std::vector<PolarCurve>& curves) {
  PolarGrid grid;
  const double radius = OuterRadius(geometry);
  if (!(radius > 0.0)) {
    return grid;
  }
  const double step = RingStep(options.SpeedRange);
  // A ring next to the outer one would only double it.
  for (int ring = 1; ring * step < options.SpeedRange - 0.2 * step; ++ring) {
    grid.Rings.push_back(ring * step * geometry.ScaleX);
  }
  grid.Rings.push_back(radius);
  const double inner = grid.Rings.front();
  for (int angle = 0; angle < 360; angle += kTickStep) {
    if (angle % kSpokeStep == 0) {
      const double from = angle % 90 == 0 ? 0.0 : inner / 2.0;
      grid.Spokes.push_back({AtRadius(geometry, angle, from), AtRadius(geometry, angle, radius)});
    } else {
      grid.Ticks.push_back(
          {AtRadius(geometry, angle, radius - options.TextHeight * 0.5), AtRadius(geometry, angle, radius)});
    }
  }
  PlaceAngles(grid, geometry, options.TextHeight);
  PlaceSpeeds(grid, geometry, options);
  if (options.WindLabels) {
    PlaceWinds(grid, geometry, options.TextHeight, curves);
  }
  return grid;
}

WindArrow MakeWindArrow(const PolarGeometry& geometry, double angle, double textHeight) {
  // In shares of the outer radius.
  constexpr double kTail = 0.36;
  constexpr double kTip = 0.06;
  constexpr double kHeadLength = 0.12;
  constexpr double kHeadHalf = 0.05;
  const double radius = OuterRadius(geometry);
  const double radians = angle * kRadiansPerDegree;
  const PlotPoint tail = AtRadius(geometry, angle, radius * kTail);
  const PlotPoint tip = AtRadius(geometry, angle, radius * kTip);
  const PlotPoint neck = AtRadius(geometry, angle, radius * (kTip + kHeadLength));
  const double rim = std::max(radius - 3.2 * textHeight, radius * kTail);
  const double acrossX = std::cos(radians) * radius * kHeadHalf;
  const double acrossY = std::sin(radians) * radius * kHeadHalf;
  return {{AtRadius(geometry, angle, rim), tail},
          {tail, tip},
          {neck.X - acrossX, neck.Y - acrossY},
          {neck.X + acrossX, neck.Y + acrossY}};
}

BoatPoint MakeBoatPoint(const PolarGeometry& geometry, double angle, double speed) {
  const double radius = OuterRadius(geometry);
  if (std::fabs(speed) * geometry.ScaleX > radius) {
    return {AtRadius(geometry, angle, std::copysign(radius, speed)), true};
  }
  return {PointAt(geometry, angle, speed), false};
}

LegArrow MakeLegArrow(const PolarGeometry& geometry, double angle, double speed) {
  constexpr double kHeadAngle = 30.0;
  // In shares of the outer radius, and of the line for a short one.
  constexpr double kHead = 0.07;
  constexpr double kMostHead = 0.5;
  const double radius = OuterRadius(geometry);
  const double length = std::min(speed * geometry.ScaleX, radius);
  const PlotPoint tip = AtRadius(geometry, angle, length);
  const double head = std::min(kHead * radius, kMostHead * length);
  const auto back = [&](double side) {
    const double radians = (angle + 180.0 + side) * kRadiansPerDegree;
    return PlotPoint{tip.X + head * std::sin(radians), tip.Y - head * std::cos(radians)};
  };
  return {{{geometry.CentreX, geometry.CentreY}, tip}, {tip, back(kHeadAngle)}, {tip, back(-kHeadAngle)}};
}

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
LegendCell CellIn(const PlotBox& box) {
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

void LayColumn(PolarLegend& legend, const PlotBox& box, int keys) {
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

void LayRow(PolarLegend& legend, const PlotBox& box, int keys) {
  const double keyHeight = keys > 0 ? std::clamp(box.Height * 0.11, 9.0, 18.0) : 0.0;
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
