// How large a window is on the desktop, with the frame that the desktop puts around it.
#pragma once

#include <QWidget>

namespace veerwatch {

/// The size of a window with its frame [px]. Before it is shown for the first time, and until the desktop has
/// told its frame, that of another window of the program counts.
QSize FramedSize(const QWidget& window);

}  // namespace veerwatch
