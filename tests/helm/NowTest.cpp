// What the helm answers to somebody who comes later than it was told.

#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using HelmNowTest = HelmTest;

TEST_F(HelmNowTest, BeforeAnyStartNothingRuns) {
  const HelmNow now = m_helm.Now();
  EXPECT_EQ(now.Mode, TrackMode::Switching);
  EXPECT_EQ(now.Hand, PilotHand::Nobody);
  EXPECT_FALSE(now.InputStarted);
  EXPECT_EQ(now.Input, InputState::Stopped);
  EXPECT_EQ(now.Output, OutputState::None);
  EXPECT_FALSE(now.InUse.has_value());
  EXPECT_FALSE(now.WindLost);
}

TEST_F(HelmNowTest, FollowsTheStatesThatAreTold) {
  m_helm.Modes().TrackSetSetup();
  HelmNow now = m_helm.Now();
  EXPECT_EQ(now.Mode, TrackMode::Setup);
  EXPECT_TRUE(now.InputStarted);
  EXPECT_EQ(now.Input, InputState::Running);
  EXPECT_EQ(now.Output, OutputState::Running);
  EXPECT_EQ(InputStateText(now.Input), m_view.InputState);
  m_timer.Tick(4);
  EXPECT_EQ(m_helm.Now().Input, InputState::NoData);
  EXPECT_EQ(m_view.InputState, "No Input Data");
  m_helm.Modes().TrackSetOff();
  EXPECT_EQ(m_helm.Now().Input, InputState::Stopped);
  m_settings.m_bSimulate = true;
  m_helm.Modes().TrackSetSetup();
  now = m_helm.Now();
  EXPECT_EQ(now.Input, InputState::Simulate);
  EXPECT_EQ(now.Output, OutputState::Simulate);
}

TEST_F(HelmNowTest, APortThatFailsShowsWithItsReason) {
  m_nmeaPort.OpensOtherwise = false;
  m_nmeaPort.Failure = "Permission denied";
  m_pilotPort.OpensOtherwise = false;
  m_pilotPort.Failure = "No such file";
  m_helm.Modes().TrackSetSetup();
  HelmNow now = m_helm.Now();
  EXPECT_FALSE(now.InputOpen);
  EXPECT_EQ(now.InputFailure, "Permission denied");
  EXPECT_FALSE(now.OutputOpen);
  EXPECT_EQ(now.OutputFailure, "No such file");
  EXPECT_THAT(m_view.Only({"OnInputFailure", "OnOutputFailure"}),
              ElementsAre("OnInputFailure Permission denied", "OnOutputFailure No such file"));
  m_nmeaPort.OpensOtherwise = true;
  m_pilotPort.OpensOtherwise = true;
  m_timer.Tick(4);
  now = m_helm.Now();
  EXPECT_TRUE(now.InputOpen);
  EXPECT_EQ(now.InputFailure, "");
  EXPECT_TRUE(now.OutputOpen);
  EXPECT_EQ(now.OutputFailure, "");
}

TEST_F(HelmNowTest, ThePortsAreNotNeededWhileSimulating) {
  m_settings.m_bSimulate = true;
  m_helm.Modes().TrackSetSetup();
  EXPECT_TRUE(m_helm.Now().InputOpen);
  EXPECT_TRUE(m_helm.Now().OutputOpen);
}

TEST_F(HelmNowTest, HoldsTheAdviceOfTheSourcesUntilItIsWithdrawn) {
  m_helm.Modes().TrackSetSetup();
  EXPECT_THAT(m_helm.Now().Advice, IsEmpty());
  for (int i = 0; i < 10; ++i) {
    Receive("$IIHDG,123.4,,,5.0,W");
    m_timer.Tick();
  }
  ASSERT_THAT(m_helm.Now().Advice, ElementsAre("Heading: nothing from RMC or VTG; HDG is there"));
  EXPECT_THAT(m_view.Only({"OnSourceAdvice"}),
              ElementsAre("OnSourceAdvice Heading: nothing from RMC or VTG; HDG is there;"));
  m_helm.Modes().TrackSetSetup();
  EXPECT_THAT(m_helm.Now().Advice, IsEmpty());
}

TEST_F(HelmNowTest, ALostWindShowsAsLongAsItIsLost) {
  m_helm.Modes().TrackSetSetup();
  m_timer.Tick(4);
  EXPECT_FALSE(m_helm.Now().WindLost);
  m_timer.Tick();
  EXPECT_TRUE(m_helm.Now().WindLost);
  m_timer.Tick(5);
  Receive(kSpeed);
  Receive(kApparent);
  m_timer.Tick();
  EXPECT_FALSE(m_helm.Now().WindLost);
  EXPECT_THAT(m_view.Only({"OnWindLost"}), ElementsAre("OnWindLost yes", "OnWindLost no"));
}

TEST_F(HelmNowTest, TheTuningInUseShowsInTrackAlone) {
  m_helm.Modes().TrackSetSetup();
  EXPECT_FALSE(m_helm.Now().InUse.has_value());
  m_helm.Modes().TrackSetTrack();
  m_settings.m_fTrackBandwidth = 30.0F;
  ASSERT_TRUE(m_helm.Now().InUse.has_value());
  EXPECT_EQ(m_helm.Now().InUse->Bandwidth, 8.0F);
  EXPECT_EQ(m_helm.Now().InUse->Damping, 0.5F);
  m_helm.Modes().TrackSetManual();
  EXPECT_FALSE(m_helm.Now().InUse.has_value());
}

TEST_F(HelmNowTest, WhoHasThePilotFollowsFromModeAndTurn) {
  m_helm.Modes().TrackSetSetup();
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::Nobody);
  m_helm.Modes().TrackSetManual();
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::User);
  m_helm.TurnBegins();
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::Turn);
  m_helm.TurnOver();
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::User);
  m_helm.Modes().TrackSetTrack();
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::Loop);
}

TEST_F(HelmNowTest, HeadingAndTrueWindAreThereWhileTheyAreValid) {
  m_helm.Modes().TrackSetSetup();
  EXPECT_FALSE(m_helm.Now().Heading.has_value());
  EXPECT_FALSE(m_helm.Now().WindAngleTrue.has_value());
  m_settings.m_iNmeaTrueWind = 0;
  Receive("$GPVTG,,T,123.0,M,6.0,N,,K");
  Receive(kTrue);
  EXPECT_EQ(m_helm.Now().Heading, 123.0F);
  EXPECT_EQ(m_helm.Now().WindAngleTrue, 60.0F);
  m_helm.Modes().TrackSetSetup();
  EXPECT_FALSE(m_helm.Now().Heading.has_value());
  EXPECT_FALSE(m_helm.Now().WindAngleTrue.has_value());
}

TEST_F(HelmNowTest, CountsWhatHasLeftAndNamesTheBearing) {
  m_settings.m_iNmeaTrueWind = 0;
  m_helm.Modes().TrackSetSetup();
  Receive(kApparent);
  Receive(kTrue);
  m_helm.Modes().TrackSetManual();
  m_helm.UserSteersTo(-90.0);
  Receive(kApparent);
  Receive(kApparent);
  EXPECT_EQ(m_helm.Now().Sent, 2U);
  EXPECT_EQ(m_helm.Now().AutoPilot, 270.0F);
  EXPECT_EQ(m_helm.Now().InputPort, 5);
  EXPECT_EQ(m_helm.Now().OutputPort, 6);
}

}  // namespace
}  // namespace veerwatch
