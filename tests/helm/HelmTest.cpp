#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

TEST_F(HelmTest, TurnsAWindSentenceIntoAHeadingForTheAutopilot) {
  m_settings.m_fAutoPilot = 100.0F;
  m_helm.Modes().TrackSetSetup();
  Receive("$GPVTG,,T,123.0,M,6.0,N,,K");
  Receive("$IIMWV,045,R,14.0,N,A");
  EXPECT_EQ(m_settings.DesiredAngle[1], 45.0F);
  EXPECT_EQ(m_pilotPort.TakeWritten(), "");
  m_helm.Modes().TrackSetManual();
  Receive("$IIMWV,045,R,14.0,N,A");
  EXPECT_EQ(m_pilotPort.TakeWritten(), Sentence("100.0") + "\r\n");
  m_helm.Modes().TrackSetTrack();
  Receive("$IIMWV,053,R,14.0,N,A");  // 8 degrees too far off the bow: a quarter of it to starboard
  EXPECT_EQ(m_pilotPort.TakeWritten(), Sentence("102.0") + "\r\n");
  Receive("$IIMWV,053,R,14.0,N,A");  // a quarter of 8 and of the accumulated 2
  EXPECT_EQ(m_pilotPort.TakeWritten(), Sentence("104.5") + "\r\n");
}

TEST_F(HelmTest, NothingIsSentWithoutATrueWind) {
  m_helm.Modes().TrackSetSetup();
  m_helm.Modes().TrackSetManual();
  Receive("$IIMWV,045,R,14.0,N,A");
  EXPECT_EQ(m_pilotPort.TakeWritten(), "");
}

TEST_F(HelmTest, OnePortServesBothWaysWithEqualNumbers) {
  m_settings.m_iPilotPort = m_settings.m_iNmeaPort;
  m_helm.Modes().TrackSetSetup();
  m_helm.Modes().TrackSetManual();
  Receive("$GPVTG,,T,123.0,M,6.0,N,,K");
  Receive("$IIMWV,045,R,14.0,N,A");
  EXPECT_EQ(m_nmeaPort.TakeWritten(), Sentence("040.0") + "\r\n");
  EXPECT_TRUE(m_pilotPort.OpenedNumbers.empty());
}

TEST_F(HelmTest, ThePolarUpdateCarriesTheModeAndComesAfterTheControlStep) {
  m_helm.Modes().TrackSetSetup();
  m_helm.Modes().TrackSetManual();
  Receive("$GPVTG,,T,123.0,M,6.0,N,,K");
  Receive("$IIMWV,045,R,14.0,N,A");
  EXPECT_THAT(m_view.Only({"OnPilotHeading", "OnPolarUpdate"}),
              ElementsAre("OnPilotHeading 40", "OnPolarUpdate 5 6"));
}

TEST_F(HelmTest, WhileSimulatingEveryTickSteersThePortsStayClosedAndThePolarUpdateComesFirst) {
  m_settings.m_bSimulate = true;
  m_helm.Modes().TrackSetSetup();
  m_helm.Modes().TrackSetManual();
  m_view.Take();
  m_timer.Tick();
  EXPECT_THAT(m_view.Only({"OnPilotHeading", "OnPolarUpdate"}),
              ElementsAre("OnPolarUpdate 5 8", "OnPilotHeading 40"));
  EXPECT_EQ(m_view.Count("OnPilotData"), 1U);
  EXPECT_FALSE(m_nmeaPort.PortOpen());
  EXPECT_FALSE(m_pilotPort.PortOpen());
  m_timer.Tick(10);
  EXPECT_EQ(m_view.Count("OnPilotData"), 11U);
  EXPECT_EQ(m_view.InputStatus, "Simulate");
}

TEST_F(HelmTest, TheSimulatedBoatComesToTheDesiredAngleAndStays) {
  m_settings = Settings{};
  m_settings.m_bSimulate = true;
  m_helm.Modes().TrackSetSetup();
  m_helm.Modes().TrackSetTrack();
  m_helm.Loop().SetDesired(TrackSide::Apparent, 35.0);
  m_timer.Tick(2000);
  for (int i = 0; i < 200; ++i) {
    m_timer.Tick();
    ASSERT_NEAR(m_helm.Data().WindAngleApparent, 35.0F, 0.2F);
  }
}

TEST_F(HelmTest, ATickWatchesBothPortsWhileNotSimulating) {
  m_nmeaPort.OpensOtherwise = false;
  m_pilotPort.OpensOtherwise = false;
  m_helm.Modes().TrackSetSetup();
  EXPECT_EQ(m_view.InputStatus, "Input Port 5 Not Open");
  EXPECT_EQ(m_view.OutputStatus, "Output Port 6 Not Open");
  m_nmeaPort.OpensOtherwise = true;
  m_pilotPort.OpensOtherwise = true;
  m_timer.Tick(4);
  EXPECT_TRUE(m_nmeaPort.PortOpen());
  EXPECT_TRUE(m_pilotPort.PortOpen());
}

}  // namespace
}  // namespace veerwatch
