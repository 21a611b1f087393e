#include "polar/PolarTable.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>
#include <vector>

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

/// The table of `text` with smooth lookups.
PolarTable SmoothOf(const char* text) {
  PolarTable table = TableOf(text);
  table.Smooth(true);
  return table;
}

TEST(PolarSpeedSmooth, LiesOnTheLinesBetweenTheTwoNeighbouringWinds) {
  const PolarTable table = SmoothOf(kSmallPolar);
  // At 80 degrees 5 kn in 6 and 8 in 10; at 120 degrees 4.5 and 7.5.
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 80.0F, 8.0F), 6.5F);
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 100.0F, 8.0F), 6.25F);
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 80.0F, 17.0F), 10.0F) << "as without smooth";
  for (int row = 1; row <= 4; ++row) {
    for (int column = 1; column <= 4; ++column) {
      EXPECT_EQ(table.PolarSpeed(0, table.Value(0, row, 0), table.Value(0, 0, column)),
                table.Value(0, row, column));
    }
  }
}

TEST(PolarSpeedSmooth, HasNoStepAtAWind) {
  const PolarTable table = SmoothOf(kSmallPolar);
  for (const float wind : {6.0F, 10.0F, 14.0F, 20.0F}) {
    for (float angle = 40.0F; angle <= 180.0F; angle += 2.5F) {
      const float at = table.PolarSpeed(0, angle, wind);
      EXPECT_NEAR(table.PolarSpeed(0, angle, wind - 0.001F), at, 0.002F) << angle << " " << wind;
      EXPECT_NEAR(table.PolarSpeed(0, angle, wind + 0.001F), at, 0.002F) << angle << " " << wind;
    }
  }
}

TEST(PolarSpeedSmooth, GrowsFromNothingInNoWindAndStaysAboveTheLastWind) {
  const PolarTable table = SmoothOf(kSmallPolar);
  EXPECT_EQ(table.PolarSpeed(0, 80.0F, 0.0F), 0.0F);
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 80.0F, 3.0F), 2.5F);
  EXPECT_EQ(table.PolarSpeed(0, 80.0F, -3.0F), 0.0F);
  EXPECT_EQ(table.PolarSpeed(0, 80.0F, 60.0F), 11.0F);
  const PolarTable calm = SmoothOf("TWA\t0\t10\n40\t1\t5\n90\t2\t7\n");
  EXPECT_EQ(calm.PolarSpeed(0, 90.0F, 0.0F), 2.0F) << "a column of no wind has speeds of its own";
  EXPECT_FLOAT_EQ(calm.PolarSpeed(0, 90.0F, 5.0F), 4.5F);
}

TEST(PolarSpeedSmooth, LeadsTheOnlyWindToNothingAsAnyOther) {
  const PolarTable table = SmoothOf("TWA\t10\n40\t5\n90\t7\n");
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 65.0F, 5.0F), 3.0F);
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 65.0F, 10.0F), 6.0F);
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 65.0F, 30.0F), 6.0F);
}

TEST(PolarSpeedSmooth, IsNothingOutsideOfTheAnglesAndWithoutTwoRows) {
  const PolarTable table = SmoothOf(kTwoWinds);
  EXPECT_EQ(table.PolarSpeed(0, 29.9F, 15.0F), 0.0F);
  EXPECT_EQ(table.PolarSpeed(0, 150.1F, 15.0F), 0.0F);
  EXPECT_EQ(SmoothOf("TWA\t10\n40\t5\n").PolarSpeed(0, 40.0F, 10.0F), 0.0F);
  EXPECT_EQ(SmoothOf("TWA\t10\t12\n").PolarSpeed(0, 40.0F, 10.0F), 0.0F);
  PolarTable empty;
  empty.Smooth(true);
  EXPECT_EQ(empty.PolarSpeed(0, 60.0F, 10.0F), 0.0F);
}

TEST(PolarSpeedSmooth, TakesACellOfNothingForASpeed) {
  // No speed is known in 20 kn: half way there it is half of that in 10.
  const PolarTable table = SmoothOf("TWA\t10\t20\n40\t4\t\n90\t6\t0\n");
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 90.0F, 15.0F), 3.0F);
  EXPECT_EQ(table.PolarSpeed(0, 40.0F, 25.0F), 0.0F);
}

TEST(PolarSpeedSmooth, WorksOnTrueAnglesInEitherPlot) {
  PolarTable table = SmoothOf(kSmallPolar);
  std::vector<float> speeds;
  const auto look = [&](float angle, float wind) { return table.PolarSpeed(0, angle, wind); };
  for (float angle = 0.0F; angle <= 180.0F; angle += 10.0F) {
    speeds.push_back(look(angle, 8.0F));
  }
  table.Type(PlotType::ApparentWind);
  for (std::size_t i = 0; i < speeds.size(); ++i) {
    EXPECT_EQ(look(static_cast<float>(i) * 10.0F, 8.0F), speeds[i]) << i;
  }
  EXPECT_LT(table.PolarPoint(0, 2, 2).Angle, 79.0F) << "what is drawn stays in the apparent wind";
}

TEST(PolarSpeedSmooth, IsFiniteAndNeverBelowZeroInAnyOrder) {
  const PolarTable table = SmoothOf("TWA\t10\t6\t20\t20\n90\t5\t4\t9\t8\n40\t3\t2\t7\t7\n120\t6\t5\t9\t1\n");
  for (float angle = 0.0F; angle <= 180.0F; angle += 7.5F) {
    for (const float wind : {-5.0F, 0.0F, 1.0F, 6.0F, 8.0F, 10.0F, 12.0F, 20.0F, 1e30F}) {
      const float speed = table.PolarSpeed(0, angle, wind);
      EXPECT_TRUE(std::isfinite(speed) && speed >= 0.0F && speed <= 9.0F) << angle << " " << wind;
    }
  }
}

TEST(PolarFindColumn, GivesTheTwoWindsAround) {
  const PolarTable table = TableOf(kSmallPolar);
  const auto found = [&](float wind) {
    const ColumnBracket columns = table.PolarFindColumn(0, wind);
    return std::array<float, 3>{static_cast<float>(columns.Lower), static_cast<float>(columns.Upper),
                                columns.WindSpeed};
  };
  EXPECT_EQ(found(5.0F), (std::array{0.0F, 1.0F, 5.0F}));
  EXPECT_EQ(found(6.0F), (std::array{1.0F, 1.0F, 6.0F}));
  EXPECT_EQ(found(12.0F), (std::array{2.0F, 3.0F, 12.0F}));
  EXPECT_EQ(found(14.0F), (std::array{2.0F, 3.0F, 14.0F}));
  EXPECT_EQ(found(20.0F), (std::array{3.0F, 4.0F, 20.0F}));
  EXPECT_EQ(found(30.0F), (std::array{3.0F, 4.0F, 20.0F}));
  EXPECT_EQ(PolarTable().PolarFindColumn(0, 8.0F).Upper, 0);
}

TEST(PolarSpeed, LooksInEveryColumnWhileOneOfThemHoldsAnApparentAngle) {
  PolarTable table = TableOf("TWA\t6\t10\t14\t20\n40\t4\t6\t7\t8\n80\t5\t8\t9\t11\n120\t4.5\t7.5\t10\t14\n");
  table.Type(PlotType::ApparentWind);
  // The first row stands at 24.2 degrees in the first column and at 28.9 in the last.
  ASSERT_LT(table.PolarPoint(0, 1, 2).Angle, 26.0F);
  ASSERT_GT(table.PolarPoint(0, 1, 3).Angle, 26.0F);
  const PolarCell low = table.PolarPoint(0, 1, 2);
  const PolarCell high = table.PolarPoint(0, 2, 2);
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 26.0F, 20.0F), Interpolate(26.0F, low.Angle, high.Angle, 6.0F, 8.0F));
  // The last row stands at 73.9 degrees in the first column and at 77.0 in the last.
  ASSERT_LT(table.PolarPoint(0, 3, 1).Angle, 76.0F);
  const PolarCell near = table.PolarPoint(0, 2, 4);
  const PolarCell far = table.PolarPoint(0, 3, 4);
  ASSERT_GT(far.Angle, 76.0F);
  EXPECT_FLOAT_EQ(table.PolarSpeed(0, 76.0F, 20.0F), Interpolate(76.0F, near.Angle, far.Angle, 11.0F, 14.0F));
}

/// The rule of PolarSpeed step by step, from the highest column down.
float SteppedDown(const PolarTable& table, float angle, float wind) {
  const auto at = [angle](const RowBracket& rows) {
    return Interpolate(angle, rows.Lower.Angle, rows.Upper.Angle, rows.Lower.BoatSpeed, rows.Upper.BoatSpeed);
  };
  const int columns = table.PolarColumns(0);
  const auto beyond = [&](int row, bool below) {
    const float first = table.PolarPoint(0, row, 1).Angle;
    const float last = table.PolarPoint(0, row, columns).Angle;
    return below ? angle < first && angle < last : angle > first && angle > last;
  };
  if (beyond(1, true) || beyond(table.PolarRows(0), false)) {
    return 0.0F;
  }
  int column = columns;
  RowBracket upper = table.PolarFindRow(0, column, angle);
  while (upper.Row == 0 && --column >= 1) {
    upper = table.PolarFindRow(0, column, angle);
  }
  if (column < 1 || (column == 1 && wind < upper.Lower.WindSpeed)) {
    return 0.0F;
  }
  if (wind >= upper.Lower.WindSpeed) {
    return at(upper);
  }
  while (--column >= 1) {
    const RowBracket lower = table.PolarFindRow(0, column, angle);
    if (lower.Row == 0) {
      continue;
    }
    if (lower.Lower.WindSpeed <= wind) {
      return Interpolate(wind, lower.Lower.WindSpeed, upper.Lower.WindSpeed, at(lower), at(upper));
    }
    upper.Lower = {lower.Lower.Angle, lower.Lower.WindSpeed, upper.Lower.BoatSpeed};
    upper.Upper = {lower.Upper.Angle, lower.Upper.WindSpeed, upper.Upper.BoatSpeed};
  }
  return Interpolate(wind, 0.0F, upper.Lower.WindSpeed, 0.0F, at(upper));
}

TEST(PolarSpeed, FollowsItsRuleInTablesOfAnyOrder) {
  std::mt19937 dice(7);
  const auto any = [&dice](float least, float most) {
    return std::uniform_real_distribution<float>(least, most)(dice);
  };
  int above0 = 0;
  for (int number = 0; number < 400; ++number) {
    PolarTable table;
    const int rows = 2 + number % 9;
    const int columns = 1 + number % 7;
    for (int row = 1; row <= rows; ++row) {
      table.Value(0, row, 0) =
          number % 3 == 0 ? any(0.0F, 180.0F) : 180.0F * static_cast<float>(row) / static_cast<float>(rows);
      for (int column = 1; column <= columns; ++column) {
        table.Value(0, 0, column) = number % 5 == 0 ? any(0.0F, 30.0F) : 4.0F * static_cast<float>(column);
        table.Value(0, row, column) = any(0.0F, 1.0F) < 0.2F ? 0.0F : any(0.0F, 12.0F);
      }
    }
    table.PolarRows(0) = static_cast<std::int16_t>(rows);
    table.PolarColumns(0) = static_cast<std::int16_t>(columns);
    for (const PlotType type : {PlotType::TrueWind, PlotType::ApparentWind}) {
      table.Type(type);
      for (int place = 0; place < 40; ++place) {
        const float angle = any(0.0F, 180.0F);
        const float wind = any(0.0F, 32.0F);
        const float speed = table.PolarSpeed(0, angle, wind);
        ASSERT_EQ(speed, SteppedDown(table, angle, wind)) << number << ": " << angle << " " << wind;
        above0 += speed > 0.0F ? 1 : 0;
      }
    }
  }
  EXPECT_GT(above0, 10'000);
}

TEST(PolarSpeed, SeesEveryChangeOfTheTableInApparentWind) {
  PolarTable table = TableOf(kSmallPolar);
  table.Type(PlotType::ApparentWind);
  const float before = table.PolarSpeed(0, 60.0F, 20.0F);
  const auto fresh = [&table] {
    PolarTable copy = table;
    copy.Value(0, 0, 0) = 0.0F;
    return copy.PolarSpeed(0, 60.0F, 20.0F);
  };
  table.Value(0, 3, 4) += 2.0F;
  EXPECT_NE(table.PolarSpeed(0, 60.0F, 20.0F), before);
  EXPECT_EQ(table.PolarPoint(0, 3, 4).Angle, [&] {
    PolarTable other = TableOf(kSmallPolar);
    other.Type(PlotType::ApparentWind);
    other.Value(0, 3, 4) += 2.0F;
    return other.PolarPoint(0, 3, 4).Angle;
  }());
  table.PolarColumns(0) = 2;
  EXPECT_EQ(table.PolarSpeed(0, 60.0F, 20.0F), fresh());
  table.PolarRows(0) = 2;
  EXPECT_EQ(table.PolarSpeed(0, 60.0F, 20.0F), fresh());
  table.PolarColumns(0) = 4;
  EXPECT_EQ(table.PolarSpeed(0, 60.0F, 20.0F), fresh());
}

TEST(PolarNearest, MeasuresEachWayByItsOwnScale) {
  const PolarTable table = TableOf("TWA\t10\n0\t5\n90\t5\n");
  const PolarGeometry geometry{100.0, 100.0, 20.0, 4.0};
  const NearestCell abeam = table.PolarNearest(0, 200.0, 100.0, geometry);
  EXPECT_EQ(abeam.Cell.Angle, 90.0F);
  EXPECT_NEAR(abeam.SquaredDistance, 0.0, 1e-9);
  const NearestCell ahead = table.PolarNearest(0, 100.0, 77.0, geometry);
  EXPECT_EQ(ahead.Cell.Angle, 0.0F);
  EXPECT_NEAR(ahead.SquaredDistance, 9.0, 1e-9);
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
