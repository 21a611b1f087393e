// What follows a sentence, and a tick of the simulator, and in which order.

#include <functional>
#include <vector>

#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class HelmSteps : public HelmTest {
 protected:
  HelmSteps() {
    m_settings.m_iNmeaTrueWind = 0;
    m_helm.Modes().TrackSetSetup();
    m_view.Take();
  }
  /// Both winds.
  void ReceiveWinds() {
    Receive(kApparent);
    Receive(kTrue);
    m_view.Take();
  }
};

// --- After a sentence
// --------------------------------------------------------------------------------------------

TEST_F(HelmSteps, NoStepsFollowUntilBothWindsAreValid) {
  Receive(kApparent);
  EXPECT_EQ(m_view.Count("OnDelta"), 0U);
  Receive(kTrue);
  EXPECT_EQ(m_view.Count("OnDelta"), 1U);
  Receive(kApparent);
  EXPECT_EQ(m_view.Count("OnDelta"), 2U);
}

TEST_F(HelmSteps, TheStepsFollowAfterTheListingInTheirOrder) {
  Receive(kVariation);
  Receive(kSpeed);
  Receive(kApparent);
  m_view.Take();
  Receive(kTrue);
  EXPECT_THAT(m_view.Calls,
              ElementsAre("OnWindTrue 60 9.5", "OnNmeaLine " + WithChecksum(kTrue) + " used",
                          "OnDesired 45 60", "OnDelta 0 0", "OnPolarUpdate 3 6", "OnWindIndicator 65 9.5"));
}

TEST_F(HelmSteps, ThePolarUpdateNeedsABoatSpeedAndTheIndicatorAVariation) {
  Receive(kApparent);
  Receive(kTrue);
  EXPECT_EQ(m_view.Count("OnDelta"), 1U);
  EXPECT_EQ(m_view.Count("OnPolarUpdate"), 0U);
  EXPECT_EQ(m_view.Count("OnWindIndicator"), 0U);
  Receive(kSpeed);
  Receive(kTrue);
  EXPECT_EQ(m_view.Count("OnPolarUpdate"), 1U);
  EXPECT_EQ(m_view.Count("OnWindIndicator"), 0U);
  Receive("$IIHVM,0.0,E");
  Receive(kTrue);
  EXPECT_EQ(m_view.Count("OnPolarUpdate"), 2U);
  EXPECT_EQ(m_view.Count("OnWindIndicator"), 1U);
}

TEST_F(HelmSteps, OtherSentencesTriggerNoSteps) {
  ReceiveWinds();
  for (const std::string_view body :
       {"$IIHDG,123.4,,,5.0,W", "$IIHVM,5.0,W", "$IIVHW,,,123.4,M,6.5,N,,", "$GPVTG,,,123.4,M,6.5,N,,",
        "$GPRMC,,A,,,,,5.2,230.0,,3.0,W", "$GPRMB,A,,,,,,,,,1.3,52.5,,", "$PXXX,1"}) {
    Receive(body);
  }
  EXPECT_EQ(m_view.Count("OnNmeaLine"), 7U);
  EXPECT_EQ(m_view.Count("OnDelta"), 0U);
  EXPECT_EQ(m_view.Count("OnPolarUpdate"), 0U);
  EXPECT_EQ(m_view.Count("OnWindIndicator"), 0U);
}

TEST_F(HelmSteps, AWindSentenceThatUpdatesNothingStillRunsTheSteps) {
  ReceiveWinds();
  Receive("$IIMWV,045,R,10.5,K,A");
  Receive("$IIMWV,,,,,");
  m_settings.m_iNmeaTrueWind = 1;
  Receive(kTrue);
  EXPECT_THAT(m_view.Only({"OnWindApparent", "OnWindTrue"}), IsEmpty());
  EXPECT_EQ(m_view.Count("OnDelta"), 3U);
}

TEST_F(HelmSteps, ADisabledWindSentenceIsOnlyListed) {
  ReceiveWinds();
  m_settings.m_bNmeaSentenceMWV = false;
  Receive(kApparent);
  EXPECT_THAT(m_view.Calls, ElementsAre("OnNmeaLine " + WithChecksum(kApparent) + " unused"));
}

TEST_F(HelmSteps, AWindSentenceWithABadFrameIsOnlyListed) {
  ReceiveWinds();
  m_nmeaPort.Receive("$IIMWV,045,R,10.5,N,A*00\r");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnInputStatus Checksum Error",
                                        "OnNmeaLine $IIMWV,045,R,10.5,N,A*00 <<Checksum Error>> unused",
                                        "OnNmeaError Checksum Error - $IIMWV,045,R,10.5,N,A*00"));
}

TEST_F(HelmSteps, WithTheTrueWindComputedNoStepRunsUntilABoatSpeedCame) {
  m_settings.m_iNmeaTrueWind = 1;
  Receive(kApparent);
  EXPECT_EQ(m_view.Count("OnWindApparent"), 1U);
  EXPECT_EQ(m_view.Count("OnWindTrue"), 0U);
  EXPECT_EQ(m_view.Count("OnDelta"), 0U);
  Receive(kSpeed);
  Receive(kApparent);
  EXPECT_EQ(m_view.Count("OnWindTrue"), 1U);
  EXPECT_EQ(m_view.Count("OnDelta"), 1U);
}

TEST_F(HelmSteps, TheTrueWindComesAfterTheApparentOneThatItIsComputedFrom) {
  m_settings.m_iNmeaTrueWind = 1;
  Receive(kSpeed);
  m_view.Take();
  Receive("$IIMWV,000,R,5.0,N,A");
  EXPECT_THAT(m_view.Only({"OnWindApparent", "OnWindTrue"}),
              ElementsAre("OnWindApparent 0 5", "OnWindTrue 180 1"));
}

// --- What is told of a sentence
// ----------------------------------------------------------------------------------

TEST_F(HelmSteps, AValueIsToldWithTheSentenceThatBringsItAndNotAgain) {
  Receive(kSpeed);
  EXPECT_THAT(m_view.Calls,
              ElementsAre("OnHeading 0", "OnBoatSpeed 6", "OnNmeaLine " + WithChecksum(kSpeed) + " used"));
  m_view.Take();
  Receive("$GPRMB,A,,,,,,,,,1.5,52.5,,");
  EXPECT_EQ(m_view.Count("OnWaypoint"), 0U) << "without a variation";
  Receive(kVariation);
  m_view.Take();
  Receive("$GPRMB,A,,,,,,,,,1.5,52.5,,");
  EXPECT_THAT(m_view.Calls,
              ElementsAre("OnWaypoint 1.5 47.5",
                          "OnNmeaLine " + WithChecksum("$GPRMB,A,,,,,,,,,1.5,52.5,,") + " used"));
}

TEST_F(HelmSteps, TheVariationIsShownNowhere) {
  Receive(kVariation);
  EXPECT_THAT(m_view.Calls, ElementsAre("OnNmeaLine " + WithChecksum(kVariation) + " used"));
}

TEST_F(HelmSteps, AnIncompleteSentenceIsToldWithItsFaultAndWhatItHolds) {
  m_settings.m_iNmeaHeading = 0;
  const std::string line = WithChecksum("$IIHDG,123.4,,,,");
  m_nmeaPort.Receive(line + "\r");
  EXPECT_THAT(m_view.Calls, ElementsAre("OnHeading 123.4", "OnNmeaLine " + line + " used",
                                        "OnNmeaError Decode Error - " + line));
}

TEST_F(HelmSteps, SpeedHeadingAndApparentWindAreToldRawAndTheTrueWindSmoothed) {
  m_settings.m_fNmeaTrueWindAverage = 4.0F;
  Receive("$GPVTG,,T,10.0,M,4.0,N,,K");
  Receive("$IIMWV,000,R,4.0,N,A");
  Receive("$IIMWV,000,T,4.0,N,A");
  m_view.Take();
  Receive("$GPVTG,,T,20.0,M,8.0,N,,K");
  Receive("$IIMWV,090,R,8.0,N,A");
  Receive("$IIMWV,090,T,8.0,N,A");
  const InstrumentData& data = m_helm.Data();
  ASSERT_NEAR(data.WindAngleTrue, 18.4349488F, 1e-4);
  EXPECT_THAT(m_view.Only({"OnHeading", "OnBoatSpeed", "OnWindApparent", "OnWindTrue"}),
              ElementsAre("OnHeading 20", "OnBoatSpeed 8", "OnWindApparent 90 8",
                          "OnWindTrue " + ShortestText(data.WindAngleTrue) + " 5"));
}

TEST_F(HelmSteps, WhatCameBeforeAStartIsNotToldAfterIt) {
  // Somebody starts the input again while a sentence is told.
  struct Restarter final : HelmObserver {
    explicit Restarter(Helm& helm) : TheHelm(helm) {}
    void OnHeading(float /*heading*/) override { TheHelm.Modes().TrackSetSetup(); }
    Helm& TheHelm;
  } restarter(m_helm);
  const auto restarts = m_helm.Observers().Join(restarter);
  RecordingView later;
  const auto laterTold = m_helm.Observers().Join(later);
  Receive(kSpeed);
  const std::string line = "OnNmeaLine " + WithChecksum(kSpeed) + " used";
  const std::vector<std::string> names{"OnHeading", "OnBoatSpeed", "OnInputStarts", "OnNmeaLine"};
  EXPECT_THAT(m_view.Only(names), ElementsAre("OnHeading 0", "OnBoatSpeed 6", "OnInputStarts", line));
  EXPECT_THAT(later.Only(names), ElementsAre("OnInputStarts", line)) << "it comes after who starts it";
}

// --- While simulating
// --------------------------------------------------------------------------------------------

class SimulatedSteps : public HelmTest {
 protected:
  SimulatedSteps() {
    m_settings.m_bSimulate = true;
    m_helm.Modes().TrackSetSetup();
    m_view.Take();
  }
};

TEST_F(SimulatedSteps, ATickTellsItsStepsInOrderWithThePolarWindowBeforeTheLoop) {
  m_helm.Modes().TrackSetManual();
  m_view.Take();
  for (int i = 0; i < 2; ++i) {
    m_timer.Tick();
    EXPECT_THAT(m_view.Names(), ElementsAre("OnHeading", "OnBoatSpeed", "OnWindApparent", "OnWindTrue",
                                            "OnWindIndicator", "OnWaypoint", "OnPolarUpdate", "OnDesired",
                                            "OnDelta", "OnPilotData", "OnPilotHeading", "OnTick"));
    m_view.Take();
  }
}

TEST_F(SimulatedSteps, NoTrueWindIsComputedFromTheApparentOne) {
  m_settings.m_iNmeaTrueWind = 1;
  m_timer.Tick();
  EXPECT_EQ(m_view.Count("OnWindTrue"), 1U);
}

TEST_F(SimulatedSteps, TheStepsTestNoValidity) {
  m_settings.m_fSimulateBoatSpeed = 0.0F;
  m_timer.Tick();
  EXPECT_EQ(m_view.Count("OnPolarUpdate"), 1U);
  EXPECT_EQ(m_view.Count("OnDelta"), 1U);
}

// --- Steer first, tell afterwards
// --------------------------------------------------------------------------------

/// Asks `Look` at everything that follows a wind.
class Onlooker final : public HelmObserver {
 public:
  std::function<std::size_t()> Look;
  std::vector<std::size_t> Seen;

  void OnHeading(float /*heading*/) override { Seen.push_back(Look()); }
  void OnBoatSpeed(float /*speed*/) override { Seen.push_back(Look()); }
  void OnWindApparent(float /*angle*/, float /*speed*/) override { Seen.push_back(Look()); }
  void OnWindTrue(float /*angle*/, float /*speed*/) override { Seen.push_back(Look()); }
  void OnNmeaLine(std::string_view /*line*/, LineFault /*fault*/, bool /*used*/) override {
    Seen.push_back(Look());
  }
  void OnDelta(float /*apparent*/, float /*trueWind*/) override { Seen.push_back(Look()); }
  void OnAutoPilot(float /*bearing*/) override { Seen.push_back(Look()); }
  void OnAlarm(TrackSide /*side*/, float /*error*/) override { Seen.push_back(Look()); }
  void OnPolarUpdate(TrackMode /*mode*/, const InstrumentData& /*data*/) override { Seen.push_back(Look()); }
  void OnInputStatus(const PortStatus& /*status*/) override { Seen.push_back(Look()); }
};

TEST_F(HelmSteps, WhateverIsToldOfAWindTheSentenceForThePilotHasLeft) {
  m_settings.m_iNmeaTrueWind = 1;
  Receive(kSpeed);
  Receive(kApparent);
  Onlooker onlooker;
  onlooker.Look = [this] { return m_pilotPort.Written.size(); };
  const auto looks = m_helm.Observers().Join(onlooker);
  m_helm.Modes().TrackSetManual();
  onlooker.Seen.clear();
  Receive(kApparent);
  EXPECT_THAT(onlooker.Seen, testing::AllOf(SizeIs(5), Each(1U)));
  m_helm.Modes().TrackSetTrack();
  onlooker.Seen.clear();
  Receive("$IIMWV,075,R,10.5,N,A");  // far enough off for the alarm
  EXPECT_THAT(onlooker.Seen, testing::AllOf(SizeIs(7), Each(2U)));
}

TEST_F(HelmSteps, AStatusThatAGoodSentenceEndsIsToldAfterTheSentenceHasLeft) {
  ReceiveWinds();
  m_helm.Modes().TrackSetManual();
  m_nmeaPort.Raise(CommEvent::kFrame);
  ASSERT_EQ(m_view.InputStatus, "Framing Error");
  m_view.Take();
  std::vector<std::size_t> seen;
  m_view.DuringNmeaLine = [&] {
    EXPECT_EQ(m_view.InputStatus, "Framing Error");
    seen.push_back(m_pilotPort.Written.size());
  };
  Receive(kApparent);
  EXPECT_THAT(seen, ElementsAre(1U));
  EXPECT_EQ(m_view.Calls.back(), "OnInputStatus ");
  EXPECT_EQ(m_view.Count("OnInputStatus"), 1U);
}

TEST_F(HelmSteps, AStatusEndsAfterTheFirstSentenceOfSeveral) {
  ReceiveWinds();
  m_nmeaPort.Raise(CommEvent::kFrame);
  m_view.Take();
  m_nmeaPort.Receive(WithChecksum(kSpeed) + "\r\n" + WithChecksum(kVariation) + "\r\n");
  EXPECT_THAT(m_view.Only({"OnNmeaLine", "OnInputStatus"}),
              ElementsAre("OnNmeaLine " + WithChecksum(kSpeed) + " used", "OnInputStatus ",
                          "OnNmeaLine " + WithChecksum(kVariation) + " used"));
}

TEST_F(SimulatedSteps, WhateverIsToldTheSentenceForTheSimulatedBoatHasLeft) {
  Onlooker onlooker;
  onlooker.Look = [this] { return static_cast<std::size_t>(m_helm.Pilot().Sent()); };
  m_helm.Modes().TrackSetManual();
  const auto looks = m_helm.Observers().Join(onlooker);
  m_timer.Tick();
  EXPECT_THAT(onlooker.Seen, testing::AllOf(SizeIs(6), Each(1U)));
  EXPECT_THAT(m_pilotPort.Written, IsEmpty());
}

// --- Who is told
// -------------------------------------------------------------------------------------------------

TEST_F(HelmSteps, EveryObserverIsToldAsLongAsItsMembershipLasts) {
  RecordingView other;
  {
    const auto joined = m_helm.Observers().Join(other);
    Receive(kSpeed);
    EXPECT_EQ(other.Calls, m_view.Calls);
    EXPECT_THAT(other.Calls, Contains("OnBoatSpeed 6"));
  }
  other.Take();
  Receive(kSpeed);
  EXPECT_THAT(other.Calls, IsEmpty());
}

TEST_F(HelmSteps, WithNobodyThereItSteersAllTheSame) {
  m_told = {};
  ReceiveWinds();
  m_helm.Modes().TrackSetManual();
  Receive(kApparent);
  EXPECT_THAT(m_pilotPort.Written, ElementsAre(Sentence("040.0") + "\r\n"));
  EXPECT_THAT(m_view.Calls, Not(Contains("OnDelta 0 0")));
}

}  // namespace
}  // namespace veerwatch
