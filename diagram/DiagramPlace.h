// Where a window opens that a button of the block diagram opens. Pure arithmetic, in any one unit.
#pragma once

namespace veerwatch {

/// The pressed button and the diagram's window around it.
struct DiagramAnchor {
  double ButtonLeft = 0.0;  ///< inside the window
  double ButtonTop = 0.0;
  double ButtonWidth = 0.0;
  double ButtonHeight = 0.0;
  double WindowLeft = 0.0;  ///< of the frame, on the screen
  double WindowTop = 0.0;
  double OuterWidth = 0.0;  ///< with the frame
  double OuterHeight = 0.0;
  double InnerWidth = 0.0;  ///< without it
  double InnerHeight = 0.0;
};

/// The upper left corner of a window.
struct DiagramPlace {
  int Left = 0;
  int Top = 0;

  bool operator==(const DiagramPlace&) const = default;
};

/// The place of a window of that size just below the middle of the pressed button, flush with the right and
/// the lower edge of the screen where it would reach beyond them. Rounded to whole units.
DiagramPlace DiagramShowNear(const DiagramAnchor& anchor, double width, double height, double screenRight,
                             double screenBottom);

}  // namespace veerwatch
