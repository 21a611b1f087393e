#include "control/PilotChecks.h"

namespace veerwatch {

void OutputCheck::Built(std::size_t bytes, std::int64_t moment) {
  m_bytes += bytes;
  if (!m_waits) {
    m_waits = moment;
  }
}

void OutputCheck::Look(bool open, std::uint64_t left, std::optional<int> baudRate, std::int64_t moment) {
  constexpr std::int64_t kPatience = 4000;      // [ms]
  constexpr std::int64_t kWindow = 10000;       // [ms]
  constexpr std::int64_t kBits = 10;            // of a character, 8N1
  constexpr std::int64_t kMilliseconds = 1000;  // of a second
  if (left != m_left) {
    m_left = left;
    m_waits.reset();
  }
  m_lost = !open || (m_waits && moment - *m_waits > kPatience);
  if (!m_window) {
    m_window = moment;
    m_bytes = 0;
  } else if (const std::int64_t passed = moment - *m_window; passed >= kWindow) {
    m_full = baudRate && static_cast<std::int64_t>(m_bytes) * kBits * kMilliseconds > *baudRate * passed;
    m_window = moment;
    m_bytes = 0;
  }
}

}  // namespace veerwatch
