// The picture of the whole system as plain numbers; frmDiagram strokes it and lays its buttons and labels out
// by it.
//
//    Wind  --+               +- Computer ----------------------------------+
//            +-- NMEA 0183 --|-> [Input] -> [Control Loop] -> [Output] ----|-- NMEA 0183 --> Autopilot
//    Speed --+               |      +--------> [Polar Plot]                |
//                            |      +--------> [History Plot]              |
//                            +---------------------------------------------+
#pragma once

#include <string_view>
#include <vector>

#include "draw/DiagramArrow.h"
#include "draw/Shapes.h"

namespace veerwatch {

/// A text in the middle of its area, or the box of a device with its name in it.
struct BlockLabel {
  std::string_view Name;  ///< of the control
  std::string_view Text;  ///< English, for Tr
  Box Area;
  bool Framed = false;  ///< a device: a box around the text
};

struct BlockButton {
  std::string_view Name;
  std::string_view Caption;  ///< English, for Tr, as the tip
  std::string_view ToolTip;
  Box Area;
};

struct BlockDiagram {
  double Width = 0.0;     ///< [px]
  double Height = 0.0;    ///< [px]
  double TextSize = 0.0;  ///< height of the letters [px]
  Box Computer;           ///< the frame around the buttons
  std::vector<BlockButton> Buttons;
  std::vector<BlockLabel> Labels;
  /// Where the state of cmdInput, cmdControl and cmdOutput is written, above each.
  std::vector<BlockLabel> States;
  std::vector<Stroke> Lines;               ///< the ways without an arrow
  std::vector<DiagramArrow> lnArrowRight;  ///< the ways that end in an arrow
};

/// The diagram at its own size, which is the window's at a scale of 100 %.
BlockDiagram BlockDiagramMade();

}  // namespace veerwatch
