#include "platform/ColoursQt.h"

#include <algorithm>
#include <cmath>

namespace veerwatch {

namespace {

constexpr int kMiddleLightness = 128;
constexpr QColor kNightWindow(0x0c, 0x00, 0x00);
constexpr QColor kNightText(0xff, 0x46, 0x28);
constexpr QColor kAmber(255, 191, 71);

/// Source: WCAG 2, relative luminance.
double Luminance(const QColor& colour) {
  const auto linear = [](float part) {
    const double value = static_cast<double>(part);
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

}  // namespace

QColor Mixed(const QColor& under, const QColor& over, qreal share) {
  const auto part = [share](int a, int b) { return qRound(a + (b - a) * share); };
  return {part(under.red(), over.red()), part(under.green(), over.green()), part(under.blue(), over.blue())};
}

double Contrast(const QColor& a, const QColor& b) {
  const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor Legible(const QColor& under, const QColor& over, qreal share, double least) {
  constexpr qreal kStep = 0.01;
  while (share < 1.0) {
    const QColor mixed = Mixed(under, over, share);
    if (Contrast(under, mixed) >= least) {
      return mixed;
    }
    share += kStep;
  }
  return over;
}

bool IsDark(const QColor& window) { return window.lightness() < kMiddleLightness; }

bool IsNight(const QColor& window) { return window.rgb() == kNightWindow.rgb(); }

QPalette NightPalette() {
  const QColor black(Qt::black);
  const QColor raised = Mixed(kNightWindow, kNightText, 0.14);
  const QColor dimmed = Legible(kNightWindow, kNightText, 0.58, kDimmedContrast);
  QPalette palette(raised, kNightWindow);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText,
        QPalette::ToolTipText, QPalette::Link, QPalette::LinkVisited}) {
    palette.setColor(role, kNightText);
    palette.setColor(QPalette::Disabled, role, dimmed);
  }
  palette.setColor(QPalette::ToolTipText, kNightText);
  // What does not answer is not raised either.
  palette.setColor(QPalette::Disabled, QPalette::Button, kNightWindow);
  palette.setColor(QPalette::PlaceholderText, dimmed);
  palette.setColor(QPalette::Base, black);
  palette.setColor(QPalette::AlternateBase, kNightWindow);
  palette.setColor(QPalette::ToolTipBase, raised);
  palette.setColor(QPalette::Highlight, Mixed(kNightWindow, kNightText, 0.45));
  palette.setColor(QPalette::HighlightedText, QColor(0xff, 0xa0, 0x80));
  palette.setColor(QPalette::Light, Mixed(kNightWindow, kNightText, 0.3));
  palette.setColor(QPalette::Midlight, Mixed(kNightWindow, kNightText, 0.22));
  palette.setColor(QPalette::Mid, Mixed(kNightWindow, kNightText, 0.18));
  palette.setColor(QPalette::Dark, Mixed(kNightWindow, kNightText, 0.08));
  palette.setColor(QPalette::Shadow, black);
  return palette;
}

QColor AmberText(const QColor& window) {
  return ShadeFor(window, IsDark(window) ? kAmber : QColor(148, 84, 0));
}

QColor AmberEdge(const QColor& window) {
  return ShadeFor(window, IsDark(window) ? kAmber : QColor(204, 122, 0));
}

QColor NightShade(const QColor& colour) {
  constexpr float kMostGreen = 0.3F;
  // Red, which is what is left at night, counts for more than it does by day.
  const float brightness = 0.45F * colour.redF() + 0.587F * colour.greenF() + 0.114F * colour.blueF();
  const float most = std::max({colour.redF(), colour.greenF(), colour.blueF()});
  // Bright colours stay apart from middling ones, black stays black.
  const float red = std::min(1.0F, 1.35F * brightness);
  const float green = most > 0.0F ? red * kMostGreen * colour.greenF() / most : 0.0F;
  return QColor::fromRgbF(red, green, 0.0F, colour.alphaF());
}

}  // namespace veerwatch
