#include "history/ChartScale.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cmath>

#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kTurn = 360.0;
constexpr double kHalfTurn = 180.0;
/// The shortest range that an automatic scale shows: [kn], [deg].
constexpr double kLeastRange = 2.0;
constexpr double kLeastArc = 20.0;
/// An arc above this is shown as the full circle [deg].
constexpr double kLargestArc = 300.0;
/// Values beyond this do not stretch a scale.
constexpr double kLargestValue = 1e5;
const char* const kDegree = "\xC2\xB0";

/// The least 1, 2 or 5 times a power of ten that is not below `least`.
double LinearStep(double least) {
  const double power = std::pow(10.0, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least * 0.999999) {
      return factor * power;
    }
  }
  return 10.0 * power;
}

double AngleStep(double least) {
  constexpr std::array<double, 10> kSteps{1.0, 2.0, 5.0, 10.0, 20.0, 30.0, 45.0, 60.0, 90.0, 180.0};
  const auto* const step = std::lower_bound(kSteps.begin(), kSteps.end(), least * 0.999999);
  return step == kSteps.end() ? kSteps.back() : *step;
}

double StepFor(ScaleKind kind, double range, int ticks) {
  const double least = range / std::max(ticks, 2);
  return kind == ScaleKind::Linear ? LinearStep(least) : AngleStep(least);
}

ValueScale FullCircle(ScaleKind kind, int ticks) {
  const double low = kind == ScaleKind::Relative ? -kHalfTurn : 0.0;
  return {kind, low, low + kTurn, std::max(StepFor(kind, kTurn, ticks), 30.0)};
}

/// Both edges outwards to whole steps; the step may have to grow with them.
ValueScale Rounded(ScaleKind kind, double low, double high, int ticks) {
  ValueScale scale{kind, low, high, StepFor(kind, high - low, ticks)};
  scale.Low = std::floor(low / scale.Step) * scale.Step;
  scale.High = std::ceil(high / scale.Step) * scale.Step;
  return scale;
}

ValueScale LinearScale(const std::vector<ValueInterval>& shown, int ticks) {
  if (shown.empty()) {
    return Rounded(ScaleKind::Linear, 0.0, 10.0, ticks);
  }
  double low = kLargestValue;
  double high = -kLargestValue;
  for (const ValueInterval& interval : shown) {
    low = std::min(low, std::clamp(interval.Low, -kLargestValue, kLargestValue));
    high = std::max(high, std::clamp(interval.High, -kLargestValue, kLargestValue));
  }
  // Where the values are far from 0, what they do is worth more than their distance to it.
  constexpr double kFar = 0.6;
  if (low >= 0.0 && low < kFar * high) {
    low = 0.0;
  }
  if (high - low < kLeastRange) {
    const double middle = (low + high) / 2.0;
    const bool positive = low >= 0.0;
    low = middle - kLeastRange / 2.0;
    high = middle + kLeastRange / 2.0;
    if (positive && low < 0.0) {
      high -= low;
      low = 0.0;
    }
  }
  return Rounded(ScaleKind::Linear, low, high, ticks);
}

ValueScale CircularScale(ScaleKind kind, const std::vector<ValueInterval>& shown, int ticks) {
  // The degrees of the circle that some value touches; the longest arc of others is left out.
  constexpr std::size_t kDegrees = 360;
  std::bitset<kDegrees> touched;
  for (const ValueInterval& interval : shown) {
    if (interval.High - interval.Low >= kTurn) {
      touched.set();
      break;
    }
    const double low = OnTurnAbove(interval.Low, 0.0);
    const auto first = static_cast<std::size_t>(std::floor(low));
    const auto last = static_cast<std::size_t>(std::floor(low + (interval.High - interval.Low)));
    for (std::size_t degree = first; degree <= last; ++degree) {
      touched.set(degree % kDegrees);
    }
  }
  std::size_t free = 0;
  std::size_t longest = 0;
  std::size_t arcBegin = 0;  // the first degree after the longest free arc
  for (std::size_t degree = 0; degree < 2 * kDegrees; ++degree) {
    if (!touched.test(degree % kDegrees)) {
      ++free;
      continue;
    }
    if (free > longest) {
      longest = free;
      arcBegin = degree % kDegrees;
    }
    free = 0;
  }
  const double arc = kTurn - static_cast<double>(longest);
  if (shown.empty() || arc > kLargestArc) {
    return FullCircle(kind, ticks);
  }
  // The turn on which the middle has its usual name.
  const double begin = static_cast<double>(arcBegin);
  const double middle = begin + arc / 2.0;
  const double shift = OnTurnAbove(middle, kind == ScaleKind::Relative ? -kHalfTurn : 0.0) - middle;
  const double low = begin + shift;
  ValueScale scale{kind, low, low + arc, StepFor(kind, std::max(arc, kLeastArc), ticks)};
  scale.Low = std::floor(scale.Low / scale.Step) * scale.Step;
  scale.High = std::ceil(scale.High / scale.Step) * scale.Step;
  while (scale.High - scale.Low < kLeastArc) {
    const bool below = low - scale.Low <= scale.High - (low + arc);
    (below ? scale.Low : scale.High) += below ? -scale.Step : scale.Step;
  }
  return scale.High - scale.Low > kTurn ? FullCircle(kind, ticks) : scale;
}

std::string TickText(const ValueScale& scale, double value) {
  if (scale.Circular()) {
    const bool relative = scale.Kind == ScaleKind::Relative;
    double shown = OnTurnAbove(value, relative ? -kHalfTurn : 0.0);
    if (relative && shown == -kHalfTurn && value != scale.Low) {
      shown = kHalfTurn;
    }
    // The upper end of a full circle has the name that leads up to it.
    if (!relative && shown == 0.0 && value == kTurn && scale.Low == 0.0) {
      shown = kTurn;
    }
    return FormatNumber(static_cast<float>(shown), "0") + kDegree;
  }
  const char* pattern = "0";
  if (scale.Step < 0.1) {
    pattern = "0.00";
  } else if (scale.Step < 1.0) {
    pattern = "0.0";
  }
  return FormatNumber(static_cast<float>(value), pattern);
}

}  // namespace

double OnTurnAbove(double value, double low) {
  const double above = std::fmod(value - low, kTurn);
  // The sum of a tiny negative rest and a turn may round up to the turn.
  const double folded = above < 0.0 ? above + kTurn : above;
  return low + (folded >= kTurn ? 0.0 : folded);
}

ValueScale AutomaticScale(ScaleKind kind, const std::vector<ValueInterval>& shown, int ticks) {
  return kind == ScaleKind::Linear ? LinearScale(shown, ticks) : CircularScale(kind, shown, ticks);
}

ValueScale FixedScale(ScaleKind kind, double low, double high, int ticks) {
  if (kind != ScaleKind::Linear) {
    high = std::min(high, low + kTurn);
  }
  return {kind, low, high, StepFor(kind, high - low, ticks)};
}

std::vector<ValueTick> Ticks(const ValueScale& scale) {
  std::vector<ValueTick> ticks;
  constexpr double kSlack = 1e-6;
  const double first = std::ceil(scale.Low / scale.Step - kSlack);
  const double last = std::floor(scale.High / scale.Step + kSlack);
  const auto count = static_cast<int>(last - first) + 1;
  for (int i = 0; i < count; ++i) {
    const double value = (first + i) * scale.Step;
    ticks.push_back({value, TickText(scale, value)});
  }
  return ticks;
}

std::int64_t TimeStep(double least) {
  constexpr std::array<std::int64_t, 15> kSteps{10,   30,   60,    120,   300,   600,   900,  1800,
                                                3600, 7200, 10800, 14400, 21600, 43200, 86400};
  const auto* const step = std::find_if(kSteps.begin(), kSteps.end(), [least](std::int64_t seconds) {
    return static_cast<double>(seconds) >= least;
  });
  return step == kSteps.end() ? kSteps.back() : *step;
}

}  // namespace veerwatch
