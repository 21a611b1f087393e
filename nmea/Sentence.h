// One line as a sentence: its frame and its checksum.
#pragma once

#include <string_view>

#include "settings/LineRules.h"

namespace veerwatch {

enum class Frame {
  Good,
  NoDollar,       ///< does not begin with "$"
  WrongChecksum,  ///< has a checksum that is not its own, or lacks one that it needs
};

/// What is asked of a checksum.
struct FrameRules {
  ChecksumRule Checksum = ChecksumRule::AcceptMissing;
  bool LowerCase = false;
};

/// Checks the frame of a line without its line end. A line whose third character from the end is not "*" has
/// no checksum. Deliberate: by default it is good without, and one in lower-case hexadecimal is wrong.
Frame CheckFrame(std::string_view line, const FrameRules& rules = {});

}  // namespace veerwatch
