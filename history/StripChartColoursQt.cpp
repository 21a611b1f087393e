#include "history/StripChartColoursQt.h"

#include <array>

#include "draw/DrawQt.h"
#include "platform/ColoursQt.h"

namespace veerwatch {

namespace {

constexpr double kCaptionContrast = 4.5;

struct Shades {
  QRgb OnDark;
  QRgb OnLight;
  QRgb AtNight;
};

/// Hues that stay apart for colour-blind eyes. What belongs together in two panels has one hue: the boat
/// green, the true wind blue, the apparent wind orange. At night only brightness and a little orange tell.
constexpr std::array<Shades, 9> kTraces{{
    {0xFF5CD190, 0xFF0A7A48, 0xFFFF5A30},  // boat speed
    {0xFF5CD190, 0xFF0A7A48, 0xFFFF5A30},  // heading
    {0xFF5AB8EE, 0xFF0B62A8, 0xFFFFA070},  // true wind speed
    {0xFF5AB8EE, 0xFF0B62A8, 0xFFFFA070},  // true wind angle
    {0xFFF2A53A, 0xFFB85400, 0xFFE03018},  // apparent wind speed
    {0xFFF2A53A, 0xFFB85400, 0xFFE03018},  // apparent wind angle
    {0xFFF28CC2, 0xFFB0246F, 0xFFE08000},  // pilot heading
    {0xFFB9A2FF, 0xFF6540C4, 0xFFC06000},  // pilot delta
    {0xFFE2D36A, 0xFF7A6800, 0xFFD09000},  // polar speed
}};

}  // namespace

StripChartColoursQt::StripChartColoursQt(const QColor& back)
    : Dark(IsDark(back)), Night(IsNight(back)), Back(back) {
  Text = ShadeFor(back, Dark ? QColor(0xE8, 0xEC, 0xF0) : QColor(0x14, 0x18, 0x1C));
  Caption = Legible(Back, Text, Dark ? 0.72 : 0.76, kCaptionContrast);
  Dimmed = Legible(Back, Text, Dark ? 0.56 : 0.62, kDimmedContrast);
  const QColor plot = Plot(back);
  Grid = Mixed(plot, Text, Dark ? 0.11 : 0.10);
  Edge = Mixed(plot, Text, Dark ? 0.22 : 0.26);
  Accent = ShadeFor(back, Dark ? QColor(0x5A, 0xB4, 0xE6) : QColor(0x0B, 0x5F, 0x9E));
}

QColor StripChartColoursQt::Plot(const QColor& group) const {
  return Dark ? Mixed(group, QColor(Qt::black), 0.30) : Mixed(group, QColor(Qt::white), 0.85);
}

QColor StripChartColoursQt::Trace(std::size_t number, const std::optional<std::uint32_t>& chosen) const {
  if (chosen) {
    return ShadeFor(Back, FromRgb(*chosen));
  }
  const Shades& shades = kTraces[number % kTraces.size()];
  return QColor(Night ? shades.AtNight : Dark ? shades.OnDark : shades.OnLight);
}

}  // namespace veerwatch
