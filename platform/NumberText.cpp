#include "platform/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <system_error>

namespace veerwatch {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// A number as it stands at the beginning of a text.
struct Scanned {
  std::string_view Text;  ///< without a plus sign; empty when there is no number
  std::size_t End = 0;    ///< where the number ends in the text that was scanned
  bool Negative = false;
  bool Plain = true;         ///< no exponent, and Digits holds all digits
  std::uint64_t Digits = 0;  ///< the digits without the point
  int Decimals = 0;          ///< how many of them stand after the point
};

enum class Exponent { Read, Ignored };

/// Reads an optional sign, digits with an optional point, and an exponent where it is whole and wanted.
Scanned ScanNumber(std::string_view text, Exponent wanted) {
  Scanned scanned;
  std::size_t at = 0;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
    scanned.Negative = text[at] == '-';
    ++at;
  }
  const std::size_t start = scanned.Negative ? 0 : at;
  constexpr int kDigitsThatFit = 18;
  int digits = 0;
  bool point = false;
  for (; at < text.size(); ++at) {
    if (IsDigit(text[at])) {
      scanned.Digits = scanned.Digits * 10 + static_cast<std::uint64_t>(text[at] - '0');
      ++digits;
      scanned.Decimals += point ? 1 : 0;
      if (digits > kDigitsThatFit) {
        scanned.Plain = false;
        scanned.Digits = 0;
      }
    } else if (text[at] == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  if (digits == 0) {
    return {};
  }
  if (wanted == Exponent::Read && at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) {
      ++exponent;
    }
    if (exponent < text.size() && IsDigit(text[exponent])) {
      while (exponent < text.size() && IsDigit(text[exponent])) {
        ++exponent;
      }
      at = exponent;
      scanned.Plain = false;
    }
  }
  scanned.Text = text.substr(start, at - start);
  scanned.End = at;
  return scanned;
}

/// Whether a number that is out of range is so because it is small: 0 to its precision.
bool IsTiny(std::string_view number) {
  // Place of the first digit that is not 0, counted from the point, and the exponent on top of it.
  long place = 0;
  bool point = false;
  bool found = false;
  std::size_t at = 0;
  for (; at < number.size() && number[at] != 'e' && number[at] != 'E'; ++at) {
    if (number[at] == '.') {
      point = true;
    } else if (IsDigit(number[at])) {
      found = found || number[at] != '0';
      place += found && !point ? 1 : (!found && point ? -1 : 0);
    }
  }
  if (!found) {
    return true;
  }
  if (at == number.size()) {
    return place <= 0;
  }
  const bool negative = number[at + 1] == '-';
  long exponent = 0;
  constexpr long kEnough = 1000000000L;
  for (const char c : number.substr(at + 1)) {
    if (IsDigit(c) && exponent < kEnough) {
      exponent = exponent * 10 + (c - '0');
    }
  }
  return place + (negative ? -exponent : exponent) <= 0;
}

template <class Number>
std::optional<Number> Convert(const Scanned& scanned) {
  Number value = 0;
  const auto [end, error] =
      std::from_chars(scanned.Text.data(), scanned.Text.data() + scanned.Text.size(), value);
  if (error == std::errc::result_out_of_range) {
    return IsTiny(scanned.Text) ? std::optional<Number>(Number{0}) : std::nullopt;
  }
  return std::isfinite(value) ? std::optional<Number>(value) : std::nullopt;
}

std::optional<float> ToFloat(const Scanned& scanned) {
  // Both the digits and the power of ten are exact singles, so one division rounds once, as it should.
  constexpr std::array<float, 11> kPowers{1e0F, 1e1F, 1e2F, 1e3F, 1e4F, 1e5F, 1e6F, 1e7F, 1e8F, 1e9F, 1e10F};
  constexpr std::uint64_t kExact = 1U << 24U;
  if (scanned.Plain && scanned.Digits <= kExact && scanned.Decimals < static_cast<int>(kPowers.size())) {
    const float value =
        static_cast<float>(scanned.Digits) / kPowers[static_cast<std::size_t>(scanned.Decimals)];
    return scanned.Negative ? -value : value;
  }
  return Convert<float>(scanned);
}

/// Longest text of a single without exponent: sign, 39 integer digits or "0." and 45 decimals and more.
using Digits = std::array<char, 128>;

std::string_view Shortest(float value, Digits& digits) {
  const auto result =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
  return {digits.data(), static_cast<std::size_t>(result.ptr - digits.data())};
}

/// Adds one to the whole number in `text`; grows it by a digit where all were nines.
void RoundUp(std::string& text) {
  for (std::size_t at = text.size(); at > 0; --at) {
    char& c = text[at - 1];
    if (c != '9') {
      ++c;
      return;
    }
    c = '0';
  }
  text.insert(text.begin(), '1');
}

/// `magnitude` [at least 0] in units of its last decimal, rounded as its shortest text rounds: its digits,
/// zeros in front included.
std::string UnitsOfText(float magnitude, std::size_t decimals) {
  Digits digits;
  const std::string_view exact = Shortest(magnitude, digits);
  const std::size_t point = std::min(exact.find('.'), exact.size());
  const std::string_view fraction = point < exact.size() ? exact.substr(point + 1) : std::string_view{};
  std::string units(exact.substr(0, point));
  units.append(fraction.substr(0, decimals));
  units.append(decimals - std::min(decimals, fraction.size()), '0');
  if (fraction.size() > decimals && fraction[decimals] >= '5') {
    RoundUp(units);
  }
  return units;
}

/// The same as a number, where it is small and so far from a half that single and text round alike. Most are.
std::optional<std::uint64_t> UnitsOfNumber(float magnitude, std::size_t decimals) {
  constexpr std::array<double, 4> kPowers{1.0, 10.0, 100.0, 1000.0};
  constexpr float kSmall = 1e6F;
  if (decimals >= kPowers.size() || magnitude >= kSmall) {
    return std::nullopt;
  }
  const double units = static_cast<double>(magnitude) * kPowers[decimals];
  // The shortest text is at most half a unit of the last place away from the single: 2^-24 of it.
  constexpr double kTextApart = 1e-7;
  const double whole = std::floor(units);
  const double overHalf = units - whole - 0.5;
  if (std::fabs(overHalf) <= units * kTextApart) {
    return std::nullopt;
  }
  return static_cast<std::uint64_t>(whole) + (overHalf > 0.0 ? 1U : 0U);
}

/// A number in units of its last decimal as its text, with at least `least` digits before the point.
std::string Patterned(std::string_view units, bool negative, std::size_t least, std::size_t decimals) {
  units.remove_prefix(std::min(units.find_first_not_of('0'), units.size()));
  const std::size_t integers = units.size() - std::min(decimals, units.size());
  std::string text(negative && !units.empty() ? "-" : "");
  text.append(least - std::min(least, integers), '0').append(units.substr(0, integers));
  if (decimals > 0) {
    units.remove_prefix(integers);
    text.append(1, '.').append(decimals - units.size(), '0').append(units);
  }
  return text;
}

}  // namespace

std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) {
    text.remove_prefix(1);
  }
  while (!text.empty() && IsBlank(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

std::string FormatNumber(float value, std::string_view pattern) {
  if (!std::isfinite(value)) {
    return {};
  }
  const std::size_t patternPoint = pattern.find('.');
  const std::size_t least = patternPoint == std::string_view::npos ? pattern.size() : patternPoint;
  const std::size_t decimals = pattern.size() - least - (patternPoint == std::string_view::npos ? 0 : 1);

  const auto number = UnitsOfNumber(std::fabs(value), decimals);
  if (!number) {
    return Patterned(UnitsOfText(std::fabs(value), decimals), value < 0.0F, least, decimals);
  }
  Digits digits;
  const auto* const end = std::to_chars(digits.data(), digits.data() + digits.size(), *number).ptr;
  return Patterned({digits.data(), static_cast<std::size_t>(end - digits.data())}, value < 0.0F, least,
                   decimals);
}

std::string ShortestText(float value) {
  if (!std::isfinite(value)) {
    return {};
  }
  Digits digits;
  return std::string(Shortest(value == 0.0F ? 0.0F : value, digits));
}

std::optional<float> StrictNumber(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  const Scanned scanned = ScanNumber(trimmed, Exponent::Read);
  return scanned.Text.empty() || scanned.End != trimmed.size() ? std::nullopt : ToFloat(scanned);
}

std::optional<double> StrictDouble(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  const Scanned scanned = ScanNumber(trimmed, Exponent::Read);
  return scanned.Text.empty() || scanned.End != trimmed.size() ? std::nullopt : Convert<double>(scanned);
}

bool HasFormOfNumber(std::string_view text) {
  const std::string_view trimmed = Trim(text);
  const Scanned scanned = ScanNumber(trimmed, Exponent::Read);
  return !scanned.Text.empty() && scanned.End == trimmed.size();
}

float LeadingNumber(std::string_view text, float otherwise) {
  const Scanned scanned = ScanNumber(Trim(text), Exponent::Ignored);
  return scanned.Text.empty() ? otherwise : ToFloat(scanned).value_or(otherwise);
}

}  // namespace veerwatch
