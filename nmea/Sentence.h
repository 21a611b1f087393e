// One line as a sentence: its frame and its checksum.
#pragma once

#include <string_view>

namespace veerwatch {

enum class Frame {
  Good,
  NoDollar,       ///< does not begin with "$"
  WrongChecksum,  ///< has a checksum that is not its own
};

/// Checks the frame of a line without its line end. A line whose third character from the end is not "*" has
/// no checksum and is good without. Deliberate: a checksum in lower-case hexadecimal is wrong.
Frame CheckFrame(std::string_view line);

}  // namespace veerwatch
