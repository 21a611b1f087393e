// Texts of a chart as numbers: how wide they are and where they stand.
#pragma once

#include <string>
#include <string_view>

#include "history/TraceLine.h"

namespace veerwatch {

/// How wide a text is drawn.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  /// [px] for a text of that height [px].
  virtual double Width(std::string_view text, double height) const = 0;
  /// The same where it is drawn bold.
  virtual double BoldWidth(std::string_view text, double height) const = 0;
};

struct ChartText {
  enum class Side { Left, Middle, Right };

  std::string Text;
  ChartBox Box;
  double Height = 0.0;  ///< of the text
  Side Align = Side::Left;
};

}  // namespace veerwatch
