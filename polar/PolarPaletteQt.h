// The colours of the polar plot, derived from the desktop's palette, light or dark.
#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace veerwatch {

struct PolarPaletteQt {
  explicit PolarPaletteQt(const QPalette& palette);

  bool Dark;
  QColor Surface;     ///< behind everything
  QColor Disc;        ///< inside of the outer ring
  QColor Foreground;  ///< values, and the curves when no colour was chosen
  QColor Caption;
  QColor Grid;
  QColor GridLabel;
  QColor Reference;  ///< curves of the reference polar
  QColor Wind;       ///< the wind that blows now: its curve and its arrow
  QColor Boat;       ///< the boat's point
  QColor Target;     ///< the bearing to sail to
  QColor StarboardTack;
  QColor PortTack;
  QColor MousePlate;

  /// The colour of the curves for a setting of 0xBBGGRR.
  QColor Curve(std::uint32_t speedColor) const;
};

}  // namespace veerwatch
