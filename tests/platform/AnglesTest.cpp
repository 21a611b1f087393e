#include "platform/Angles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace veerwatch {
namespace {

TEST(AngleRelative, Keeps180) { EXPECT_EQ(AngleRelative(180.0), 180.0); }
TEST(AngleRelative, TurnsMinus180IntoPlus180) { EXPECT_EQ(AngleRelative(-180.0), 180.0); }
TEST(AngleRelative, Turns540Into180) { EXPECT_EQ(AngleRelative(540.0), 180.0); }
TEST(AngleRelative, CorrectsOnlyOnce) {
  EXPECT_EQ(AngleRelative(600.0), 240.0);
  EXPECT_EQ(AngleRelative(-600.0), -240.0);
}

TEST(AngleRelative, AgreesWithTheRemainderWithinItsGuarantee) {
  for (int quarters = -2159; quarters <= 2160; ++quarters) {
    const double angle = quarters * 0.25;
    double expected = std::remainder(angle, 360.0);
    if (expected == -180.0) {
      expected = 180.0;
    }
    ASSERT_EQ(AngleRelative(angle), expected) << angle;
  }
}

TEST(AngleAbsolute, Turns360IntoZero) { EXPECT_EQ(AngleAbsolute(360.0), 0.0); }
TEST(AngleAbsolute, TurnsMinus360IntoZero) { EXPECT_EQ(AngleAbsolute(-360.0), 0.0); }
TEST(AngleAbsolute, CorrectsOnlyOnce) {
  EXPECT_EQ(AngleAbsolute(-400.0), -40.0);
  EXPECT_EQ(AngleAbsolute(800.0), 440.0);
}

TEST(AngleAbsolute, AgreesWithTheRemainderWithinItsGuarantee) {
  for (int quarters = -1440; quarters < 2880; ++quarters) {
    const double angle = quarters * 0.25;
    const double expected = angle - 360.0 * std::floor(angle / 360.0);
    ASSERT_EQ(AngleAbsolute(angle), expected) << angle;
  }
}

TEST(FoldBearing, FoldsAnyFiniteAngleFully) {
  EXPECT_EQ(FoldBearing(0.0), 0.0F);
  EXPECT_EQ(FoldBearing(360.0), 0.0F);
  EXPECT_EQ(FoldBearing(-400.0), 320.0F);
  EXPECT_EQ(FoldBearing(1085.5), 5.5F);
  EXPECT_EQ(FoldBearing(-0.5), 359.5F);
  EXPECT_EQ(FoldBearing(7200.0), 0.0F);
}

TEST(FoldBearing, StaysBelow360WhenTheSingleRoundsUp) {
  for (const double angle : {-1e-9, -1e-30, 359.999999999, 719.9999999999, -360.0000000001,
                             -std::numeric_limits<double>::denorm_min()}) {
    const float bearing = FoldBearing(angle);
    EXPECT_GE(bearing, 0.0F) << angle;
    EXPECT_LT(bearing, 360.0F) << angle;
  }
}

TEST(FoldBearing, StaysInRangeForHugeAngles) {
  for (const double angle : {1e6, -1e6, 1e20, -1e20, 3.4e38, -3.4e38, 1.7e308, -1.7e308}) {
    EXPECT_GE(FoldBearing(angle), 0.0F) << angle;
    EXPECT_LT(FoldBearing(angle), 360.0F) << angle;
  }
}

TEST(FoldRelative, FoldsAnyFiniteAngleFully) {
  EXPECT_EQ(FoldRelative(180.0), 180.0F);
  EXPECT_EQ(FoldRelative(-180.0), 180.0F);
  EXPECT_EQ(FoldRelative(600.0), -120.0F);
  EXPECT_EQ(FoldRelative(-600.0), 120.0F);
  EXPECT_EQ(FoldRelative(1085.5), 5.5F);
}

TEST(FoldRelative, HasNoSignAtZero) {
  for (const double angle : {-0.0, -360.0, -720.0}) {
    EXPECT_FALSE(std::signbit(FoldRelative(angle))) << angle;
    EXPECT_FALSE(std::signbit(FoldBearing(angle))) << angle;
  }
}

TEST(FoldRelative, StaysAboveMinus180WhenTheSingleRoundsDown) {
  for (const double angle :
       {-179.9999999999, 180.0000000001, 540.0000000001, 1e20, -1e20, 1.7e308, -1.7e308}) {
    EXPECT_GT(FoldRelative(angle), -180.0F) << angle;
    EXPECT_LE(FoldRelative(angle), 180.0F) << angle;
  }
}

TEST(ToSingle, KeepsWhatASingleCannotHoldFinite) {
  EXPECT_EQ(ToSingle(0.1), 0.1F);
  EXPECT_EQ(ToSingle(1e300), std::numeric_limits<float>::max());
  EXPECT_EQ(ToSingle(-1e300), std::numeric_limits<float>::lowest());
  EXPECT_TRUE(std::isnan(ToSingle(std::numeric_limits<double>::quiet_NaN())));
}

}  // namespace
}  // namespace veerwatch
