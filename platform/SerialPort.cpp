#include "platform/SerialPort.h"

#include "platform/Language.h"

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
      return Tr("Break Signal Received");
    case CommEvent::kFrame:
      return Tr("Framing Error");
    case CommEvent::kOverrun:
      return Tr("Port Overrun");
    case CommEvent::kRxOver:
      return Tr("Rx Overflow");
    case CommEvent::kRxParity:
      return Tr("Parity Error");
    default:
      return Filled(Tr("Event %1"), {std::to_string(commEvent)});
  }
}

}  // namespace veerwatch
