// An input that falls silent, and a port that does not open.

#include "tests/nmea/NmeaReceiverFixture.h"
#include "tests/support/Origins.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

using NmeaWatchdog = NmeaReceiverTest;

// --- The watchdog
// ------------------------------------------------------------------------------------------------

TEST_F(NmeaWatchdog, FourSilentTicksAreReportedAndWithdrawnAtTheFirstTickAfterNewData) {
  Start();
  EXPECT_THAT(Watch(6), ElementsAre("|Running", "|Running", "|Running", "No Input Data|No Input Data",
                                    "No Input Data|No Input Data", "No Input Data|No Input Data"));
  Receive("$");
  EXPECT_EQ(m_view.InputStatus, "");  // blanked by the event itself
  EXPECT_EQ(m_view.InputState, "No Input Data");
  EXPECT_THAT(Watch(4), ElementsAre("|Running", "|Running", "|Running", "No Input Data|No Input Data"));
}

TEST_F(NmeaWatchdog, TheReportIsRepeatedAtEveryFurtherTick) {
  Start();
  m_timer.Tick(4);
  m_port.Raise(1004);
  EXPECT_EQ(m_view.InputStatus, "Framing Error");
  m_timer.Tick();
  EXPECT_EQ(m_view.InputStatus, "No Input Data");
}

TEST_F(NmeaWatchdog, DataEveryThirdTickKeepsTheWatchdogQuiet) {
  Start();
  for (int i = 0; i < 10; ++i) {
    EXPECT_THAT(Watch(3), ElementsAre("|Running", "|Running", "|Running"));
    Receive("$");
  }
}

TEST_F(NmeaWatchdog, ALineErrorIsNoData) {
  Start();
  m_timer.Tick(3);
  m_port.Raise(1004);
  m_timer.Tick();
  EXPECT_EQ(m_view.InputStatus, "No Input Data");
}

TEST_F(NmeaWatchdog, ATickDoesNotWithdrawAnotherText) {
  Start();
  Receive("bad\r");
  m_timer.Tick();
  EXPECT_EQ(m_view.InputStatus, "Sentence Error");
}

TEST_F(NmeaWatchdog, AStartBeginsTheWatchAnew) {
  Start();
  m_timer.Tick(3);
  m_receiver.NmeaStart();
  EXPECT_THAT(Watch(4), ElementsAre("|Running", "|Running", "|Running", "No Input Data|No Input Data"));
}

TEST_F(NmeaWatchdog, AStoppedInputIsNotWatched) {
  Start();
  m_timer.Tick(3);
  m_receiver.NmeaStop();
  m_timer.Tick(10);
  EXPECT_EQ(m_view.InputState, "Stopped");
  EXPECT_EQ(m_view.InputStatus, "");
}

TEST_F(NmeaWatchdog, ATickAsksTheDriverForLineErrors) {
  Start();
  m_port.LineErrorsWaiting = {1004};
  m_timer.Tick();
  EXPECT_EQ(m_port.Polls, 1);
  EXPECT_EQ(m_view.InputStatus, "Framing Error");
}

// --- A port that does not open
// -----------------------------------------------------------------------------------

TEST_F(NmeaWatchdog, APortThatDoesNotOpenIsShownUntilTheWatchdogSpeaks) {
  m_port.OpensOtherwise = false;
  m_settings.m_iNmeaPort = 7;
  EXPECT_TRUE(m_receiver.NmeaStart());
  EXPECT_TRUE(m_receiver.Started());
  EXPECT_EQ(m_view.InputStatus, "Input Port 7 Not Open");
  EXPECT_THAT(Watch(4), ElementsAre("Input Port 7 Not Open|Running", "Input Port 7 Not Open|Running",
                                    "Input Port 7 Not Open|Running", "No Input Data|No Input Data"));
}

TEST_F(NmeaWatchdog, APortThatDidNotOpenIsTriedAgainAtEveryFourthTickWithThePresentNumber) {
  m_port.OpensOtherwise = false;
  m_receiver.NmeaStart();
  std::vector<std::size_t> tries;
  for (int i = 0; i < 8; ++i) {
    m_settings.m_iNmeaPort = static_cast<std::int16_t>(11 + i);
    m_timer.Tick();
    tries.push_back(m_port.OpenedNumbers.size());
  }
  EXPECT_THAT(tries, ElementsAre(1U, 1U, 1U, 2U, 2U, 2U, 2U, 3U));
  EXPECT_THAT(m_port.OpenedNumbers, ElementsAre(5, 14, 18));
}

TEST_F(NmeaWatchdog, APortThatOpensAtLastReceivesAndTheRecordStays) {
  m_port.OpenResults = {false, false};
  m_receiver.NmeaStart();
  m_record.HeadingUpdate(77.0F, kOrigin);
  m_timer.Tick(7);
  EXPECT_FALSE(m_port.PortOpen());
  m_timer.Tick();
  EXPECT_TRUE(m_port.PortOpen());
  EXPECT_TRUE(Data().HeadingValid);
  EXPECT_EQ(Data().Heading, 77.0F);
  ReceiveSentence(kApparent);
  EXPECT_TRUE(Data().WindApparentValid);
  m_timer.Tick();
  EXPECT_EQ(m_view.InputStatus, "");
  EXPECT_EQ(m_view.InputState, "Running");
}

TEST_F(NmeaWatchdog, AStoppedPortIsNotTriedAgain) {
  m_port.OpensOtherwise = false;
  m_receiver.NmeaStart();
  m_receiver.NmeaStop();
  m_receiver.Tick();
  m_receiver.Tick();
  m_receiver.Tick();
  m_receiver.Tick();
  EXPECT_EQ(m_port.OpenedNumbers.size(), 1U);
}

TEST_F(NmeaWatchdog, APortThatIsLostIsShownAndOpenedAgainWithAnEmptyLineBuffer) {
  Start();
  m_record.HeadingUpdate(77.0F, kOrigin);
  Receive("$IIMWV,045,R");
  m_port.Lose();
  EXPECT_EQ(m_view.InputStatus, "Input Port 5 Not Open");
  m_timer.Tick(4);
  ASSERT_TRUE(m_port.PortOpen());
  EXPECT_EQ(m_receiver.LineBuffer(), "");
  EXPECT_TRUE(Data().HeadingValid);
  ReceiveSentence(kApparent);
  EXPECT_TRUE(Data().WindApparentValid);
  EXPECT_EQ(m_view.Count("OnNmeaError"), 0U);
}

TEST_F(NmeaWatchdog, AnOpenPortIsNotOpenedAgain) {
  Start();
  m_timer.Tick(20);
  EXPECT_EQ(m_port.OpenedNumbers.size(), 1U);
}

}  // namespace
}  // namespace veerwatch
