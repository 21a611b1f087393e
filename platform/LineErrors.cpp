#include "platform/LineErrors.h"

#include "platform/SerialPort.h"

namespace veerwatch {

namespace {

struct Kind {
  std::uint32_t LineErrorCounts::*Count;
  int CommEvent;
};

constexpr Kind kKinds[] = {
    {&LineErrorCounts::Break, CommEvent::kBreak},          {&LineErrorCounts::Frame, CommEvent::kFrame},
    {&LineErrorCounts::Overrun, CommEvent::kOverrun},      {&LineErrorCounts::Parity, CommEvent::kRxParity},
    {&LineErrorCounts::BufferOverrun, CommEvent::kRxOver},
};

}  // namespace

std::vector<int> LineErrorWatch::Poll(LineErrorCounters& counters) {
  const std::optional<LineErrorCounts> now = counters.Read();
  if (!now) {
    return {};
  }
  std::vector<int> grown;
  if (m_last) {
    for (const Kind& kind : kKinds) {
      const std::uint32_t before = (*m_last).*kind.Count;
      const std::uint32_t present = (*now).*kind.Count;
      if (present < before) {
        grown.clear();
        break;
      }
      if (present > before) {
        grown.push_back(kind.CommEvent);
      }
    }
  }
  m_last = now;
  return grown;
}

}  // namespace veerwatch
