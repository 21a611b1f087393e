#include "app/ThemeQt.h"

namespace veerwatch {

namespace {

constexpr int kMiddleLightness = 128;

}  // namespace

QColor Mixed(const QColor& under, const QColor& over, qreal share) {
  const auto part = [share](int a, int b) { return qRound(a + (b - a) * share); };
  return {part(under.red(), over.red()), part(under.green(), over.green()), part(under.blue(), over.blue())};
}

ThemeQt::ThemeQt(const QPalette& palette)
    : Dark(palette.color(QPalette::Active, QPalette::Window).lightness() < kMiddleLightness),
      Window(palette.color(QPalette::Active, QPalette::Window)),
      Text(palette.color(QPalette::Active, QPalette::WindowText)) {
  const QColor white(Qt::white);
  const QColor base = palette.color(QPalette::Active, QPalette::Base);
  Card = Dark ? Mixed(Window, Text, 0.055) : Mixed(Window, base, 0.85);
  Edge = Mixed(Card, Text, Dark ? 0.16 : 0.18);
  Field = Dark ? Mixed(Window, QColor(Qt::black), 0.35) : base;
  Caption = Mixed(Card, Text, 0.74);
  Dimmed = Mixed(Card, Text, Dark ? 0.58 : 0.62);
  Accent = Dark ? QColor(0x5a, 0xb4, 0xe6) : QColor(0x0b, 0x5f, 0x9e);
  Port = {Dark ? QColor(0xa8, 0x32, 0x2b) : QColor(0xb9, 0x2b, 0x24), white};
  Starboard = {Dark ? QColor(0x1d, 0x74, 0x3f) : QColor(0x17, 0x74, 0x3c), white};
}

ThemeQt::Pair ThemeQt::Mode(TrackMode mode) const {
  switch (mode) {
    case TrackMode::Setup:
      return {Dark ? QColor(0x36, 0x71, 0xae) : QColor(0x2a, 0x68, 0xa8), Qt::white};
    case TrackMode::Manual:
      return {QColor(0xf0, 0xb0, 0x3c), QColor(0x1c, 0x14, 0x04)};
    case TrackMode::Track:
      return {Dark ? QColor(0x3f, 0xcf, 0xc0) : QColor(0x08, 0x6b, 0x66),
              Dark ? QColor(0x04, 0x1f, 0x1d) : Qt::white};
    case TrackMode::Off:
    case TrackMode::Switching:
      break;
  }
  return {Dark ? QColor(0x6a, 0x74, 0x7e) : QColor(0x58, 0x60, 0x68), Qt::white};
}

}  // namespace veerwatch
