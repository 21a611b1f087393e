#include "platform/TcpServerQt.h"

#include <gmock/gmock.h>

#include "tests/ui/serial/SocketFixture.h"

namespace veerwatch {
namespace {

/// A port that is free at this moment.
std::uint16_t FreePort() {
  QTcpServer server;
  server.listen(QHostAddress::LocalHost);
  return server.serverPort();
}

class TcpServer : public testing::Test {
 protected:
  TcpServer() { EXPECT_TRUE(m_port.PortOpen(true)) << m_port.OpenFailure(); }

  /// A client that is connected.
  std::unique_ptr<Peer> Client() {
    const std::size_t before = m_port.Clients();
    auto peer = std::make_unique<Peer>(m_number);
    EXPECT_TRUE(TurnUntil([&] { return m_port.Clients() > before && peer->Connected(); }));
    return peer;
  }

  ShiftedClock m_clock;
  std::uint16_t m_number = FreePort();
  TcpServerQt m_port{EndpointOf("tcp-listen://:" + std::to_string(m_number)), m_clock};
  PortOwner m_owner{m_port};
};

TEST_F(TcpServer, MergesTheLinesOfItsClientsWhole) {
  const auto one = Client();
  const auto two = Client();
  one->Send("$one,be");
  QTest::qWait(50);
  two->Send("$two\r\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner.Text == "$two\r"; })) << m_owner.Text;
  one->Send("gun\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner.Text == "$two\r$one,begun\r"; })) << m_owner.Text;
}

TEST_F(TcpServer, SendsToAllOfThem) {
  const auto one = Client();
  const auto two = Client();
  m_port.Output("$ECAPB,1\r\n");
  EXPECT_EQ(m_port.Sent(), 1U);
  EXPECT_TRUE(TurnUntil([&] { return one->Heard() == "$ECAPB,1\r\n" && two->Heard() == "$ECAPB,1\r\n"; }));
}

TEST_F(TcpServer, ServesTenAtATime) {
  std::vector<std::unique_ptr<Peer>> clients;
  std::string lines;
  for (int i = 0; i < 10; ++i) {
    clients.push_back(Client());
    clients.back()->Send("$line of " + std::to_string(i) + "\r\n");
  }
  ASSERT_TRUE(TurnUntil([&] { return m_owner.Text.size() == 110; })) << m_owner.Text;
  for (int i = 0; i < 10; ++i) {
    EXPECT_THAT(m_owner.Text, testing::HasSubstr("$line of " + std::to_string(i) + "\r"));
  }
  for (int i = 0; i < 10; ++i) {
    m_port.Output("$ECAPB," + std::to_string(i) + "\r\n");
  }
  const std::string last = "$ECAPB,9\r\n";
  for (const auto& client : clients) {
    EXPECT_TRUE(TurnUntil([&] { return client->Heard().ends_with(last); }));
    EXPECT_EQ(client->Heard().size(), 10 * last.size()) << client->Heard();
  }
}

TEST_F(TcpServer, HearsTheOthersWhileOneSendsAllTheTime) {
  const auto loud = Client();
  const auto quiet = Client();
  const std::string much = std::string(70, 'x') + "\r\n";
  std::string flood;
  while (flood.size() < 3'000'000) {
    flood += much;
  }
  loud->Send(flood);
  quiet->Send("$quiet\r\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner.Text.find("$quiet\r") != std::string::npos; }));
  EXPECT_LT(m_owner.Text.size(), 1'000'000U);
}

TEST_F(TcpServer, DropsWhatCameDuringAStandstill) {
  const auto peer = Client();
  peer->Send("$before\r\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner.Text == "$before\r"; }));
  m_owner.Handle = [] {};
  peer->Send("$old\r\n$half");
  ASSERT_TRUE(TurnUntil([&] { return m_owner.Codes.size() > 1; }));
  m_owner.Handle = nullptr;
  m_clock.Shift += 3000;
  ASSERT_TRUE(TurnUntil([&] { return m_owner.Standstills == 1; }));
  QTest::qWait(kOldTime + 100);
  peer->Send(" a line\r\n$new\r\n");
  ASSERT_TRUE(TurnUntil([&] { return m_owner.Text.ends_with("$new\r"); }));
  EXPECT_EQ(m_owner.Text, "$before\r a line\r$new\r") << "nothing of before is in front of it";
  EXPECT_EQ(m_port.Clients(), 1U);
}

TEST_F(TcpServer, ListensAtAnAddressWithColons) {
  TcpServerQt six(EndpointOf("tcp-listen://[::1]:" + std::to_string(FreePort())), m_clock);
  if (!six.PortOpen(true)) {
    GTEST_SKIP() << six.OpenFailure();
  }
  PortOwner owner(six);
  Peer peer(six.ListensOn(), "::1");
  ASSERT_TRUE(TurnUntil([&] { return peer.Connected(); }));
  peer.Send("$six\r\n");
  EXPECT_TRUE(TurnUntil([&] { return owner.Text == "$six\r"; }));
}

TEST_F(TcpServer, HasSentNothingWhileNobodyListens) {
  m_port.Output("$ECAPB,1\r\n");
  EXPECT_EQ(m_port.Sent(), 0U);
}

TEST_F(TcpServer, DropsAClientThatNeverReadsAndServesTheOthers) {
  const auto deaf = Client();
  deaf->StopReading();
  const auto hears = Client();
  const std::string sentence = std::string(4000, 'x') + "\r\n";
  std::size_t sent = 0;
  for (; m_port.Clients() == 2 && sent < 20000; ++sent) {
    m_port.Output(sentence);
    ASSERT_TRUE(TurnUntil([&] { return hears->Heard().size() == (sent + 1) * sentence.size(); })) << sent;
  }
  EXPECT_EQ(m_port.Clients(), 1U);
  m_port.Output("$last\r\n");
  EXPECT_TRUE(TurnUntil([&] { return hears->Heard().ends_with("$last\r\n"); }));
}

TEST_F(TcpServer, SurvivesItsClients) {
  for (int i = 0; i < 10; ++i) {
    const auto peer = Client();
    peer->Send("$" + std::to_string(i) + "\r\n");
    ASSERT_TRUE(TurnUntil([&] { return m_owner.Text.ends_with(std::to_string(i) + "\r"); }));
    peer->Close();
    ASSERT_TRUE(TurnUntil([&] { return m_port.Clients() == 0; }));
  }
  EXPECT_EQ(m_owner.Lost, 0);
}

TEST_F(TcpServer, TakesSixteenClientsAtMost) {
  std::vector<std::unique_ptr<Peer>> clients;
  for (std::size_t i = 0; i < TcpServerQt::kMostClients; ++i) {
    clients.push_back(Client());
  }
  Peer more(m_number);
  QTest::qWait(100);
  EXPECT_TRUE(TurnUntil([&] { return !more.Connected(); }));
  EXPECT_EQ(m_port.Clients(), TcpServerQt::kMostClients);
}

TEST_F(TcpServer, SaysThatItsPortIsInUse) {
  TcpServerQt other(EndpointOf("tcp-listen://:" + std::to_string(m_number)), m_clock);
  EXPECT_FALSE(other.PortOpen(true));
  EXPECT_EQ(other.OpenFailure(),
            "tcp-listen://:" + std::to_string(m_number) + ": the bound address is already in use");
  TcpServerQt nowhere(EndpointOf("tcp-listen://nowhere:10110"), m_clock);
  EXPECT_FALSE(nowhere.PortOpen(true));
  EXPECT_EQ(nowhere.OpenFailure(), "tcp-listen://nowhere:10110: \"nowhere\" is no address of this computer");
}

TEST_F(TcpServer, ListensToThisComputerAlone) {
  EXPECT_EQ(m_port.ListensOn(), m_number);
  m_port.PortOpen(false);
  EXPECT_EQ(m_port.ListensOn(), 0);
  Peer late(m_number);
  QTest::qWait(100);
  EXPECT_FALSE(late.Connected());
}

}  // namespace
}  // namespace veerwatch
