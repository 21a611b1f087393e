// Where windows stand on the desktop, and how they come back to where they stood. A window's frame is what
// the desktop puts around it: its size is known only when the window shows.
#pragma once

#include <QWidget>
#include <optional>

#include "draw/Shapes.h"

namespace veerwatch {

/// The size of a window with its frame [px]. Before it is shown for the first time, and until the desktop has
/// told its frame, that of another window of the program counts.
QSize FramedSize(const QWidget& window);

/// The place that the user gave a window [px]: the upper left corner of its frame, with the size of the frame
/// or with that of what is inside of it. Nothing while it is minimised or fills the screen.
std::optional<Box> FramePlace(const QWidget& window);
std::optional<Box> InnerPlace(const QWidget& window);

/// Gives a window its inner size back, and its place where CanBeSeen; else the desktop chooses one.
void RestoreInner(QWidget& window, const Box& place);

/// Gives a window its frame back. It outlives this.
class FrameRestoreQt {
 public:
  explicit FrameRestoreQt(QWidget& window) : m_window(window) {}

  /// Puts a window that does not show to where PlaceOnScreen brings `frame` [px].
  void Restore(const Box& frame);
  /// Makes room for the frame within the restored size; for whoever sees the window shown and moved.
  void Fit();

 private:
  QWidget& m_window;
  QRect m_wanted;         ///< the frame [px]
  bool m_fitted = false;  ///< it has been taken off the size
};

}  // namespace veerwatch
