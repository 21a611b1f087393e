// The computer's own clocks.
#pragma once

#include "platform/Clock.h"

namespace veerwatch {

class SystemClock final : public Clock {
 public:
  Moment Now() const override;
  /// By the computer's present time zone; 0 for a time that it knows nothing of.
  std::int32_t UtcOffset(std::int64_t wall) const override;
};

}  // namespace veerwatch
