#include "platform/WindowFrameQt.h"

#include <QApplication>

namespace veerwatch {

namespace {

QSize FrameOf(const QWidget& window) { return window.frameGeometry().size() - window.size(); }

}  // namespace

QSize FramedSize(const QWidget& window) {
  const QSize own = FrameOf(window);
  if (!own.isNull()) {
    return window.size() + own;
  }
  for (const QWidget* other : QApplication::topLevelWidgets()) {
    const QSize frame = FrameOf(*other);
    if (other->isVisible() && !frame.isNull()) {
      return window.size() + frame;
    }
  }
  return window.size();
}

}  // namespace veerwatch
