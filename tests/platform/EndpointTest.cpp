#include "platform/Endpoint.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veerwatch {
namespace {

using Kind = Endpoint::Kind;

bool NoneExists(const std::string& /*path*/) { return false; }

std::vector<Endpoint> All(std::string_view text) {
  const auto parsed = ParseEndpoints(text, NoneExists);
  if (const auto* wrong = std::get_if<std::string>(&parsed)) {
    ADD_FAILURE() << *wrong;
    return {Endpoint{}};
  }
  return std::get<std::vector<Endpoint>>(parsed);
}

Endpoint One(std::string_view text) {
  const std::vector<Endpoint> all = All(text);
  EXPECT_EQ(all.size(), 1U) << text;
  EXPECT_EQ(all.front().Text, text);
  return all.front();
}

std::string WrongIn(std::string_view text) {
  const auto parsed = ParseEndpoints(text, NoneExists);
  const auto* wrong = std::get_if<std::string>(&parsed);
  return wrong == nullptr ? "" : *wrong;
}

TEST(Endpoint, APathIsADeviceAt4800Baud) {
  const Endpoint device = One("/dev/serial/by-id/usb-x");
  EXPECT_EQ(device.What, Kind::Device);
  EXPECT_EQ(device.Path, "/dev/serial/by-id/usb-x");
  EXPECT_EQ(device.Baud, 4800);
  EXPECT_EQ(One("COM3").Path, "COM3");
}

TEST(Endpoint, ADeviceHasABaudRateOrFindsItOut) {
  for (const int baud : kBaudRates) {
    const Endpoint device = One("/dev/ttyUSB0?baud=" + std::to_string(baud));
    EXPECT_EQ(device.Baud, baud);
    EXPECT_EQ(device.Path, "/dev/ttyUSB0");
  }
  EXPECT_EQ(One("/dev/ttyUSB0?baud=auto").Baud, 0);
}

TEST(Endpoint, AQuestionMarkOrACommaMayBelongToTheName) {
  EXPECT_EQ(One("/dev/odd?x").Path, "/dev/odd?x");
  EXPECT_EQ(One("/dev/odd,x").Path, "/dev/odd,x");
  const auto exists = [](const std::string& path) { return path == "/dev/a, b" || path == "/dev/c?baud=1"; };
  for (const std::string_view path : {"/dev/a, b", "/dev/c?baud=1"}) {
    const auto parsed = ParseEndpoints(path, exists);
    ASSERT_TRUE(std::holds_alternative<std::vector<Endpoint>>(parsed)) << path;
    EXPECT_EQ(std::get<std::vector<Endpoint>>(parsed).front().Path, path);
  }
}

TEST(Endpoint, AClientHasAHostAndAPort) {
  const Endpoint client = One("tcp://boat.local:10110");
  EXPECT_EQ(client.What, Kind::TcpClient);
  EXPECT_EQ(client.Host, "boat.local");
  EXPECT_EQ(client.Port, 10110);
  EXPECT_EQ(client.Silence, 0.0);
  EXPECT_EQ(One("tcp://192.168.1.2:2000?silence=20").Silence, 20.0);
  const Endpoint six = One("tcp://[::1]:10110");
  EXPECT_EQ(six.Host, "::1");
  EXPECT_EQ(six.Port, 10110);
}

TEST(Endpoint, AServerListensOnTheLoopbackUnlessAnAddressIsGiven) {
  EXPECT_EQ(One("tcp-listen://:10110").What, Kind::TcpServer);
  EXPECT_EQ(One("tcp-listen://:10110").Host, "");
  EXPECT_EQ(One("tcp-listen://0.0.0.0:10110").Host, "0.0.0.0");
}

TEST(Endpoint, UdpListensOrSendsByItsHost) {
  for (const std::string_view text :
       {"udp://:10110", "udp://0.0.0.0:10110", "udp://[::]:10110", "udp://239.2.1.1:10110",
        "udp://224.0.0.1:10110", "udp://[ff02::1]:10110", "udp://192.168.1.5:2000?listen"}) {
    EXPECT_EQ(One(text).What, Kind::UdpInput) << text;
  }
  for (const std::string_view text : {"udp://192.168.1.5:2000", "udp://223.9.9.9:2000",
                                      "udp://240.0.0.1:2000", "udp://gateway:2000", "udp://[fe80::1]:2000"}) {
    EXPECT_EQ(One(text).What, Kind::UdpOutput) << text;
  }
  EXPECT_TRUE(One("udp://192.168.1.255:2000?broadcast").Broadcast);
  EXPECT_FALSE(One("udp://192.168.1.5:2000").Broadcast);
}

TEST(Endpoint, AFileHasItsOptions) {
  const Endpoint file = One("file:///home/me/my log.nmea");
  EXPECT_EQ(file.What, Kind::File);
  EXPECT_EQ(file.Path, "/home/me/my log.nmea");
  EXPECT_EQ(file.Speed, 1.0);
  EXPECT_EQ(One("file:///a.nmea?speed=10").Speed, 10.0);
  const Endpoint loop = One("file:///a.nmea?interval=0.1&loop");
  EXPECT_EQ(loop.Interval, 0.1);
  EXPECT_TRUE(loop.Loop);
}

TEST(Endpoint, SeveralAreJoinedWithCommas) {
  const std::vector<Endpoint> all = All("/dev/ttyUSB0?baud=38400, tcp://boat:10110,  udp://:2000");
  ASSERT_EQ(all.size(), 3U);
  EXPECT_EQ(all[0].Baud, 38400);
  EXPECT_EQ(all[1].Text, "tcp://boat:10110");
  EXPECT_EQ(all[2].What, Kind::UdpInput);
}

TEST(Endpoint, WhatIsWrongIsNamed) {
  const std::vector<std::pair<std::string_view, std::string_view>> cases{
      {"tcp://boat", "tcp://boat: \"boat\" has no port (host:port)"},
      {"tcp://boat:x", "tcp://boat:x: \"x\" is no port (1 to 65535)"},
      {"tcp://boat:0", "tcp://boat:0: \"0\" is no port (1 to 65535)"},
      {"tcp://boat:65536", "tcp://boat:65536: \"65536\" is no port (1 to 65535)"},
      {"tcp://boat:1e3", "tcp://boat:1e3: \"1e3\" is no port (1 to 65535)"},
      {"tcp://:10110", "tcp://:10110: \":10110\" has no host (host:port)"},
      {"tcp://::1:10110", "tcp://::1:10110: \"::1\" is no host; an address with colons stands in [ ]"},
      {"tcp://me@boat:10110", "tcp://me@boat:10110: \"me@boat\" is no host"},
      {"http://boat:80", "http://boat:80: \"http://\" is none of tcp://, tcp-listen://, udp:// and file://"},
      {"tcp://boat:10110?fast", "tcp://boat:10110?fast: \"fast\" is no option of it"},
      {"tcp://boat:10110?silence=no",
       "tcp://boat:10110?silence=no: \"no\" is no number of seconds (1 to 86400)"},
      {"/dev/ttyUSB0?baud=300",
       "/dev/ttyUSB0?baud=300: \"300\" is no baud rate (4800, 9600, 19200, 38400, 57600, 115200 or auto)"},
      {"file://log.nmea", "file://log.nmea: \"log.nmea\" is no whole path (file:///path)"},
      {"file:///log.nmea?speed=0", "file:///log.nmea?speed=0: \"0\" is no speed (0.01 to 1000)"},
      {"file:///log.nmea?interval=nan",
       "file:///log.nmea?interval=nan: \"nan\" is no interval in seconds (0.001 to 3600)"},
      {"udp://:10110?broadcast", "udp://:10110?broadcast: \"broadcast\" is no option of it"},
      {"/dev/a, , /dev/b", ": nothing stands between two commas"},
      {"/dev/a, tcp://b:x", "tcp://b:x: \"x\" is no port (1 to 65535)"}};
  for (const auto& [text, wrong] : cases) {
    EXPECT_EQ(WrongIn(text), wrong) << text;
  }
}

}  // namespace
}  // namespace veerwatch
