// Where a window opens that a button of the block diagram opens. Pure arithmetic.
#pragma once

#include "draw/Shapes.h"

namespace veerwatch {

/// The pressed button and the diagram's window around it [px].
struct DiagramAnchor {
  Box Button;               ///< inside the window
  Box Frame;                ///< of the window, on the screen
  double InnerWidth = 0.0;  ///< of the window without its frame
  double InnerHeight = 0.0;
};

/// The upper left corner of a window of `width` by `height` just below the middle of the pressed button,
/// flush with the right and the lower edge of the screen where it would reach beyond them. In whole pixels.
Point DiagramShowNear(const DiagramAnchor& anchor, double width, double height, double screenRight,
                      double screenBottom);

}  // namespace veerwatch
