#include "options/TipLines.h"

#include <algorithm>
#include <cstddef>

namespace veerwatch {

namespace {

/// How many characters a piece of UTF-8 shows.
std::ptrdiff_t Characters(std::string_view text) {
  return std::count_if(text.begin(), text.end(),
                       [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
}

}  // namespace

std::string TipLines(std::string_view text) {
  std::string lines(text);
  std::size_t begin = 0;                 // of the line
  std::size_t last = std::string::npos;  // blank that the line may be broken at
  for (std::size_t at = 0; at <= lines.size(); ++at) {
    if (at < lines.size() && lines[at] != ' ') {
      continue;
    }
    if (last != std::string::npos &&
        Characters(std::string_view(lines).substr(begin, at - begin)) > kTipLine) {
      lines[last] = '\n';
      begin = last + 1;
    }
    last = at;
  }
  return lines;
}

}  // namespace veerwatch
