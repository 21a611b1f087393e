#include "control/BearingLimits.h"

#include <gtest/gtest.h>

#include <cmath>

namespace veerwatch {
namespace {

constexpr BearingLimits kLimits{30.0, 3.0};

TEST(BearingLimits, LetsPassWhatIsNearAndSlow) {
  const LimitedBearing limited = LimitBearing(100.0, 102.5, 95.0, kLimits, 1.0);
  EXPECT_NEAR(limited.Bearing, 102.5, 1e-4);
  EXPECT_FALSE(limited.Bites);
}

TEST(BearingLimits, GoesNoFasterThanItsRateEitherWay) {
  for (const double way : {20.0, -20.0}) {
    const LimitedBearing limited = LimitBearing(100.0, 100.0 + way, 100.0, kLimits, 0.5);
    EXPECT_NEAR(limited.Bearing, 100.0 + std::copysign(1.5, way), 1e-4);
    EXPECT_TRUE(limited.Bites);
  }
}

TEST(BearingLimits, GoesNoFartherFromTheHeading) {
  for (const double side : {1.0, -1.0}) {
    const LimitedBearing limited =
        LimitBearing(100.0 + 29.0 * side, 100.0 + 32.0 * side, 100.0, kLimits, 2.0);
    EXPECT_NEAR(limited.Bearing, 100.0 + 30.0 * side, 1e-4);
    EXPECT_TRUE(limited.Bites);
  }
}

TEST(BearingLimits, ComesBackAtOnceToABoatThatDoesNotFollow) {
  const LimitedBearing limited = LimitBearing(100.0, 100.0, 40.0, kLimits, 0.1);
  EXPECT_NEAR(limited.Bearing, 70.0, 1e-4);
  EXPECT_TRUE(limited.Bites);
}

TEST(BearingLimits, GoesTheShortWayAcrossNorth) {
  const LimitedBearing limited = LimitBearing(359.0, 1.0, 358.0, kLimits, 1.0);
  EXPECT_NEAR(limited.Bearing, 361.0, 1e-3);
  EXPECT_FALSE(limited.Bites);
}

TEST(BearingLimits, KeepsToTheRateAloneWithoutAHeading) {
  const LimitedBearing limited = LimitBearing(100.0, 200.0, {}, kLimits, 2.0);
  EXPECT_NEAR(limited.Bearing, 106.0, 1e-4);
}

TEST(BearingLimits, StandsWhenNoTimePasses) {
  const LimitedBearing limited = LimitBearing(100.0, 110.0, 100.0, kLimits, 0.0);
  EXPECT_EQ(limited.Bearing, 100.0);
  EXPECT_TRUE(limited.Bites);
}

}  // namespace
}  // namespace veerwatch
