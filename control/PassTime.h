// The time between passes: what comes late or all at once counts for little.
#pragma once

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/Clock.h"

namespace veerwatch {

class PassTime {
 public:
  /// From `now` back to the pass before [s, [0, 2]]; 0 at the first one. A clock that runs back counts as
  /// none.
  double Next(const Moment& now) {
    constexpr double kMillisecondsPerSecond = 1000.0;
    constexpr double kLongest = 2.0;  // [s]
    const Moment before = std::exchange(m_before, now).value_or(now);
    return std::clamp(static_cast<double>(now.Steady - before.Steady) / kMillisecondsPerSecond, 0.0,
                      kLongest);
  }

  /// The next pass is the first one again.
  void Restart() { m_before.reset(); }

 private:
  std::optional<Moment> m_before;
};

}  // namespace veerwatch
