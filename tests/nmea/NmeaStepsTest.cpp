// What follows a wind sentence.

#include "tests/nmea/NmeaReceiverFixture.h"
#include "tests/support/Origins.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

using NmeaSteps = NmeaReceiverTest;

TEST_F(NmeaSteps, NoStepsFollowUntilBothWindsAreValid) {
  Start();
  ReceiveSentence(kApparent);
  EXPECT_EQ(m_view.Count("ControlStep"), 0U);
  ReceiveSentence(kTrue);
  EXPECT_EQ(m_view.Count("ControlStep"), 1U);
  ReceiveSentence(kApparent);
  EXPECT_EQ(m_view.Count("ControlStep"), 2U);
}

TEST_F(NmeaSteps, TheStepsFollowBehindTheListingInTheirOrder) {
  Start();
  m_record.VariationUpdate(5.0F, kOrigin);
  m_record.BoatSpeedUpdate(6.0F, kOrigin);
  ReceiveSentence(kApparent);
  m_view.Take();
  ReceiveSentence(kTrue);
  EXPECT_THAT(m_view.Calls, ElementsAre("OnWindTrue 60 9.5", "OnNmeaData " + WithChecksum(kTrue) + " used",
                                        "ControlStep", "PolarUpdate", "OnWindIndicator 65 9.5"));
}

TEST_F(NmeaSteps, ThePolarUpdateNeedsABoatSpeedAndTheIndicatorAVariation) {
  Start();
  ReceiveSentence(kApparent);
  ReceiveSentence(kTrue);
  EXPECT_EQ(m_view.Count("ControlStep"), 1U);
  EXPECT_EQ(m_view.Count("PolarUpdate"), 0U);
  EXPECT_EQ(m_view.Count("OnWindIndicator"), 0U);
  m_record.BoatSpeedUpdate(6.0F, kOrigin);
  ReceiveSentence(kTrue);
  EXPECT_EQ(m_view.Count("PolarUpdate"), 1U);
  EXPECT_EQ(m_view.Count("OnWindIndicator"), 0U);
  m_record.VariationUpdate(0.0F, kOrigin);
  ReceiveSentence(kTrue);
  EXPECT_EQ(m_view.Count("PolarUpdate"), 2U);
  EXPECT_EQ(m_view.Count("OnWindIndicator"), 1U);
}

TEST_F(NmeaSteps, OtherSentencesTriggerNoSteps) {
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

TEST_F(NmeaSteps, AWindSentenceThatUpdatesNothingStillRunsTheSteps) {
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

TEST_F(NmeaSteps, ADisabledWindSentenceIsOnlyListed) {
  Start();
  ReceiveSentence(kApparent);
  ReceiveSentence(kTrue);
  m_view.Take();
  m_settings.m_bNmeaSentenceMWV = false;
  ReceiveSentence(kApparent);
  EXPECT_THAT(m_view.Calls, ElementsAre("OnNmeaData " + WithChecksum(kApparent) + " unused"));
}

TEST_F(NmeaSteps, AWindSentenceWithABadFrameRunsNoSteps) {
  Start();
  ReceiveSentence(kApparent);
  ReceiveSentence(kTrue);
  m_view.Take();
  Receive("$IIMWV,045,R,10.5,N,A*00\r");
  EXPECT_EQ(m_view.Count("ControlStep"), 0U);
}

TEST_F(NmeaSteps, WithTheTrueWindComputedNoStepRunsUntilABoatSpeedCame) {
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

}  // namespace
}  // namespace veerwatch
