#include "draw/WindowPlaceQt.h"

#include <QApplication>
#include <QScreen>

#include "draw/DrawQt.h"
#include "draw/WindowPlace.h"

namespace veerwatch {

namespace {

QSize FrameOf(const QWidget& window) { return window.frameGeometry().size() - window.size(); }

/// What the screens leave free for windows.
std::vector<Box> Screens() {
  std::vector<Box> screens;
  for (const QScreen* screen : QGuiApplication::screens()) {
    screens.push_back(ToBox(screen->availableGeometry()));
  }
  return screens;
}

bool HasOwnPlace(const QWidget& window) {
  return (window.windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
}

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

std::optional<Box> FramePlace(const QWidget& window) {
  return HasOwnPlace(window) ? std::optional(ToBox(window.frameGeometry())) : std::nullopt;
}

std::optional<Box> InnerPlace(const QWidget& window) {
  return HasOwnPlace(window) ? std::optional(ToBox(QRect(window.pos(), window.size()))) : std::nullopt;
}

void RestoreInner(QWidget& window, const Box& place) {
  const QRect wanted = ToQt(place).toRect();
  window.resize(wanted.size());
  if (CanBeSeen(place, Screens())) {
    window.move(wanted.topLeft());
  }
}

void FrameRestoreQt::Restore(const Box& frame) {
  m_wanted =
      ToQt(PlaceOnScreen(frame, Screens(), m_window.minimumWidth(), m_window.minimumHeight())).toRect();
  m_window.move(m_wanted.topLeft());
  m_window.resize(m_wanted.size());
}

void FrameRestoreQt::Fit() {
  const QSize frame = FrameOf(m_window);
  if (!m_fitted && m_window.isVisible() && !frame.isNull()) {
    m_fitted = true;
    if (m_window.size() == m_wanted.size()) {
      m_window.resize(m_wanted.size() - frame);
    }
  }
}

}  // namespace veerwatch
