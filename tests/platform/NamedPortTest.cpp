#include "platform/NamedPort.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/MemoryEndpoint.h"
#include "tests/support/PortOwner.h"

namespace veerwatch {
namespace {

class NamedPortTest : public testing::Test {
 protected:
  NamedPortTest() {
    Name(1, "/dev/a");
    m_port.CommPort(1);
  }
  void Name(int number, const char* text) {
    m_profile.ProfileSet("Ports", std::to_string(number), std::string_view(text));
  }
  MemoryEndpoint& At(const std::string& text) { return *m_made.at(text); }
  /// Lets text arrive at an endpoint, and the event loop come round.
  void Arrive(const std::string& at, const std::string& text) {
    At(at).Arrive(text);
    At(at).Turn();
  }

  HandClock m_clock;
  Profile m_profile;
  std::map<std::string, MemoryEndpoint*> m_made;  ///< the latest of each text
  int m_count = 0;                                ///< made so far
  std::map<std::string, std::string> m_failures;  ///< of those that do not open
  NamedPort m_port{m_profile,
                   [this](const Endpoint& endpoint) {
                     auto port = std::make_unique<MemoryEndpoint>(m_clock);
                     port->Failure = m_failures[endpoint.Text];
                     m_made[endpoint.Text] = port.get();
                     ++m_count;
                     return port;
                   },
                   [](const std::string& /*path*/) { return false; }};
  PortOwner m_owner{m_port};
};

TEST_F(NamedPortTest, PassesTheBytesOfOneEndpointThroughAsTheyAre) {
  ASSERT_TRUE(m_port.PortOpen(true));
  Arrive("/dev/a", "half a li");
  EXPECT_EQ(m_owner.Text, "half a li");
  m_port.Output("$1\r\n");
  EXPECT_EQ(At("/dev/a").Heard, "$1\r\n");
  EXPECT_EQ(m_port.Sent(), 1U);
}

TEST_F(NamedPortTest, MergesTheLinesOfSeveralWhole) {
  Name(1, "/dev/a, /dev/b");
  ASSERT_TRUE(m_port.PortOpen(true));
  Arrive("/dev/a", "$A,be");
  Arrive("/dev/b", "$B\r\n");
  EXPECT_EQ(m_owner.Text, "$B\r");
  Arrive("/dev/a", "gun\r\n$A2\r");
  EXPECT_EQ(m_owner.Text, "$B\r$A,begun\r$A2\r");
}

TEST_F(NamedPortTest, SaysWhichEndpointItsInputCameFrom) {
  std::vector<std::pair<int, std::string>> heard;
  m_owner.Handle = [&] {
    std::string text;
    m_port.Input(text);
    heard.emplace_back(m_port.InputFrom(), text);
  };
  ASSERT_TRUE(m_port.PortOpen(true));
  Arrive("/dev/a", "$A\r");
  m_port.PortOpen(false);
  Name(1, "/dev/a, /dev/b");
  ASSERT_TRUE(m_port.PortOpen(true));
  At("/dev/b").Arrive("$B\r");
  At("/dev/a").Arrive("$A\r");
  At("/dev/b").Turn();
  At("/dev/a").Turn();
  using From = std::pair<int, std::string>;
  EXPECT_THAT(heard, testing::ElementsAre(From(0, "$A\r"), From(2, "$B\r"), From(1, "$A\r")));
}

TEST_F(NamedPortTest, GivesWhatWaitsOutsideAnEventToo) {
  Name(1, "/dev/a, /dev/b");
  ASSERT_TRUE(m_port.PortOpen(true));
  At("/dev/b").Arrive("$B\r");
  std::string text;
  m_port.Input(text);
  EXPECT_EQ(text, "$B\r");
  EXPECT_EQ(m_port.InputFrom(), 2);
}

TEST_F(NamedPortTest, CutsALineWithoutAnEnd) {
  Name(1, "/dev/a, /dev/b");
  ASSERT_TRUE(m_port.PortOpen(true));
  Arrive("/dev/a", std::string(6000, 'x') + "\r$A\r");
  EXPECT_EQ(m_owner.Text, std::string(5000, 'x') + "\r$A\r");
}

TEST_F(NamedPortTest, SendsToEach) {
  Name(1, "/dev/a, /dev/b");
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("$1\r\n");
  EXPECT_EQ(At("/dev/a").Heard, "$1\r\n");
  EXPECT_EQ(At("/dev/b").Heard, "$1\r\n");
  EXPECT_EQ(m_port.Sent(), 1U) << "one bundle, however many hear it";
}

TEST_F(NamedPortTest, CarriesWhatItsSlowestLineDoes) {
  Name(1, "/dev/a, /dev/b, /dev/c");
  EXPECT_EQ(m_port.BaudRate(), std::nullopt);
  ASSERT_TRUE(m_port.PortOpen(true));
  EXPECT_EQ(m_port.BaudRate(), std::nullopt);
  At("/dev/b").Rate = 38400;
  EXPECT_EQ(m_port.BaudRate(), 38400);
  At("/dev/c").Rate = 4800;
  EXPECT_EQ(m_port.BaudRate(), 4800);
}

TEST_F(NamedPortTest, IsOpenWhileOneOfSeveralIs) {
  Name(1, "/dev/a, /dev/b");
  m_failures["/dev/b"] = "/dev/b: no such device";
  ASSERT_TRUE(m_port.PortOpen(true));
  EXPECT_EQ(m_port.OpenFailure(), "");
  EXPECT_EQ(m_port.Trouble(), "/dev/b: no such device");
  At("/dev/b").Failure = "";
  for (int second = 0; second < 4; ++second) {
    m_port.PollLineErrors();
  }
  EXPECT_EQ(m_port.Trouble(), "");
  Arrive("/dev/b", "$B\r");
  EXPECT_EQ(m_owner.Text, "$B\r");
  At("/dev/a").Fail();
  At("/dev/a").Turn();
  EXPECT_EQ(m_owner.Lost, 0);
  At("/dev/b").Fail();
  At("/dev/b").Turn();
  EXPECT_EQ(m_owner.Lost, 1);
  EXPECT_FALSE(m_port.PortOpen());
}

TEST_F(NamedPortTest, ForgetsHalfALineOfOneThatWasLost) {
  Name(1, "/dev/a, /dev/b");
  ASSERT_TRUE(m_port.PortOpen(true));
  Arrive("/dev/a", "$ha");
  At("/dev/a").Fail();
  At("/dev/a").Turn();
  for (int second = 0; second < 4; ++second) {
    m_port.PollLineErrors();
  }
  Arrive("/dev/a", "$whole\r");
  EXPECT_EQ(m_owner.Text, "$whole\r");
}

TEST_F(NamedPortTest, SaysWhatIsWrongWithItsText) {
  Name(1, "tcp://boat:x");
  EXPECT_FALSE(m_port.PortOpen(true));
  EXPECT_EQ(m_port.OpenFailure(), "tcp://boat:x: \"x\" is no port (1 to 65535)");
  EXPECT_EQ(m_count, 0);
  Name(1, "/dev/a");
  EXPECT_TRUE(m_port.PortOpen(true));
  EXPECT_EQ(m_port.OpenFailure(), "");
}

TEST_F(NamedPortTest, TakesWhatTheProfileNamesWhenItIsOpened) {
  ASSERT_TRUE(m_port.PortOpen(true));
  m_port.Output("$1\r\n");
  Name(1, "/dev/b");
  m_port.PortOpen(false);
  ASSERT_TRUE(m_port.PortOpen(true));
  EXPECT_EQ(m_count, 2);
  m_port.Output("$2\r\n");
  EXPECT_EQ(At("/dev/b").Heard, "$2\r\n");
  EXPECT_EQ(m_port.Sent(), 2U) << "those of before count";
  m_port.PortOpen(false);
  ASSERT_TRUE(m_port.PortOpen(true));
  EXPECT_EQ(m_count, 2) << "the same text, the same endpoint";
}

TEST_F(NamedPortTest, MayBeOpenedAnewFromInsideAnEvent) {
  ASSERT_TRUE(m_port.PortOpen(true));
  m_owner.Handle = [&] {
    m_owner.Handle = nullptr;
    m_port.PortOpen(false);
    Name(1, "/dev/b");
    EXPECT_TRUE(m_port.PortOpen(true));
  };
  Arrive("/dev/a", "$A\r");
  Arrive("/dev/b", "$B\r");
  EXPECT_EQ(m_owner.Text, "$B\r");
}

}  // namespace
}  // namespace veerwatch
