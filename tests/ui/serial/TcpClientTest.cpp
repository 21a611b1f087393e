#include "platform/TcpClientQt.h"

#include <gmock/gmock.h>

#include "tests/ui/serial/SocketFixture.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class TcpClient : public testing::Test {
 protected:
  TcpClient() { Listen(); }

  /// The other side listens, on the port that it had before.
  void Listen() {
    ASSERT_TRUE(m_server.listen(QHostAddress::LocalHost, m_number));
    m_number = m_server.serverPort();
  }
  void Open(const std::string& options = "") {
    m_port = std::make_unique<TcpClientQt>(
        EndpointOf("tcp://127.0.0.1:" + std::to_string(m_number) + options), m_clock);
    m_owner = std::make_unique<PortOwner>(*m_port);
    EXPECT_TRUE(m_port->PortOpen(true));
  }
  /// The far end of the next connection.
  std::unique_ptr<Peer> Accept() {
    EXPECT_TRUE(TurnUntil([this] { return m_server.hasPendingConnections(); }));
    return std::make_unique<Peer>(m_server.nextPendingConnection());
  }

  ShiftedClock m_clock;
  QTcpServer m_server;
  std::uint16_t m_number = 0;
  std::unique_ptr<TcpClientQt> m_port;
  std::unique_ptr<PortOwner> m_owner;
};

TEST_F(TcpClient, HearsAndSends) {
  Open();
  const auto peer = Accept();
  peer->Send("$IIMWV,045,R,10.5,N,A\r\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text.size() >= 22; }));
  EXPECT_EQ(m_owner->Text, "$IIMWV,045,R,10.5,N,A\r");
  EXPECT_EQ(m_port->Trouble(), "");
  m_port->Output("$ECAPB,1\r\n$ECRMB,1\r\n");
  EXPECT_EQ(m_port->Sent(), 1U);
  ASSERT_TRUE(TurnUntil([&] { return peer->Heard() == "$ECAPB,1\r\n$ECRMB,1\r\n"; })) << peer->Heard();
}

TEST_F(TcpClient, EndsLinesOfLineFeedsAlone) {
  Open();
  const auto peer = Accept();
  peer->Send("$A\n$B");
  ASSERT_TRUE(TurnUntil([&] { return !m_owner->Text.empty(); }));
  peer->Send("\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text.ends_with("$B\r"); }));
  EXPECT_EQ(m_owner->Text, "$A\r$B\r");
}

TEST_F(TcpClient, ComesBackWhenTheOtherSideHasGone) {
  Open();
  auto peer = Accept();
  peer->Close();
  ASSERT_TRUE(TurnUntil([&] { return !m_port->Trouble().empty(); }));
  EXPECT_THAT(m_port->Trouble(), HasSubstr("next try in 1 s"));
  EXPECT_TRUE(m_port->PortOpen()) << "it is on its way back";
  peer = Accept();
  peer->Send("again\r\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text == "again\r"; }));
  EXPECT_EQ(m_owner->Lost, 0);
}

TEST_F(TcpClient, WaitsForOneWhoIsNotThereYet) {
  m_server.close();
  Open();
  ASSERT_TRUE(TurnUntil([&] { return m_port->Trouble().find("next try") != std::string::npos; }));
  EXPECT_THAT(m_port->Trouble(), StartsWith("tcp://127.0.0.1:"));
  EXPECT_THAT(m_port->Trouble(), HasSubstr(": connection refused, next try in "));
  Listen();
  const auto peer = Accept();
  m_port->Output("$ECAPB,2\r\n");
  ASSERT_TRUE(TurnUntil([&] { return peer->Heard() == "$ECAPB,2\r\n"; }));
}

TEST_F(TcpClient, SendsNothingOldToOneWhoComesBack) {
  Open();
  auto peer = Accept();
  ASSERT_TRUE(TurnUntil([&] { return m_port->Trouble().empty(); }));
  peer->Close();
  ASSERT_TRUE(TurnUntil([&] { return !m_port->Trouble().empty(); }));
  m_server.close();
  m_port->Output("$old\r\n");
  QTest::qWait(2500);
  Listen();
  peer = Accept();
  ASSERT_TRUE(TurnUntil([&] { return m_port->Trouble().empty(); }));
  m_port->Output("$new\r\n");
  ASSERT_TRUE(TurnUntil([&] { return peer->Heard().ends_with("$new\r\n"); }));
  EXPECT_EQ(peer->Heard(), "$new\r\n");
}

TEST_F(TcpClient, ForgetsTheLineThatALostLinkCut) {
  Open();
  auto peer = Accept();
  peer->Send("$whole\r\n$IIMWV,045,R,1");
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text == "$whole\r"; }));
  QTest::qWait(50);
  peer->Close();
  peer = Accept();
  peer->Send("0.5,N,A\r\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text.size() > 7; }));
  EXPECT_EQ(m_owner->Text, "$whole\r0.5,N,A\r");
}

TEST_F(TcpClient, ConnectsAnewAfterAStandstill) {
  Open();
  auto peer = Accept();
  peer->Send("$before\r\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text == "$before\r"; }));
  // More than is read at once, so that the rest of it waits on the way.
  std::string old;
  while (old.size() < 8'000'000) {
    old += "$old," + std::to_string(old.size()) + "\r\n";
  }
  peer->Send(old);
  m_clock.Shift += 3000;
  m_port->Output("$late\r\n");
  const auto next = Accept();
  EXPECT_EQ(m_owner->Standstills, 1);
  QTest::qWait(kOldTime + 100);
  next->Send("$new\r\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text.ends_with("$new\r"); }));
  EXPECT_THAT(m_owner->Text, testing::Not(HasSubstr("$old,7")));
  EXPECT_TRUE(TurnUntil([&] { return !peer->Connected(); }));
  EXPECT_EQ(m_owner->Lost, 0);
}

TEST(RetryPause, GrowsFromASecondToHalfAMinute) {
  RetryPause pause;
  for (const int seconds : {1, 2, 4, 8, 16, 30, 30}) {
    EXPECT_EQ(pause.Next(), 1000 * seconds);
  }
  pause.Restart();
  EXPECT_EQ(pause.Next(), 1000);
}

TEST_F(TcpClient, FindsTheOtherSideAtAnAddressWithColons) {
  m_server.close();
  if (!m_server.listen(QHostAddress::LocalHostIPv6)) {
    GTEST_SKIP() << "this computer has no such addresses";
  }
  m_port = std::make_unique<TcpClientQt>(EndpointOf("tcp://[::1]:" + std::to_string(m_server.serverPort())),
                                         m_clock);
  m_owner = std::make_unique<PortOwner>(*m_port);
  ASSERT_TRUE(m_port->PortOpen(true));
  const auto peer = Accept();
  peer->Send("$six\r\n");
  EXPECT_TRUE(TurnUntil([&] { return m_owner->Text == "$six\r"; }));
}

TEST_F(TcpClient, ConnectsAnewWhenTheOtherSideIsSilent) {
  Open("?silence=1");
  const auto first = Accept();
  const auto second = Accept();
  EXPECT_TRUE(TurnUntil([&] { return !first->Connected(); }));
  second->Send("here\r\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text == "here\r"; }));
}

TEST_F(TcpClient, HearsNothingAfterItsClose) {
  Open();
  const auto peer = Accept();
  peer->Send("before\r\n");
  ASSERT_TRUE(TurnUntil([&] { return !m_owner->Text.empty(); }));
  m_port->PortOpen(false);
  peer->Send("after\r\n");
  QTest::qWait(50);
  EXPECT_EQ(m_owner->Text, "before\r");
  EXPECT_TRUE(TurnUntil([&] { return !peer->Connected(); }));
  EXPECT_EQ(m_port->Trouble(), "");
}

TEST_F(TcpClient, HoldsALimitedAmountUnread) {
  Open();
  m_owner->Handle = [] {};
  const auto peer = Accept();
  std::string lines;
  while (lines.size() < 400000) {
    lines += "$IIMWV,045,R," + std::to_string(lines.size()) + ",N,A\r";
  }
  peer->Send(lines);
  ASSERT_TRUE(TurnUntil([&] { return !m_owner->Codes.empty(); }));
  QTest::qWait(200);
  m_owner->Handle = nullptr;
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text.size() >= lines.size(); }));
  EXPECT_EQ(m_owner->Text, lines);
}

}  // namespace
}  // namespace veerwatch
