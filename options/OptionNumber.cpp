#include "options/OptionNumber.h"

#include <cmath>
#include <limits>
#include <variant>

#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

std::string_view FaultText(OptionFault fault) {
  switch (fault) {
    case OptionFault::TypeMismatch:
      return TrMark("Type mismatch");
    case OptionFault::Overflow:
      return TrMark("Overflow");
    case OptionFault::SmallCount:
      return TrMark("Must be 0 or above 0.5");
    case OptionFault::InvalidValue:
      break;
  }
  return TrMark("Invalid property value");
}

Converted<float> ToOptionSingle(std::string_view text) {
  if (const auto number = StrictNumber(text)) {
    return *number;
  }
  return HasFormOfNumber(text) ? OptionFault::Overflow : OptionFault::TypeMismatch;
}

Converted<std::int16_t> ToOptionInteger(float number) {
  const double nearest = std::nearbyint(static_cast<double>(number));
  using Limits = std::numeric_limits<std::int16_t>;
  if (!(nearest >= Limits::min() && nearest <= Limits::max())) {
    return OptionFault::Overflow;
  }
  return static_cast<std::int16_t>(nearest);
}

Converted<std::int16_t> ToOptionWhole(std::string_view text) {
  const Converted<float> number = ToOptionSingle(text);
  if (const auto* fault = std::get_if<OptionFault>(&number)) {
    return *fault;
  }
  return ToOptionInteger(std::get<float>(number));
}

}  // namespace veerwatch
