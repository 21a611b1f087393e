#include "control/Freshness.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

class AgesTest : public testing::Test {
 protected:
  void Came(Watched what, std::int64_t at) {
    Origin from;
    from.At.Steady = at;
    m_ages.Came(what, from);
  }
  Freshness State(Watched what, std::int64_t at) const { return m_ages.At(what, {at, 0}).State; }
  std::int64_t Age(Watched what, std::int64_t at) const { return m_ages.At(what, {at, 0}).Age; }

  Settings m_settings;
  Ages m_ages{m_settings};
};

constexpr Watched kWind = Watched::WindApparent;

TEST_F(AgesTest, WhatNeverCameIsWaitingHoweverLong) {
  EXPECT_EQ(State(kWind, 0), Freshness::Waiting);
  EXPECT_EQ(State(kWind, 1000000), Freshness::Waiting);
  EXPECT_FALSE(m_ages.Within(kWind, 1000000, {0, 0}));
}

TEST_F(AgesTest, IsFreshUpToFourSecondsStaleUpToTenThenLost) {
  Came(kWind, 1000);
  EXPECT_EQ(State(kWind, 5000), Freshness::Fresh);
  EXPECT_EQ(State(kWind, 5001), Freshness::Stale);
  EXPECT_EQ(State(kWind, 11000), Freshness::Stale);
  EXPECT_EQ(State(kWind, 11001), Freshness::Lost);
  EXPECT_EQ(Age(kWind, 11001), 10001);
  EXPECT_TRUE(m_ages.Within(kWind, 2000, {3000, 0}));
  EXPECT_FALSE(m_ages.Within(kWind, 2000, {3001, 0}));
}

TEST_F(AgesTest, EachQuantityHasItsOwnAgeAndLimit) {
  m_settings.m_fWatchStaleWindTrue = 6.0F;
  m_settings.m_fWatchStaleBoatSpeed = 12.0F;
  m_settings.m_fWatchStaleHeading = 1.5F;
  m_settings.m_fWatchStaleWaypoint = 3.0F;
  for (const Watched what :
       {kWind, Watched::WindTrue, Watched::BoatSpeed, Watched::Heading, Watched::Waypoint}) {
    Came(what, 0);
  }
  Came(kWind, 3000);
  EXPECT_EQ(State(Watched::WindTrue, 6000), Freshness::Fresh);
  EXPECT_EQ(State(Watched::WindTrue, 6001), Freshness::Stale);
  EXPECT_EQ(State(kWind, 6001), Freshness::Fresh) << "two winds of different ages";
  EXPECT_EQ(State(Watched::Heading, 1501), Freshness::Stale);
  EXPECT_EQ(State(Watched::Waypoint, 3001), Freshness::Stale);
  EXPECT_EQ(State(Watched::BoatSpeed, 12000), Freshness::Fresh);
  EXPECT_EQ(State(Watched::BoatSpeed, 12001), Freshness::Lost) << "not lost before it is stale";
}

TEST_F(AgesTest, WhatGoesOnComingCountsAtOnce) {
  Came(kWind, 50000);
  Came(kWind, 54000);
  EXPECT_EQ(Age(kWind, 54500), 500);
}

TEST_F(AgesTest, TheSpeedOverGroundIsFreshForFourSecondsAndTheCompassAsLongAsTheHeading) {
  m_settings.m_fWatchStaleHeading = 1.5F;
  Came(Watched::SpeedOverGround, 0);
  Came(Watched::Compass, 0);
  EXPECT_EQ(State(Watched::Compass, 1500), Freshness::Fresh);
  EXPECT_EQ(State(Watched::Compass, 1501), Freshness::Stale);
  EXPECT_EQ(State(Watched::SpeedOverGround, 4000), Freshness::Fresh);
  EXPECT_EQ(State(Watched::SpeedOverGround, 4001), Freshness::Stale);
}

TEST_F(AgesTest, WhatCameBackCountsFromItsSecondSentence) {
  Came(kWind, 0);
  Came(kWind, 20000);
  EXPECT_EQ(State(kWind, 20000), Freshness::Lost);
  EXPECT_EQ(Age(kWind, 20000), 20000);
  Came(kWind, 21000);
  EXPECT_EQ(State(kWind, 21000), Freshness::Fresh);
  EXPECT_EQ(Age(kWind, 21500), 500);
}

TEST_F(AgesTest, TwoSentencesThatAreFarApartBringNothingBack) {
  Came(kWind, 0);
  Came(kWind, 20000);
  Came(kWind, 25000);
  EXPECT_EQ(State(kWind, 25000), Freshness::Lost);
  Came(kWind, 29000);
  EXPECT_EQ(State(kWind, 29000), Freshness::Fresh);
}

TEST_F(AgesTest, StandStillInASuspendedComputerAndAllIsStaleOnResume) {
  Came(kWind, 0);
  m_ages.StoodStill(3600000);
  EXPECT_EQ(Age(kWind, 3601000), 1000);
  EXPECT_EQ(State(kWind, 3601000), Freshness::Stale);
  EXPECT_FALSE(m_ages.Within(kWind, 2000, {3601000, 0}));
  EXPECT_EQ(State(Watched::Heading, 3601000), Freshness::Waiting);
  Came(kWind, 3601500);
  EXPECT_EQ(State(kWind, 3601500), Freshness::Stale);
  Came(kWind, 3602500);
  EXPECT_EQ(State(kWind, 3602500), Freshness::Fresh);
}

TEST_F(AgesTest, ABoatWithoutLogOrCompassIsNotNagged) {
  m_settings.m_bWatchLogFitted = false;
  m_settings.m_bWatchCompassFitted = false;
  EXPECT_EQ(State(Watched::BoatSpeed, 0), Freshness::NotFitted);
  EXPECT_EQ(State(Watched::Heading, 0), Freshness::NotFitted);
  EXPECT_EQ(State(kWind, 0), Freshness::Waiting);
  Came(Watched::Heading, 0);
  EXPECT_EQ(State(Watched::Heading, 4000), Freshness::Fresh) << "one comes all the same";
  EXPECT_EQ(State(Watched::Heading, 4001), Freshness::NotFitted);
  EXPECT_FALSE(m_ages.At(Watched::Heading, {60000, 0}).Gone());
}

TEST_F(AgesTest, SimulatedValuesAreAlwaysFresh) {
  m_settings.m_bSimulate = true;
  EXPECT_EQ(State(kWind, 1000000), Freshness::Fresh);
  Came(kWind, 0);
  EXPECT_EQ(State(kWind, 1000000), Freshness::Fresh);
  EXPECT_EQ(Age(kWind, 1000000), 0);
  EXPECT_TRUE(m_ages.Within(kWind, 0, {1000000, 0}));
}

}  // namespace
}  // namespace veerwatch
