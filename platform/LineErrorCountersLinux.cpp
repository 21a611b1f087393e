#include "platform/LineErrorCountersLinux.h"

#ifdef __linux__
#include <linux/serial.h>
#include <sys/ioctl.h>
#endif

namespace veerwatch {

std::optional<LineErrorCounts> LineErrorCountersLinux::Read() {
#ifdef __linux__
  serial_icounter_struct counts{};
  if (::ioctl(m_descriptor, TIOCGICOUNT, &counts) == 0) {
    return LineErrorCounts{.Break = static_cast<std::uint32_t>(counts.brk),
                           .Frame = static_cast<std::uint32_t>(counts.frame),
                           .Overrun = static_cast<std::uint32_t>(counts.overrun),
                           .Parity = static_cast<std::uint32_t>(counts.parity),
                           .BufferOverrun = static_cast<std::uint32_t>(counts.buf_overrun)};
  }
#endif
  return std::nullopt;
}

}  // namespace veerwatch
