// Line errors that the driver counts.

#include <memory>
#include <optional>

#include "tests/ui/serial/SerialPortQtFixture.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Counters that a test turns by hand.
class HandCounters : public LineErrorCounters {
 public:
  explicit HandCounters(LineErrorCounts& counts) : m_counts(counts) {}
  std::optional<LineErrorCounts> Read() override { return m_counts; }

 private:
  LineErrorCounts& m_counts;
};

Endpoint Device(const Pty& pty) {
  Endpoint device;
  device.Path = pty.Device();
  return device;
}

class SerialPortLineErrors : public SerialPortQtTest {
 protected:
  SerialPortLineErrors()
      : m_counting(
            Device(m_pty), m_clock, [](std::string_view /*line*/) { return true; },
            [this](const QSerialPort&) { return std::make_unique<HandCounters>(m_counts); }),
        m_listener(m_counting) {
    m_counting.CommPort(1);
  }

  LineErrorCounts m_counts{.Break = 3, .Frame = 1, .Overrun = 4, .Parity = 1, .BufferOverrun = 5};
  SerialPortQt m_counting;
  PortOwner m_listener;
};

TEST_F(SerialPortLineErrors, AreRaisedWhenAskedFor) {
  ASSERT_TRUE(m_counting.PortOpen(true));
  m_counting.PollLineErrors();
  EXPECT_THAT(m_listener.Codes, IsEmpty());
  m_counts.Frame += 2;
  m_counting.PollLineErrors();
  EXPECT_THAT(m_listener.Codes, ElementsAre(CommEvent::kFrame));
  m_counting.PollLineErrors();
  EXPECT_THAT(m_listener.Codes, ElementsAre(CommEvent::kFrame));
}

TEST_F(SerialPortLineErrors, AreRaisedAfterAReceiveEvent) {
  ASSERT_TRUE(m_counting.PortOpen(true));
  ++m_counts.Break;
  ++m_counts.BufferOverrun;
  m_pty.Write("x");
  ASSERT_TRUE(Await([&] { return m_listener.Codes.size() >= 3; }));
  EXPECT_THAT(m_listener.Codes, ElementsAre(CommEvent::kReceive, CommEvent::kBreak, CommEvent::kRxOver));
}

TEST_F(SerialPortLineErrors, OfTheTimeWhenThePortWasClosedAreNotRaised) {
  ASSERT_TRUE(m_counting.PortOpen(true));
  m_counting.PortOpen(false);
  ++m_counts.Overrun;
  m_counting.PollLineErrors();
  ASSERT_TRUE(m_counting.PortOpen(true));
  m_counting.PollLineErrors();
  EXPECT_THAT(m_listener.Codes, IsEmpty());
  ++m_counts.Parity;
  m_counting.PollLineErrors();
  EXPECT_THAT(m_listener.Codes, ElementsAre(CommEvent::kRxParity));
}

}  // namespace
}  // namespace veerwatch
