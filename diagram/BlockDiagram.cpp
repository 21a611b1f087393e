#include "diagram/BlockDiagram.h"

#include "platform/Language.h"

namespace veerwatch {

namespace {

DiagramArrow Arrow(double from, double to, double y) { return {{{from, y}, {to, y}}, "Right"}; }

}  // namespace

BlockDiagram BlockDiagramMade() {
  const Box wind{20, 60, 110, 72};
  const Box speed{20, 212, 110, 72};
  const Box input{322, 130, 150, 84};
  const Box control{508, 130, 180, 84};
  const Box output{724, 130, 150, 84};
  const Box polar{444, 272, 174, 72};
  const Box history{690, 272, 184, 72};
  const Box autopilot{1046, 128, 170, 88};

  BlockDiagram diagram;
  diagram.Width = 1240;
  diagram.Height = 392;
  diagram.TextSize = 23;
  diagram.Computer = {300, 20, 596, 352};
  diagram.Buttons = {
      {"cmdInput", TrMark("Input"), TrMark("NMEA 0183 Data"), input},
      {"cmdOutput", TrMark("Output"), TrMark("Output Options"), output},
      {"cmdControl", TrMark("Control Loop"), TrMark("Apparent or True Angle Tracking Options"), control},
      {"cmdPolar", TrMark("Polar Plot"), TrMark("Performance Polar Plot"), polar},
      {"cmdHistory", TrMark("History Plot"), TrMark("Strip Chart Recorder"), history}};
  // Deliberate: "Stanard".
  diagram.Labels = {{"lblWind", TrMark("Wind"), wind, true},
                    {"lblSpeed", TrMark("Speed"), speed, true},
                    {"lblNmea(1)", "NMEA 0183", {154, 132, 142, 36}, false},
                    {"lblNmea(2)", "NMEA 0183", {900, 132, 142, 36}, false},
                    {"lblComputer", TrMark("Computer"), {320, 32, 556, 40}, false},
                    {"lblAutopilot", TrMark("Autopilot"), autopilot, true},
                    {"lblAutopilotNote", TrMark("Stanard Autopilot"), {1026, 222, 210, 36}, false}};
  diagram.States = {{"lblInputState", {}, {304, 88, 186, 36}, false},
                    {"lblControlState", {}, {508, 88, 180, 36}, false},
                    {"lblOutputState", {}, {706, 88, 186, 36}, false}};

  const double way = input.Middle().Y;
  const double joint = 150;
  const double branch = input.X + input.Width / 3.0;
  const double shelf = 242;
  const double down = 654;
  diagram.Lines = {{{wind.Right(), wind.Middle().Y}, {joint, wind.Middle().Y}},
                   {{speed.Right(), speed.Middle().Y}, {joint, speed.Middle().Y}},
                   {{joint, wind.Middle().Y}, {joint, speed.Middle().Y}},
                   {{branch, input.Bottom()}, {branch, polar.Middle().Y}},
                   {{branch, shelf}, {down, shelf}},
                   {{down, shelf}, {down, history.Middle().Y}}};
  diagram.lnArrowRight = {Arrow(joint, input.X, way),
                          Arrow(input.Right(), control.X, way),
                          Arrow(control.Right(), output.X, way),
                          Arrow(output.Right(), autopilot.X, way),
                          Arrow(branch, polar.X, polar.Middle().Y),
                          Arrow(down, history.X, history.Middle().Y)};
  return diagram;
}

}  // namespace veerwatch
