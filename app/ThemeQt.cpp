#include "app/ThemeQt.h"

#include <QApplication>
#include <QToolTip>

#include "platform/NightCaretQt.h"

namespace veerwatch {

namespace {

constexpr double kCaptionContrast = 4.5;

}  // namespace

void WearNightColours(bool night) {
  // Tool tips have a palette of their own, without which they would light up the cabin.
  static const QPalette desktopTips = QToolTip::palette();
  QApplication::setPalette(night ? NightPalette() : QPalette());
  // The pages of a dialog are filled with the colour of buttons, which is raised, a third brighter. White is
  // drawn over their edges, thinly: red enough beneath it keeps these from being grey.
  QPalette pages(NightPalette());
  pages.setColor(QPalette::Button, Mixed(pages.color(QPalette::Window), Qt::black, 0.17));
  QApplication::setPalette(night ? pages : QPalette(), "QTabWidget");
  QApplication::setPalette(night ? pages : QPalette(), "QTabBar");
  static NightCaretQt caret;
  caret.Wear(night);
  QToolTip::setPalette(night ? NightPalette() : desktopTips);
}

ThemeQt::ThemeQt(const QPalette& palette)
    : Dark(IsDark(palette.color(QPalette::Active, QPalette::Window))),
      Night(IsNight(palette.color(QPalette::Active, QPalette::Window))),
      Window(palette.color(QPalette::Active, QPalette::Window)),
      Text(palette.color(QPalette::Active, QPalette::WindowText)) {
  const QColor white(Qt::white);
  const QColor base = palette.color(QPalette::Active, QPalette::Base);
  Card = Dark ? Mixed(Window, Text, 0.055) : Mixed(Window, base, 0.85);
  Edge = Mixed(Card, Text, Dark ? 0.16 : 0.18);
  Field = Dark ? Mixed(Window, QColor(Qt::black), 0.35) : base;
  Caption = Legible(Card, Text, 0.74, kCaptionContrast);
  Dimmed = Legible(Card, Text, Dark ? 0.58 : 0.62, kDimmedContrast);
  Accent = Dark ? QColor(0x5a, 0xb4, 0xe6) : QColor(0x0b, 0x5f, 0x9e);
  Port = {Dark ? QColor(0xa8, 0x32, 0x2b) : QColor(0xb9, 0x2b, 0x24), white};
  Starboard = {Dark ? QColor(0x1d, 0x74, 0x3f) : QColor(0x17, 0x74, 0x3c), white};
  if (Night) {
    // Both sides are red now: port is the darker one, and the arrows tell.
    Accent = QColor(0xff, 0x5a, 0x30);
    Port = {QColor(0x78, 0x0c, 0x06), QColor(0xff, 0x9a, 0x78)};
    Starboard = {QColor(0xd8, 0x4a, 0x1c), QColor(Qt::black)};
  }
}

ThemeQt::Pair ThemeQt::Resting(const Pair& pair) const {
  const QColor fill = Mixed(Card, pair.Fill, 0.12);
  return {fill, Legible(fill, Text, Dark ? 0.58 : 0.62, kDimmedContrast)};
}

ThemeQt::Pair ThemeQt::Mode(TrackMode mode) const {
  if (Night) {
    return {QColor(0xf0, 0x40, 0x1c), Qt::black};
  }
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
