// The colours of a strip chart, derived from the colour that it stands on, light, dark or the
// night's.
#pragma once

#include <QColor>
#include <cstdint>
#include <optional>

namespace veerwatch {

struct StripChartColoursQt {
  explicit StripChartColoursQt(const QColor& back);

  /// The fill of a panel whose group has that colour.
  QColor Plot(const QColor& group) const;
  /// The colour of trace `number`, counted from 0: the one chosen [0xRRGGBB], else one that suits the back.
  QColor Trace(std::size_t number, const std::optional<std::uint32_t>& chosen) const;

  bool Dark;
  bool Night;
  QColor Back;
  QColor Text;
  QColor Caption;  ///< text that accompanies
  QColor Dimmed;   ///< text of what is no more of now, still legible
  QColor Grid;
  QColor Edge;  ///< line around a panel
  QColor Accent;
};

}  // namespace veerwatch
