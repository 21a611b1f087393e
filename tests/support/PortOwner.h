// Whoever uses a port, for the tests of ports: reads what is offered and keeps a record of all events.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/SerialPort.h"

namespace veerwatch {

class PortOwner : public SerialPort::Events {
 public:
  explicit PortOwner(SerialPort& port) : Port(port), m_connection(port.Connect(*this)) {}

  void OnComm(int commEvent) override {
    Codes.push_back(commEvent);
    if (commEvent != CommEvent::kReceive) {
      return;
    }
    if (Handle) {
      Handle();
    } else {
      Read();
    }
  }
  void OnPortLost() override {
    ++Lost;
    OpenWhenLost = Port.PortOpen();
    if (HandleLoss) {
      HandleLoss();
    }
  }
  void OnPortStandstill() override { ++Standstills; }
  void Read() {
    Port.Input(m_input);
    Text += m_input;
  }

  SerialPort& Port;
  std::function<void()> Handle;      ///< in place of Read at a receive event
  std::function<void()> HandleLoss;  ///< when the port is lost
  std::vector<int> Codes;
  std::string Text;
  int Lost = 0;
  int Standstills = 0;
  bool OpenWhenLost = false;

 private:
  std::string m_input;
  SerialPort::Connection m_connection;
};

}  // namespace veerwatch
