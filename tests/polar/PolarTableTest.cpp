#include "polar/PolarTable.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/PolarText.h"

namespace veerwatch {
namespace {

/// Two winds alone: step by step is the same as between two neighbours.
constexpr const char* kTwoWinds = "TWA\t10\t20\n30\t4\t8\n90\t6\t10\n150\t5\t9\n";

TEST(Interpolate, GivesTheFirstValueWhereThereIsNoLine) {
  EXPECT_EQ(Interpolate(5.0F, 2.0F, 2.0F, 7.0F, 9.0F), 7.0F);
  EXPECT_EQ(Interpolate(5.0F, 2.0F, 3.0F, 7.0F, 7.0F), 7.0F);
}

TEST(Interpolate, IsExactAtItsEnds) {
  for (int i = 1; i < 2000; ++i) {
    const float speed = static_cast<float>(i) * 0.0123F;
    EXPECT_EQ(Interpolate(180.0F, 0.0F, 180.0F, speed, 0.0F), 0.0F) << speed;
    EXPECT_EQ(Interpolate(0.0F, 0.0F, 180.0F, speed, 0.0F), speed);
  }
}

TEST(Interpolate, StaysBetweenItsEndsHoweverItIsRounded) {
  for (int i = 1; i < 2000; ++i) {
    const float speed = static_cast<float>(i) * 0.0123F;
    EXPECT_GE(Interpolate(0.0F, -49.0F, 1e-20F, speed, 0.0F), 0.0F) << speed;
    EXPECT_GE(Interpolate(0.0F, 1e-20F, -49.0F, 0.0F, speed), 0.0F) << speed;
    EXPECT_LE(Interpolate(0.0F, -49.0F, 1e-20F, 0.0F, speed), speed);
  }
}

TEST(Interpolate, GoesOnBeyondItsEnds) {
  EXPECT_EQ(Interpolate(0.0F, 1.0F, 2.0F, 10.0F, 20.0F), 0.0F);
  EXPECT_EQ(Interpolate(3.0F, 1.0F, 2.0F, 10.0F, 20.0F), 30.0F);
}

TEST(PolarSpeed, IsTheCellsOwnWhereThereIsOne) {
  const PolarTable table = TableOf(kTwoWinds);
  EXPECT_EQ(table.PolarSpeed(0, 90.0F, 20.0F), 10.0F);
  EXPECT_EQ(table.PolarSpeed(0, 30.0F, 10.0F), 4.0F);
  EXPECT_EQ(table.PolarSpeed(0, 150.0F, 20.0F), 9.0F);
}

TEST(PolarSpeed, LiesOnTheLinesBetweenTwoRowsAndTwoColumns) {
  const PolarTable table = TableOf(kTwoWinds);
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 60.0F, 10.0F), 5.0F);
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 90.0F, 12.5F), 7.0F);
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 60.0F, 15.0F), 7.0F);
}

TEST(PolarSpeed, AboveTheHighestWindIsThatColumnsSpeed) {
  const PolarTable table = TableOf(kTwoWinds);
  EXPECT_EQ(table.PolarSpeed(0, 90.0F, 45.0F), 10.0F);
}

TEST(PolarSpeed, BelowTheLowestWindFallsInALineToNothing) {
  const PolarTable table = TableOf(kTwoWinds);
  // Step down past 10 keeps the boat speed of 20: 10 kn at the wind of 10.
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 90.0F, 5.0F), 5.0F);
  EXPECT_EQ(table.PolarSpeed(0, 90.0F, 0.0F), 0.0F);
}

TEST(PolarSpeed, BelowTheOnlyColumnIsNothing) {
  const PolarTable table = TableOf("TWA\t10\n40\t5\n90\t7\n");
  EXPECT_EQ(table.PolarSpeed(0, 60.0F, 9.9F), 0.0F);
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 65.0F, 10.0F), 6.0F);
}

TEST(PolarSpeed, KeepsTheBoatSpeedsOfTheHighestColumnWhileItStepsDown) {
  const PolarTable table = TableOf(kSmallPolar);
  // At 80 degrees and 8 kn: lower column 6 kn with 5; the upper bracket has come down to the wind of 10 but
  // holds the 11 of 20 kn: 5 + (11 - 5) * (8 - 6) / (10 - 6).
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 80.0F, 8.0F), 8.0F);
  // Between the two highest columns nothing was stepped past.
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 80.0F, 17.0F), 10.0F);
}

TEST(PolarSpeed, IsNothingOutsideOfTheAngles) {
  const PolarTable table = TableOf(kTwoWinds);
  EXPECT_EQ(table.PolarSpeed(0, 29.9F, 15.0F), 0.0F);
  EXPECT_EQ(table.PolarSpeed(0, 150.1F, 15.0F), 0.0F);
}

TEST(PolarSpeed, IsNothingInATableWithoutTwoRows) {
  EXPECT_EQ(PolarTable().PolarSpeed(0, 60.0F, 10.0F), 0.0F);
  EXPECT_EQ(TableOf("TWA\t10\n40\t5\n").PolarSpeed(0, 40.0F, 10.0F), 0.0F);
  EXPECT_EQ(TableOf("TWA\t10\t12\n").PolarSpeed(0, 40.0F, 10.0F), 0.0F);
}

TEST(PolarSpeed, IsNothingWhereNoBracketHoldsTheAngle) {
  // Rows that go down enclose nothing.
  const PolarTable table = TableOf("TWA\t10\t12\n120\t5\t6\n60\t7\t8\n");
  EXPECT_EQ(table.PolarSpeed(0, 90.0F, 11.0F), 0.0F);
}

TEST(PolarFindRow, TakesTheLowerPairForAnAngleOfARow) {
  const PolarTable table = TableOf(kSmallPolar);
  const RowBracket bracket = table.PolarFindRow(0, 2, 80.0F);
  EXPECT_EQ(bracket.Row, 1);
  EXPECT_EQ(bracket.Lower.Angle, 40.0F);
  EXPECT_EQ(bracket.Upper.Angle, 80.0F);
  EXPECT_EQ(bracket.Upper.BoatSpeed, 8.0F);
  EXPECT_EQ(bracket.Lower.WindSpeed, 10.0F);
}

TEST(PolarFindRow, FindsNothingOutside) {
  const PolarTable table = TableOf(kSmallPolar);
  EXPECT_EQ(table.PolarFindRow(0, 1, 39.0F).Row, 0);
  EXPECT_EQ(table.PolarFindRow(0, 1, 181.0F).Row, 0);
}

TEST(PolarPoint, SeesTheApparentAngleAndLeavesTheRest) {
  PolarTable table = TableOf(kSmallPolar);
  table.Type(PlotType::ApparentWind);
  const PolarCell cell = table.PolarPoint(0, 2, 2);
  const double radians = 80.0 * std::acos(-1.0) / 180.0;
  const double expected = std::atan2(10.0 * std::sin(radians), 8.0 + 10.0 * std::cos(radians));
  EXPECT_NEAR(static_cast<double>(cell.Angle), expected * 180.0 / std::acos(-1.0), 1e-4);
  EXPECT_EQ(cell.WindSpeed, 10.0F);
  EXPECT_EQ(cell.BoatSpeed, 8.0F);
}

TEST(PolarSpeed, GivesAnotherSpeedForTheSameNumberInApparentWind) {
  PolarTable table = TableOf(kSmallPolar);
  const float trueWind = table.PolarSpeed(0, 60.0F, 20.0F);
  table.Type(PlotType::ApparentWind);
  const PolarCell lower = table.PolarPoint(0, 2, 4);
  const PolarCell upper = table.PolarPoint(0, 3, 4);
  ASSERT_LE(lower.Angle, 60.0F);
  ASSERT_GE(upper.Angle, 60.0F);
  const float apparent = table.PolarSpeed(0, 60.0F, 20.0F);
  EXPECT_FLOAT_EQ(apparent, Interpolate(60.0F, lower.Angle, upper.Angle, 11.0F, 14.0F));
  EXPECT_GT(std::fabs(apparent - trueWind), 0.5F);
}

TEST(PolarSpeed, IsFiniteAllOverTheTable) {
  for (const PlotType type : {PlotType::TrueWind, PlotType::ApparentWind}) {
    PolarTable table = TableOf(
        "TWA\t0\t340000000000000000000000000000000000000\t5\n0\t340000000000000000000000000000000000000\t0\t1"
        "\n"
        "0\t1\t2\t3\n90\t340000000000000000000000000000000000000\t5\t5\n180\t1\t1\t1\n");
    table.Type(type);
    for (float angle = 0.0F; angle <= 180.0F; angle += 7.5F) {
      for (const float wind : {0.0F, 1.0F, 5.0F, 6.0F, 1e30F}) {
        EXPECT_TRUE(std::isfinite(table.PolarSpeed(0, angle, wind))) << angle << " " << wind;
      }
    }
  }
}

TEST(PolarSpeed, IsNeverBelowZeroWithAngleHeadingsBelowZero) {
  const PolarTable table = TableOf("TWA\t10\n-49\t1.6\n0.00000000000000000001\t0\n");
  EXPECT_EQ(table.PolarSpeed(0, 0.0F, 10.0F), 0.0F);
}

TEST(PolarNearest, FindsTheCellUnderAPointOnEitherSide) {
  const PolarTable table = TableOf(kSmallPolar);
  const PolarGeometry geometry{200.0, 200.0, 10.0, 10.0};
  const NearestCell starboard = table.PolarNearest(0, 200.0 + 78.0, 200.0 - 15.0, geometry);
  ASSERT_TRUE(starboard.Found);
  EXPECT_EQ(starboard.Cell.Angle, 80.0F);
  EXPECT_EQ(starboard.Cell.WindSpeed, 10.0F);
  EXPECT_EQ(starboard.Cell.BoatSpeed, 8.0F);
  const NearestCell port = table.PolarNearest(0, 200.0 - 78.0, 200.0 - 15.0, geometry);
  EXPECT_EQ(port.Cell.Angle, -80.0F);
  EXPECT_NEAR(port.SquaredDistance, starboard.SquaredDistance, 1e-6);
}

TEST(PolarNearest, KeepsTheFirstOfTwoThatAreEquallyNear) {
  const PolarTable table = TableOf("TWA\t10\t12\n90\t5\t5\n");
  const PolarGeometry geometry{100.0, 100.0, 10.0, 10.0};
  const NearestCell nearest = table.PolarNearest(0, 150.0, 100.0, geometry);
  EXPECT_EQ(nearest.Cell.WindSpeed, 10.0F);
  // Straight above the centre both sides are equally far.
  EXPECT_EQ(table.PolarNearest(0, 100.0, 40.0, geometry).Cell.Angle, 90.0F);
}

TEST(PolarNearest, FindsNothingInAnEmptyTable) {
  EXPECT_FALSE(PolarTable().PolarNearest(0, 1.0, 1.0, {}).Found);
}

}  // namespace
}  // namespace veerwatch
