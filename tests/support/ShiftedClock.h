// The computer's clocks, set forward by the test.
#pragma once

#include <cstdint>

#include "platform/SystemClock.h"

namespace veerwatch {

class ShiftedClock final : public Clock {
 public:
  std::int64_t Shift = 0;  ///< what the steady clock is ahead [ms]

  Moment Now() const override {
    Moment now = m_clock.Now();
    now.Steady += Shift;
    return now;
  }
  std::int32_t UtcOffset(std::int64_t wall) const override { return m_clock.UtcOffset(wall); }

 private:
  SystemClock m_clock;
};

}  // namespace veerwatch
