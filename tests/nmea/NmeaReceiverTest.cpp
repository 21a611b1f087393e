// Start and stop, lines and the status panel.

#include <algorithm>
#include <string>
#include <string_view>

#include "tests/nmea/NmeaReceiverFixture.h"
#include "tests/support/Origins.h"
#include "tests/support/RecordFault.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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

TEST_F(NmeaReceiverTest, AStartIsToldOnceAndClearsTheRecordsFlags) {
  m_record.HeadingUpdate(10.0F, kOrigin);
  m_record.BoatSpeedUpdate(10.0F, kOrigin);
  m_record.VariationUpdate(3.0F, kOrigin);
  m_view.Take();
  m_receiver.NmeaStart();
  EXPECT_EQ(m_view.Count("OnInputStarts"), 1U);
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

TEST_F(NmeaReceiverTest, AStartAfterAStopOpensTheNewNumber) {
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
  EXPECT_EQ(m_view.Calls.back(), "OnNmeaLine " + WithChecksum(kApparent) + " used");
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
              ElementsAre("OnInputStatus Checksum Error", "OnNmeaLine " + line + " <<Checksum Error>> unused",
                          "OnNmeaError Checksum Error - " + line));
}

TEST_F(NmeaReceiverTest, ALineWithoutADollarIsASentenceError) {
  Start();
  Receive("IIMWV,045,R,10.5,N,A\r\n");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnInputStatus Sentence Error",
                                        "OnNmeaLine IIMWV,045,R,10.5,N,A <<Sentence Error>> unused",
                                        "OnNmeaError Sentence Error - IIMWV,045,R,10.5,N,A"));
  EXPECT_FALSE(Data().WindApparentValid);
}

TEST_F(NmeaReceiverTest, AnEmptyLineIsASentenceError) {
  Start();
  Receive("\r");
  EXPECT_THAT(m_view.Calls,
              ElementsAre("OnInputStatus Sentence Error", "OnNmeaLine  <<Sentence Error>> unused",
                          "OnNmeaError Sentence Error - "));
}

TEST_F(NmeaReceiverTest, AWrongChecksumIsAChecksumError) {
  Start();
  Receive("$IIMWV,045,R,10.5,N,A*00\r");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnInputStatus Checksum Error",
                                        "OnNmeaLine $IIMWV,045,R,10.5,N,A*00 <<Checksum Error>> unused",
                                        "OnNmeaError Checksum Error - $IIMWV,045,R,10.5,N,A*00"));
}

TEST_F(NmeaReceiverTest, ALineWithoutAChecksumIsAccepted) {
  Start();
  Receive("$IIMWV,045,R,10.5,N,A\r");
  EXPECT_TRUE(Data().WindApparentValid);
}

TEST_F(NmeaReceiverTest, ADecodeErrorIsToldWithItsLineAndLeavesThePanelAlone) {
  Start();
  m_settings.m_iNmeaHeading = 0;
  const std::string line = WithChecksum("$IIHDG,123.4,,,,");
  Receive(line + "\r");
  EXPECT_THAT(m_view.Calls,
              ElementsAre("OnNmeaLine " + line + " used", "OnNmeaError Decode Error - " + line));
  EXPECT_EQ(Data().Heading, 123.4F);
  EXPECT_EQ(m_view.InputStatus, "");
}

TEST_F(NmeaReceiverTest, AFirstCommaAtAnotherPlaceIsADecodeError) {
  Start();
  Receive("$IIHDG5,123.4,,,5.0,W\r");
  EXPECT_EQ(m_view.Count("OnNmeaError"), 1U);
  EXPECT_EQ(m_view.Calls.back(), "OnNmeaError Decode Error - $IIHDG5,123.4,,,5.0,W");
}

TEST_F(NmeaReceiverTest, AnotherTypeIsOnlyListed) {
  Start();
  Receive("$PGRME,15.0,M,45.0,M,25.0,M\r");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnNmeaLine $PGRME,15.0,M,45.0,M,25.0,M unused"));
}

TEST_F(NmeaReceiverTest, AWindInAnotherUnitIsListedAsNotUsedWithoutAnError) {
  Start();
  Receive("$IIMWV,045,R,10.5,K,A\r");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnNmeaLine $IIMWV,045,R,10.5,K,A unused"));
}

TEST_F(NmeaReceiverTest, AVariationAloneCountsAsUse) {
  Start();
  const std::string line = WithChecksum("$IIHVM,5.0,W");
  Receive(line + "\r");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnNmeaLine " + line + " used"));
}

TEST_F(NmeaReceiverTest, ALineSplitAcrossEventsIsJoinedAndSeveralInOneEventAreTaken) {
  Start();
  const std::string line = WithChecksum(kApparent);
  Receive(line.substr(0, 9));
  Receive(line.substr(9));
  EXPECT_EQ(m_view.Count("OnNmeaLine"), 0U);
  Receive("\r\n" + line + "\r" + line + "\n\r" + line.substr(0, 3));
  EXPECT_EQ(m_view.Count("OnNmeaLine"), 3U);
  EXPECT_EQ(m_receiver.LineBuffer(), line.substr(0, 3));
}

TEST_F(NmeaReceiverTest, ALineFeedAloneNeverEndsALine) {
  Start();
  Receive(WithChecksum(kApparent) + "\n");
  EXPECT_EQ(m_view.Count("OnNmeaLine"), 0U);
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
  EXPECT_EQ(m_view.Count("OnNmeaLine"), 1U);
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
  m_view.DuringNmeaLine = [&] {
    receivingSeen = m_receiver.Receiving();
    if (once) {
      once = false;
      const std::size_t before = m_view.Count("OnNmeaLine");
      Receive("$PXXX,second\r");
      linesMeanwhile = m_view.Count("OnNmeaLine") - before;
    }
  };
  Receive("$PXXX,first\r");
  EXPECT_TRUE(receivingSeen);
  EXPECT_EQ(linesMeanwhile, 0U);
  EXPECT_FALSE(m_receiver.Receiving());
  EXPECT_EQ(m_port.Waiting, "$PXXX,second\r");
  Receive("$PXXX,third\r");
  EXPECT_THAT(m_view.Only({"OnNmeaLine"}),
              ElementsAre("OnNmeaLine $PXXX,first unused", "OnNmeaLine $PXXX,second unused",
                          "OnNmeaLine $PXXX,third unused"));
}

TEST_F(NmeaReceiverTest, ADroppedEventDoesNotBlankThePanel) {
  Start();
  m_view.DuringNmeaLine = [&] {
    m_view.DuringNmeaLine = nullptr;
    Receive("x");
  };
  Receive("bad\r");
  EXPECT_EQ(m_view.InputStatus, "Sentence Error");
}

TEST_F(NmeaReceiverTest, ADroppedEventStillCountsAsData) {
  Start();
  m_timer.Tick(3);
  bool once = true;
  m_view.DuringNmeaLine = [&] {
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
  m_view.DuringNmeaLine = [&] { m_receiver.NmeaStop(); };
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

// --- Damage
// ------------------------------------------------------------------------------------------------------

TEST_F(NmeaReceiverTest, EveryTruncationAndEveryDamagedByteOfAGoodSentenceIsSurvived) {
  Start();
  m_record.BoatSpeedUpdate(6.0F, kOrigin);
  m_record.VariationUpdate(2.0F, kOrigin);
  for (const std::string_view body : {kApparent, kTrue, std::string_view("$IIHDG,123.4,,,5.0,W")}) {
    const std::string line = WithChecksum(body);
    for (std::size_t at = 0; at < line.size(); ++at) {
      m_view.Take();
      Receive(line.substr(0, at) + "\r");
      ASSERT_EQ(RecordFault(Data()), "");
      ASSERT_EQ(m_view.Count("OnNmeaLine"), 1U);
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

// --- What is asked of a line
// -------------------------------------------------------------------------------------

TEST_F(NmeaReceiverTest, AForeignLineIsAnErrorOrOnlyListed) {
  Start();
  Receive("!AIVDM,1,1,,A,15MgK45P3@G?fl0E`JbR0OwT0@MS,0*4E\r\n");
  EXPECT_EQ(m_view.InputStatus, "Sentence Error");
  m_settings.m_eNmeaForeignLines = ForeignRule::List;
  m_view.Take();
  Receive("!AIVDM,1,1,,A,15MgK45P3@G?fl0E`JbR0OwT0@MS,0*4E\r\n");
  EXPECT_EQ(m_view.InputStatus, "");
  EXPECT_EQ(m_view.Count("OnNmeaLine"), 1U);
  Receive("?AIVDM\r\n");
  EXPECT_EQ(m_view.InputStatus, "Sentence Error");
}

TEST_F(NmeaReceiverTest, AChecksumIsRequiredOrReadInSmallLettersWhereTheSettingsSaySo) {
  Start();
  Receive("$IIMWV,045,R,10.5,N,A\r\n");
  EXPECT_TRUE(Data().WindApparentValid);
  m_settings.m_eNmeaChecksum = ChecksumRule::Require;
  Receive("$IIMWV,046,R,10.5,N,A\r\n");
  EXPECT_EQ(m_view.InputStatus, "Checksum Error");
  EXPECT_EQ(Data().WindAngleApparent, 45.0F);
  Receive("$APHDM,218.634,M*39\r\n");
  EXPECT_EQ(m_view.InputStatus, "");
  Receive("$GPAAM*5a\r\n");
  EXPECT_EQ(m_view.InputStatus, "Checksum Error");
  m_settings.m_bNmeaLowerCase = true;
  Receive("$GPAAM*5a\r\n");
  EXPECT_EQ(m_view.InputStatus, "");
}

TEST_F(NmeaReceiverTest, TellsEachSecondWhatAnOpenPortComplainsOf) {
  Start();
  m_port.Complaint = "tcp://boat:10110: connection refused, next try in 4 s";
  m_timer.Tick();
  EXPECT_THAT(m_view.Only({"OnInputFailure"}), ElementsAre("OnInputFailure " + m_port.Complaint));
  EXPECT_EQ(m_view.InputStatus, "") << "it is open";
  m_port.Complaint = "";
  m_view.Take();
  m_timer.Tick();
  m_timer.Tick();
  EXPECT_THAT(m_view.Only({"OnInputFailure"}), ElementsAre("OnInputFailure ")) << "once";
}

}  // namespace
}  // namespace veerwatch
