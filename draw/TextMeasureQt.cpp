#include "draw/TextMeasureQt.h"

#include "draw/DrawQt.h"

namespace veerwatch {

namespace {

/// Characters are measured at this height [px].
constexpr int kReferenceHeight = 64;

/// The width of a text from those of its characters, in a font of 1 px.
double Sum(std::string_view text, const std::array<double, 128>& widths) {
  double width = 0.0;
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    constexpr unsigned kContinued = 0x80;
    constexpr unsigned kContinuedMask = 0xC0;
    if (code < widths.size()) {
      width += widths[code];
    } else if ((code & kContinuedMask) != kContinued) {
      // Another character counts as a digit.
      width += widths['0'];
    }
  }
  return width;
}

double WholeWidth(std::string_view text, const QFontMetricsF& metrics) {
  return std::ceil(metrics.horizontalAdvance(ToQt(text)));
}

}  // namespace

TextMeasureQt::TextMeasureQt(const QFont& font) : m_font(font) {
  const auto measure = [](const QFont& reference, Widths& widths) {
    const QFontMetricsF metrics(reference);
    for (std::size_t code = 0; code < widths.size(); ++code) {
      widths[code] = metrics.horizontalAdvance(QLatin1Char(static_cast<char>(code))) / kReferenceHeight;
    }
  };
  QFont reference = At(kReferenceHeight);
  measure(reference, m_widths);
  reference.setBold(true);
  measure(reference, m_boldWidths);
}

QFont TextMeasureQt::At(double height) const {
  QFont font = m_font;
  font.setPixelSize(LetterPixels(height));
  return font;
}

double TextMeasureQt::Width(std::string_view text, double height) const {
  return Sum(text, m_widths) * LetterPixels(height);
}

double TextMeasureQt::BoldWidth(std::string_view text, double height) const {
  return Sum(text, m_boldWidths) * LetterPixels(height);
}

double FontMeasureQt::Width(std::string_view text, double height) const {
  const int pixels = LetterPixels(height);
  if (pixels != m_pixels) {
    m_metrics = QFontMetricsF(Letters(m_font, height), &m_surface);
    m_pixels = pixels;
  }
  return WholeWidth(text, m_metrics);
}

double FontMeasureQt::BoldWidth(std::string_view text, double height) const {
  return WholeWidth(text, QFontMetricsF(Letters(m_font, height, QFont::Bold), &m_surface));
}

}  // namespace veerwatch
