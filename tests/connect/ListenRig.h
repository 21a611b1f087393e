// Ports in memory for whoever listens to candidates, and lines for them.
#pragma once

#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "connect/Listener.h"
#include "nmea/Checksum.h"
#include "platform/NamedPort.h"
#include "tests/support/HandClock.h"
#include "tests/support/ScriptedPort.h"

namespace veerwatch {

/// A sentence with its checksum and line end; `body` as "IIHDG,100,,,,".
inline std::string Sentence(const std::string& body) {
  const auto sum = ChecksumText(Checksum(body));
  return "$" + body + "*" + std::string(sum.begin(), sum.end()) + "\r\n";
}

/// Makes ports that the test holds in its hands, by the text of their endpoints.
class ListenRig {
 public:
  HandClock Time;
  std::map<std::string, ScriptedPort*> Ports;                     ///< those that live
  std::function<void(const std::string&, ScriptedPort&)> Script;  ///< before a port is opened

  NamedPort::Maker Maker() {
    return [this](const Endpoint& endpoint) {
      auto port = std::make_unique<ScriptedPort>();
      if (Script) {
        Script(endpoint.Text, *port);
      }
      Ports[endpoint.Text] = port.get();
      return port;
    };
  }

  /// A second passes in which `port` brings each of the bodies, spread over it.
  template <class Tick>
  void Second(Tick&& tick, std::initializer_list<std::pair<ScriptedPort*, std::string>> brings) {
    constexpr int kSecond = 1000;
    const int part = kSecond / static_cast<int>(brings.size() + 1);
    for (const auto& [port, body] : brings) {
      port->Receive(Sentence(body));
      Time.Pass(part);
    }
    Time.Pass(kSecond - part * static_cast<int>(brings.size()));
    tick();
  }
};

}  // namespace veerwatch
