// The real program and a Signal K server: its NMEA 0183 output over TCP is the instruments, and the sentences
// for the autopilot are its heading to steer. script/peers installs the server.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "tests/e2e/Process.h"
#include "tests/e2e/RealPorts.h"
#include "tests/e2e/Sockets.h"
#include "tests/peers/Peers.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

constexpr double kPi = 3.14159265358979323846;

/// A number of the loopback address that is free at this moment.
std::uint16_t FreePort(int type) { return Loop(type).Number(); }

class SignalKServer {
 public:
  SignalKServer() {
    std::string settings = ReadFile(kFiles / "data" / "settings.json");
    const std::string mark = "\"@INSTRUMENTS@\"";
    settings.replace(settings.find(mark), mark.size(), std::to_string(m_instruments));
    WriteFile(m_folder / "settings.json", settings);
  }

  /// Begins to listen; false when it does not.
  bool Start() {
    m_server.emplace();
    return m_server->Start(
               {"node", "--require", (kFiles / "Loopback.js").string(),
                (kModules / "signalk-server" / "bin" / "signalk-server").string()},
               {"PORT=" + std::to_string(m_web), "NMEA0183PORT=" + std::to_string(m_nmea),
                "SIGNALK_NODE_CONFIG_DIR=" + m_folder.Path().string(), "SIGNALK_DISABLE_SERVER_UPDATES=1"}) &&
           Await([this] { return Said().find("signalk-server running") != std::string::npos; });
  }
  void Kill() {
    m_server->Kill();
    m_server->AwaitEnd();
  }
  const std::string& Said() { return m_server->Said(); }

  /// What the boat's instruments send to it.
  void Instruments(const std::string& sentences) const { SendDatagram(m_instruments, sentences); }
  std::string InstrumentsPort() const { return std::to_string(m_instruments); }
  std::string NmeaPort() const { return std::to_string(m_nmea); }

  /// The heading to steer that it shows to everybody [deg magnetic]; nothing while it has none.
  std::optional<double> HeadingToSteer() const {
    const std::string answer =
        Get(m_web, "/signalk/v1/api/vessels/self/steering/autopilot/target/headingMagnetic");
    const auto json =
        nlohmann::json::parse(answer.substr(std::min(answer.find('{'), answer.size())), nullptr, false);
    if (!json.is_object() || !json.contains("value") || !json["value"].is_number()) {
      return std::nullopt;
    }
    return json["value"].get<double>() * 180.0 / kPi;
  }
  /// It comes to show that heading, while the wind goes on [deg magnetic].
  bool Steers(double heading) const {
    return Await([&] {
      Instruments(ApparentWind("040"));
      const auto shown = HeadingToSteer();
      return shown && std::fabs(*shown - heading) < 0.01;
    });
  }

 private:
  TemporaryFolder m_folder;
  std::uint16_t m_instruments = FreePort(SOCK_DGRAM);
  std::uint16_t m_web = FreePort(SOCK_STREAM);
  std::uint16_t m_nmea = FreePort(SOCK_STREAM);
  std::optional<Child> m_server;
};

class SignalK : public RealPorts {
 protected:
  void SetUp() override {
    if (!Installed()) {
      GTEST_SKIP() << kNotInstalled;
    }
    ASSERT_TRUE(m_server.Start()) << m_server.Said();
  }

  /// The winds arrive, and the program steers by hand.
  void SailInManual() {
    ASSERT_TRUE(Await([this] {
      m_server.Instruments(ApparentWind("040") + TrueWind("060"));
      return Text("lblTrueWindAngle") == "60" && Text("lblAppWindAngle") == "40";
    }));
    Click("tbrTrack(5)");
  }

  SignalKServer m_server;
};

TEST_F(SignalK, GetsItsHeadingToSteerOnTheConnectionThatBringsTheWind) {
  LaunchRemote(ProfileText(1, 1, "1=tcp://127.0.0.1:" + m_server.NmeaPort() + "?silence=20\r\n"));
  SailInManual();
  EXPECT_TRUE(m_server.Steers(100.0)) << m_server.HeadingToSteer().value_or(-1.0);
  m_program->Tell("type txtAutoPilot 217.5");
  ASSERT_TRUE(Says("typed txtAutoPilot"));
  EXPECT_TRUE(m_server.Steers(217.5)) << m_server.HeadingToSteer().value_or(-1.0);
  EXPECT_EQ(Text("StatusBar(2)"), "");
  ExpectOrderlyEnd();
}

TEST_F(SignalK, GetsItsHeadingToSteerInDatagrams) {
  LaunchRemote(ProfileText(1, 2,
                           "1=tcp://127.0.0.1:" + m_server.NmeaPort() +
                               "\r\n2=udp://127.0.0.1:" + m_server.InstrumentsPort() + "\r\n"));
  SailInManual();
  EXPECT_TRUE(m_server.Steers(100.0)) << m_server.HeadingToSteer().value_or(-1.0);
  ExpectOrderlyEnd();
}

TEST_F(SignalK, IsHeardAgainAfterItWasStartedAgain) {
  LaunchRemote(ProfileText(1, 1, "1=tcp://127.0.0.1:" + m_server.NmeaPort() + "\r\n"));
  SailInManual();
  m_server.Kill();
  ASSERT_TRUE(AwaitText("StatusBar(2)", "No Input Data"));
  ASSERT_TRUE(m_server.Start()) << m_server.Said();
  ASSERT_EQ(m_server.HeadingToSteer(), std::nullopt);
  EXPECT_TRUE(m_server.Steers(100.0)) << m_server.HeadingToSteer().value_or(-1.0);
  EXPECT_TRUE(AwaitText("StatusBar(2)", ""));
  ExpectOrderlyEnd();
}

}  // namespace
}  // namespace veerwatch
