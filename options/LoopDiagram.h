// The picture of the control loop on the Diagram tab as plain numbers; LoopDiagramQt strokes it.
//
//   Current -> (+-) ---+------------------------> (+) -> Scale -> Accumulator -> Bearing
//   Wind        ^      |                           ^
//   Angle    Desired   +-> Scale -> Accumulator ---+
//
// The error, current less desired wind angle, drives the tracking circuit, which moves the bearing in steps
// in proportion to it. The overshoot circuit sums the error up and adds what has gathered, so that no lasting
// error remains. The boat turns with the bearing and so changes the wind angle: the dashed way back.
#pragma once

#include <vector>

#include "draw/DiagramArrow.h"
#include "draw/Shapes.h"

namespace veerwatch {

struct LoopDiagram {
  double Width = 0.0;              ///< [px]
  double Height = 0.0;             ///< [px]
  double TextSize = 0.0;           ///< height of all letters [px]
  std::vector<Box> Circuits;       ///< frames around the boxes of a circuit
  std::vector<PlacedText> Titles;  ///< of the circuits, at the top of each frame
  std::vector<PlacedText> Boxes;   ///< frames with a text
  std::vector<Circle> Junctions;   ///< at which signals meet
  Circle Parting;                  ///< the dot at which a way parts
  std::vector<Stroke> Signs;       ///< plus and minus at the junctions
  std::vector<Stroke> Lines;       ///< the ways without an arrow
  std::vector<Stroke> WayBack;     ///< the ways outside of the program
  std::vector<DiagramArrow> lnArrow;
};

/// The diagram at its own size.
LoopDiagram LoopDiagramMade();

}  // namespace veerwatch
