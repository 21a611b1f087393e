#include "options/SimulateSpinner.h"

#include "instruments/MathLib.h"
#include "options/SimulateTimeText.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kCoarseHours = 1.0 / 6.0;
constexpr double kFineHours = 1.0 / 60.0;
constexpr double kCoarseDegrees = 10.0;
constexpr double kFineDegrees = 1.0;

float Stepped(const Converted<float>& present, double step, int scroll) {
  const float* number = std::get_if<float>(&present);
  const float value = number != nullptr ? *number : 0.0F;
  if (scroll == 0) {
    return value;
  }
  return ToSingle(static_cast<double>(value) + (scroll < 0 ? step : -step));
}

}  // namespace

std::string SimulateTimeStep(std::string_view text, SpinnerStep step, int scroll) {
  const double hours = step == SpinnerStep::Coarse ? kCoarseHours : kFineHours;
  return SimulateTimeFormat(Stepped(SimulateTimeParse(text), hours, scroll));
}

std::string SimulateAngleStep(std::string_view text, SpinnerStep step, int scroll) {
  const double degrees = step == SpinnerStep::Coarse ? kCoarseDegrees : kFineDegrees;
  return FormatNumber(Stepped(ToOptionSingle(text), degrees, scroll), "0");
}

}  // namespace veerwatch
