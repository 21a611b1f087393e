// The error counters that Linux keeps for a serial device. Not every driver has them (pseudo terminals do
// not), and elsewhere than on Linux there are none.
#pragma once

#include "platform/LineErrors.h"

namespace veerwatch {

class LineErrorCountersLinux final : public LineErrorCounters {
 public:
  /// `descriptor` is that of the open device; it stays the caller's.
  explicit LineErrorCountersLinux(int descriptor) : m_descriptor(descriptor) {}

  std::optional<LineErrorCounts> Read() override;

 private:
  int m_descriptor;
};

}  // namespace veerwatch
