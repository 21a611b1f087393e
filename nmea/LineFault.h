// What was wrong with a received line, and the texts of the lists of received lines.
#pragma once

#include <string>
#include <string_view>

namespace veerwatch {

enum class LineFault {
  None,
  Decode,    ///< a sentence that lacks something that it should hold, or holds what is no number
  Sentence,  ///< no sentence: it does not begin with "$", or is too long
  Checksum,  ///< a checksum that is not its own
};

/// "Decode Error", "Sentence Error", "Checksum Error"; "" for none.
std::string_view LineFaultText(LineFault fault);

/// Puts into `text` the line as the list of all lines shows it: with a mark after it when its frame is bad.
void ListedLine(std::string_view line, LineFault fault, std::string& text);

/// Puts into `text` the line as the list of errors shows it: after its fault and " - ".
void ListedFault(std::string_view line, LineFault fault, std::string& text);

}  // namespace veerwatch
