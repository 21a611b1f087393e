#include "platform/UdpPortQt.h"

#include <gmock/gmock.h>

#include <QNetworkDatagram>

#include "tests/ui/serial/SocketFixture.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

class UdpPort : public testing::Test {
 protected:
  UdpPort() { EXPECT_TRUE(m_far.bind(QHostAddress::LocalHost)); }

  /// Opens a port and its owner.
  void Open(const std::string& text) {
    m_port = std::make_unique<UdpPortQt>(EndpointOf(text), m_clock);
    m_owner = std::make_unique<PortOwner>(*m_port);
    EXPECT_TRUE(m_port->PortOpen(true)) << m_port->OpenFailure();
  }
  static std::uint16_t FreePort() {
    QUdpSocket socket;
    socket.bind(QHostAddress::LocalHost);
    return socket.localPort();
  }
  void Send(const std::string& datagram, std::uint16_t port) {
    m_far.writeDatagram(datagram.data(), static_cast<qint64>(datagram.size()), QHostAddress::LocalHost, port);
  }
  std::vector<std::string> Datagrams() {
    while (m_far.hasPendingDatagrams()) {
      m_heard.push_back(m_far.receiveDatagram().data().toStdString());
    }
    return m_heard;
  }

  SystemClock m_clock;
  QUdpSocket m_far;
  std::vector<std::string> m_heard;
  std::unique_ptr<UdpPortQt> m_port;
  std::unique_ptr<PortOwner> m_owner;
};

TEST_F(UdpPort, HearsSeveralLinesInADatagram) {
  const std::uint16_t port = FreePort();
  Open("udp://:" + std::to_string(port));
  Send("$one\r\n$two\n$three", port);
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text.ends_with("$three\r\n"); })) << m_owner->Text;
  EXPECT_EQ(m_owner->Text, "$one\r\n$two\r\n$three\r\n");
  m_port->Output("$ECAPB,1\r\n");
  EXPECT_EQ(m_port->Sent(), 0U) << "it only listens";
}

TEST_F(UdpPort, SendsADatagramForEachSentence) {
  Open("udp://127.0.0.1:" + std::to_string(m_far.localPort()));
  m_port->Output("$ECAPB,1\r\n$ECRMB,2\r\n");
  EXPECT_EQ(m_port->Sent(), 1U);
  ASSERT_TRUE(TurnUntil([&] { return Datagrams().size() == 2; }));
  EXPECT_THAT(Datagrams(), ElementsAre("$ECAPB,1\r\n", "$ECRMB,2\r\n"));
}

TEST_F(UdpPort, LooksAHostUp) {
  Open("udp://localhost:" + std::to_string(m_far.localPort()));
  ASSERT_TRUE(TurnUntil([&] { return m_port->Trouble().empty(); })) << m_port->Trouble();
  m_port->Output("$ECAPB,1\r\n");
  EXPECT_EQ(m_port->Sent(), 1U);
}

TEST_F(UdpPort, ABroadcastHasToBeAskedFor) {
  UdpPortQt port(EndpointOf("udp://255.255.255.255:10110"), m_clock);
  EXPECT_FALSE(port.PortOpen(true));
  EXPECT_EQ(port.OpenFailure(), "udp://255.255.255.255:10110: a broadcast address needs ?broadcast");
  UdpPortQt asked(EndpointOf("udp://255.255.255.255:10110?broadcast"), m_clock);
  EXPECT_TRUE(asked.PortOpen(true));
  asked.PortOpen(false);
}

TEST_F(UdpPort, SaysThatItsPortIsInUse) {
  const std::string text = "udp://:" + std::to_string(m_far.localPort());
  UdpPortQt port(EndpointOf(text), m_clock);
  EXPECT_FALSE(port.PortOpen(true));
  EXPECT_EQ(port.OpenFailure(), text + ": the bound address is already in use");
}

}  // namespace
}  // namespace veerwatch
