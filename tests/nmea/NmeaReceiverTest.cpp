#include "nmea/NmeaReceiver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/HandTimer.h"
#include "tests/support/RecordFault.h"
#include "tests/support/RecordingView.h"
#include "tests/support/ScriptedPort.h"
#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NmeaReceiverTest : public testing::Test, private FollowUp {
 protected:
  NmeaReceiverTest() {
    m_settings.m_fNmeaTrueWindAverage = 0.0F;
    m_settings.m_iNmeaTrueWind = 0;
  }

  void Start() {
    m_receiver.NmeaStart();
    m_view.Take();
  }

  void Receive(std::string_view bytes) { m_port.Receive(bytes); }
  /// One good sentence.
  void ReceiveSentence(std::string_view body) { Receive(WithChecksum(body) + "\r\n"); }
  const InstrumentData& Data() const { return m_record.Data(); }

  /// Status and state after each of `ticks` ticks.
  std::vector<std::string> Watch(int ticks) {
    std::vector<std::string> seen;
    for (int i = 0; i < ticks; ++i) {
      m_timer.Tick();
      seen.push_back(m_view.InputStatus + "|" + m_view.InputState);
    }
    return seen;
  }

  Settings m_settings;
  RecordingView m_view;
  InstrumentRecord m_record{m_settings, m_view};
  ScriptedPort m_port;
  HandTimer m_timer;
  NmeaReceiver m_receiver{m_settings, m_port, m_timer, m_record, *this, m_view};

  void SetUp() override {
    m_timer.OnTick = [this] { m_receiver.Tick(); };
  }

 private:
  void ControlStep() override { m_view.Calls.emplace_back("ControlStep"); }
  void PolarUpdate() override { m_view.Calls.emplace_back("PolarUpdate"); }
};

constexpr std::string_view kApparent = "$IIMWV,045,R,10.5,N,A";
constexpr std::string_view kTrue = "$IIMWV,060,T,9.5,N,A";

// --- Start and stop
// ----------------------------------------------------------------------------------------------

TEST_F(NmeaReceiverTest, StartsTheTimerAndOpensThePortWithItsPresentNumber) {
  m_settings.m_iNmeaPort = 7;
  EXPECT_TRUE(m_receiver.NmeaStart());
  EXPECT_TRUE(m_receiver.Started());
  EXPECT_TRUE(m_timer.Enabled());
  EXPECT_TRUE(m_port.PortOpen());
  EXPECT_THAT(m_port.OpenedNumbers, ElementsAre(7));
  EXPECT_EQ(m_view.InputStatus, "");
  EXPECT_EQ(m_view.InputState, "Running");
}

TEST_F(NmeaReceiverTest, AStartClearsTheListAndTheRecordsFlags) {
  m_record.HeadingUpdate(10.0F);
  m_record.BoatSpeedUpdate(10.0F);
  m_record.VariationUpdate(3.0F);
  m_view.Take();
  m_receiver.NmeaStart();
  EXPECT_EQ(m_view.Count("OnNmeaListCleared"), 1U);
  EXPECT_EQ(m_view.Count("OnValuesBlanked"), 1U);
  EXPECT_FALSE(Data().HeadingValid);
  EXPECT_FALSE(Data().BoatSpeedValid);
  EXPECT_TRUE(Data().VariationValid);
  EXPECT_EQ(Data().Variation, 3.0F);
}

TEST_F(NmeaReceiverTest, AStartWhileSimulatingDoesNotTouchThePort) {
  m_settings.m_bSimulate = true;
  EXPECT_TRUE(m_receiver.NmeaStart());
  EXPECT_TRUE(m_timer.Enabled());
  EXPECT_THAT(m_port.OpenedNumbers, IsEmpty());
  EXPECT_EQ(m_view.InputStatus, "Simulate");
  EXPECT_EQ(m_view.InputState, "Simulate");
}

TEST_F(NmeaReceiverTest, AStartEmptiesTheLineBuffer) {
  Start();
  Receive("$IIMWV,04");
  EXPECT_EQ(m_receiver.LineBuffer(), "$IIMWV,04");
  m_receiver.NmeaStop();
  m_receiver.NmeaStart();
  EXPECT_EQ(m_receiver.LineBuffer(), "");
}

TEST_F(NmeaReceiverTest, AStartBehindAStopOpensTheNewNumber) {
  Start();
  m_settings.m_iNmeaPort = 9;
  m_receiver.NmeaStop();
  m_receiver.NmeaStart();
  EXPECT_THAT(m_port.OpenedNumbers, ElementsAre(5, 9));
}

TEST_F(NmeaReceiverTest, AStopClosesThePortAndStopsTheTimer) {
  Start();
  m_receiver.NmeaStop();
  EXPECT_FALSE(m_receiver.Started());
  EXPECT_FALSE(m_timer.Enabled());
  EXPECT_FALSE(m_port.PortOpen());
  EXPECT_EQ(m_view.InputState, "Stopped");
}

TEST_F(NmeaReceiverTest, AStopBeforeAnyStartIsTaken) {
  m_receiver.NmeaStop();
  EXPECT_EQ(m_view.InputState, "Stopped");
  EXPECT_THAT(m_port.OpenedNumbers, IsEmpty());
}

// --- Lines
// -------------------------------------------------------------------------------------------------------

TEST_F(NmeaReceiverTest, AGoodSentenceIsUsedAndListed) {
  Start();
  ReceiveSentence(kApparent);
  EXPECT_EQ(Data().WindAngleApparent, 45.0F);
  EXPECT_EQ(m_view.Calls.back(), "OnNmeaData " + WithChecksum(kApparent) + " used");
  EXPECT_EQ(m_view.Count("OnNmeaError"), 0U);
  EXPECT_EQ(m_view.InputStatus, "");
}

TEST_F(NmeaReceiverTest, TheSameSentenceWithItsChecksumInLowerCaseIsAChecksumError) {
  Start();
  std::string line = WithChecksum("$IIMWV,045,R,10.8,N,A");  // its checksum holds a letter
  ASSERT_NE(line.find_first_of("ABCDEF", line.size() - 2), std::string::npos) << line;
  Receive(line + "\r");
  EXPECT_TRUE(Data().WindApparentValid);
  m_record.Restart();
  m_view.Take();
  std::transform(line.end() - 2, line.end(), line.end() - 2,
                 [](char c) { return c >= 'A' ? char(c + 32) : c; });
  Receive(line + "\r");
  EXPECT_FALSE(Data().WindApparentValid);
  EXPECT_THAT(m_view.Calls,
              ElementsAre("OnInputStatus Checksum Error", "OnNmeaData " + line + " <<Checksum Error>> unused",
                          "OnNmeaError Checksum Error - " + line));
}

TEST_F(NmeaReceiverTest, ALineWithoutADollarIsASentenceError) {
  Start();
  Receive("IIMWV,045,R,10.5,N,A\r\n");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnInputStatus Sentence Error",
                                        "OnNmeaData IIMWV,045,R,10.5,N,A <<Sentence Error>> unused",
                                        "OnNmeaError Sentence Error - IIMWV,045,R,10.5,N,A"));
  EXPECT_FALSE(Data().WindApparentValid);
}

TEST_F(NmeaReceiverTest, AnEmptyLineIsASentenceError) {
  Start();
  Receive("\r");
  EXPECT_THAT(m_view.Calls,
              ElementsAre("OnInputStatus Sentence Error", "OnNmeaData  <<Sentence Error>> unused",
                          "OnNmeaError Sentence Error - "));
}

TEST_F(NmeaReceiverTest, AWrongChecksumIsAChecksumError) {
  Start();
  Receive("$IIMWV,045,R,10.5,N,A*00\r");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnInputStatus Checksum Error",
                                        "OnNmeaData $IIMWV,045,R,10.5,N,A*00 <<Checksum Error>> unused",
                                        "OnNmeaError Checksum Error - $IIMWV,045,R,10.5,N,A*00"));
}

TEST_F(NmeaReceiverTest, ALineWithoutAChecksumIsAccepted) {
  Start();
  Receive("$IIMWV,045,R,10.5,N,A\r");
  EXPECT_TRUE(Data().WindApparentValid);
}

TEST_F(NmeaReceiverTest, ADecodeErrorComesBeforeTheListingAndLeavesThePanelAlone) {
  Start();
  m_settings.m_iNmeaHeading = 0;
  const std::string line = WithChecksum("$IIHDG,123.4,,,,");
  Receive(line + "\r");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnHeading 123.4", "OnNmeaError Decode Error - " + line,
                                        "OnNmeaData " + line + " used"));
  EXPECT_EQ(m_view.InputStatus, "");
}

TEST_F(NmeaReceiverTest, AFirstCommaAtAnotherPlaceIsADecodeError) {
  Start();
  Receive("$IIHDG5,123.4,,,5.0,W\r");
  EXPECT_EQ(m_view.Count("OnNmeaError"), 1U);
  EXPECT_EQ(m_view.Calls.front(), "OnNmeaError Decode Error - $IIHDG5,123.4,,,5.0,W");
}

TEST_F(NmeaReceiverTest, AnotherTypeIsOnlyListed) {
  Start();
  Receive("$PGRME,15.0,M,45.0,M,25.0,M\r");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnNmeaData $PGRME,15.0,M,45.0,M,25.0,M unused"));
}

TEST_F(NmeaReceiverTest, AWindInAnotherUnitIsListedAsNotUsedWithoutAnError) {
  Start();
  Receive("$IIMWV,045,R,10.5,K,A\r");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnNmeaData $IIMWV,045,R,10.5,K,A unused"));
}

TEST_F(NmeaReceiverTest, AVariationAloneCountsAsUse) {
  Start();
  const std::string line = WithChecksum("$IIHVM,5.0,W");
  Receive(line + "\r");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnNmeaData " + line + " used"));
}

TEST_F(NmeaReceiverTest, ALineSplitAcrossEventsIsJoinedAndSeveralInOneEventAreTaken) {
  Start();
  const std::string line = WithChecksum(kApparent);
  Receive(line.substr(0, 9));
  Receive(line.substr(9));
  EXPECT_EQ(m_view.Count("OnNmeaData"), 0U);
  Receive("\r\n" + line + "\r" + line + "\n\r" + line.substr(0, 3));
  EXPECT_EQ(m_view.Count("OnNmeaData"), 3U);
  EXPECT_EQ(m_receiver.LineBuffer(), line.substr(0, 3));
}

TEST_F(NmeaReceiverTest, ALineFeedAloneNeverEndsALine) {
  Start();
  Receive(WithChecksum(kApparent) + "\n");
  EXPECT_EQ(m_view.Count("OnNmeaData"), 0U);
}

TEST_F(NmeaReceiverTest, ALineThatIsTooLongIsOneSentenceErrorAndTheRestUpToItsEndIsDropped) {
  Start();
  const std::string kept = "$IIMWV," + std::string(4096 - 7, 'x');
  Receive(kept + std::string(3000, 'y'));
  for (int i = 0; i < 20; ++i) {
    Receive(std::string(3000, 'z'));
    ASSERT_LE(m_receiver.LineBuffer().size(), 4096U);
  }
  Receive("\r");
  EXPECT_EQ(m_view.Count("OnNmeaData"), 1U);
  EXPECT_EQ(m_view.Count("OnNmeaError"), 1U);
  EXPECT_EQ(m_view.Only({"OnNmeaError"}).front(), "OnNmeaError Sentence Error - " + kept);
  m_view.Take();
  ReceiveSentence(kApparent);
  EXPECT_TRUE(Data().WindApparentValid);
  EXPECT_EQ(m_view.Count("OnNmeaError"), 0U);
}

// --- The status panel
// --------------------------------------------------------------------------------------------

TEST_F(NmeaReceiverTest, LineErrorsAreShownAndDoNotStopTheReception) {
  Start();
  for (const auto& [code, text] : std::vector<std::pair<int, std::string>>{{1001, "Break Signal Received"},
                                                                           {1004, "Framing Error"},
                                                                           {1006, "Port Overrun"},
                                                                           {1008, "Rx Overflow"},
                                                                           {1009, "Parity Error"},
                                                                           {1010, "Event 1010"},
                                                                           {3, "Event 3"}}) {
    m_port.Raise(code);
    EXPECT_EQ(m_view.InputStatus, text);
  }
  ReceiveSentence(kApparent);
  EXPECT_TRUE(Data().WindApparentValid);
}

TEST_F(NmeaReceiverTest, TheNextCharactersBlankThePanelOncePerEvent) {
  Start();
  m_port.Raise(1004);
  m_view.Take();
  Receive("$");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnInputStatus "));
  m_view.Take();
  Receive("I");
  EXPECT_THAT(m_view.Calls, IsEmpty());
}

TEST_F(NmeaReceiverTest, AnErrorInsideAnEventStaysOnThePanelUntilTheNextEvent) {
  Start();
  Receive("bad\r" + WithChecksum(kApparent) + "\r");
  EXPECT_EQ(m_view.InputStatus, "Sentence Error");
  Receive(WithChecksum(kApparent) + "\r");
  EXPECT_EQ(m_view.InputStatus, "");
}

TEST_F(NmeaReceiverTest, ALineErrorDoesNotReadTheWaitingCharacters) {
  Start();
  m_port.Waiting = "$";
  m_port.Raise(1004);
  EXPECT_EQ(m_port.Waiting, "$");
}

// --- Re-entrancy
// -------------------------------------------------------------------------------------------------

TEST_F(NmeaReceiverTest, AnEventWhileReceivingIsDroppedAndItsCharactersAreReadWithTheNext) {
  Start();
  bool receivingSeen = false;
  std::size_t linesMeanwhile = 0;
  bool once = true;
  m_view.DuringNmeaData = [&] {
    receivingSeen = m_receiver.Receiving();
    if (once) {
      once = false;
      const std::size_t before = m_view.Count("OnNmeaData");
      Receive("$PXXX,second\r");
      linesMeanwhile = m_view.Count("OnNmeaData") - before;
    }
  };
  Receive("$PXXX,first\r");
  EXPECT_TRUE(receivingSeen);
  EXPECT_EQ(linesMeanwhile, 0U);
  EXPECT_FALSE(m_receiver.Receiving());
  EXPECT_EQ(m_port.Waiting, "$PXXX,second\r");
  Receive("$PXXX,third\r");
  EXPECT_THAT(m_view.Only({"OnNmeaData"}),
              ElementsAre("OnNmeaData $PXXX,first unused", "OnNmeaData $PXXX,second unused",
                          "OnNmeaData $PXXX,third unused"));
}

TEST_F(NmeaReceiverTest, ADroppedEventDoesNotBlankThePanel) {
  Start();
  m_view.DuringNmeaData = [&] {
    m_view.DuringNmeaData = nullptr;
    Receive("x");
  };
  Receive("bad\r");
  EXPECT_EQ(m_view.InputStatus, "Sentence Error");
}

TEST_F(NmeaReceiverTest, ADroppedEventStillCountsAsData) {
  Start();
  m_timer.Tick(3);
  bool once = true;
  m_view.DuringNmeaData = [&] {
    if (once) {
      once = false;
      m_timer.Tick(3);  // three seconds pass inside of the event
      m_port.Raise(CommEvent::kReceive);
    }
  };
  Receive("$PXXX,first\r");
  EXPECT_THAT(Watch(4), ElementsAre("|Running", "|Running", "|Running", "No Input Data|No Input Data"));
}

TEST_F(NmeaReceiverTest, AStopFromInsideALineIsTaken) {
  Start();
  m_view.DuringNmeaData = [&] { m_receiver.NmeaStop(); };
  Receive("$PXXX,first\r$PXXX,second\r");
  EXPECT_FALSE(m_receiver.Started());
  EXPECT_FALSE(m_receiver.Receiving());
  EXPECT_FALSE(m_port.PortOpen());
}

TEST_F(NmeaReceiverTest, AnEventAfterAStopIsHarmless) {
  Start();
  m_receiver.NmeaStop();
  Receive(WithChecksum(kApparent) + "\r");
  EXPECT_FALSE(m_receiver.Receiving());
}

// --- The steps after a wind sentence
// -----------------------------------------------------------------------------

TEST_F(NmeaReceiverTest, NoStepsFollowUntilBothWindsAreValid) {
  Start();
  ReceiveSentence(kApparent);
  EXPECT_EQ(m_view.Count("ControlStep"), 0U);
  ReceiveSentence(kTrue);
  EXPECT_EQ(m_view.Count("ControlStep"), 1U);
  ReceiveSentence(kApparent);
  EXPECT_EQ(m_view.Count("ControlStep"), 2U);
}

TEST_F(NmeaReceiverTest, TheStepsFollowBehindTheListingInTheirOrder) {
  Start();
  m_record.VariationUpdate(5.0F);
  m_record.BoatSpeedUpdate(6.0F);
  ReceiveSentence(kApparent);
  m_view.Take();
  ReceiveSentence(kTrue);
  EXPECT_THAT(m_view.Calls, ElementsAre("OnWindTrue 60 9.5", "OnNmeaData " + WithChecksum(kTrue) + " used",
                                        "ControlStep", "PolarUpdate", "OnWindIndicator 65 9.5"));
}

TEST_F(NmeaReceiverTest, ThePolarUpdateNeedsABoatSpeedAndTheIndicatorAVariation) {
  Start();
  ReceiveSentence(kApparent);
  ReceiveSentence(kTrue);
  EXPECT_EQ(m_view.Count("ControlStep"), 1U);
  EXPECT_EQ(m_view.Count("PolarUpdate"), 0U);
  EXPECT_EQ(m_view.Count("OnWindIndicator"), 0U);
  m_record.BoatSpeedUpdate(6.0F);
  ReceiveSentence(kTrue);
  EXPECT_EQ(m_view.Count("PolarUpdate"), 1U);
  EXPECT_EQ(m_view.Count("OnWindIndicator"), 0U);
  m_record.VariationUpdate(0.0F);
  ReceiveSentence(kTrue);
  EXPECT_EQ(m_view.Count("PolarUpdate"), 2U);
  EXPECT_EQ(m_view.Count("OnWindIndicator"), 1U);
}

TEST_F(NmeaReceiverTest, OtherSentencesTriggerNoSteps) {
  Start();
  ReceiveSentence(kApparent);
  ReceiveSentence(kTrue);
  m_view.Take();
  for (const std::string_view body :
       {"$IIHDG,123.4,,,5.0,W", "$IIHVM,5.0,W", "$IIVHW,,,123.4,M,6.5,N,,", "$GPVTG,,,123.4,M,6.5,N,,",
        "$GPRMC,,A,,,,,5.2,230.0,,3.0,W", "$GPRMB,A,,,,,,,,,1.3,52.5,,", "$PXXX,1"}) {
    ReceiveSentence(body);
  }
  EXPECT_EQ(m_view.Count("ControlStep"), 0U);
  EXPECT_EQ(m_view.Count("PolarUpdate"), 0U);
  EXPECT_EQ(m_view.Count("OnWindIndicator"), 0U);
}

TEST_F(NmeaReceiverTest, AWindSentenceThatUpdatesNothingStillRunsTheSteps) {
  Start();
  ReceiveSentence(kApparent);
  ReceiveSentence(kTrue);
  m_view.Take();
  ReceiveSentence("$IIMWV,045,R,10.5,K,A");
  ReceiveSentence("$IIMWV,,,,,");
  m_settings.m_iNmeaTrueWind = 1;
  ReceiveSentence(kTrue);
  EXPECT_EQ(m_view.Count("ControlStep"), 3U);
}

TEST_F(NmeaReceiverTest, ADisabledWindSentenceIsOnlyListed) {
  Start();
  ReceiveSentence(kApparent);
  ReceiveSentence(kTrue);
  m_view.Take();
  m_settings.m_bNmeaSentenceMWV = false;
  ReceiveSentence(kApparent);
  EXPECT_THAT(m_view.Calls, ElementsAre("OnNmeaData " + WithChecksum(kApparent) + " unused"));
}

TEST_F(NmeaReceiverTest, AWindSentenceWithABadFrameRunsNoSteps) {
  Start();
  ReceiveSentence(kApparent);
  ReceiveSentence(kTrue);
  m_view.Take();
  Receive("$IIMWV,045,R,10.5,N,A*00\r");
  EXPECT_EQ(m_view.Count("ControlStep"), 0U);
}

TEST_F(NmeaReceiverTest, WithTheTrueWindComputedNoStepRunsUntilABoatSpeedCame) {
  m_settings.m_iNmeaTrueWind = 1;
  Start();
  ReceiveSentence(kApparent);
  EXPECT_EQ(m_view.Count("OnWindApparent"), 1U);
  EXPECT_EQ(m_view.Count("OnWindTrue"), 0U);
  EXPECT_EQ(m_view.Count("ControlStep"), 0U);
  ReceiveSentence("$GPVTG,,,123.4,M,6.5,N,,");
  ReceiveSentence(kApparent);
  EXPECT_EQ(m_view.Count("OnWindTrue"), 1U);
  EXPECT_EQ(m_view.Count("ControlStep"), 1U);
}

// --- The watchdog
// ------------------------------------------------------------------------------------------------

TEST_F(NmeaReceiverTest, FourSilentTicksAreReportedAndWithdrawnAtTheFirstTickBehindNewData) {
  Start();
  EXPECT_THAT(Watch(6), ElementsAre("|Running", "|Running", "|Running", "No Input Data|No Input Data",
                                    "No Input Data|No Input Data", "No Input Data|No Input Data"));
  Receive("$");
  EXPECT_EQ(m_view.InputStatus, "");  // blanked by the event itself
  EXPECT_EQ(m_view.InputState, "No Input Data");
  EXPECT_THAT(Watch(4), ElementsAre("|Running", "|Running", "|Running", "No Input Data|No Input Data"));
}

TEST_F(NmeaReceiverTest, TheReportIsRepeatedAtEveryFurtherTick) {
  Start();
  m_timer.Tick(4);
  m_port.Raise(1004);
  EXPECT_EQ(m_view.InputStatus, "Framing Error");
  m_timer.Tick();
  EXPECT_EQ(m_view.InputStatus, "No Input Data");
}

TEST_F(NmeaReceiverTest, DataEveryThirdTickKeepsTheWatchdogQuiet) {
  Start();
  for (int i = 0; i < 10; ++i) {
    EXPECT_THAT(Watch(3), ElementsAre("|Running", "|Running", "|Running"));
    Receive("$");
  }
}

TEST_F(NmeaReceiverTest, ALineErrorIsNoData) {
  Start();
  m_timer.Tick(3);
  m_port.Raise(1004);
  m_timer.Tick();
  EXPECT_EQ(m_view.InputStatus, "No Input Data");
}

TEST_F(NmeaReceiverTest, ATickDoesNotWithdrawAnotherText) {
  Start();
  Receive("bad\r");
  m_timer.Tick();
  EXPECT_EQ(m_view.InputStatus, "Sentence Error");
}

TEST_F(NmeaReceiverTest, AStartBeginsTheWatchAnew) {
  Start();
  m_timer.Tick(3);
  m_receiver.NmeaStart();
  EXPECT_THAT(Watch(4), ElementsAre("|Running", "|Running", "|Running", "No Input Data|No Input Data"));
}

TEST_F(NmeaReceiverTest, AStoppedInputIsNotWatched) {
  Start();
  m_timer.Tick(3);
  m_receiver.NmeaStop();
  m_timer.Tick(10);
  EXPECT_EQ(m_view.InputState, "Stopped");
  EXPECT_EQ(m_view.InputStatus, "");
}

TEST_F(NmeaReceiverTest, ATickAsksTheDriverForLineErrors) {
  Start();
  m_port.LineErrorsWaiting = {1004};
  m_timer.Tick();
  EXPECT_EQ(m_port.Polls, 1);
  EXPECT_EQ(m_view.InputStatus, "Framing Error");
}

// --- A port that does not open
// -----------------------------------------------------------------------------------

TEST_F(NmeaReceiverTest, APortThatDoesNotOpenIsShownUntilTheWatchdogSpeaks) {
  m_port.OpensOtherwise = false;
  m_settings.m_iNmeaPort = 7;
  EXPECT_TRUE(m_receiver.NmeaStart());
  EXPECT_TRUE(m_receiver.Started());
  EXPECT_EQ(m_view.InputStatus, "Input Port 7 Not Open");
  EXPECT_THAT(Watch(4), ElementsAre("Input Port 7 Not Open|Running", "Input Port 7 Not Open|Running",
                                    "Input Port 7 Not Open|Running", "No Input Data|No Input Data"));
}

TEST_F(NmeaReceiverTest, APortThatDidNotOpenIsTriedAgainAtEveryFourthTickWithThePresentNumber) {
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

TEST_F(NmeaReceiverTest, APortThatOpensAtLastReceivesAndTheRecordStays) {
  m_port.OpenResults = {false, false};
  m_receiver.NmeaStart();
  m_record.HeadingUpdate(77.0F);
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

TEST_F(NmeaReceiverTest, AStoppedPortIsNotTriedAgain) {
  m_port.OpensOtherwise = false;
  m_receiver.NmeaStart();
  m_receiver.NmeaStop();
  m_receiver.Tick();
  m_receiver.Tick();
  m_receiver.Tick();
  m_receiver.Tick();
  EXPECT_EQ(m_port.OpenedNumbers.size(), 1U);
}

TEST_F(NmeaReceiverTest, APortThatIsLostIsShownAndOpenedAgainWithAnEmptyLineBuffer) {
  Start();
  m_record.HeadingUpdate(77.0F);
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

TEST_F(NmeaReceiverTest, AnOpenPortIsNotOpenedAgain) {
  Start();
  m_timer.Tick(20);
  EXPECT_EQ(m_port.OpenedNumbers.size(), 1U);
}

// --- Damage
// ------------------------------------------------------------------------------------------------------

TEST_F(NmeaReceiverTest, EveryTruncationAndEveryDamagedByteOfAGoodSentenceIsSurvived) {
  Start();
  m_record.BoatSpeedUpdate(6.0F);
  m_record.VariationUpdate(2.0F);
  for (const std::string_view body : {kApparent, kTrue, std::string_view("$IIHDG,123.4,,,5.0,W")}) {
    const std::string line = WithChecksum(body);
    for (std::size_t at = 0; at < line.size(); ++at) {
      m_view.Take();
      Receive(line.substr(0, at) + "\r");
      ASSERT_EQ(RecordFault(Data()), "");
      ASSERT_EQ(m_view.Count("OnNmeaData"), 1U);
      for (int byte = 0; byte < 256; byte += 5) {
        std::string damaged = line;
        damaged[at] = static_cast<char>(byte);
        Receive(damaged + "\r");
        ASSERT_EQ(RecordFault(Data()), "") << damaged;
        ASSERT_EQ(m_receiver.LineBuffer(), "");
      }
    }
  }
}

}  // namespace
}  // namespace veerwatch
