#include "nmea/PortStatus.h"

#include "platform/SerialPort.h"

namespace veerwatch {

namespace {

std::string StatusText(const char* port, const PortStatus& status) {
  switch (status.Says) {
    case PortStatus::What::Clear:
      break;
    case PortStatus::What::NotOpen:
      return std::string(port) + " Port " + std::to_string(status.Number) + " Not Open";
    case PortStatus::What::NoInputData:
      return std::string(InputStateText(InputState::NoData));
    case PortStatus::What::Simulate:
      return std::string(InputStateText(InputState::Simulate));
    case PortStatus::What::SentenceError:
      return "Sentence Error";
    case PortStatus::What::ChecksumError:
      return "Checksum Error";
    case PortStatus::What::ReceiveError:
      return "Receive Error";
    case PortStatus::What::LineEvent:
      return CommEventText(status.Number);
  }
  return {};
}

}  // namespace

std::string InputStatusText(const PortStatus& status) { return StatusText("Input", status); }

std::string OutputStatusText(const PortStatus& status) { return StatusText("Output", status); }

}  // namespace veerwatch
