#include "nmea/PortStatus.h"

#include "platform/Language.h"
#include "platform/SerialPort.h"

namespace veerwatch {

namespace {

/// `notOpen`: what is said of a port that cannot be opened, with its number.
std::string StatusText(const char* notOpen, const PortStatus& status) {
  switch (status.Says) {
    case PortStatus::What::Clear:
      break;
    case PortStatus::What::NotOpen:
      return Filled(Tr(notOpen), {std::to_string(status.Number)});
    case PortStatus::What::NoInputData:
      return Tr(InputStateText(InputState::NoData));
    case PortStatus::What::Simulate:
      return Tr(InputStateText(InputState::Simulate));
    case PortStatus::What::SentenceError:
      return Tr("Sentence Error");
    case PortStatus::What::ChecksumError:
      return Tr("Checksum Error");
    case PortStatus::What::ReceiveError:
      return Tr("Receive Error");
    case PortStatus::What::LineEvent:
      return CommEventText(status.Number);
  }
  return {};
}

}  // namespace

std::string InputStatusText(const PortStatus& status) {
  return StatusText(TrMark("Input Port %1 Not Open"), status);
}

std::string OutputStatusText(const PortStatus& status) {
  return StatusText(TrMark("Output Port %1 Not Open"), status);
}

}  // namespace veerwatch
