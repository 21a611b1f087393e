#include "pilot/PilotOutput.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "tests/support/RecordingView.h"
#include "tests/support/ScriptedPort.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PilotOutputTest : public testing::Test {
 protected:
  PilotOutputTest() {
    m_settings.m_iNmeaPort = 5;
    m_settings.m_iPilotPort = 6;
  }

  static std::string Sentence(const std::string& bearing) {
    return WithChecksum("$ECAPB,A,A,0.00,R,N,V,V," + bearing + ",M,1," + bearing + ",M," + bearing + ",M");
  }

  Settings m_settings;
  RecordingView m_view;
  ScriptedPort m_nmeaPort;
  ScriptedPort m_pilotPort;
  PilotOutput m_pilot{m_settings, m_nmeaPort, m_pilotPort, m_view};
};

TEST_F(PilotOutputTest, AStartOpensThePilotPortAndRuns) {
  m_pilot.PilotStart();
  EXPECT_TRUE(m_pilotPort.PortOpen());
  EXPECT_THAT(m_pilotPort.OpenedNumbers, ElementsAre(6));
  EXPECT_EQ(m_view.OutputStatus, "");
  EXPECT_EQ(m_view.OutputState, "Running");
}

TEST_F(PilotOutputTest, AStartWithThePortOpenLeavesItOpen) {
  m_pilot.PilotStart();
  m_pilot.PilotStart();
  EXPECT_THAT(m_pilotPort.OpenedNumbers, ElementsAre(6));
}

TEST_F(PilotOutputTest, AStartWithEqualNumbersOpensNothing) {
  m_settings.m_iPilotPort = 5;
  m_pilot.PilotStart();
  EXPECT_THAT(m_pilotPort.OpenedNumbers, IsEmpty());
  EXPECT_THAT(m_nmeaPort.OpenedNumbers, IsEmpty());
  EXPECT_EQ(m_view.OutputState, "Running");
}

TEST_F(PilotOutputTest, AStartWhileSimulatingOpensNothing) {
  m_settings.m_bSimulate = true;
  m_pilot.PilotStart();
  EXPECT_THAT(m_pilotPort.OpenedNumbers, IsEmpty());
  EXPECT_EQ(m_view.OutputStatus, "Simulate");
  EXPECT_EQ(m_view.OutputState, "Simulate");
}

TEST_F(PilotOutputTest, AStartEmptiesThePanel) {
  m_pilot.OnComm(1004);
  m_pilot.PilotStart();
  EXPECT_EQ(m_view.OutputStatus, "");
}

TEST_F(PilotOutputTest, AReleaseForgetsWhatWaitsOnEitherPort) {
  m_pilot.PilotStart();
  EXPECT_EQ(m_pilotPort.Withdrawals, 0) << "a sentence of the mode before is still meant";
  m_pilot.PilotRelease();
  EXPECT_EQ(m_pilotPort.Withdrawals, 1);
  EXPECT_EQ(m_nmeaPort.Withdrawals, 1);
  EXPECT_TRUE(m_pilotPort.PortOpen());
}

TEST_F(PilotOutputTest, AStopClosesThePilotPort) {
  m_pilot.PilotStart();
  m_pilot.PilotStop();
  EXPECT_FALSE(m_pilotPort.PortOpen());
}

TEST_F(PilotOutputTest, AStopLeavesTheInstrumentPortAlone) {
  m_nmeaPort.PortOpen(true);
  m_pilot.PilotStart();
  m_pilot.PilotStop();
  EXPECT_TRUE(m_nmeaPort.PortOpen());
}

// --- Sending
// -----------------------------------------------------------------------------------------------------

TEST_F(PilotOutputTest, ASentenceLeavesWholeOnThePilotPort) {
  m_nmeaPort.PortOpen(true);
  m_pilot.PilotStart();
  EXPECT_EQ(m_pilot.PilotSend(245.0F), Sentence("245.0"));
  EXPECT_THAT(m_pilotPort.Written, ElementsAre(Sentence("245.0") + "\r\n"));
  EXPECT_THAT(m_nmeaPort.Written, IsEmpty());
}

TEST_F(PilotOutputTest, ASevenAndAHalfIsSentWithItsLeadingZeros) {
  m_pilot.PilotStart();
  m_pilot.PilotSend(7.5F);
  EXPECT_THAT(m_pilotPort.Written, ElementsAre(Sentence("007.5") + "\r\n"));
}

TEST_F(PilotOutputTest, WithEqualNumbersTheInstrumentPortTakesTheSentenceAndThePilotPortStaysClosed) {
  m_settings.m_iPilotPort = 5;
  m_nmeaPort.PortOpen(true);
  m_pilot.PilotStart();
  m_pilot.PilotSend(245.0F);
  EXPECT_THAT(m_nmeaPort.Written, ElementsAre(Sentence("245.0") + "\r\n"));
  EXPECT_THAT(m_pilotPort.OpenedNumbers, IsEmpty());
  EXPECT_THAT(m_pilotPort.Written, IsEmpty());
}

TEST_F(PilotOutputTest, WithDifferentNumbersAClosedPilotPortIsNotReplacedByTheInstrumentPort) {
  m_nmeaPort.PortOpen(true);
  EXPECT_EQ(m_pilot.PilotSend(245.0F), Sentence("245.0"));
  EXPECT_THAT(m_nmeaPort.Written, IsEmpty());
  EXPECT_THAT(m_pilotPort.Written, IsEmpty());
}

TEST_F(PilotOutputTest, WithEqualNumbersAPilotPortThatIsStillOpenTakesNothing) {
  m_pilot.PilotStart();
  m_settings.m_iPilotPort = 5;
  m_pilot.PilotSend(245.0F);
  EXPECT_THAT(m_pilotPort.Written, IsEmpty());
}

TEST_F(PilotOutputTest, WithBothPortsClosedTheSentenceIsBuiltAndGoesNowhere) {
  for (const std::int16_t number : {std::int16_t{5}, std::int16_t{6}}) {
    m_settings.m_iPilotPort = number;
    EXPECT_EQ(m_pilot.PilotSend(245.0F), Sentence("245.0"));
    EXPECT_THAT(m_view.Calls, IsEmpty());
  }
  EXPECT_EQ(m_nmeaPort.OutputWhileClosed + m_pilotPort.OutputWhileClosed, 0);
}

TEST_F(PilotOutputTest, ABearingThatIsNotFiniteIsNeverSent) {
  m_pilot.PilotStart();
  m_view.Take();
  for (const float bearing : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                              -std::numeric_limits<float>::infinity()}) {
    EXPECT_EQ(m_pilot.PilotSend(bearing), "");
  }
  EXPECT_THAT(m_pilotPort.Written, IsEmpty());
  EXPECT_THAT(m_view.Calls, IsEmpty());
}

TEST_F(PilotOutputTest, EachSentenceIsHandedOverInOnePiece) {
  m_pilot.PilotStart();
  for (int i = 0; i < 5; ++i) {
    m_pilot.PilotSend(static_cast<float>(100 + i));
  }
  ASSERT_EQ(m_pilotPort.Written.size(), 5U);
  EXPECT_EQ(m_pilotPort.Written.back(), Sentence("104.0") + "\r\n");
}

// --- Events
// ------------------------------------------------------------------------------------------------------

TEST_F(PilotOutputTest, EventsOfThePilotPortAreShownOnThePanel) {
  m_pilot.PilotStart();
  for (const auto& [code, text] : std::vector<std::pair<int, std::string>>{{1001, "Break Signal Received"},
                                                                           {1004, "Framing Error"},
                                                                           {1006, "Port Overrun"},
                                                                           {1008, "Rx Overflow"},
                                                                           {1009, "Parity Error"},
                                                                           {2, "Receive Error"},
                                                                           {1010, "Event 1010"}}) {
    m_pilotPort.Raise(code);
    EXPECT_EQ(m_view.OutputStatus, text);
  }
}

TEST_F(PilotOutputTest, CharactersFromThePilotAreReadOffAndDropped) {
  m_pilot.PilotStart();
  m_view.Take();
  m_pilotPort.Receive("$IIMWV,045,R,10.5,N,A\r");
  EXPECT_EQ(m_pilotPort.Waiting, "");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnOutputStatus Receive Error"));
}

TEST_F(PilotOutputTest, ATickAsksTheDriverForLineErrors) {
  m_pilot.PilotStart();
  m_pilotPort.LineErrorsWaiting = {1009};
  m_pilot.Tick();
  EXPECT_EQ(m_view.OutputStatus, "Parity Error");
}

// --- A port that does not open
// -----------------------------------------------------------------------------------

TEST_F(PilotOutputTest, APortThatDoesNotOpenIsShown) {
  m_pilotPort.OpensOtherwise = false;
  m_pilot.PilotStart();
  EXPECT_EQ(m_view.OutputStatus, "Output Port 6 Not Open");
}

TEST_F(PilotOutputTest, APortThatDidNotOpenIsTriedAgainAtEveryFourthTickWithThePresentNumber) {
  m_pilotPort.OpensOtherwise = false;
  m_pilot.PilotStart();
  std::vector<std::size_t> tries;
  for (int i = 0; i < 8; ++i) {
    m_settings.m_iPilotPort = static_cast<std::int16_t>(11 + i);
    m_pilot.Tick();
    tries.push_back(m_pilotPort.OpenedNumbers.size());
  }
  EXPECT_THAT(tries, ElementsAre(1U, 1U, 1U, 2U, 2U, 2U, 2U, 3U));
  EXPECT_THAT(m_pilotPort.OpenedNumbers, ElementsAre(6, 14, 18));
}

TEST_F(PilotOutputTest, APortThatOpensAtLastSendsAndItsTextIsWithdrawn) {
  m_pilotPort.OpenResults = {false, false};
  m_pilot.PilotStart();
  for (int i = 0; i < 8; ++i) {
    m_pilot.Tick();
  }
  EXPECT_TRUE(m_pilotPort.PortOpen());
  EXPECT_EQ(m_view.OutputStatus, "");
  m_pilot.PilotSend(245.0F);
  EXPECT_EQ(m_pilotPort.Written.size(), 1U);
}

TEST_F(PilotOutputTest, APortThatIsLostIsShownAndOpenedAgain) {
  m_pilot.PilotStart();
  m_pilotPort.Lose();
  EXPECT_EQ(m_view.OutputStatus, "Output Port 6 Not Open");
  for (int i = 0; i < 4; ++i) {
    m_pilot.Tick();
  }
  EXPECT_TRUE(m_pilotPort.PortOpen());
  EXPECT_EQ(m_view.OutputStatus, "");
}

TEST_F(PilotOutputTest, AStoppedPortIsNotTriedAgain) {
  m_pilotPort.OpensOtherwise = false;
  m_pilot.PilotStart();
  m_pilot.PilotStop();
  for (int i = 0; i < 8; ++i) {
    m_pilot.Tick();
  }
  EXPECT_EQ(m_pilotPort.OpenedNumbers.size(), 1U);
}

TEST_F(PilotOutputTest, ATickLeavesADeviceToTheInstruments) {
  m_pilot.PilotStart();
  m_settings.m_iNmeaPort = 6;
  m_settings.m_iPilotPort = 7;
  m_pilot.Tick();
  EXPECT_FALSE(m_pilotPort.PortOpen());
  for (int i = 0; i < 3; ++i) {
    m_pilot.Tick();
  }
  EXPECT_TRUE(m_pilotPort.PortOpen());
  EXPECT_THAT(m_pilotPort.OpenedNumbers, ElementsAre(6, 7));
}

TEST_F(PilotOutputTest, ATickWithdrawsTheTextOfAPortThatIsNotNeededAnyMore) {
  m_pilotPort.OpensOtherwise = false;
  m_pilot.PilotStart();
  EXPECT_EQ(m_view.OutputStatus, "Output Port 6 Not Open");
  m_settings.m_iPilotPort = 5;
  m_pilot.Tick();
  EXPECT_EQ(m_view.OutputStatus, "");
}

TEST_F(PilotOutputTest, WithEqualNumbersNoTickOpensThePilotPort) {
  m_settings.m_iPilotPort = 5;
  m_pilot.PilotStart();
  for (int i = 0; i < 8; ++i) {
    m_pilot.Tick();
  }
  EXPECT_THAT(m_pilotPort.OpenedNumbers, IsEmpty());
  EXPECT_EQ(m_view.OutputStatus, "");
}

TEST_F(PilotOutputTest, CountsWhatHasLeftForThePilot) {
  m_pilot.PilotSend(10.0F);
  EXPECT_EQ(m_pilot.Sent(), 0U) << "no port is open";
  EXPECT_FALSE(m_pilot.Open());
  m_pilot.PilotStart();
  EXPECT_TRUE(m_pilot.Open());
  m_pilot.PilotSend(10.0F);
  EXPECT_EQ(m_pilot.Sent(), 1U);
  m_pilotPort.Stuck = true;
  m_pilot.PilotSend(20.0F);
  EXPECT_EQ(m_pilot.Sent(), 1U) << "it waits";
  m_pilotPort.Lose();
  m_pilot.PilotSend(20.0F);
  EXPECT_EQ(m_pilot.Sent(), 1U);
  EXPECT_FALSE(m_pilot.Open());
}

TEST_F(PilotOutputTest, CountsOnOnePortForBothWaysToo) {
  m_settings.m_iPilotPort = 5;
  m_pilot.PilotStart();
  EXPECT_FALSE(m_pilot.Open());
  m_nmeaPort.PortOpen(true);
  EXPECT_TRUE(m_pilot.Open());
  m_pilot.PilotSend(10.0F);
  EXPECT_EQ(m_pilot.Sent(), 1U);
}

TEST_F(PilotOutputTest, CountsWhatIsBuiltForTheSimulatedBoat) {
  m_settings.m_bSimulate = true;
  m_pilot.PilotStart();
  m_pilot.PilotSend(10.0F);
  EXPECT_EQ(m_pilot.Sent(), 1U);
  EXPECT_TRUE(m_pilot.Open());
}

TEST_F(PilotOutputTest, SaysWhatTheLineOfItsSentencesCarries) {
  m_nmeaPort.Rate = 38400;
  EXPECT_EQ(m_pilot.BaudRate(), 4800);
  m_pilotPort.Rate.reset();
  EXPECT_EQ(m_pilot.BaudRate(), std::nullopt);
  m_settings.m_iPilotPort = 5;
  EXPECT_EQ(m_pilot.BaudRate(), 38400) << "one port for both ways";
}

TEST_F(PilotOutputTest, TellsEachSecondWhatAnOpenPortComplainsOf) {
  m_pilot.PilotStart();
  m_view.Take();
  m_pilotPort.Complaint = "tcp://boat:10110: connection refused, next try in 4 s";
  m_pilot.Tick();
  m_pilot.Tick();
  EXPECT_THAT(m_view.Only({"OnOutputFailure"}), ElementsAre("OnOutputFailure " + m_pilotPort.Complaint));
}

}  // namespace
}  // namespace veerwatch
