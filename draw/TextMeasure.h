// How wide texts are, for whoever places them without a window.
#pragma once

#include <string_view>

namespace veerwatch {

class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  /// The width of a text in letters of that height [px].
  virtual double Width(std::string_view text, double height) const = 0;
  /// The same where it is drawn bold.
  virtual double BoldWidth(std::string_view text, double height) const = 0;
};

}  // namespace veerwatch
