// Course targets, turned and seen in a mirror.
#include <gtest/gtest.h>

#include <cmath>

#include "platform/Random.h"
#include "polar/CourseTargets.h"
#include "polar/PolarTable.h"

namespace veerwatch {
namespace {

constexpr int kPolars = 150;

double Off(float a, float b) {
  return std::fabs(std::remainder(static_cast<double>(a) - static_cast<double>(b), 360.0));
}

/// Random polars and questions. Headings are whole degrees and the wind is a whole number of degrees and an
/// eighth or more, which singles hold exactly: turning costs no rounding, and on no leg does the wind come
/// from dead ahead or astern, which has no side to be mirrored to.
class AnyCourse : public testing::Test {
 protected:
  PolarTable Polar() {
    PolarTable table;
    const int rows = Whole(3, 12);
    const int columns = Whole(2, 5);
    table.PolarRows(0) = static_cast<std::int16_t>(rows);
    table.PolarColumns(0) = static_cast<std::int16_t>(columns);
    for (int column = 1; column <= columns; ++column) {
      table.Value(0, 0, column) = static_cast<float>(4 * column);
    }
    for (int row = 1; row <= rows; ++row) {
      table.Value(0, row, 0) = static_cast<float>(row < rows ? 180 / rows * row - Whole(0, 10) : 180);
      for (int column = 1; column <= columns; ++column) {
        table.Value(0, row, column) = static_cast<float>(2.0 + 8.0 * m_random.Next());
      }
    }
    return table;
  }

  CourseQuery Query() {
    CourseQuery query;
    query.Heading = static_cast<float>(Whole(0, 359));
    query.TargetBearing = static_cast<float>(Whole(0, 359));
    const float wind = static_cast<float>(Whole(0, 179)) + static_cast<float>(Whole(1, 7)) / 8.0F;
    query.WindAngleTrue = Whole(0, 1) == 0 ? wind : -wind;
    query.WindSpeedTrue = static_cast<float>(3.0 + 20.0 * m_random.Next());
    return query;
  }

  int Whole(int least, int most) {
    return least + static_cast<int>(m_random.Next() * static_cast<double>(most - least + 1));
  }

 private:
  SeededRandom m_random{12};
};

TEST_F(AnyCourse, TurnedByAnyAngleTurnsTheHeadingsAndLeavesTheRest) {
  int tacks = 0;
  for (int i = 0; i < kPolars && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const PolarTable table = Polar();
    const CourseQuery query = Query();
    const auto turn = static_cast<float>(Whole(1, 359));
    CourseQuery turned = query;
    turned.Heading += turn;
    turned.TargetBearing += turn;
    const CourseSolution a = CourseTargets(table, query);
    const CourseSolution b = CourseTargets(table, turned);
    EXPECT_EQ(a.Direct, b.Direct);
    EXPECT_EQ(a.Best, b.Best);
    EXPECT_EQ(a.SideFlag, b.SideFlag);
    EXPECT_EQ(a.Upwind, b.Upwind);
    tacks += a.Best > a.Direct ? 1 : 0;
    for (const std::size_t leg : {0U, 1U}) {
      EXPECT_LT(Off(b.Legs[leg].Heading, a.Legs[leg].Heading + turn), 1e-4);
      EXPECT_EQ(a.Legs[leg].WindAngle, b.Legs[leg].WindAngle);
      EXPECT_EQ(a.Legs[leg].Speed, b.Legs[leg].Speed);
      EXPECT_EQ(a.Legs[leg].Along, b.Legs[leg].Along);
      EXPECT_EQ(a.Legs[leg].Cross, b.Legs[leg].Cross);
      EXPECT_EQ(a.Legs[leg].Share, b.Legs[leg].Share);
    }
    EXPECT_EQ(LegNow(a), LegNow(b));
    EXPECT_EQ(PortLeg(a), PortLeg(b));
  }
  EXPECT_GT(tacks, kPolars / 4);
  EXPECT_LT(tacks, kPolars);
}

TEST_F(AnyCourse, InAMirrorHasItsLegsOnTheOtherSides) {
  int tacks = 0;
  for (int i = 0; i < kPolars && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const PolarTable table = Polar();
    const CourseQuery query = Query();
    const CourseQuery mirrored{-query.Heading, -query.TargetBearing, -query.WindAngleTrue,
                               query.WindSpeedTrue};
    const CourseSolution a = CourseTargets(table, query);
    const CourseSolution b = CourseTargets(table, mirrored);
    EXPECT_NEAR(a.Direct, b.Direct, 1e-5);
    EXPECT_NEAR(a.Best, b.Best, 1e-5);
    EXPECT_NE(a.SideFlag, b.SideFlag);
    EXPECT_EQ(a.Upwind, b.Upwind);
    tacks += a.Best > a.Direct ? 1 : 0;
    for (const std::size_t leg : {0U, 1U}) {
      const CourseLeg& one = a.Legs[leg];
      const CourseLeg& other = b.Legs[1 - leg];
      EXPECT_LT(Off(one.Heading, -other.Heading), 1e-4);
      EXPECT_LT(Off(one.WindAngle, -other.WindAngle), 1e-4);
      EXPECT_NEAR(one.Speed, other.Speed, 1e-5);
      EXPECT_NEAR(one.Along, other.Along, 1e-5);
      EXPECT_NEAR(one.Cross, -other.Cross, 1e-5);
      EXPECT_NEAR(one.Share, other.Share, 1e-5);
    }
    EXPECT_EQ(LegNow(a), 1 - LegNow(b));
  }
  EXPECT_GT(tacks, kPolars / 4);
  EXPECT_LT(tacks, kPolars);
}

}  // namespace
}  // namespace veerwatch
