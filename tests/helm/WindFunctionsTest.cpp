// What Track does besides holding an angle, on the whole helm.

#include <cmath>
#include <optional>

#include "platform/Angles.h"
#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

using testing::Contains;
using testing::ElementsAre;

/// A boat on a heading of 0 with both winds from sensors, a sentence each a second.
class WindFunctionsTest : public HelmTest {
 protected:
  WindFunctionsTest() {
    m_settings.m_iNmeaTrueWind = 0;
    m_settings.m_iNmeaHeading = 0;
    m_settings.m_iNmeaBoatSpeed = 0;
    m_settings.m_fTrackBandwidth = 1000.0F;  // the loop hardly moves
    m_settings.m_fTrackDamping = 1.0F;
    m_settings.m_bTrackAlarm = false;
    m_helm.Modes().TrackSetSetup();
  }

  static std::string Angle(double relative) {
    return FormatNumber(static_cast<float>(relative < 0.0 ? relative + 360.0 : relative), "0.0");
  }

  void Sail(double apparent, double trueAngle, int seconds, double heading = 0.0) {
    for (int i = 0; i < seconds; ++i) {
      m_clock.Pass(1000);
      Receive("$IIHDG," + Angle(heading) + ",,,,");
      Receive("$IIVHW,,T,,M,6.0,N,,K");
      Receive("$IIMWV," + Angle(apparent) + ",R,12.0,N,A");
      Receive("$IIMWV," + Angle(trueAngle) + ",T,10.0,N,A");
      m_timer.Tick();
    }
  }

  void Track(TrackSide side) {
    m_helm.Track(side);
    m_settings.m_fAutoPilot = 0.0F;
    m_helm.Modes().TrackSetTrack();
    ASSERT_EQ(m_settings.m_eTrackMode, TrackMode::Track);
  }

  float Held(TrackSide side) const { return m_settings.DesiredAngle[static_cast<std::size_t>(side)]; }
  bool Stands(Condition what) const { return m_helm.Now().Watch.Find(what) != nullptr; }
};

TEST_F(WindFunctionsTest, DoNothingUnlessChosen) {
  m_settings.m_fWindLeastApparent = 60.0F;
  Sail(40.0, 60.0, 20);
  Track(TrackSide::Apparent);
  Sail(20.0, 30.0, 12);
  EXPECT_EQ(Held(TrackSide::Apparent), 40.0F);
  EXPECT_LT(std::fabs(FoldRelative(static_cast<double>(m_settings.m_fAutoPilot))), 3.0F);
  EXPECT_FALSE(Stands(Condition::Pinching));
  EXPECT_FALSE(Stands(Condition::WindShift));
}

TEST_F(WindFunctionsTest, TheGuardBearsAwayAtOnceAndSaysSo) {
  m_settings.m_bWindGuard = true;
  Sail(40.0, 55.0, 20);
  Track(TrackSide::Apparent);
  Sail(40.0, 55.0, 10);
  EXPECT_FALSE(Stands(Condition::Pinching));
  m_view.Take();
  Sail(20.0, 30.0, 8);
  // To an apparent angle of 35: ten degrees before the least, as 40 is held.
  EXPECT_NEAR(FoldRelative(static_cast<double>(m_settings.m_fAutoPilot)), -14.0F, 2.5F);
  EXPECT_TRUE(Stands(Condition::Pinching));
  EXPECT_TRUE(m_helm.LastSentence().Step.ByGuard);
  Sail(40.0, 55.0, 25);
  EXPECT_FALSE(Stands(Condition::Pinching));
}

TEST_F(WindFunctionsTest, TheGuardTellsAGybe) {
  m_settings.m_bWindGuard = true;
  Sail(150.0, 160.0, 20);
  Track(TrackSide::True);
  Sail(150.0, 160.0, 5);
  ASSERT_FALSE(Stands(Condition::GybeRisk));
  Sail(171.0, 171.0, 6);
  EXPECT_GT(m_settings.m_fAutoPilot, 3.0F);
  EXPECT_LT(m_settings.m_fAutoPilot, 12.0F);
  EXPECT_TRUE(Stands(Condition::GybeRisk));
}

TEST_F(WindFunctionsTest, TheGuardStandsStillWithoutAHeading) {
  m_settings.m_bWindGuard = true;
  Sail(40.0, 55.0, 20);
  Track(TrackSide::Apparent);
  for (int i = 0; i < 20; ++i) {
    m_clock.Pass(1000);
    Receive("$IIMWV,20.0,R,12.0,N,A");
    Receive("$IIMWV,30.0,T,10.0,N,A");
  }
  EXPECT_FALSE(m_helm.LastSentence().Step.ByGuard);
}

TEST_F(WindFunctionsTest, TheGuardTakesAHeldAngleBackToItsLimit) {
  m_settings.m_bWindGuard = true;
  Sail(150.0, 160.0, 20);
  Track(TrackSide::True);
  m_helm.Loop().SetDesired(TrackSide::True, 178.0);
  m_view.Take();
  Sail(150.0, 160.0, 1);
  EXPECT_EQ(Held(TrackSide::True), 165.0F);
  EXPECT_THAT(m_view.Calls, Contains("OnWindSays 0"));
  EXPECT_THAT(m_view.Only({"OnDesired"}), Contains(testing::EndsWith(" 165")));
}

TEST_F(WindFunctionsTest, AShiftIsToldAsALiftOrAHeader) {
  m_settings.m_bWindShift = true;
  Sail(40.0, 55.0, 120);
  Track(TrackSide::Apparent);
  Sail(40.0, 55.0, 120);
  Sail(60.0, 78.0, 60);
  const WatchNow now = m_helm.Now().Watch;
  const Standing* const shift = now.Find(Condition::WindShift);
  ASSERT_NE(shift, nullptr);
  EXPECT_TRUE(shift->Lift);
  EXPECT_GT(shift->Figure, 15.0);
  // Another held angle begins anew.
  m_helm.TrackSteerTo(-5.0F);
  Sail(60.0, 78.0, 5);
  EXPECT_FALSE(Stands(Condition::WindShift));
}

TEST_F(WindFunctionsTest, TheSideFollowsTheWindWithoutAJump) {
  m_settings.m_bWindSide = true;
  Sail(60.0, 90.0, 20);
  Track(TrackSide::True);
  m_helm.Loop().SetDesired(TrackSide::True, 93.0);
  Sail(60.0, 90.0, 5);
  EXPECT_EQ(m_helm.Loop().Side(), TrackSide::True);
  Sail(52.0, 75.0, 20);
  EXPECT_EQ(m_helm.Loop().Side(), TrackSide::True) << "between 70 and 80 nothing changes";
  m_view.Take();
  for (int i = 0; i < 12; ++i) {
    const float before = m_settings.m_fAutoPilot;
    Sail(45.0, 66.0, 1);
    EXPECT_NEAR(FoldRelative(static_cast<double>(m_settings.m_fAutoPilot - before)), 0.0F, 0.5F);
  }
  ASSERT_EQ(m_helm.Loop().Side(), TrackSide::Apparent);
  EXPECT_THAT(m_view.Calls, Contains("OnTrackSide 1"));
  // It was some 20 degrees closer than held, and still is.
  EXPECT_NEAR(Held(TrackSide::Apparent), 46.0F + 93.0F - 68.0F, 4.0F);
  Sail(52.0, 75.0, 20);
  EXPECT_EQ(m_helm.Loop().Side(), TrackSide::Apparent);
  Sail(60.0, 90.0, 12);
  EXPECT_EQ(m_helm.Loop().Side(), TrackSide::True);
}

TEST_F(WindFunctionsTest, TheSideStaysWithoutABoatSpeed) {
  m_settings.m_bWindSide = true;
  Sail(45.0, 62.0, 20);
  Track(TrackSide::True);
  for (int i = 0; i < 20; ++i) {
    m_clock.Pass(1000);
    Receive("$IIHDG,0.0,,,,");
    Receive("$IIMWV,45.0,R,12.0,N,A");
    Receive("$IIMWV,62.0,T,10.0,N,A");
    if (i == 6) {
      m_helm.Track(TrackSide::True);
    }
  }
  EXPECT_EQ(m_helm.Loop().Side(), TrackSide::True);
}

TEST_F(WindFunctionsTest, ThePolarsAngleIsComeToSlowly) {
  m_helm.Functions().Polar([](double, bool upwind) {
    return std::optional(BestCourse{upwind ? 43.0 : 150.0, false});
  });
  m_settings.m_bWindPolar = true;
  Sail(40.0, 55.0, 20);
  Track(TrackSide::True);
  Sail(40.0, 55.0, 10);
  EXPECT_NEAR(Held(TrackSide::True), 53.0F, 0.25F);
  Sail(40.0, 55.0, 70);
  EXPECT_EQ(Held(TrackSide::True), 43.0F);
  EXPECT_TRUE(m_settings.m_bWindPolar);
}

TEST_F(WindFunctionsTest, ThePolarEndsWithoutABestAngle) {
  m_settings.m_bWindPolar = true;
  Sail(40.0, 55.0, 20);
  Track(TrackSide::True);
  Sail(40.0, 55.0, 1);
  EXPECT_FALSE(m_settings.m_bWindPolar);
  EXPECT_THAT(m_view.Calls, Contains("OnWindSays 2"));
}

TEST_F(WindFunctionsTest, ThePolarEndsWhenTheUserSetsAnAngle) {
  m_helm.Functions().Polar([](double, bool) { return std::optional(BestCourse{43.0, false}); });
  m_settings.m_bWindPolar = true;
  Sail(40.0, 55.0, 20);
  Track(TrackSide::True);
  Sail(40.0, 55.0, 10);
  m_helm.TrackSteerTo(-5.0F);
  Sail(40.0, 55.0, 1);
  EXPECT_FALSE(m_settings.m_bWindPolar);
  EXPECT_THAT(m_view.Calls, Contains("OnWindSays 3"));
}

TEST_F(WindFunctionsTest, ThePolarWaitsWhileTheBoatDodges) {
  m_helm.Functions().Polar([](double, bool) { return std::optional(BestCourse{55.0, false}); });
  m_settings.m_bWindPolar = true;
  Sail(40.0, 55.0, 20);
  Track(TrackSide::True);
  Sail(40.0, 55.0, 5);
  ASSERT_TRUE(m_helm.Dodge(10.0));
  Sail(40.0, 55.0, 10);
  EXPECT_TRUE(m_settings.m_bWindPolar);
  EXPECT_EQ(Held(TrackSide::True), 45.0F);
  ASSERT_TRUE(m_helm.DodgeBack());
  EXPECT_EQ(Held(TrackSide::True), 55.0F);
  Sail(40.0, 55.0, 2);
  EXPECT_TRUE(m_settings.m_bWindPolar);
}

TEST_F(WindFunctionsTest, ADodgeTurnsTheBoatAtOnceAndComesBackExactly) {
  Sail(40.0, 55.0, 20);
  Track(TrackSide::Apparent);
  Sail(40.0, 55.0, 3);
  const float bearing = m_settings.m_fAutoPilot;
  ASSERT_TRUE(m_helm.Dodge(-10.0));
  ASSERT_TRUE(m_helm.Dodge(-10.0));
  EXPECT_NEAR(FoldRelative(static_cast<double>(m_settings.m_fAutoPilot - bearing)), -20.0F, 0.01F);
  EXPECT_GT(Held(TrackSide::Apparent), 50.0F);
  ASSERT_TRUE(m_helm.DodgeBack());
  EXPECT_NEAR(FoldRelative(static_cast<double>(m_settings.m_fAutoPilot - bearing)), 0.0F, 0.01F);
  EXPECT_EQ(Held(TrackSide::Apparent), 40.0F);
  EXPECT_FALSE(m_helm.DodgeBack());
}

TEST_F(WindFunctionsTest, ADodgeGoesNeitherThroughBowNorStern) {
  Sail(15.0, 22.0, 20);
  Track(TrackSide::Apparent);
  int dodges = 0;
  while (dodges < 10 && m_helm.Dodge(10.0)) {
    ++dodges;
  }
  EXPECT_EQ(dodges, 2);
  EXPECT_EQ(m_settings.m_fAutoPilot, 20.0F);
  EXPECT_GT(Held(TrackSide::Apparent), 0.0F);
  EXPECT_GT(Held(TrackSide::True), 0.0F);
  Sail(175.0, 176.0, 20);
  m_helm.Loop().SetDesired(TrackSide::Apparent, 175.0);
  EXPECT_FALSE(m_helm.Dodge(-10.0));
  EXPECT_TRUE(m_helm.Dodge(10.0));
}

TEST_F(WindFunctionsTest, ADodgeIsForTrackAlone) {
  Sail(40.0, 55.0, 20);
  m_helm.Modes().TrackSetManual();
  const float bearing = m_settings.m_fAutoPilot;
  EXPECT_FALSE(m_helm.Dodge(10.0));
  EXPECT_FALSE(m_helm.DodgeBack());
  EXPECT_FALSE(m_helm.LastAngle());
  EXPECT_EQ(m_settings.m_fAutoPilot, bearing);
}

TEST_F(WindFunctionsTest, ALeftTrackForgetsTheDodge) {
  Sail(40.0, 55.0, 20);
  Track(TrackSide::Apparent);
  ASSERT_TRUE(m_helm.Dodge(10.0));
  m_helm.Modes().TrackSetManual();
  Sail(40.0, 55.0, 2);
  m_helm.Modes().TrackSetTrack();
  EXPECT_FALSE(m_helm.DodgeBack());
}

TEST_F(WindFunctionsTest, TheLastAngleComesBackAndForth) {
  Sail(40.0, 55.0, 20);
  Track(TrackSide::Apparent);
  Sail(40.0, 55.0, 1);
  EXPECT_FALSE(m_helm.LastAngle());
  m_helm.TrackSteerTo(-20.0F);
  const float other = Held(TrackSide::Apparent);
  Sail(40.0, 55.0, 1);
  const float bearing = m_settings.m_fAutoPilot;
  ASSERT_TRUE(m_helm.LastAngle());
  EXPECT_EQ(Held(TrackSide::Apparent), 40.0F);
  EXPECT_NEAR(FoldRelative(static_cast<double>(m_settings.m_fAutoPilot - bearing)), other - 40.0F, 0.5F);
  Sail(40.0, 55.0, 1);
  ASSERT_TRUE(m_helm.LastAngle());
  EXPECT_NEAR(Held(TrackSide::Apparent), other, 0.01F);
}

}  // namespace
}  // namespace veerwatch
