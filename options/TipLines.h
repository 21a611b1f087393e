// Breaks the text of a tool tip into lines: Qt shows a plain one as wide as its longest line.
#pragma once

#include <string>
#include <string_view>

namespace veerwatch {

/// Characters of a line; on a screen of 800 pixels at double size as many fit in it.
inline constexpr int kTipLine = 50;

/// `text` (UTF-8) with line feeds in place of blanks, so that no line has more than kTipLine characters but
/// one that is a single word.
std::string TipLines(std::string_view text);

}  // namespace veerwatch
