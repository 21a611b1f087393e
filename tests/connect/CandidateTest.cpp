#include "connect/Candidate.h"

#include <gmock/gmock.h>

#include <string>
#include <variant>
#include <vector>

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Endpoints(const std::vector<Candidate>& all) {
  std::vector<std::string> endpoints;
  for (const Candidate& each : all) {
    endpoints.push_back(each.Endpoint);
  }
  return endpoints;
}

Endpoint One(const std::string& text) {
  const auto parsed = ParseEndpoints(text, [](const std::string&) { return false; });
  return std::get<std::vector<Endpoint>>(parsed).front();
}

TEST(Candidate, ASerialPortHasItsDescriptionAndARateToBeFound) {
  EXPECT_THAT(SerialCandidates({{"/dev/ttyUSB0", "FTDI", "A5"}, {"/dev/ttyS0", "", ""}}),
              ElementsAre(Candidate{"USB serial (FTDI)", "/dev/ttyUSB0?baud=auto", true},
                          Candidate{"/dev/ttyS0", "/dev/ttyS0?baud=auto"}));
}

TEST(Candidate, TheUsualPlacesCanAllBeOpened) {
  const std::vector<Candidate> usual = UsualCandidates();
  EXPECT_THAT(Endpoints(usual),
              ElementsAre("tcp://localhost:10110", "tcp://localhost:2000", "tcp://localhost:39150",
                          "udp://0.0.0.0:10110", "udp://0.0.0.0:2000"));
  EXPECT_EQ(usual.front().Name, "TCP 10110 on this computer");
  EXPECT_EQ(One(usual.back().Endpoint).What, Endpoint::Kind::UdpInput);
}

TEST(Candidate, AHostHasTheTcpPortsAndOneWithAPortThatOne) {
  EXPECT_THAT(Endpoints(HostCandidates(" gateway ")),
              ElementsAre("tcp://gateway:10110", "tcp://gateway:2000", "tcp://gateway:39150"));
  EXPECT_THAT(Endpoints(HostCandidates("192.168.1.1:1456")), ElementsAre("tcp://192.168.1.1:1456"));
  EXPECT_EQ(One(HostCandidates("fe80::1").front().Endpoint).Host, "fe80::1");
  EXPECT_EQ(One(HostCandidates("[::1]").front().Endpoint).Host, "::1");
  EXPECT_THAT(HostCandidates("  "), IsEmpty());
}

TEST(Candidate, ADeviceOrAnEndpointThatIsTypedIsItself) {
  EXPECT_THAT(HostCandidates("/dev/pts/7"), ElementsAre(Candidate{"/dev/pts/7", "/dev/pts/7?baud=auto"}));
  EXPECT_THAT(Endpoints(HostCandidates("/dev/ttyUSB0?baud=38400")), ElementsAre("/dev/ttyUSB0?baud=38400"));
  EXPECT_THAT(Endpoints(HostCandidates("tcp-listen://:10110")), ElementsAre("tcp-listen://:10110"));
}

TEST(Candidate, OneEndpointIsMeantWhereAPlaceIsTypedForIt) {
  EXPECT_EQ(EndpointOfPlace(" gateway:2000 "), "tcp://gateway:2000");
  EXPECT_EQ(EndpointOfPlace("/dev/ttyUSB0"), "/dev/ttyUSB0");
  EXPECT_EQ(EndpointOfPlace("/dev/serial/by-path/pci-0000:00"), "/dev/serial/by-path/pci-0000:00");
  EXPECT_EQ(EndpointOfPlace("udp://10.0.0.255:2000?broadcast"), "udp://10.0.0.255:2000?broadcast");
  EXPECT_EQ(EndpointOfPlace("gateway"), "gateway") << "three ports would be possible";
  EXPECT_EQ(EndpointOfPlace("  "), "");
}

TEST(Candidate, WhatIsAnnouncedComesFromItsAddress) {
  const std::string browsed =
      "+;eth0;IPv4;Boat;_nmea-0183._tcp;local\n"
      "=;eth0;IPv4;Boat\\032Gate;_nmea-0183._tcp;local;gate.local;192.168.1.5;1456;\"a;b\"\n"
      "=;eth0;IPv6;Boat\\032Gate;_nmea-0183._tcp;local;gate.local;fe80::1;1456;\n"
      "=;eth0;IPv4;pi;_signalk-ws._tcp;local;pi.local;192.168.1.9;3000;\n"
      "=;eth0;IPv4;pi;_signalk-tcp._tcp;local;pi.local;192.168.1.9;8375;\n"
      "=;eth0;IPv4;printer;_ipp._tcp;local;p.local;192.168.1.7;631;\n"
      "=;lo;IPv4;own;_nmea-0183._tcp;local;own.local;127.0.0.1;10110;\n"
      "=;eth0;IPv4;short\n";
  EXPECT_THAT(
      AnnouncedCandidates(browsed),
      ElementsAre(Candidate{"Boat Gate at 192.168.1.5 (NMEA 0183, announced)", "tcp://192.168.1.5:1456"},
                  Candidate{"pi at 192.168.1.9 (Signal K, announced)", "tcp://192.168.1.9:10110"},
                  Candidate{"own at localhost (NMEA 0183, announced)", "tcp://localhost:10110"}))
      << "one on this computer is one of the usual places";
  EXPECT_THAT(AnnouncedCandidates(""), IsEmpty());
}

TEST(Candidate, OneThatIsKnownIsNotAddedAgain) {
  std::vector<Candidate> all = HostCandidates("gate:1456");
  AddCandidates(all, {{"another name", "tcp://gate:1456"}, {"new", "tcp://gate:2000"}});
  EXPECT_THAT(Endpoints(all), ElementsAre("tcp://gate:1456", "tcp://gate:2000"));
}

TEST(Candidate, TheSamePlaceIsOneDeviceHostOrListeningPort) {
  EXPECT_TRUE(SamePlace(One("/dev/null?baud=auto"), One("/dev/null?baud=38400")));
  EXPECT_FALSE(SamePlace(One("/dev/null"), One("/dev/zero")));
  EXPECT_TRUE(SamePlace(One("tcp://boat:2000"), One("tcp://boat:2000?silence=20")));
  EXPECT_FALSE(SamePlace(One("tcp://boat:2000"), One("tcp://boat:10110")));
  EXPECT_FALSE(SamePlace(One("tcp://boat:2000"), One("tcp://other:2000")));
  EXPECT_TRUE(SamePlace(One("udp://:2000"), One("udp://0.0.0.0:2000")));
  EXPECT_FALSE(SamePlace(One("udp://:2000"), One("tcp-listen://:2000")));
}

}  // namespace
}  // namespace veerwatch
