#include "options/LoopDiagram.h"

#include "platform/Language.h"

namespace veerwatch {

namespace {

/// Everything stands on a grid of two thirds of a pixel.
constexpr double Grid(double steps) { return steps * 2.0 / 3.0; }

constexpr double kTextSize = 11.0;
constexpr double kRadius = Grid(11);

// Heights of the ways.
constexpr double kMain = Grid(70);
constexpr double kOvershoot = Grid(175);
constexpr double kBack = Grid(238);

// Where the signals meet and part.
constexpr double kDifference = Grid(174);
constexpr double kParting = Grid(250);
constexpr double kSum = Grid(510);

// A circuit: two boxes side by side in a frame with a title.
constexpr double kHigh = Grid(52);
constexpr double kScaleWidth = Grid(64);
constexpr double kSumWidth = Grid(112);
constexpr double kGap = Grid(20);
constexpr double kMargin = Grid(12);
constexpr double kTitle = Grid(33);

PlacedText BoxAt(double x, double middle, double width, const char* text) {
  return {Tr(text), {x, middle - kHigh / 2.0, width, kHigh}, kTextSize, PlacedText::Side::Middle};
}

/// A frame around two boxes, with its title.
void AddCircuit(LoopDiagram& diagram, const Box& left, const Box& right, const char* title) {
  const Box frame{left.X - kMargin, left.Y - kTitle, right.Right() - left.X + 2.0 * kMargin,
                  kHigh + kTitle + kMargin};
  diagram.Circuits.push_back(frame);
  diagram.Titles.push_back(
      {Tr(title), {frame.X, frame.Y, frame.Width, kTitle}, kTextSize, PlacedText::Side::Middle});
}

DiagramArrow RightArrow(double from, double to, double y) { return {{{from, y}, {to, y}}, "Right"}; }
/// Up from `from` to `to`; the upper end is the way's first.
DiagramArrow TopArrow(double x, double from, double to) { return {{{x, to}, {x, from}}, "Top"}; }

/// Plus and minus, each beside the arrow that it belongs to.
void AddSigns(LoopDiagram& diagram) {
  constexpr double kSign = 3.0;
  constexpr double kBeside = Grid(12);
  const auto minus = [&diagram](double x, double y) {
    diagram.Signs.push_back({{x - kSign, y}, {x + kSign, y}});
  };
  const auto plus = [&diagram, &minus](double x, double y) {
    minus(x, y);
    diagram.Signs.push_back({{x, y - kSign}, {x, y + kSign}});
  };
  const double beside = kRadius + kBeside;
  plus(kDifference - beside, kMain - kBeside);
  minus(kDifference + kBeside, kMain + beside);
  plus(kSum - beside, kMain - kBeside);
  plus(kSum + kBeside, kMain + beside);
}

}  // namespace

LoopDiagram LoopDiagramMade() {
  constexpr double kAngleWidth = Grid(126);
  constexpr double kEdge = Grid(12);
  LoopDiagram diagram;
  diagram.Boxes = {
      BoxAt(kEdge, kMain, kAngleWidth, TrMark("Current Wind Angle")),
      BoxAt(kDifference - kAngleWidth / 2.0, kOvershoot, kAngleWidth, TrMark("Desired Wind Angle")),
      BoxAt(kParting + Grid(28), kOvershoot, kScaleWidth, TrMark("Scale")),
      BoxAt(kParting + Grid(28) + kScaleWidth + kGap, kOvershoot, kSumWidth, TrMark("Accumulator")),
      BoxAt(kSum + Grid(39), kMain, kScaleWidth, TrMark("Scale")),
      BoxAt(kSum + Grid(39) + kScaleWidth + kGap, kMain, kSumWidth, TrMark("Accumulator")),
      BoxAt(kSum + Grid(39) + kScaleWidth + kGap + kSumWidth + Grid(38), kMain, Grid(90), TrMark("Bearing"))};
  const Box current = diagram.Boxes[0].Place;
  const Box desired = diagram.Boxes[1].Place;
  const Box overshootScale = diagram.Boxes[2].Place;
  const Box overshootSum = diagram.Boxes[3].Place;
  const Box trackingScale = diagram.Boxes[4].Place;
  const Box trackingSum = diagram.Boxes[5].Place;
  const Box bearing = diagram.Boxes[6].Place;

  diagram.Width = bearing.Right() + kEdge;
  diagram.Height = kBack + kEdge;
  diagram.TextSize = kTextSize;
  AddCircuit(diagram, trackingScale, trackingSum, TrMark("Tracking Circuit"));
  AddCircuit(diagram, overshootScale, overshootSum, TrMark("Overshoot Circuit"));
  diagram.Junctions = {{{kDifference, kMain}, kRadius}, {{kSum, kMain}, kRadius}};
  diagram.Parting = {{kParting, kMain}, 2.4};
  AddSigns(diagram);

  constexpr double kLanding = Grid(20);
  const double home = current.Middle().X;
  const double far = bearing.Middle().X;
  diagram.lnArrow = {RightArrow(current.Right(), kDifference - kRadius, kMain),
                     TopArrow(kDifference, desired.Y, kMain + kRadius),
                     RightArrow(kDifference + kRadius, kSum - kRadius, kMain),
                     RightArrow(kParting, overshootScale.X, kOvershoot),
                     RightArrow(overshootScale.Right(), overshootSum.X, kOvershoot),
                     TopArrow(kSum, kOvershoot, kMain + kRadius),
                     RightArrow(kSum + kRadius, trackingScale.X, kMain),
                     RightArrow(trackingScale.Right(), trackingSum.X, kMain),
                     RightArrow(trackingSum.Right(), bearing.X, kMain),
                     TopArrow(home, current.Bottom() + kLanding, current.Bottom())};
  diagram.Lines = {{{kParting, kMain}, {kParting, kOvershoot}},
                   {{overshootSum.Right(), kOvershoot}, {kSum, kOvershoot}}};
  diagram.WayBack = {{{far, bearing.Bottom()}, {far, kBack}},
                     {{far, kBack}, {home, kBack}},
                     {{home, kBack}, {home, current.Bottom() + kLanding}}};
  return diagram;
}

}  // namespace veerwatch
