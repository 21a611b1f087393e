// What a start of the reception leaves of the time before.

#include "tests/nmea/NmeaReceiverFixture.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

using NmeaRestart = NmeaReceiverTest;

TEST_F(NmeaRestart, TriesTheClosedPortAgainAtTheFourthTickFromTheStart) {
  m_port.OpensOtherwise = false;
  m_settings.m_iNmeaPort = 5;
  Start();
  m_timer.Tick(3);
  Start();
  EXPECT_THAT(m_port.OpenedNumbers, ElementsAre(5, 5)) << "at each start";
  m_timer.Tick(3);
  EXPECT_THAT(m_port.OpenedNumbers, ElementsAre(5, 5));
  m_timer.Tick();
  EXPECT_THAT(m_port.OpenedNumbers, ElementsAre(5, 5, 5));
}

TEST_F(NmeaRestart, WithdrawsTheTextThatStands) {
  Start();
  m_port.Raise(CommEvent::kFrame);
  ASSERT_EQ(m_view.InputStatus, "Framing Error");
  Start();
  EXPECT_EQ(m_view.InputStatus, "");
}

}  // namespace
}  // namespace veerwatch
