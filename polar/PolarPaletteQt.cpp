#include "polar/PolarPaletteQt.h"

#include "draw/DrawQt.h"
#include "platform/ColoursQt.h"

namespace veerwatch {

namespace {

constexpr double kCaptionContrast = 4.5;
constexpr QColor kNightCurve(0xd8, 0x32, 0x1c);

}  // namespace

PolarPaletteQt::PolarPaletteQt(const QPalette& palette)
    : Dark(IsDark(palette.color(QPalette::Active, QPalette::Window))),
      Night(IsNight(palette.color(QPalette::Active, QPalette::Window))),
      Surface(palette.color(QPalette::Active, QPalette::Window)),
      Foreground(palette.color(QPalette::Active, QPalette::WindowText)) {
  Disc = Dark ? Mixed(Surface, QColor(Qt::black), 0.3)
              : Mixed(Surface, palette.color(QPalette::Active, QPalette::Base), 0.9);
  Caption = Legible(Surface, Foreground, 0.74, kCaptionContrast);
  Grid = Mixed(Disc, Foreground, Dark ? 0.2 : 0.22);
  GridLabel = Legible(Disc, Foreground, Dark ? 0.66 : 0.7, kDimmedContrast);
  Reference = Dark ? QColor(0xe5, 0x7f, 0xd0) : QColor(0xa8, 0x1e, 0x8c);
  Wind = Dark ? QColor(0x4f, 0xc3, 0xf7) : QColor(0x02, 0x6a, 0xb8);
  Boat = Dark ? QColor(0xff, 0xb7, 0x2e) : QColor(0xcf, 0x3a, 0x05);
  Target = Dark ? QColor(0xc9, 0xa8, 0xff) : QColor(0x6a, 0x3f, 0xb5);
  StarboardTack = Dark ? QColor(0x4a, 0xd6, 0x7a) : QColor(0x12, 0x85, 0x3a);
  PortTack = Dark ? QColor(0xff, 0x6b, 0x78) : QColor(0xc4, 0x10, 0x34);
  MousePlate = Dark ? QColor(0xd4, 0xd8, 0xdc) : QColor(0xff, 0xfb, 0xe6);
  MouseMain = QColor(0, 0, 255);
  MouseReference = QColor(160, 0, 96);
  if (Night) {
    Boat = QColor(0xff, 0xb4, 0x7c);
    Wind = QColor(0xff, 0x80, 0x38);
    Target = QColor(0xff, 0x64, 0x14);
    StarboardTack = PortTack = QColor(0xff, 0x5a, 0x20);
    Reference = QColor(0xd2, 0x3c, 0x00);
    MousePlate = Mixed(Surface, Foreground, 0.14);
    MouseMain = Boat;
    MouseReference = Foreground;
  }
}

PolarPaletteQt PolarPaletteQt::Faded() const {
  PolarPaletteQt faded(*this);
  const QColor dim = Legible(Surface, faded.Foreground, 0.5, kDimmedContrast);
  faded.Wind = faded.Boat = faded.Target = faded.StarboardTack = faded.PortTack = faded.Foreground = dim;
  return faded;
}

QColor PolarPaletteQt::Curve(std::uint32_t speedColor) const {
  if (speedColor == 0) {
    return Night ? kNightCurve : Foreground;
  }
  return ShadeFor(Surface, FromBgr(speedColor));
}

}  // namespace veerwatch
