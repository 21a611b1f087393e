// The real program process on sockets of this computer.

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <string>

#include "tests/e2e/RealPorts.h"

namespace veerwatch {
namespace {

sockaddr_in Loopback(std::uint16_t port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

/// A socket on the loopback address, with a number that the system chooses.
class Loop {
 public:
  explicit Loop(int type) : m_socket(::socket(AF_INET, type | SOCK_CLOEXEC, 0)) {
    sockaddr_in address = Loopback(0);
    socklen_t size = sizeof address;
    EXPECT_EQ(::bind(m_socket, reinterpret_cast<sockaddr*>(&address), size), 0);
    EXPECT_EQ(::getsockname(m_socket, reinterpret_cast<sockaddr*>(&address), &size), 0);
    m_port = ntohs(address.sin_port);
    ::fcntl(m_socket, F_SETFL, O_NONBLOCK);
  }
  ~Loop() { ::close(m_socket); }
  Loop(const Loop&) = delete;
  Loop& operator=(const Loop&) = delete;

  int Socket() const { return m_socket; }
  std::string Port() const { return std::to_string(m_port); }

  /// Everything that has come, each datagram or piece after the other.
  std::string Heard() {
    std::array<char, 4096> part{};
    for (ssize_t read = 0; (read = ::recv(m_socket, part.data(), part.size(), 0)) > 0;) {
      m_heard.append(part.data(), static_cast<std::size_t>(read));
    }
    return m_heard;
  }

 private:
  int m_socket;
  std::uint16_t m_port = 0;
  std::string m_heard;
};

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
