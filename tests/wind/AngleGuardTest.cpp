#include "wind/AngleGuard.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace veerwatch {
namespace {

constexpr AngleGuard::Limits kLimits{25.0, 165.0};
constexpr double kMostAhead = 30.0;

/// A boat on `heading` that has sailed for a minute in a steady wind, a sentence a second.
AngleGuard Sailed(double apparent, double trueAngle, double heading, double bearing) {
  AngleGuard guard;
  for (int i = 0; i < 600; ++i) {
    guard.Feed({apparent, trueAngle, heading, bearing}, 1.0);
  }
  return guard;
}

TEST(AngleGuard, LeavesABearingThatIsWithinTheLimits) {
  const AngleGuard guard = Sailed(40.0, 55.0, 100.0, 100.0);
  const auto answer = guard.Bound(kLimits, TrackSide::Apparent, 40.0, 104.0, kMostAhead);
  EXPECT_FALSE(answer.Corrected);
  EXPECT_EQ(answer.Of, AngleGuard::Risk::None);
  EXPECT_EQ(answer.Bearing, 104.0);
}

TEST(AngleGuard, LeavesEverythingBeforeAWindWasFed) {
  EXPECT_FALSE(AngleGuard().Bound(kLimits, TrackSide::True, 165.0, 10.0, kMostAhead).Corrected);
}

TEST(AngleGuard, BearsAwayFromPinching) {
  // The wind from starboard: away is to port. The bearing leads to 20, and 25 is the least.
  const AngleGuard guard = Sailed(30.0, 42.0, 100.0, 100.0);
  const auto answer = guard.Bound(kLimits, TrackSide::Apparent, 30.0, 110.0, kMostAhead);
  EXPECT_TRUE(answer.Corrected);
  EXPECT_EQ(answer.Of, AngleGuard::Risk::Pinching);
  EXPECT_NEAR(answer.Bearing, 105.0, 1e-3);
}

TEST(AngleGuard, BearsAwayFromPinchingOnPortTack) {
  const AngleGuard guard = Sailed(-30.0, -42.0, 100.0, 100.0);
  const auto answer = guard.Bound(kLimits, TrackSide::Apparent, -30.0, 90.0, kMostAhead);
  EXPECT_EQ(answer.Of, AngleGuard::Risk::Pinching);
  EXPECT_NEAR(answer.Bearing, 95.0, 1e-3);
}

TEST(AngleGuard, BringsAWindOnTheWrongBowBackTheWayItWent) {
  // The held wind is on starboard, the boat has gone through it: away is still to port.
  const AngleGuard guard = Sailed(-10.0, -14.0, 0.0, 0.0);
  const auto answer = guard.Bound(kLimits, TrackSide::Apparent, 30.0, 0.0, 60.0);
  EXPECT_EQ(answer.Of, AngleGuard::Risk::Pinching);
  EXPECT_NEAR(answer.Bearing, -35.0, 1e-3);
}

TEST(AngleGuard, LuffsFromAGybe) {
  // The wind from starboard astern: up is to starboard.
  const AngleGuard guard = Sailed(160.0, 165.0, 200.0, 200.0);
  const auto answer = guard.Bound(kLimits, TrackSide::True, 165.0, 192.0, kMostAhead);
  EXPECT_EQ(answer.Of, AngleGuard::Risk::Gybe);
  EXPECT_NEAR(answer.Bearing, 200.0, 1e-3);
}

TEST(AngleGuard, LuffsOnTheOldSideWhenTheWindIsAcrossTheStern) {
  const AngleGuard guard = Sailed(-172.0, -175.0, 200.0, 200.0);
  const auto answer = guard.Bound(kLimits, TrackSide::True, 165.0, 200.0, kMostAhead);
  EXPECT_EQ(answer.Of, AngleGuard::Risk::Gybe);
  EXPECT_NEAR(answer.Bearing, 220.0, 1e-3);
}

TEST(AngleGuard, UsesALimitTenDegreesEarlierWhereTheHeldAngleIsFarFromIt) {
  const AngleGuard guard = Sailed(140.0, 150.0, 0.0, 0.0);
  // 150 is held: 155 is the edge, ten degrees before 165.
  EXPECT_FALSE(guard.Bound(kLimits, TrackSide::True, 150.0, -4.9, kMostAhead).Corrected);
  EXPECT_NEAR(guard.Bound(kLimits, TrackSide::True, 150.0, -9.0, kMostAhead).Bearing, -5.0, 1e-3);
  // 163 is held: five degrees more would be beyond 165.
  EXPECT_NEAR(guard.Bound(kLimits, TrackSide::True, 163.0, -20.0, kMostAhead).Bearing, -15.0, 1e-3);
}

TEST(AngleGuard, KnowsWhatThePilotShowsMoreThanTheCompass) {
  // The boat has sailed on 100 with a bearing of 106.
  const AngleGuard guard = Sailed(30.0, 42.0, 100.0, 106.0);
  EXPECT_FALSE(guard.Bound(kLimits, TrackSide::Apparent, 30.0, 106.0, kMostAhead).Corrected);
  EXPECT_NEAR(guard.Bound(kLimits, TrackSide::Apparent, 30.0, 116.0, kMostAhead).Bearing, 111.0, 1e-2);
}

TEST(AngleGuard, AnswersAShiftWithinSeconds) {
  AngleGuard guard = Sailed(155.0, 160.0, 0.0, 0.0);
  for (int i = 0; i < 5; ++i) {
    guard.Feed({175.0, 175.0, 0.0, 0.0}, 1.0);
  }
  const auto answer = guard.Bound(kLimits, TrackSide::True, 160.0, 0.0, kMostAhead);
  EXPECT_EQ(answer.Of, AngleGuard::Risk::Gybe);
  EXPECT_GT(answer.Bearing, 5.0);
}

TEST(AngleGuard, IsNotMovedByABoatThatYaws) {
  AngleGuard guard = Sailed(150.0, 160.0, 0.0, 0.0);
  // A slow yaw of 12 degrees, which the late vane shows as well as the compass.
  for (int i = 0; i < 60; ++i) {
    const double yaw = 12.0 * std::sin(i * 0.1);
    guard.Feed({150.0 - yaw, 160.0 - yaw, yaw, 0.0}, 1.0);
    EXPECT_FALSE(guard.Bound(kLimits, TrackSide::True, 160.0, 0.0, kMostAhead).Corrected) << i;
  }
}

TEST(AngleGuard, StaysWithinMaxAhead) {
  const AngleGuard guard = Sailed(-90.0, -100.0, 0.0, 0.0);
  const auto answer = guard.Bound(kLimits, TrackSide::True, 165.0, 0.0, kMostAhead);
  ASSERT_TRUE(answer.Corrected);
  EXPECT_NEAR(std::fabs(answer.Bearing), kMostAhead, 1e-6);
}

TEST(AngleGuard, KeepsWhatIsHeldWithinTheLimits) {
  EXPECT_EQ(AngleGuard::Within(kLimits, TrackSide::Apparent, 12.0), 25.0);
  EXPECT_EQ(AngleGuard::Within(kLimits, TrackSide::Apparent, -12.0), -25.0);
  EXPECT_EQ(AngleGuard::Within(kLimits, TrackSide::Apparent, 170.0), 170.0);
  EXPECT_EQ(AngleGuard::Within(kLimits, TrackSide::Apparent, 0.0), 25.0);
  EXPECT_EQ(AngleGuard::Within(kLimits, TrackSide::True, -178.0), -165.0);
  EXPECT_EQ(AngleGuard::Within(kLimits, TrackSide::True, 20.0), 20.0);
}

}  // namespace
}  // namespace veerwatch
