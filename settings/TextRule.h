// What texts a setting can be: one rule for a profile, for an entry box and for what is still being typed.
#pragma once

#include <cstddef>
#include <string_view>

namespace veerwatch {

struct TextRule {
  const char* Range;                      ///< in words
  std::size_t Most;                       ///< characters
  bool (*Begins)(std::string_view text);  ///< more characters can make it one; "" can, too
  bool (*Takes)(std::string_view text);   ///< it is one
};

/// The two letters with which a sentence begins. The first is no "P", which would make it a maker's own.
extern const TextRule kTalker;
/// The name of a point: 1 to 6 capital letters and digits.
extern const TextRule kPointName;

}  // namespace veerwatch
