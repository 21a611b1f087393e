// Line errors from a driver that only counts them: breaks, framing errors, lost characters, wrong parity,
// full buffers. A port reads its driver's counters now and then and turns what grew into the events of
// SerialPort.h.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace veerwatch {

/// How often each error has occurred since the driver was loaded.
struct LineErrorCounts {
  std::uint32_t Break = 0;
  std::uint32_t Frame = 0;
  std::uint32_t Overrun = 0;
  std::uint32_t Parity = 0;
  std::uint32_t BufferOverrun = 0;
};

/// Where the counts come from: LineErrorCountersLinux, or a script in a test.
class LineErrorCounters {
 public:
  virtual ~LineErrorCounters() = default;
  /// The present counts; nothing when the driver keeps none or the device is gone.
  virtual std::optional<LineErrorCounts> Read() = 0;
};

class LineErrorWatch {
 public:
  /// Forgets the last reading; for a port that is opened again. What was counted before then is nobody's
  /// error.
  void Restart() { m_last.reset(); }

  /// Reads the counters and returns the event code of each kind that grew since the last reading, once each,
  /// in the order kBreak, kFrame, kOverrun, kRxParity, kRxOver. The first reading only sets the start, and so
  /// does one in which any counter has gone back, as it does when the device was reset. No reading changes
  /// nothing.
  std::vector<int> Poll(LineErrorCounters& counters);

 private:
  std::optional<LineErrorCounts> m_last;
};

}  // namespace veerwatch
