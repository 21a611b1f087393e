#include "diagram/BlockDiagram.h"

namespace veerwatch {

namespace {

/// A length at the diagram's own size [px].
constexpr double Px(double pixels) { return pixels * kTwipsPerPixel; }

BlockArea Area(double x, double y, double width, double height) {
  return {Px(x), Px(y), Px(width), Px(height)};
}

double Right(const BlockArea& area) { return area.X + area.Width; }
double Bottom(const BlockArea& area) { return area.Y + area.Height; }
double Middle(const BlockArea& area) { return area.Y + area.Height / 2.0; }

DiagramLine Line(double x1, double y1, double x2, double y2) { return {x1, y1, x2, y2, {}}; }
DiagramLine Arrow(double from, double to, double y) { return {from, y, to, y, "Right"}; }

}  // namespace

BlockDiagram BlockDiagramMade() {
  const BlockArea wind = Area(20, 60, 110, 72);
  const BlockArea speed = Area(20, 212, 110, 72);
  const BlockArea input = Area(322, 130, 150, 84);
  const BlockArea control = Area(508, 130, 180, 84);
  const BlockArea output = Area(724, 130, 150, 84);
  const BlockArea polar = Area(444, 272, 174, 72);
  const BlockArea history = Area(690, 272, 184, 72);
  const BlockArea autopilot = Area(1046, 128, 170, 88);

  BlockDiagram diagram;
  diagram.Width = Px(1240);
  diagram.Height = Px(392);
  diagram.TextSize = Px(23);
  diagram.Computer = Area(300, 20, 596, 352);
  diagram.Buttons = {{"cmdInput", "Input", "NMEA 0183 Data", input},
                     {"cmdOutput", "Output", "Output Options", output},
                     {"cmdControl", "Control Loop", "Apparent or True Angle Tracking Options", control},
                     {"cmdPolar", "Polar Plot", "Performance Polar Plot", polar},
                     {"cmdHistory", "History Plot", "Strip Chart Recorder", history}};
  // Deliberate: "Stanard".
  diagram.Labels = {{"lblWind", "Wind", wind, true},
                    {"lblSpeed", "Speed", speed, true},
                    {"lblNmea(1)", "NMEA 0183", Area(154, 132, 142, 36), false},
                    {"lblNmea(2)", "NMEA 0183", Area(900, 132, 142, 36), false},
                    {"lblComputer", "Computer", Area(320, 32, 556, 40), false},
                    {"lblAutopilot", "Autopilot", autopilot, true},
                    {"lblAutopilotNote", "Stanard Autopilot", Area(1026, 222, 210, 36), false}};
  diagram.States = {{"lblInputState", {}, Area(304, 88, 186, 36), false},
                    {"lblControlState", {}, Area(508, 88, 180, 36), false},
                    {"lblOutputState", {}, Area(706, 88, 186, 36), false}};

  const double way = Middle(input);
  const double joint = Px(150);
  const double branch = input.X + input.Width / 3.0;
  const double shelf = Px(242);
  const double down = Px(654);
  diagram.Lines = {Line(Right(wind), Middle(wind), joint, Middle(wind)),
                   Line(Right(speed), Middle(speed), joint, Middle(speed)),
                   Line(joint, Middle(wind), joint, Middle(speed)),
                   Line(branch, Bottom(input), branch, Middle(polar)),
                   Line(branch, shelf, down, shelf),
                   Line(down, shelf, down, Middle(history))};
  diagram.lnArrowRight = {Arrow(joint, input.X, way),
                          Arrow(Right(input), control.X, way),
                          Arrow(Right(control), output.X, way),
                          Arrow(Right(output), autopilot.X, way),
                          Arrow(branch, polar.X, Middle(polar)),
                          Arrow(down, history.X, Middle(history))};
  return diagram;
}

std::vector<DiagramLine> BlockArrowHeads(const BlockDiagram& diagram) {
  std::vector<DiagramLine> strokes;
  for (const DiagramLine& line : diagram.lnArrowRight) {
    const std::vector<DiagramLine> head = ArrowHead(line);
    strokes.insert(strokes.end(), head.begin(), head.end());
  }
  return strokes;
}

}  // namespace veerwatch
