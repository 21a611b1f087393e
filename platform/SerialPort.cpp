#include "platform/SerialPort.h"

namespace veerwatch {

std::string CommEventText(int commEvent) {
  switch (commEvent) {
    case CommEvent::kBreak:
      return "Break Signal Received";
    case CommEvent::kFrame:
      return "Framing Error";
    case CommEvent::kOverrun:
      return "Port Overrun";
    case CommEvent::kRxOver:
      return "Rx Overflow";
    case CommEvent::kRxParity:
      return "Parity Error";
    default:
      return "Event " + std::to_string(commEvent);
  }
}

}  // namespace veerwatch
