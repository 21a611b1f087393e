#include "polar/PolarGrid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "instruments/MathLib.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kRadiansPerDegree = kPi / 180.0;

constexpr int kSpokeStep = 30;
constexpr int kTickStep = 10;
/// Where the ring labels stand, away from the bow [deg].
constexpr double kRingLabelAngle = 13.0;
/// Width of a character in shares of the text height, at most, in any usual font.
constexpr double kCharacterWidth = 0.68;
/// Height of a label in shares of the text height.
constexpr double kLabelHeight = 1.2;

PlotLabel Label(PlotLabelKind kind, const Point& centre, const std::string& text, double textHeight) {
  const double width = LabelWidth(text, textHeight);
  const double height = kLabelHeight * textHeight;
  return {{text,
           {centre.X - width / 2.0, centre.Y - height / 2.0, width, height},
           textHeight,
           PlacedText::Side::Middle},
          kind};
}

/// Takes a label where it keeps clear of those before it and of the square's edge.
bool Place(PolarGrid& grid, const PolarGeometry& geometry, PlotLabel label) {
  const double radius = OuterRadius(geometry);
  const Box& box = label.Place;
  if (box.X < geometry.CentreX - radius || box.Y < geometry.CentreY - radius ||
      box.Right() > geometry.CentreX + radius || box.Bottom() > geometry.CentreY + radius) {
    return false;
  }
  for (const PlotLabel& other : grid.Labels) {
    if (other.Place.Overlaps(box)) {
      return false;
    }
  }
  grid.Labels.push_back(std::move(label));
  return true;
}

void PlaceAngles(PolarGrid& grid, const PolarGeometry& geometry, double textHeight) {
  const double radius = OuterRadius(geometry);
  for (const int angle : {0, 90, -90, 180, 60, -60, 120, -120, 30, -30, 150, -150}) {
    const std::string text = std::to_string(std::abs(angle)) + "\u00b0";
    // As near to the ring as the box's own extent in that direction allows.
    const double radians = angle * kRadiansPerDegree;
    const double extent = std::fabs(std::sin(radians)) * LabelWidth(text, textHeight) / 2.0 +
                          std::fabs(std::cos(radians)) * kLabelHeight * textHeight / 2.0;
    const Point centre = AtRadius(geometry, angle, radius - extent - textHeight * 0.7);
    Place(grid, geometry, Label(PlotLabelKind::Angle, centre, text, textHeight));
  }
}

void PlaceSpeeds(PolarGrid& grid, const PolarGeometry& geometry, const PolarGridOptions& options) {
  const double side = options.SpeedsToPort ? -kRingLabelAngle : kRingLabelAngle;
  for (auto ring = grid.Rings.rbegin(); ring != grid.Rings.rend(); ++ring) {
    const float speed = ToSingle(*ring / geometry.ScaleX);
    const std::string text = ShortestText(ToSingle(std::round(static_cast<double>(speed) * 1e4) / 1e4));
    const bool outer = ring == grid.Rings.rbegin();
    const double radius = outer ? *ring - options.TextHeight : *ring;
    Place(grid, geometry,
          Label(PlotLabelKind::Speed, AtRadius(geometry, side, radius), text, options.TextHeight));
  }
}

/// The point of a curve's starboard side that is nearest in angle to `angle`; false when none is near.
bool PointNear(const PolarCurve& curve, const PolarGeometry& geometry, double angle, Point& found) {
  constexpr double kNear = 6.0;
  double best = kNear;
  for (const Polyline& line : curve.Lines) {
    for (const Point& point : line) {
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
      Point point;
      if (PointNear(curve, geometry, angle, point) &&
          Place(grid, geometry, Label(PlotLabelKind::Wind, point, text, textHeight))) {
        break;
      }
    }
  }
}

}  // namespace

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

}  // namespace veerwatch
