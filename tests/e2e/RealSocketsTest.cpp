// The real program process on sockets of this computer.

#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "tests/e2e/RealPorts.h"
#include "tests/e2e/Sockets.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;
using testing::Not;

class RealSockets : public RealPorts {
 protected:
  RealSockets() { EXPECT_EQ(::listen(m_gateway.Socket(), 4), 0); }
  ~RealSockets() override { HangUp(); }

  /// The program has connected.
  bool Accept() {
    HangUp();
    return Await([this] {
      m_instruments = ::accept4(m_gateway.Socket(), nullptr, nullptr, SOCK_CLOEXEC);
      return m_instruments >= 0;
    });
  }
  void Send(const std::string& text) const {
    EXPECT_EQ(::send(m_instruments, text.data(), text.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(text.size()));
  }
  void HangUp() {
    if (m_instruments >= 0) {
      ::close(std::exchange(m_instruments, -1));
    }
  }

  Loop m_gateway{SOCK_STREAM};
  Loop m_pilot{SOCK_DGRAM};

 private:
  int m_instruments = -1;
};

TEST_F(RealSockets, SteersFromAGatewayToDatagrams) {
  LaunchRemote(ProfileText(
      1, 2, "1=tcp://127.0.0.1:" + m_gateway.Port() + "\r\n2=udp://127.0.0.1:" + m_pilot.Port() + "\r\n"));
  ASSERT_TRUE(Accept());
  Send(ApparentWind("040") + TrueWind("060"));
  ASSERT_TRUE(AwaitText("lblTrueWindAngle", "60"));
  Click("tbrTrack(5)");
  Send(ApparentWind("040"));
  EXPECT_TRUE(Await([this] { return m_pilot.Heard() == Pilot("100.0"); })) << m_pilot.Heard();

  // The gateway goes away and comes back.
  HangUp();
  ASSERT_TRUE(AwaitText("StatusBar(2)", "No Input Data"));
  ASSERT_TRUE(Accept());
  Send(ApparentWind("041"));
  EXPECT_TRUE(AwaitText("lblAppWindAngle", "41"));
  EXPECT_TRUE(AwaitText("StatusBar(2)", ""));
  EXPECT_TRUE(Await([this] { return m_pilot.Heard() == Pilot("100.0") + Pilot("100.0"); }));
  ExpectOrderlyEnd();
}

TEST_F(RealSockets, NothingThatWaitedThroughAStandstillIsHeard) {
  LaunchRemote(ProfileText(1, 2, "1=tcp://127.0.0.1:" + m_gateway.Port() + "\r\n2=" + Out.Device() + "\r\n"));
  ASSERT_TRUE(Accept());
  Send(ApparentWind("040") + TrueWind("060"));
  ASSERT_TRUE(AwaitText("lblTrueWindAngle", "60"));
  Click("tbrTrack(5)");
  m_program->Tell("watch lblAppWindAngle");
  ASSERT_TRUE(Says("shows lblAppWindAngle=40"));
  ASSERT_EQ(::kill(m_program->Id(), SIGSTOP), 0);
  for (int i = 0; i < 2000; ++i) {
    Send(ApparentWind("077"));
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(2500));
  ASSERT_EQ(::kill(m_program->Id(), SIGCONT), 0);
  // It comes back by itself, so that nothing of that is left on the way.
  ASSERT_TRUE(Accept());
  ASSERT_TRUE(Await([this] {
    Send(ApparentWind("041"));
    return Text("lblAppWindAngle") == "41";
  }));
  EXPECT_THAT(m_program->Said(), Not(HasSubstr("shows lblAppWindAngle=77")));
  EXPECT_EQ(Text("txtAutoPilot"), "100.0");
  ExpectOrderlyEnd();
}

TEST_F(RealSockets, ALogThatEndsIsNoInputData) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.log", ApparentWind("040") + TrueWind("060"));
  LaunchRemote(ProfileText(
      1, 2, "1=file://" + (folder / "a.log").string() + "?interval=0.1\r\n2=" + Out.Device() + "\r\n"));
  ASSERT_TRUE(AwaitText("lblTrueWindAngle", "60"));
  EXPECT_TRUE(AwaitText("StatusBar(2)", "No Input Data"));
  ExpectOrderlyEnd();
}

TEST_F(RealSockets, ServesTenWhoListenAndOneWhoNeverReads) {
  const std::string number = Loop(SOCK_STREAM).Port();
  LaunchRemote(ProfileText(1, 2, "1=" + In.Device() + "\r\n2=tcp-listen://:" + number + "\r\n"));
  WriteAll(In, ApparentWind("040") + TrueWind("060"));
  ASSERT_TRUE(AwaitText("lblTrueWindAngle", "60"));
  Click("tbrTrack(5)");
  std::vector<std::unique_ptr<Caller>> clients;
  for (int i = 0; i < 11; ++i) {
    clients.push_back(std::make_unique<Caller>(static_cast<std::uint16_t>(std::stoi(number))));
    ASSERT_TRUE(clients.back()->Connected());
  }
  clients.pop_back();
  const Caller deaf(static_cast<std::uint16_t>(std::stoi(number)), 1);
  ASSERT_TRUE(deaf.Connected());
  WriteAll(In, ApparentWind("041"));
  for (const auto& client : clients) {
    EXPECT_TRUE(Await([&] { return client->Heard() == Pilot("100.0"); })) << client->Heard();
  }
  // One after the other: of many at once the newest takes the place of the others.
  for (std::size_t heard = 2; heard <= 100; ++heard) {
    WriteAll(In, ApparentWind("041"));
    for (const auto& client : clients) {
      ASSERT_TRUE(Await([&] { return client->Heard().size() == heard * Pilot("100.0").size(); })) << heard;
    }
  }
  ExpectOrderlyEnd();
}

TEST_F(RealSockets, MergesAGatewayAndAWire) {
  LaunchRemote(ProfileText(
      1, 2, "1=tcp://127.0.0.1:" + m_gateway.Port() + ", " + In.Device() + "\r\n2=" + Out.Device() + "\r\n"));
  ASSERT_TRUE(Accept());
  const std::string wind = ApparentWind("040");
  Send(wind.substr(0, 10));
  WriteAll(In, TrueWind("060"));
  ASSERT_TRUE(AwaitText("lblTrueWindAngle", "60"));
  Send(wind.substr(10));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "40"));
  EXPECT_EQ(Text("StatusBar(2)"), "");
  ExpectOrderlyEnd();
}

}  // namespace
}  // namespace veerwatch
