// The texts of the about box. A carriage return parts two lines.
#pragma once

#include <string>
#include <string_view>

namespace veerwatch {

/// "About " and the title.
std::string AboutCaption(std::string_view title);

/// The version, of which only "major.minor" counts, and what the program is.
/// Deliberate: nine blanks in front of "a)" and "b)", and "1984".
std::string AboutDescription(std::string_view version);

/// The four lines of the notice.
std::string AboutDisclaimer();

}  // namespace veerwatch
