#include "options/SimulateTimeText.h"

#include <cmath>

#include "instruments/MathLib.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kMinutesPerHour = 60.0;

}  // namespace

Converted<float> SimulateTimeParse(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos || colon == 0) {
    return 0.0F;
  }
  const Converted<float> hours = ToOptionSingle(text.substr(0, colon));
  const Converted<float> minutes = ToOptionSingle(text.substr(colon + 1));
  for (const auto& part : {hours, minutes}) {
    if (std::holds_alternative<OptionFault>(part)) {
      return part;
    }
  }
  return ToSingle(static_cast<double>(std::get<float>(hours)) +
                  static_cast<double>(std::get<float>(minutes)) / kMinutesPerHour);
}

std::string SimulateTimeFormat(float hours) {
  const float whole = std::trunc(hours);
  const double minutes = (static_cast<double>(hours) - static_cast<double>(whole)) * kMinutesPerHour;
  std::string text = FormatNumber(whole, "0");
  text.append(1, ':').append(FormatNumber(static_cast<float>(std::nearbyint(minutes)), "00"));
  return text;
}

}  // namespace veerwatch
