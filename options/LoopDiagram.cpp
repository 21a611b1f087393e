#include "options/LoopDiagram.h"

namespace veerwatch {

namespace {

constexpr double kRadius = 110.0;

// Heights of the ways.
constexpr double kMain = 700.0;
constexpr double kOvershoot = 1750.0;
constexpr double kBack = 2380.0;

// Where the signals meet and part.
constexpr double kDifference = 1740.0;
constexpr double kParting = 2500.0;
constexpr double kSum = 5100.0;

// A circuit: two boxes side by side in a frame with a title.
constexpr double kHigh = 520.0;
constexpr double kScaleWidth = 640.0;
constexpr double kSumWidth = 1120.0;
constexpr double kGap = 200.0;
constexpr double kMargin = 120.0;
constexpr double kTitle = 330.0;

DiagramBox BoxAt(double x, double middle, double width, std::string_view text) {
  return {x, middle - kHigh / 2.0, width, kHigh, text};
}

double Right(const DiagramBox& box) { return box.X + box.Width; }
double Bottom(const DiagramBox& box) { return box.Y + box.Height; }
double Middle(const DiagramBox& box) { return box.X + box.Width / 2.0; }

DiagramBox FrameAround(const DiagramBox& left, const DiagramBox& right, std::string_view title) {
  return {left.X - kMargin, left.Y - kTitle, Right(right) - left.X + 2.0 * kMargin, kHigh + kTitle + kMargin,
          title};
}

DiagramLine RightArrow(double from, double to, double y) { return {from, y, to, y, "Right"}; }
/// Up from `from` to `to`; the upper end is the line's first.
DiagramLine TopArrow(double x, double from, double to) { return {x, to, x, from, "Top"}; }

}  // namespace

LoopDiagram LoopDiagramMade() {
  constexpr double kAngleWidth = 1260.0;
  const DiagramBox current = BoxAt(120.0, kMain, kAngleWidth, "Current Wind Angle");
  const DiagramBox desired =
      BoxAt(kDifference - kAngleWidth / 2.0, kOvershoot, kAngleWidth, "Desired Wind Angle");
  const DiagramBox overshootScale = BoxAt(kParting + 280.0, kOvershoot, kScaleWidth, "Scale");
  const DiagramBox overshootSum = BoxAt(Right(overshootScale) + kGap, kOvershoot, kSumWidth, "Accumulator");
  const DiagramBox trackingScale = BoxAt(kSum + 390.0, kMain, kScaleWidth, "Scale");
  const DiagramBox trackingSum = BoxAt(Right(trackingScale) + kGap, kMain, kSumWidth, "Accumulator");
  const DiagramBox bearing = BoxAt(Right(trackingSum) + 380.0, kMain, 900.0, "Bearing");

  LoopDiagram diagram;
  diagram.Width = Right(bearing) + 120.0;
  diagram.Height = kBack + 120.0;
  diagram.TextSize = 165.0;
  diagram.TitleHeight = kTitle;
  diagram.Circuits = {FrameAround(trackingScale, trackingSum, "Tracking Circuit"),
                      FrameAround(overshootScale, overshootSum, "Overshoot Circuit")};
  diagram.Boxes = {current, desired, overshootScale, overshootSum, trackingScale, trackingSum, bearing};
  diagram.Junctions = {{kDifference, kMain, kRadius}, {kSum, kMain, kRadius}};
  diagram.Parting = {kParting, kMain, 36.0};

  // A sign stands beside the arrow that it belongs to.
  constexpr double kSign = 45.0;
  constexpr double kBeside = 120.0;
  const auto minus = [&diagram](double x, double y) {
    diagram.Signs.push_back({x - kSign, y, x + kSign, y, {}});
  };
  const auto plus = [&diagram, &minus](double x, double y) {
    minus(x, y);
    diagram.Signs.push_back({x, y - kSign, x, y + kSign, {}});
  };
  const double beside = kRadius + kBeside;
  plus(kDifference - beside, kMain - kBeside);
  minus(kDifference + kBeside, kMain + beside);
  plus(kSum - beside, kMain - kBeside);
  plus(kSum + kBeside, kMain + beside);

  constexpr double kLanding = 200.0;
  diagram.lnArrow = {RightArrow(Right(current), kDifference - kRadius, kMain),
                     TopArrow(kDifference, desired.Y, kMain + kRadius),
                     RightArrow(kDifference + kRadius, kSum - kRadius, kMain),
                     RightArrow(kParting, overshootScale.X, kOvershoot),
                     RightArrow(Right(overshootScale), overshootSum.X, kOvershoot),
                     TopArrow(kSum, kOvershoot, kMain + kRadius),
                     RightArrow(kSum + kRadius, trackingScale.X, kMain),
                     RightArrow(Right(trackingScale), trackingSum.X, kMain),
                     RightArrow(Right(trackingSum), bearing.X, kMain),
                     TopArrow(Middle(current), Bottom(current) + kLanding, Bottom(current))};
  diagram.Lines = {{kParting, kMain, kParting, kOvershoot, {}},
                   {Right(overshootSum), kOvershoot, kSum, kOvershoot, {}}};
  diagram.WayBack = {{Middle(bearing), Bottom(bearing), Middle(bearing), kBack, {}},
                     {Middle(bearing), kBack, Middle(current), kBack, {}},
                     {Middle(current), kBack, Middle(current), Bottom(current) + kLanding, {}}};
  return diagram;
}

std::vector<DiagramLine> LoopDiagramArrowHeads(const LoopDiagram& diagram) {
  std::vector<DiagramLine> strokes;
  for (const DiagramLine& line : diagram.lnArrow) {
    const std::vector<DiagramLine> head = ArrowHead(line);
    strokes.insert(strokes.end(), head.begin(), head.end());
  }
  return strokes;
}

}  // namespace veerwatch
