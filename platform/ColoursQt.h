// What all windows share about colours: mixing, dark or light, and the night's red on black.
#pragma once

#include <QColor>
#include <QPalette>

namespace veerwatch {

/// `share` [0, 1] of `over` on `under`.
QColor Mixed(const QColor& under, const QColor& over, qreal share);

/// Contrast ratio of two colours [1, 21]. Source: WCAG 2, relative luminance.
double Contrast(const QColor& a, const QColor& b);

/// `share` [0, 1] of `over` on `under`, and as much more of it as a text of that colour needs for a contrast
/// of `least` [1, 21] to `under`; `over` itself where that is not enough.
QColor Legible(const QColor& under, const QColor& over, qreal share, double least);

/// Contrast of a text that does not answer now, or is no more of now.
inline constexpr double kDimmedContrast = 4.2;

/// Whether a window of that colour is dark.
bool IsDark(const QColor& window);

/// The amber of a text on a window of that colour, and that of a frame or a sign, which needs less contrast.
QColor AmberText(const QColor& window);
QColor AmberEdge(const QColor& window);

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
