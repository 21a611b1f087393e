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

#include <string_view>
#include <vector>

#include "draw/DiagramArrow.h"

namespace veerwatch {

/// A rectangle with a text [twips].
struct DiagramBox {
  double X = 0.0;
  double Y = 0.0;
  double Width = 0.0;
  double Height = 0.0;
  std::string_view Text;
};

/// A circle at which signals meet [twips].
struct DiagramJunction {
  double X = 0.0;
  double Y = 0.0;
  double Radius = 0.0;
};

struct LoopDiagram {
  double Width = 0.0;        ///< [twips]
  double Height = 0.0;       ///< [twips]
  double TextSize = 0.0;     ///< height of the letters' font [twips]
  double TitleHeight = 0.0;  ///< [twips]
  std::vector<DiagramBox>
      Circuits;  ///< frames around the boxes of a circuit, a title of TitleHeight at their top
  std::vector<DiagramBox> Boxes;  ///< the text in the middle
  std::vector<DiagramJunction> Junctions;
  DiagramJunction Parting;           ///< the dot at which a way parts
  std::vector<DiagramLine> Signs;    ///< plus and minus at the junctions
  std::vector<DiagramLine> Lines;    ///< the ways without an arrow
  std::vector<DiagramLine> WayBack;  ///< the ways outside of the program
  std::vector<DiagramLine> lnArrow;  ///< the ways that end in an arrow
};

/// The diagram at its own size.
LoopDiagram LoopDiagramMade();

/// The strokes of the arrowheads of all lines of `lnArrow`.
std::vector<DiagramLine> LoopDiagramArrowHeads(const LoopDiagram& diagram);

}  // namespace veerwatch
