// How wide texts are in a font of Qt's.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <array>

#include "draw/TextMeasure.h"

namespace veerwatch {

/// The widths of texts in one font at any height, from the widths of single characters.
class TextMeasureQt final : public TextMeasure {
 public:
  explicit TextMeasureQt(const QFont& font);
  double Width(std::string_view text, double height) const override;
  double BoldWidth(std::string_view text, double height) const override;
  /// The font at a height [px].
  QFont At(double height) const;

 private:
  using Widths = std::array<double, 128>;

  QFont m_font;
  Widths m_widths{};  ///< of the ASCII characters in a font of 1 px
  Widths m_boldWidths{};
};

/// The widths of texts as a font draws them on a surface, rounded up to whole pixels. Asked for one height
/// after the other.
class FontMeasureQt final : public TextMeasure {
 public:
  /// `surface` outlives it.
  FontMeasureQt(const QFont& font, const QPaintDevice& surface)
      : m_font(font), m_surface(surface), m_metrics(font, &surface) {}
  double Width(std::string_view text, double height) const override;
  double BoldWidth(std::string_view text, double height) const override;

 private:
  QFont m_font;
  const QPaintDevice& m_surface;
  mutable QFontMetricsF m_metrics;  ///< of the plain letters
  mutable int m_pixels = 0;         ///< their height
};

}  // namespace veerwatch
