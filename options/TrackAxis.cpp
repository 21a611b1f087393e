#include "options/TrackAxis.h"

#include <algorithm>
#include <cmath>

#include "instruments/MathLib.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kMostNumbers = 1000.0;
/// How far beyond the end of an axis a number may lie by rounding [steps].
constexpr double kRounding = 1e-6;

double StepFrom(double leastStep) {
  const double power = std::pow(10.0, std::floor(std::log10(leastStep)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= leastStep) {
      return factor * power;
    }
  }
  return 10.0 * power;
}

}  // namespace

std::vector<TrackNumber> TrackNumbers(double from, double to, double leastStep) {
  const auto [low, high] = std::minmax(from, to);
  std::vector<TrackNumber> numbers;
  if (!(leastStep > 0.0) || !((high - low) / leastStep <= kMostNumbers)) {
    return numbers;
  }
  const double step = StepFrom(leastStep);
  const double first = std::ceil(low / step - kRounding);
  const int steps = static_cast<int>(std::floor(high / step + kRounding) - first);
  for (int i = 0; i <= steps; ++i) {
    const double value = (first + i) * step;
    // Adding 0 turns -0 into 0.
    numbers.push_back({value, ShortestText(ToSingle(value) + 0.0F)});
  }
  return numbers;
}

}  // namespace veerwatch
