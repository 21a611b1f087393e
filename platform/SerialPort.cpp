#include "platform/SerialPort.h"

namespace veerwatch {

SerialPort::Connection& SerialPort::Connection::operator=(Connection&& other) noexcept {
  const Connection ended(std::move(*this));
  m_events = std::move(other.m_events);
  return *this;
}

SerialPort::Connection::~Connection() {
  if (m_events) {
    *m_events = nullptr;
  }
}

SerialPort::Connection SerialPort::Connect(Events& events) {
  m_events = std::make_shared<Events*>(&events);
  return Connection(m_events);
}

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
