// What the loop is given by the method: the unsmoothed wind, a fresh heading, the simulator's clock.

#include <cmath>

#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

class MethodInput : public HelmTest {
 protected:
  MethodInput() {
    m_settings.m_eTrackMethod = TrackMethod::Direction;
    m_settings.m_fTrackBandwidth = 0.4F;
    m_settings.m_iNmeaTrueWind = 0;
    m_settings.m_iNmeaHeading = 0;
  }
  void Wind(const std::string& angle) {
    m_clock.Pass(1000);
    if (m_heading) {
      Receive("$IIHDG,000.0,,,,");
    }
    Receive("$IIMWV,045,R,10.5,N,A");
    Receive("$IIMWV," + angle + ",T,9.5,N,A");
  }

  bool m_heading = true;
};

TEST_F(MethodInput, DirectionWorksOnTheWindBeforeItIsSmoothed) {
  m_settings.m_fNmeaTrueWindAverage = 100.0F;
  m_helm.Modes().TrackSetSetup();
  for (int i = 0; i < 12; ++i) {
    Wind("060");
  }
  m_helm.Track(TrackSide::True);
  m_helm.Modes().TrackSetManual();
  m_settings.m_fAutoPilot = 0.0F;
  m_helm.Modes().TrackSetTrack();
  ASSERT_EQ(m_settings.m_eTrackMode, TrackMode::Track);
  Wind("070");
  Wind("070");
  EXPECT_GT(m_settings.m_fAutoPilot, 2.0F) << "the smoothed wind has turned by a fifth of a degree";
  EXPECT_LT(m_settings.m_fAutoPilot, 11.0F);
}

TEST_F(MethodInput, AnotherMethodOfTheSettingsWaitsForTrack) {
  m_settings.m_fNmeaTrueWindAverage = 100.0F;
  m_helm.Modes().TrackSetSetup();
  for (int i = 0; i < 12; ++i) {
    Wind("060");
  }
  m_helm.Track(TrackSide::True);
  m_settings.m_fAutoPilot = 0.0F;
  m_helm.Modes().TrackSetTrack();
  m_settings.m_eTrackMethod = TrackMethod::Sentence;
  Wind("070");
  Wind("070");
  EXPECT_GT(m_settings.m_fAutoPilot, 2.0F) << "still by the wind before it is smoothed";
  EXPECT_LT(m_settings.m_fAutoPilot, 11.0F);
}

TEST_F(MethodInput, WhatTrackBeginsWithIsTold) {
  m_helm.Modes().TrackSetSetup();
  for (const char* angle : {"060", "070", "060", "070"}) {
    Wind(angle);
  }
  m_settings.m_fAutoPilot = 90.0F;
  m_view.Take();
  m_helm.Modes().TrackSetTrack();
  EXPECT_THAT(m_view.Only({"OnDesired", "OnAutoPilot"}),
              testing::ElementsAre("OnAutoPilot 0", "OnDesired 45 65"));
}

TEST_F(MethodInput, AHeadingThatHasStoppedIsNone) {
  m_helm.Modes().TrackSetSetup();
  Wind("060");
  m_heading = false;
  for (int i = 0; i < 5; ++i) {
    Wind("060");
  }
  m_helm.Modes().TrackSetTrack();
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Setup);
  EXPECT_TRUE(m_helm.Loop().LacksHeading());
  m_heading = true;
  Wind("060");
  m_helm.Modes().TrackSetTrack();
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Track);
}

TEST_F(MethodInput, TheSimulatorsPassesAreASecondApartWhateverTheClock) {
  m_settings.m_bSimulate = true;
  m_settings.m_fSimulateNoiseAngle = m_settings.m_fSimulateNoiseSpeed = 0.0F;
  m_settings.m_fSimulateCompassOffset = 0.0F;
  m_settings.m_eTrackMethod = TrackMethod::Clock;
  m_helm.Modes().TrackSetSetup();
  m_timer.Tick();
  m_helm.Modes().TrackSetManual();
  for (int i = 0; i < 12; ++i) {
    m_timer.Tick();
  }
  m_helm.Track(TrackSide::True);
  m_helm.Modes().TrackSetTrack();
  ASSERT_EQ(m_settings.m_eTrackMode, TrackMode::Track);
  m_timer.Tick();
  m_settings.DesiredAngle[2] -= 4.0F;
  const float before = m_settings.m_fAutoPilot;
  m_timer.Tick();
  EXPECT_GT(std::fabs(m_settings.m_fAutoPilot - before), 0.5F) << "the hand's clock stands still";
}

}  // namespace
}  // namespace veerwatch
