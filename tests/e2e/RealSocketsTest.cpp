// The real program process on sockets of this computer.

#include <sys/socket.h>
#include <unistd.h>

#include <string>
#include <utility>

#include "tests/e2e/RealPorts.h"
#include "tests/e2e/Sockets.h"

namespace veerwatch {
namespace {

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
