// Clocks that the test sets.
#pragma once

#include <cstdint>

#include "platform/Clock.h"

namespace veerwatch {

class HandClock final : public Clock {
 public:
  /// 2026-03-31 09:00:00 UTC.
  static constexpr std::int64_t kMorning = 1774947600000;

  Moment Time{5000000, kMorning};
  std::int32_t Offset = 0;  ///< [s]

  /// Both clocks go on by `milliseconds`.
  void Pass(std::int64_t milliseconds) {
    Time.Steady += milliseconds;
    Time.Wall += milliseconds;
  }

  Moment Now() const override { return Time; }
  std::int32_t UtcOffset(std::int64_t /*wall*/) const override { return Offset; }
};

}  // namespace veerwatch
