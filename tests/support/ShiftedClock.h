// The computer's clocks, set forward or stopped by the test.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/SystemClock.h"

namespace veerwatch {

class ShiftedClock final : public Clock {
 public:
  std::int64_t Shift = 0;  ///< what the steady clock is ahead [ms]

  void Stop() { m_stopped = Now(); }

  Moment Now() const override {
    if (m_stopped) {
      return *m_stopped;
    }
    Moment now = m_clock.Now();
    now.Steady += Shift;
    return now;
  }
  std::int32_t UtcOffset(std::int64_t wall) const override { return m_clock.UtcOffset(wall); }

 private:
  SystemClock m_clock;
  std::optional<Moment> m_stopped;
};

}  // namespace veerwatch
