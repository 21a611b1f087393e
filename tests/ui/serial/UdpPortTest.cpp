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

  ShiftedClock m_clock;
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

TEST_F(UdpPort, CutsNoDatagramForWantOfRoom) {
  const std::uint16_t port = FreePort();
  Open("udp://:" + std::to_string(port));
  m_owner->Handle = [] {};
  std::string all;
  for (const char letter : {'a', 'b', 'c', 'd', 'e'}) {
    const std::string datagram = std::string(29'998, letter) + "\r\n";
    Send(datagram, port);
    all += datagram;
  }
  ASSERT_TRUE(TurnUntil([&] { return !m_owner->Codes.empty(); }));
  m_owner->Handle = nullptr;
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text.ends_with("e\r\n"); }));
  EXPECT_EQ(m_owner->Text, all);
}

TEST_F(UdpPort, DropsWhatCameDuringAStandstill) {
  const std::uint16_t port = FreePort();
  Open("udp://:" + std::to_string(port));
  Send("$before\r\n", port);
  ASSERT_TRUE(TurnUntil([&] { return !m_owner->Text.empty(); }));
  m_owner->Handle = [] {};
  Send("$old\r\n", port);
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Codes.size() > 1; }));
  m_owner->Handle = nullptr;
  m_clock.Shift += 3000;
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Standstills == 1; }));
  QTest::qWait(kOldTime + 100);
  Send("$new\r\n", port);
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text.ends_with("$new\r\n"); }));
  EXPECT_EQ(m_owner->Text, "$before\r\n$new\r\n");
}

TEST_F(UdpPort, HearsAGroup) {
  const std::uint16_t port = FreePort();
  const std::string group = "239.2.1.1";
  UdpPortQt first(EndpointOf("udp://" + group + ":" + std::to_string(port)), m_clock);
  if (!first.PortOpen(true)) {
    GTEST_SKIP() << first.OpenFailure();
  }
  // Another program of this computer hears it, too.
  UdpPortQt second(EndpointOf("udp://" + group + ":" + std::to_string(port)), m_clock);
  ASSERT_TRUE(second.PortOpen(true)) << second.OpenFailure();
  PortOwner firstOwner(first);
  PortOwner secondOwner(second);
  QUdpSocket far;
  far.bind(QHostAddress(QHostAddress::AnyIPv4));
  const std::string datagram = "$group\r\n";
  ASSERT_TRUE(TurnUntil([&] {
    far.writeDatagram(datagram.data(), static_cast<qint64>(datagram.size()),
                      QHostAddress(QString::fromStdString(group)), port);
    QTest::qWait(20);
    return !firstOwner.Text.empty() && !secondOwner.Text.empty();
  }));
  EXPECT_TRUE(firstOwner.Text.starts_with(datagram));
}

TEST_F(UdpPort, SendsToAndHearsAtAddressesWithColons) {
  const std::uint16_t port = FreePort();
  UdpPortQt hears(EndpointOf("udp://[::1]:" + std::to_string(port) + "?listen"), m_clock);
  if (!hears.PortOpen(true)) {
    GTEST_SKIP() << hears.OpenFailure();
  }
  PortOwner owner(hears);
  Open("udp://[::1]:" + std::to_string(port));
  m_port->Output("$ECAPB,1\r\n");
  EXPECT_EQ(m_port->Sent(), 1U) << m_port->Trouble();
  EXPECT_TRUE(TurnUntil([&] { return owner.Text == "$ECAPB,1\r\n"; }));
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
