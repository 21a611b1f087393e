// Numbers to text and back, independent of the locale. Every conversion of the program is here.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veerwatch {

/// `text` without the blanks and tabs at its ends.
std::string_view Trim(std::string_view text);

/// `value` by a pattern of zeros with at most one point, as "0", "0.0", "0.00", "000.0", "00" or ".0": the
/// zeros before the point are the least number of integer digits, those after it the exact number of
/// decimals. Rounds the shortest decimal text of the single, halves away from zero (5.25 returns "5.3"), and
/// never returns "-0". A value that is not finite returns "".
std::string FormatNumber(float value, std::string_view pattern);

/// The shortest decimal text that reads back as the same single, without an exponent ("92.3", "5", "0.5").
/// A value that is not finite returns "".
std::string ShortestText(float value);

/// A whole text as a number: an optional sign, digits with an optional point, an optional exponent, blanks
/// around it; nothing for any other text ("", "nan", "0x10", "12.3x") or when the number is too large for a
/// single. One too small for a single is 0.
std::optional<float> StrictNumber(std::string_view text);

/// The same, in double precision.
std::optional<double> StrictDouble(std::string_view text);

/// Whether a whole text is written as a number, as StrictNumber reads it, however large.
bool HasFormOfNumber(std::string_view text);

/// The number that a text begins with, after blanks; what follows is ignored. `otherwise` when it begins with
/// none or the number is too large for a single.
float LeadingNumber(std::string_view text, float otherwise = 0.0F);

}  // namespace veerwatch
