// What the port sends.

#include <string>

#include "tests/ui/serial/SerialPortQtFixture.h"

namespace veerwatch {
namespace {

using testing::IsEmpty;

using SerialPortOutput = SerialPortQtTest;

TEST_F(SerialPortOutput, SendsAWholeSentence) {
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("$ECAPB,one*00\r\n");
  std::string sent;
  ASSERT_TRUE(Await([&] { return (sent += m_pty.Read()).size() >= 15; }));
  EXPECT_EQ(sent, "$ECAPB,one*00\r\n");
}

TEST_F(SerialPortOutput, SendsASingleCharacterOnce) {
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("x");
  QTest::qWait(3 * EndpointPort::kLookAgain);
  EXPECT_EQ(m_pty.Read(), "x");
  EXPECT_EQ(m_port.Sent(), 1U);
}

TEST_F(SerialPortOutput, HandsASentenceToTheSystemBeforeItReturns) {
  ASSERT_TRUE(m_port.PortOpen(true));
  for (const char* sentence : {"$ECAPB,one*00\r\n", "$ECAPB,two*00\r\n"}) {
    m_port.Output(sentence);
    EXPECT_EQ(m_pty.Read(), sentence);
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(m_port.Sent(), 2U);
}

TEST_F(SerialPortOutput, SendsNothingWhileItIsClosed) {
  m_port.Output("lost\r\n");
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("sent\r\n");
  std::string sent;
  ASSERT_TRUE(Await([&] { return (sent += m_pty.Read()).size() >= 6; }));
  EXPECT_EQ(sent, "sent\r\n");
}

TEST_F(SerialPortOutput, SendsTheFirstAndTheNewestOfABurst) {
  ASSERT_TRUE(m_port.PortOpen(true));
  for (int i = 0; i < 1000; ++i) {
    m_port.Output("sentence " + std::to_string(i) + "\r\n");
  }
  std::string sent;
  ASSERT_TRUE(Await([&] { return (sent += m_pty.Read()).ends_with("sentence 999\r\n"); }));
  EXPECT_EQ(sent, "sentence 0\r\nsentence 999\r\n");
}

TEST_F(SerialPortOutput, SendsWholeSentencesAndTheNewestLastWhenNobodyReadForLong) {
  ASSERT_TRUE(m_port.PortOpen(true));
  constexpr int kSentences = 20'000;
  const std::string filler(60, 'x');
  const auto sentence = [&](int i) { return "$" + std::to_string(i) + "," + filler + "\r\n"; };
  for (int i = 0; i < kSentences; ++i) {
    m_port.Output(sentence(i));
    QCoreApplication::processEvents();
  }
  ASSERT_TRUE(m_port.PortOpen());
  std::string sent;
  ASSERT_TRUE(Await([&] { return (sent += m_pty.Read()).ends_with(sentence(kSentences - 1)); }));
  // The terminal itself held the older ones; none after it waited in the port but the newest.
  EXPECT_LT(sent.size(), 200'000U);
  int last = -1;
  std::size_t at = 0;
  while (at < sent.size()) {
    const int number = std::atoi(sent.c_str() + at + 1);
    const std::string whole = sentence(number);
    ASSERT_EQ(sent.substr(at, whole.size()), whole);
    ASSERT_GT(number, last);
    last = number;
    at += whole.size();
  }
  EXPECT_EQ(last, kSentences - 1);
  EXPECT_THAT(m_owner.Codes, IsEmpty());
  EXPECT_EQ(m_owner.Lost, 0);
}

/// With a line that takes nothing: a filling is on its way, "waiting" waits after it.
class StuckLine : public SerialPortQtTest {
 protected:
  void SetUp() override {
    ASSERT_TRUE(m_port.PortOpen(true));
    const std::string filler(1000, 'x');
    for (int i = 0; i < 100; ++i) {
      m_port.Output(filler);
      QTest::qWait(1);
    }
    m_port.Output("waiting\r\n");
  }

  /// All that comes out from now on.
  std::string Rest() {
    std::string all;
    for (int quiet = 0; quiet < 20; ++quiet) {
      const std::string part = m_pty.Read();
      all += part;
      quiet = part.empty() ? quiet : 0;
      QTest::qWait(10);
    }
    return all;
  }
};

TEST_F(StuckLine, SendsWhatWaitsWhenItMovesAgain) { EXPECT_TRUE(Rest().ends_with("xwaiting\r\n")); }

TEST_F(StuckLine, ForgetsWhatWaitsWhenItIsWithdrawn) {
  m_port.Withdraw();
  EXPECT_TRUE(Rest().ends_with("x"));
  m_port.Output("next\r\n");
  EXPECT_EQ(Rest(), "next\r\n");
}

TEST_F(SerialPortOutput, LetsTheSentenceOnItsWayLeaveWholeWhenItCloses) {
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("first\r\n");
  m_port.Output("second\r\n");
  m_port.PortOpen(false);
  EXPECT_EQ(m_pty.Read(), "first\r\n");
}

TEST_F(SerialPortOutput, DropsWhatIsUnsentWhenItCloses) {
  ASSERT_TRUE(m_port.PortOpen(true));
  for (int i = 0; i < 5000; ++i) {
    m_port.Output("an old sentence of some length, number " + std::to_string(i) + "\r\n");
    QCoreApplication::processEvents();
  }
  m_port.PortOpen(false);
  m_pty.Read();
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("new\r\n");
  std::string sent;
  ASSERT_TRUE(Await([&] { return (sent += m_pty.Read()).size() >= 5; }));
  EXPECT_EQ(sent, "new\r\n");
}

}  // namespace
}  // namespace veerwatch
