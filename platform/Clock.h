// The time as the program sees it: a steady clock for spacing, a wall clock for labels. Core code reads none
// of them; it is handed a Moment. SystemClock is the real one; tests set theirs by hand.
#pragma once

#include <cstdint>

namespace veerwatch {

/// One moment on both clocks.
struct Moment {
  std::int64_t Steady = 0;  ///< [ms] since any start; goes on while the computer is suspended, where it can
  std::int64_t Wall = 0;    ///< [ms] since 1970-01-01 00:00 UTC; whoever sets the clock makes it jump
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual Moment Now() const = 0;
  /// What local time is ahead of UTC at a wall time [ms since 1970 UTC]: [s, positive to the east].
  virtual std::int32_t UtcOffset(std::int64_t wall) const = 0;
};

}  // namespace veerwatch
