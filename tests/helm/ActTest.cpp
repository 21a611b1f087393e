// What the helm does with Act about what the watch has found, and does not do without.

#include <functional>
#include <string>

#include "platform/NumberText.h"
#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

class HelmAct : public HelmTest {
 protected:
  HelmAct() {
    m_settings.m_bWatchAct = true;
    m_settings.m_iNmeaHeading = 0;
    m_settings.m_iNmeaBoatSpeed = 0;
    m_settings.m_fTrackBandwidth = 40.0F;
    m_helm.Modes().TrackSetSetup();
  }

  // What is sent each second; "" for nothing.
  std::string Heading = "$HCHDG,40.0,,,5.0,W";
  std::string Log = "$IIVHW,,T,,M,6.0,N,,K";
  std::string Other;
  double Angle = 45.0;
  bool Wind = true;

  void Sail(int seconds) {
    for (int i = 0; i < seconds; ++i) {
      m_swing = -m_swing;
      const std::string wind = "$IIMWV," + ShortestText(static_cast<float>(Angle + m_swing)) + ",R,10.5,N,A";
      for (const std::string& body :
           {Heading, Log, std::string("$GPVTG,,T,40.0,M,6.0,N,,K"), Wind ? wind : std::string(), Other}) {
        if (!body.empty()) {
          Receive(body);
        }
      }
      m_clock.Pass(1000);
      m_timer.Tick();
    }
  }
  void Track(TrackSide side) {
    Sail(12);
    m_helm.Track(side);
    m_helm.Modes().TrackSetTrack();
    Sail(2);
    m_pilotPort.TakeWritten();
  }
  float Bearing() const { return m_settings.m_fAutoPilot; }
  std::size_t Sent() {
    const std::size_t count = m_pilotPort.Written.size();
    m_pilotPort.TakeWritten();
    return count;
  }
  bool Stands(Condition what) const { return m_view.Watches.back().Find(what) != nullptr; }

 private:
  double m_swing = 0.1;
};

TEST_F(HelmAct, WithoutAFaultItSteersAsWithoutAct) {
  for (const bool act : {false, true}) {
    m_settings.m_bWatchAct = act;
    m_settings.m_fAutoPilot = 40.0F;
    Angle = 45.0;
    Track(TrackSide::Apparent);
    Angle = 50.0;
    Sail(1);
    EXPECT_NEAR(Bearing(), 40.25, 0.03) << act;
    EXPECT_EQ(Sent(), 1U);
    EXPECT_FALSE(m_view.Watches.back().Acts);
    m_helm.Modes().TrackSetSetup();
  }
}

TEST_F(HelmAct, EmptyWindsMakeNoStepAfterTwoSecondsAndNothingIsSent) {
  Track(TrackSide::Apparent);
  Angle = 60.0;
  Sail(1);
  Wind = false;
  Other = "$IIMWV,,R,,N,A";
  Sail(2);
  const float bearing = Bearing();
  Sent();
  Sail(20);
  EXPECT_EQ(Bearing(), bearing);
  EXPECT_EQ(Sent(), 0U);
  EXPECT_TRUE(m_view.Watches.back().Acts);
  m_settings.m_bWatchAct = false;
  Sail(5);
  EXPECT_NE(Bearing(), bearing);
}

TEST_F(HelmAct, AnInvalidWindIsNoWind) {
  Track(TrackSide::Apparent);
  const float bearing = Bearing();
  Wind = false;
  Other = "$IIMWV,085,R,10.5,N,V";
  Sail(10);
  EXPECT_NEAR(Bearing(), bearing, 0.02);
  EXPECT_TRUE(Stands(Condition::NoWind));
  m_settings.m_bWatchAct = false;
  Sail(1);
  EXPECT_GT(Bearing(), bearing + 1.5F);
  EXPECT_TRUE(Stands(Condition::NoWind)) << "for the watch it never is one";
}

TEST_F(HelmAct, AWindThatCameBackSteersFromItsSecondSentence) {
  Track(TrackSide::Apparent);
  Wind = false;
  Sail(6);
  const float bearing = Bearing();
  Wind = true;
  Angle = 85.0;
  Sail(1);
  EXPECT_EQ(Bearing(), bearing);
  Sail(1);
  EXPECT_NE(Bearing(), bearing);
}

TEST_F(HelmAct, KeepSendingGoesOnForThirtySeconds) {
  m_settings.m_bWatchKeepSending = true;
  Track(TrackSide::Apparent);
  Wind = false;
  Sail(1);
  EXPECT_EQ(Sent(), 0U) << "the wind is 2 s old";
  Sail(1);
  EXPECT_EQ(Sent(), 1U);
  Sail(100);
  EXPECT_EQ(Sent(), 29U);
  m_settings.m_bWatchKeepSending = false;
  Wind = true;
  Sail(3);
  Wind = false;
  Sent();
  Sail(10);
  EXPECT_EQ(Sent(), 0U);
}

TEST_F(HelmAct, HeadingUpTurnsAwayFromTheGybeOnceAfterTenSeconds) {
  for (const float side : {1.0F, -1.0F}) {
    m_settings.m_bWatchHeadingUp = true;
    m_settings.m_iNmeaTrueWind = 0;
    m_settings.m_fAutoPilot = 40.0F;
    Angle = static_cast<double>(side) * 140.0;
    Other = side > 0.0F ? "$IIMWV,155,T,9.5,N,A" : "$IIMWV,205,T,9.5,N,A";
    Wind = true;
    Track(TrackSide::Apparent);
    const float bearing = Bearing();
    Wind = false;
    Other.clear();
    Sail(8);
    EXPECT_EQ(Bearing(), bearing);
    Sail(1);
    EXPECT_NEAR(Bearing(), bearing + side * 20.0F, 0.01);
    EXPECT_EQ(Sent(), 1U);
    Sail(60);
    EXPECT_NEAR(Bearing(), bearing + side * 20.0F, 0.01) << "once";
    m_helm.Modes().TrackSetSetup();
  }
}

TEST_F(HelmAct, HeadingUpLeavesABoatThatCannotGybe) {
  m_settings.m_bWatchHeadingUp = true;
  m_settings.m_iNmeaTrueWind = 0;
  Angle = 130.0;
  Other = "$IIMWV,149,T,9.5,N,A";
  Track(TrackSide::Apparent);
  const float bearing = Bearing();
  Wind = false;
  Other.clear();
  Sail(30);
  EXPECT_EQ(Bearing(), bearing);
}

TEST_F(HelmAct, ALostBoatSpeedLeadsToTheApparentWindOfTheLastTenSeconds) {
  for (const bool zero : {true, false}) {
    m_settings.m_iNmeaTrueWind = 1;
    Log = "$IIVHW,,T,,M,6.0,N,,K";
    Track(TrackSide::True);
    m_view.Take();
    const float bearing = Bearing();
    Log = zero ? "$IIVHW,,T,,M,0.0,N,,K" : "";
    Sail(6);
    EXPECT_EQ(m_helm.Loop().Side(), TrackSide::Apparent);
    EXPECT_NEAR(m_settings.DesiredAngle[1], 45.0, 0.2);
    EXPECT_NEAR(Bearing(), bearing, 0.5);
    EXPECT_EQ(m_view.Count("OnTrackSide"), 1U);
    Log = "$IIVHW,,T,,M,6.0,N,,K";
    Sail(5);
    EXPECT_EQ(m_helm.Loop().Side(), TrackSide::Apparent) << "back by hand";
    m_helm.Modes().TrackSetSetup();
  }
}

TEST_F(HelmAct, APilotThatDoesNotFollowLetsNothingAddUp) {
  Track(TrackSide::Apparent);
  Angle = 65.0;
  Sail(30);
  ASSERT_TRUE(Stands(Condition::PilotNotFollowing));
  const float bearing = Bearing();
  const double integral = m_helm.Loop().TrackIntegral();
  Sent();
  Sail(30);
  EXPECT_EQ(Bearing(), bearing);
  EXPECT_EQ(m_helm.Loop().TrackIntegral(), integral);
  EXPECT_EQ(Sent(), 30U) << "the pilot goes on to be told";
  Heading = "$HCHDG," + ShortestText(bearing) + ",,,5.0,W";
  Sail(12);
  EXPECT_FALSE(Stands(Condition::PilotNotFollowing));
  EXPECT_NE(Bearing(), bearing);
}

TEST_F(HelmAct, ALostPortAddsNothingUpAndBeginsAtTheHeading) {
  Track(TrackSide::Apparent);
  const float bearing = Bearing();
  m_pilotPort.OpensOtherwise = false;
  m_pilotPort.Lose();
  Angle = 60.0;
  Heading = "$HCHDG,48.0,,,5.0,W";
  Sail(12);
  EXPECT_EQ(Bearing(), bearing);
  EXPECT_TRUE(Stands(Condition::PilotLost));
  Angle = 45.0;
  m_pilotPort.OpensOtherwise = true;
  int seconds = 0;
  while (Stands(Condition::PilotLost) && seconds < 10) {
    Sail(1);
    ++seconds;
  }
  EXPECT_NEAR(Bearing(), 48.0, 0.2);
  EXPECT_EQ(m_helm.Loop().TrackIntegral(), 0.0);
}

TEST_F(HelmAct, AGybeRiskLuffsByEightDegreesUntilItIsOver) {
  for (const float side : {1.0F, -1.0F}) {
    m_settings.m_iNmeaTrueWind = 0;
    m_settings.m_fAutoPilot = 40.0F;
    Angle = static_cast<double>(side) * 166.0;
    Other = side > 0.0F ? "$IIMWV,165,T,9.5,N,A" : "$IIMWV,195,T,9.5,N,A";
    Track(TrackSide::Apparent);
    const float bearing = Bearing();
    Other = side > 0.0F ? "$IIMWV,175,T,9.5,N,A" : "$IIMWV,185,T,9.5,N,A";
    int seconds = 0;
    while (!Stands(Condition::GybeRisk) && seconds < 15) {
      Sail(1);
      ++seconds;
    }
    EXPECT_NEAR(Bearing(), bearing + side * 8.0F, 0.2);
    EXPECT_TRUE(m_helm.Loop().Luffs());
    m_helm.Modes().TrackSetTrack();
    EXPECT_NEAR(Bearing(), bearing + side * 8.0F, 0.2) << "Track again luffs no further";
    Angle = static_cast<double>(side) * 158.0;
    Sail(1);
    EXPECT_NEAR(Bearing(), bearing + side * 8.0F, 0.2) << "she is where she should be";
    Other = side > 0.0F ? "$IIMWV,160,T,9.5,N,A" : "$IIMWV,200,T,9.5,N,A";
    Sail(20);
    EXPECT_FALSE(m_helm.Loop().Luffs());
    m_helm.Modes().TrackSetSetup();
  }
}

TEST_F(HelmAct, OneAndTheSameWindTurnsTheBoatByFiveDegreesAtMostAndIsTakenBack) {
  Track(TrackSide::Apparent);
  const float bearing = Bearing();
  Wind = false;
  Other = "$IIMWV,065,R,10.5,N,A";
  Sail(5);
  EXPECT_NEAR(Bearing(), bearing + 5.5F, 1.6);
  Sail(20);
  EXPECT_TRUE(Stands(Condition::WindNotChanging));
  EXPECT_NEAR(Bearing(), bearing, 0.2);
}

TEST_F(HelmAct, AVaneThatIsStuckWhenTrackBeginsLeavesTheBearing) {
  m_settings.m_fAutoPilot = 45.0F;
  Wind = false;
  Other = "$IIMWV,045,R,10.5,N,A";
  Sail(25);
  m_helm.Modes().TrackSetTrack();
  Sail(25);
  EXPECT_TRUE(Stands(Condition::WindNotChanging));
  EXPECT_EQ(Bearing(), 45.0F);
}

TEST_F(HelmAct, WhatTheUserTurnsIsNotTakenBack) {
  Track(TrackSide::Apparent);
  const float bearing = Bearing();
  Wind = false;
  Other = "$IIMWV,055,R,10.5,N,A";
  Sail(5);
  m_helm.TrackSteerTo(-10.0F);
  Sail(20);
  EXPECT_TRUE(Stands(Condition::WindNotChanging));
  EXPECT_NEAR(Bearing(), bearing - 10.0F, 0.2);
}

TEST_F(HelmAct, OfTwoTalkersTheFirstSteers) {
  Track(TrackSide::Apparent);
  const float bearing = Bearing();
  Other = "$WIMWV,105,R,10.5,N,A";
  Sail(15);
  EXPECT_NEAR(Bearing(), bearing, 0.5);
  EXPECT_TRUE(Stands(Condition::TwoWinds));
  Wind = false;
  Sail(4);
  EXPECT_EQ(m_helm.Data().WindAngleApparent, 105.0F) << "the first has fallen silent";
}

TEST_F(HelmAct, WithoutActNothingOfAllThisHappens) {
  m_settings.m_bWatchAct = false;
  m_settings.m_bWatchKeepSending = true;
  m_settings.m_bWatchHeadingUp = true;
  m_settings.m_iNmeaTrueWind = 0;
  Angle = 160.0;
  Other = "$IIMWV,175,T,9.5,N,A";
  Track(TrackSide::Apparent);
  Sail(15);
  EXPECT_TRUE(Stands(Condition::GybeRisk));
  EXPECT_FALSE(m_helm.Loop().Luffs());
  const float bearing = Bearing();
  Wind = false;
  Other.clear();
  Sent();
  Sail(40);
  EXPECT_EQ(Sent(), 0U);
  EXPECT_EQ(Bearing(), bearing);
}

}  // namespace
}  // namespace veerwatch
