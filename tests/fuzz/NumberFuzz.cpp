// Any text as a number, and any number as a text.
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "instruments/CompassPoint.h"
#include "instruments/MathLib.h"
#include "nmea/FieldNumber.h"
#include "nmea/Fields.h"
#include "options/SimulateTimeText.h"
#include "platform/NumberText.h"
#include "polar/CourseCaptions.h"
#include "tests/fuzz/Demand.h"

namespace {

using namespace veerwatch;

/// A field is taken when its number is within the bounds of its quantity, and then as it is.
void DemandFields(std::string_view text, std::optional<float> number) {
  struct Quantity {
    std::optional<float> (*Read)(std::string_view);
    float Least;
    float Most;
  };
  constexpr std::array<Quantity, 4> kQuantities{{{AngleField, -360.0F, 360.0F},
                                                 {VariationField, -180.0F, 180.0F},
                                                 {SpeedField, 0.0F, 1000.0F},
                                                 {RangeField, 0.0F, 100000.0F}}};
  for (const Quantity& quantity : kQuantities) {
    const bool fits = number && *number >= quantity.Least && *number <= quantity.Most;
    Demand(quantity.Read(text) == (fits ? number : std::nullopt), "a field within its bounds");
  }
}

void DemandText(std::string_view text) {
  const float leading = LeadingNumber(text);
  Demand(std::isfinite(leading), "a finite leading number");
  const auto whole = StrictNumber(text);
  const auto exact = StrictDouble(text);
  Demand(!whole || std::isfinite(*whole), "a finite number");
  Demand(!exact || std::isfinite(*exact), "a finite double");
  Demand(!whole || exact, "a single is a double");
  if (whole) {
    const std::string shortest = ShortestText(*whole);
    Demand(StrictNumber(shortest) == *whole, "the shortest text reads back");
  }
  DemandFields(text, whole);
  const auto option = ToOptionSingle(text);
  if (const float* single = std::get_if<float>(&option)) {
    Demand(whole == *single, "a box takes what is a number");
    const auto integer = ToOptionInteger(*single);
    Demand(std::holds_alternative<OptionFault>(integer) == (std::fabs(*single) > 32768.0F) ||
               std::fabs(std::fabs(*single) - 32768.0F) <= 1.0F,
           "a port is an integer of 16 bits");
  } else {
    Demand(std::get<OptionFault>(option) != OptionFault::InvalidValue, "no number, or one too large");
  }
  const auto time = SimulateTimeParse(text);
  if (const float* hours = std::get_if<float>(&time)) {
    Demand(std::isfinite(*hours), "a finite time");
    DemandNumbers(SimulateTimeFormat(*hours));
  }
  const std::string_view trimmed = Trim(text);
  Demand(trimmed.empty() || (trimmed.front() != ' ' && trimmed.back() != ' '), "no blanks at the ends");
}

void DemandNumber(float value) {
  const std::string shortest = ShortestText(value);
  if (!std::isfinite(value)) {
    Demand(shortest.empty() && FormatNumber(value, "0.0").empty(), "no text for what is no number");
    return;
  }
  Demand(StrictNumber(shortest) == value, "the shortest text reads back");
  Demand(shortest.find('e') == std::string::npos, "no exponent");
  for (const std::string_view pattern : {"0", "0.0", "0.00", "000.0", "00", ".0"}) {
    const std::string text = FormatNumber(value, pattern);
    const auto back = StrictDouble(text);
    Demand(back.has_value(), "a formatted number is one");
    const double off = std::fabs(*back - static_cast<double>(value));
    const std::size_t point = pattern.find('.');
    const std::size_t decimals = point == std::string_view::npos ? 0 : pattern.size() - point - 1;
    // What is rounded is the shortest text of the single, which is up to half a step of a single away from
    // it.
    constexpr double kHalfStep = 6e-8;
    Demand(off <= 0.5 * std::pow(10.0, -static_cast<double>(decimals)) +
                      std::fabs(static_cast<double>(value)) * kHalfStep,
           "not further off than the rounding");
    Demand(text != "-0" && text != "-0.0" && text != "-0.00", "no negative zero");
  }
  const float bearing = FoldBearing(static_cast<double>(value));
  Demand(bearing >= 0.0F && bearing < 360.0F, "a folded bearing");
  const float relative = FoldRelative(static_cast<double>(value));
  Demand(relative > -180.0F && relative <= 180.0F, "a folded angle");
  Demand(!CompassPointName(bearing).empty() && CompassPointName(bearing) != "??", "a compass point");
  DemandNumbers(FormatHours(static_cast<double>(value)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  DemandText({reinterpret_cast<const char*>(data), size});
  float value = 0.0F;
  for (std::size_t at = 0; at + sizeof value <= size; at += sizeof value) {
    std::memcpy(&value, data + at, sizeof value);
    DemandNumber(value);
  }
  return 0;
}
