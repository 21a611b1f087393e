// What all windows share about colours: mixing, dark or light, and the night's red on black.
#pragma once

#include <QColor>
#include <QPalette>

namespace veerwatch {

/// `share` [0, 1] of `over` on `under`.
QColor Mixed(const QColor& under, const QColor& over, qreal share);

/// Whether a window of that colour is dark.
bool IsDark(const QColor& window);

/// Red on black, for eyes that have to see in the dark afterwards.
QPalette NightPalette();

/// Whether a window of that colour wears the night palette.
bool IsNight(const QColor& window);

/// The red of about the same brightness, without any blue: what a colour becomes at night.
QColor NightShade(const QColor& colour);

/// `colour`, or at night its shade.
inline QColor ShadeFor(const QColor& window, const QColor& colour) {
  return IsNight(window) ? NightShade(colour) : colour;
}

}  // namespace veerwatch
