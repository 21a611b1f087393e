#include "log/LogPortQt.h"

#include <gmock/gmock.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/ui/serial/SocketFixture.h"

namespace veerwatch {
namespace {

class LogPort : public testing::Test {
 protected:
  /// Opens a log that holds `text`.
  bool Open(const std::string& text, const std::string& options = "") {
    WriteFile(m_folder / "a.log", text);
    m_port =
        std::make_unique<LogPortQt>(EndpointOf("file://" + (m_folder / "a.log").string() + options), m_clock);
    m_owner = std::make_unique<PortOwner>(*m_port);
    return m_port->PortOpen(true);
  }
  bool Reads(const std::string& text) {
    return TurnUntil([&] { return m_owner->Text == text; });
  }

  TemporaryFolder m_folder;
  ShiftedClock m_clock;
  std::unique_ptr<LogPortQt> m_port;
  std::unique_ptr<PortOwner> m_owner;
};

TEST_F(LogPort, PlaysItsLinesAtTheirTimes) {
  ASSERT_TRUE(Open("1795252502.0 $A\n1795252502.3 $B\r\n1795252602.0 $C\n"));
  ASSERT_TRUE(TurnUntil([&] { return m_owner->Text.starts_with("$A\r\n"); }));
  EXPECT_TRUE(Reads("$A\r\n$B\r\n"));
  QTest::qWait(100);
  EXPECT_EQ(m_owner->Text, "$A\r\n$B\r\n") << "the last one is a hundred seconds later";
}

TEST_F(LogPort, SaysThatItIsAtItsEnd) {
  ASSERT_TRUE(Open("$A\n$B", "?interval=0.01"));
  EXPECT_TRUE(Reads("$A\r\n$B\r\n"));
  EXPECT_TRUE(m_port->PortOpen());
  EXPECT_TRUE(m_port->Trouble().ends_with(": the log is at its end")) << m_port->Trouble();
}

TEST_F(LogPort, BeginsAgainWhereItIsTo) {
  ASSERT_TRUE(Open("$A\n$B\n", "?interval=0.01&loop"));
  EXPECT_TRUE(Reads("$A\r\n$B\r\n$A\r\n$B\r\n"));
  EXPECT_EQ(m_port->Trouble(), "");
}

TEST_F(LogPort, AnEmptyLogDoesNotBeginAgainForEver) {
  ASSERT_TRUE(Open("", "?loop"));
  QTest::qWait(50);
  EXPECT_EQ(m_owner->Text, "");
  EXPECT_NE(m_port->Trouble(), "");
}

TEST_F(LogPort, SendsNothing) {
  ASSERT_TRUE(Open("$A\n"));
  m_port->Output("$ECAPB\r\n");
  EXPECT_EQ(m_port->Sent(), 0U);
}

TEST_F(LogPort, IsAFileAndNothingElse) {
  const std::string folder = m_folder.Path().string();
  LogPortQt none(EndpointOf("file://" + folder + "/none.log"), m_clock);
  EXPECT_FALSE(none.PortOpen(true));
  EXPECT_EQ(none.OpenFailure(), "file://" + folder + "/none.log: no such file");
  LogPortQt device(EndpointOf("file:///dev/zero"), m_clock);
  EXPECT_FALSE(device.PortOpen(true));
  EXPECT_EQ(device.OpenFailure(), "file:///dev/zero: no file");
}

TEST_F(LogPort, OfManyLinesAtOnceLosesNone) {
  std::string text;
  std::string heard;
  for (int i = 0; i < 20000; ++i) {
    text += "1795252502.0 $" + std::to_string(i) + "\n";
    heard += "$" + std::to_string(i) + "\r\n";
  }
  ASSERT_TRUE(Open(text));
  EXPECT_TRUE(TurnUntil([&] { return m_owner->Text.size() >= heard.size(); }));
  EXPECT_EQ(m_owner->Text, heard);
}

}  // namespace
}  // namespace veerwatch
