// The colours of the polar plot, derived from the palette that it wears: light, dark or the night's. At night
// there is one hue, so brightness tells the boat, the wind and the curves apart, and dashes tell the tacks.
#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace veerwatch {

struct PolarPaletteQt {
  explicit PolarPaletteQt(const QPalette& palette);

  bool Dark;
  bool Night;
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
  QColor MouseMain;       ///< text on the plate: of the main polar
  QColor MouseReference;  ///< of the reference polar

  /// Whether the line of a leg is dashed.
  bool Dashed(bool portTack) const { return Night && portTack; }

  /// The same with everything that moves in half tone: what it shows is no more of now.
  PolarPaletteQt Faded() const;

  /// The colour of the curves for a setting of 0xBBGGRR.
  QColor Curve(std::uint32_t speedColor) const;
};

}  // namespace veerwatch
