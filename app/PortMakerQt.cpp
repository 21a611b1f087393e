#include "app/PortMakerQt.h"

#include "log/LogPortQt.h"
#include "nmea/Sentence.h"
#include "platform/SerialPortQt.h"
#include "platform/TcpClientQt.h"
#include "platform/TcpServerQt.h"
#include "platform/UdpPortQt.h"

namespace veerwatch {

namespace {

/// Noise has none.
bool HasGoodChecksum(std::string_view line) {
  // Lines of AIS begin with "!" instead.
  std::string sentence(line);
  if (sentence.starts_with('!')) {
    sentence.front() = '$';
  }
  return CheckFrame(sentence, {ChecksumRule::Require, true}) == Frame::Good;
}

}  // namespace

NamedPort::Maker PortMaker(const Clock& clock) {
  return [&clock](const Endpoint& endpoint) -> std::unique_ptr<SerialPort> {
    switch (endpoint.What) {
      case Endpoint::Kind::TcpClient:
        return std::make_unique<TcpClientQt>(endpoint, clock);
      case Endpoint::Kind::TcpServer:
        return std::make_unique<TcpServerQt>(endpoint, clock);
      case Endpoint::Kind::UdpInput:
      case Endpoint::Kind::UdpOutput:
        return std::make_unique<UdpPortQt>(endpoint, clock);
      case Endpoint::Kind::File:
        return std::make_unique<LogPortQt>(endpoint, clock);
      case Endpoint::Kind::Device:
        break;
    }
    return std::make_unique<SerialPortQt>(endpoint, clock, HasGoodChecksum);
  };
}

}  // namespace veerwatch
