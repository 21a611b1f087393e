// The strict conversions of what stands in the entry boxes of the options dialog.
#pragma once

#include <cstdint>
#include <string_view>
#include <variant>

namespace veerwatch {

/// Why a text cannot be stored.
enum class OptionFault {
  TypeMismatch,  ///< no number
  Overflow,      ///< too large for what it is stored in
  InvalidValue,  ///< a number that the setting cannot be
  SmallCount,    ///< an averaging count above 0 with which an average runs away
};

/// "Type mismatch", "Overflow", "Invalid property value", "Must be 0 or above 0.5".
std::string_view FaultText(OptionFault fault);

/// A number, or why there is none.
template <class Number>
using Converted = std::variant<Number, OptionFault>;

/// The whole text as a single; blanks around it are left out.
Converted<float> ToOptionSingle(std::string_view text);

/// `number` as an integer of 16 bits, the nearest one, the even one of two.
Converted<std::int16_t> ToOptionInteger(float number);

/// The whole text as an integer of 16 bits, by way of a single: "1.0" is 1.
Converted<std::int16_t> ToOptionWhole(std::string_view text);

}  // namespace veerwatch
