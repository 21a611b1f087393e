#include "polar/CourseTargets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "tests/support/PolarText.h"

namespace veerwatch {
namespace {

const double kPerDegree = std::acos(-1.0) / 180.0;

double Within180(double angle) {
  while (angle > 180.0) angle -= 360.0;
  while (angle <= -180.0) angle += 360.0;
  return angle;
}

double Turn(float a, float b) { return Within180(static_cast<double>(a) - static_cast<double>(b)); }

/// The same speed at every angle but for a gap of 30 degrees around the bow.
PolarTable WithNoGoZone() { return TableOf("TWA\t5\t20\n30\t6\t6\n180\t6\t6\n"); }

double SumOf(const CourseSolution& solution, float CourseLeg::*part) {
  return static_cast<double>(solution.Legs[0].*part) * static_cast<double>(solution.Legs[0].Share) +
         static_cast<double>(solution.Legs[1].*part) * static_cast<double>(solution.Legs[1].Share);
}

TEST(CourseTargets, BeatsToWindwardOnTwoEqualLegs) {
  const CourseSolution solution = CourseTargets(WithNoGoZone(), {0.0F, 10.0F, 10.0F, 12.0F});
  EXPECT_EQ(solution.Direct, 0.0F);
  EXPECT_NEAR(solution.Best, 6.0 * std::cos(30.0 * kPerDegree), 1e-5);
  EXPECT_EQ(solution.Legs[0].Heading, 40.0F);
  EXPECT_EQ(solution.Legs[1].Heading, 340.0F) << "folded";
  EXPECT_EQ(solution.Legs[0].WindAngle, -30.0F);
  EXPECT_EQ(solution.Legs[1].WindAngle, 30.0F);
  for (const CourseLeg& leg : solution.Legs) {
    EXPECT_EQ(leg.Speed, 6.0F);
    EXPECT_NEAR(leg.Share, 0.5, 1e-6);
    EXPECT_NEAR(leg.Along, 6.0 * std::cos(30.0 * kPerDegree), 1e-5);
  }
  EXPECT_NEAR(solution.Legs[0].Cross, 3.0, 1e-5);
  EXPECT_NEAR(solution.Legs[1].Cross, -3.0, 1e-5);
  EXPECT_NEAR(SumOf(solution, &CourseLeg::Cross), 0.0, 1e-5);
  EXPECT_NEAR(SumOf(solution, &CourseLeg::Along), static_cast<double>(solution.Best), 1e-5);
}

TEST(CourseTargets, SailsABitSquareToTheCourseWhereNothingElseWillDo) {
  // 1 kn from 45 degrees on, the wind at 44.5: at the right only 90 degrees off the course sails, which goes
  // 1 kn across, at the left the best is 1 degree.
  const PolarTable table = TableOf("TWA\t5\t20\n45\t1\t1\n180\t1\t1\n");
  const CourseSolution solution = CourseTargets(table, {0.0F, 0.0F, 44.5F, 12.0F});
  const double sine = std::sin(kPerDegree);
  EXPECT_EQ(solution.Legs[0].Heading, 90.0F);
  EXPECT_EQ(solution.Legs[1].Heading, 359.0F);
  EXPECT_NEAR(solution.Legs[0].Share, sine / (1.0 + sine), 1e-6);
  EXPECT_NEAR(solution.Best, std::cos(kPerDegree) / (1.0 + sine), 1e-6);
}

TEST(CourseTargets, CancelsTheCrossComponentsOfUnequalLegs) {
  // 20 degrees off the wind's eye: 10 degrees more to one side, 50 to the other.
  const CourseSolution solution = CourseTargets(WithNoGoZone(), {100.0F, 80.0F, -40.0F, 12.0F});
  EXPECT_EQ(solution.Direct, 0.0F);
  EXPECT_EQ(solution.Legs[0].Heading, 90.0F);
  EXPECT_EQ(solution.Legs[1].Heading, 30.0F);
  // Shares from 6 sin(10) t = 6 sin(50) (1 - t).
  const double right =
      std::sin(50.0 * kPerDegree) / (std::sin(50.0 * kPerDegree) + std::sin(10.0 * kPerDegree));
  EXPECT_NEAR(solution.Legs[0].Share, right, 1e-6);
  EXPECT_NEAR(solution.Legs[1].Share, 1.0 - right, 1e-6);
  EXPECT_NEAR(SumOf(solution, &CourseLeg::Cross), 0.0, 1e-5);
}

TEST(CourseTargets, SailsStraightWhereThatIsFastest) {
  const PolarTable table = WithNoGoZone();
  const CourseSolution port = CourseTargets(table, {10.0F, 100.0F, -30.0F, 12.0F});
  EXPECT_TRUE(port.SideFlag);
  EXPECT_EQ(port.Best, 6.0F);
  EXPECT_EQ(port.Direct, 6.0F);
  EXPECT_EQ(port.Legs[0].Share, 1.0F);
  EXPECT_EQ(port.Legs[0].Speed, 6.0F);
  EXPECT_EQ(port.Legs[0].Along, 6.0F);
  EXPECT_EQ(port.Legs[1].Share, 0.0F);
  EXPECT_EQ(port.Legs[1].Speed, 0.0F);
  for (const CourseLeg& leg : port.Legs) {
    EXPECT_EQ(leg.Heading, 100.0F);
    EXPECT_EQ(leg.Cross, 0.0F);
  }
  const CourseSolution starboard = CourseTargets(table, {10.0F, 100.0F, 0.0F, 12.0F});
  EXPECT_FALSE(starboard.SideFlag);
  EXPECT_EQ(starboard.Legs[0].Share, 0.0F);
  EXPECT_EQ(starboard.Legs[1].Share, 1.0F);
}

// Speeds around the wind's eye, from which tacking at 45 degrees makes good 6 cos(45) = 4.2426 kn.
PolarTable PointingAt45(float ahead) {
  PolarTable table = TableOf("TWA\t5\t20\n0\t1\t1\n44\t1\t1\n45\t6\t6\n46\t1\t1\n180\t1\t1\n");
  for (int column = 1; column <= 2; ++column) {
    table.Value(0, 1, column) = ahead;
  }
  return table;
}

TEST(CourseTargets, DoesNotOfferATackThatGainsTwoPercent) {
  const auto madeGood = static_cast<float>(6.0 * std::cos(45.0 * kPerDegree));
  const CourseSolution solution = CourseTargets(PointingAt45(madeGood / 1.02F), {0.0F, 0.0F, 0.0F, 12.0F});
  EXPECT_EQ(solution.Best, solution.Direct);
  EXPECT_EQ(solution.Legs[1].Share, 1.0F);
  EXPECT_EQ(solution.Legs[1].Heading, 0.0F);
}

TEST(CourseTargets, OffersATackThatGainsFourPercent) {
  const auto madeGood = static_cast<float>(6.0 * std::cos(45.0 * kPerDegree));
  const CourseSolution solution = CourseTargets(PointingAt45(madeGood / 1.04F), {0.0F, 0.0F, 0.0F, 12.0F});
  EXPECT_NEAR(solution.Best, madeGood, 1e-5);
  EXPECT_EQ(solution.Legs[0].Heading, 45.0F);
  EXPECT_EQ(solution.Legs[1].Heading, 315.0F);
}

TEST(CourseTargets, NamesTheLegsTheOtherWayRoundBeforeTheWind) {
  // Dead astern is slow, 150 degrees fast.
  const PolarTable table = TableOf("TWA\t5\t20\n140\t1\t1\n150\t8\t8\n160\t1\t1\n180\t1\t1\n");
  const CourseSolution before = CourseTargets(table, {90.0F, 90.0F, 170.0F, 12.0F});
  EXPECT_FALSE(before.Upwind);
  // The wind is at 170 off the course line: 20 degrees to the right makes 150, 40 to the left -150.
  EXPECT_EQ(before.Legs[0].Heading, 50.0F);
  EXPECT_EQ(before.Legs[1].Heading, 110.0F);
  EXPECT_EQ(before.Legs[0].WindAngle, -150.0F);
  EXPECT_LT(before.Legs[0].Cross, 0.0F);
  // The same course seen from a boat that is close-hauled.
  const CourseSolution close = CourseTargets(table, {180.0F, 90.0F, 80.0F, 12.0F});
  EXPECT_TRUE(close.Upwind);
  EXPECT_EQ(close.Legs[0].Heading, 110.0F);
  EXPECT_EQ(close.Legs[1].Heading, 50.0F);
  EXPECT_TRUE(CourseTargets(table, {170.0F, 90.0F, 90.0F, 12.0F}).Upwind) << "90 degrees";
  EXPECT_TRUE(CourseTargets(table, {170.0F, 90.0F, -90.0F, 12.0F}).Upwind);
}

TEST(CourseTargets, KnowsTheLegByTheSideOfTheWind) {
  const PolarTable table = TableOf("TWA\t5\t20\n140\t1\t1\n150\t8\t8\n160\t1\t1\n180\t1\t1\n");
  for (const float windAngle : {170.0F, -170.0F, 80.0F, -80.0F, 180.0F, -180.0F}) {
    // A heading that keeps the wind at 170 degrees off the course line.
    const CourseSolution solution =
        CourseTargets(table, {90.0F + 170.0F - windAngle, 90.0F, windAngle, 12.0F});
    EXPECT_EQ(solution.SideFlag, windAngle < 0.0F);
    EXPECT_EQ(solution.Legs[PortLeg(solution)].WindAngle, -150.0F) << windAngle;
    EXPECT_EQ(solution.Legs[1 - PortLeg(solution)].WindAngle, 150.0F) << windAngle;
    EXPECT_EQ(solution.Legs[LegNow(solution)].WindAngle, windAngle < 0.0F ? -150.0F : 150.0F) << windAngle;
  }
}

TEST(LegNow, IsTheOneThatIsSailed) {
  const PolarTable table = WithNoGoZone();
  for (const float windAngle : {-100.0F, 100.0F}) {
    // The course has the wind at 60 to starboard whatever side it is on now.
    const CourseSolution solution = CourseTargets(table, {200.0F - windAngle, 140.0F, windAngle, 12.0F});
    EXPECT_EQ(solution.Legs[LegNow(solution)].Share, 1.0F) << windAngle;
    EXPECT_EQ(solution.Legs[1 - PortLeg(solution)].Share, 1.0F) << windAngle;
  }
}

TEST(CourseTargets, TakesAnglesOfAnySize) {
  const PolarTable table = WithNoGoZone();
  const CourseSolution wanted = CourseTargets(table, {20.0F, 40.0F, 30.0F, 12.0F});
  for (const CourseQuery& query :
       {CourseQuery{20.0F, 400.0F, 30.0F, 12.0F}, CourseQuery{380.0F, -320.0F, 30.0F, 12.0F},
        CourseQuery{-700.0F, 40.0F, 390.0F, 12.0F}}) {
    const CourseSolution solution = CourseTargets(table, query);
    EXPECT_EQ(solution.Legs[0].Heading, wanted.Legs[0].Heading);
    EXPECT_EQ(solution.Legs[1].Heading, wanted.Legs[1].Heading);
    EXPECT_EQ(solution.Best, wanted.Best);
    EXPECT_EQ(solution.SideFlag, wanted.SideFlag);
  }
  EXPECT_EQ(CourseTargets(table, {350.0F, -10.0F, 100.0F, 12.0F}).Legs[1].Heading, 350.0F);
  for (const float angle : {-1e30F, 1e30F, 3.4e38F}) {
    for (const CourseLeg& leg : CourseTargets(table, {angle, angle, angle, angle}).Legs) {
      for (const float value : {leg.Heading, leg.WindAngle, leg.Speed, leg.Along, leg.Cross, leg.Share}) {
        EXPECT_TRUE(std::isfinite(value));
      }
    }
  }
}

TEST(CourseTargets, StandsStillWithoutSpeeds) {
  for (const PolarTable& table : {PolarTable(), TableOf("TWA\t5\t20\n30\t0\t0\n180\t0\t0\n")}) {
    const CourseSolution solution = CourseTargets(table, {20.0F, 40.0F, -30.0F, 12.0F});
    EXPECT_EQ(solution.Best, 0.0F);
    EXPECT_EQ(solution.Legs[0].Share, 1.0F);
    EXPECT_EQ(solution.Legs[0].Heading, 40.0F);
    EXPECT_EQ(solution.Legs[0].Speed, 0.0F);
  }
  EXPECT_EQ(CourseTargets(WithNoGoZone(), {20.0F, 40.0F, -30.0F, 0.0F}).Best, 0.0F) << "no wind";
}

// The search against the plain statement of its rule

/// The part of the time on the first of two legs with which they lead to the target, by their speeds along
/// the course and across it.
double ShareOfFirst(double x1, double y1, double x2, double y2) {
  if (y1 == 0.0 && y2 == 0.0) {
    return x1 > x2 ? 1.0 : 0.0;
  }
  if (y1 == 0.0) {
    return 1.0;
  }
  return y2 != 0.0 ? y2 / (y2 - y1) : 0.0;
}

/// Every pair looked up again, one after the other.
CourseSolution Plainly(const PolarTable& table, const CourseQuery& query) {
  const auto at = [&](double relative, double offset) {
    return static_cast<double>(table.PolarSpeed(
        0, static_cast<float>(std::fabs(Within180(relative - offset))), query.WindSpeedTrue));
  };
  const double relative = static_cast<double>(query.Heading) + static_cast<double>(query.WindAngleTrue) -
                          static_cast<double>(query.TargetBearing);
  const double direct = at(relative, 0.0);
  CourseSolution solution;
  solution.Direct = solution.Best = static_cast<float>(direct);
  const std::size_t sailed = query.WindAngleTrue < 0.0F ? 0 : 1;
  solution.Legs[0].Heading = solution.Legs[1].Heading = query.TargetBearing;
  solution.Legs[sailed].Share = 1.0F;
  solution.Legs[sailed].Speed = solution.Legs[sailed].Along = static_cast<float>(direct);
  double best = direct * 1.03;
  for (int a = 0; a <= 90; ++a) {
    const double s1 = at(relative, a);
    if (s1 == 0.0) continue;
    const double x1 = std::cos(a * kPerDegree) * s1;
    const double y1 = std::sin(a * kPerDegree) * s1;
    for (int b = 0; b >= -90; --b) {
      const double s2 = at(relative, b);
      if (s2 == 0.0) continue;
      const double x2 = std::cos(b * kPerDegree) * s2;
      const double y2 = std::sin(b * kPerDegree) * s2;
      if (y1 < 0.0 || y2 > 0.0) continue;
      const double t = ShareOfFirst(x1, y1, x2, y2);
      const double madeGood = x2 * (1.0 - t) + x1 * t;
      if (madeGood > best) {
        best = madeGood;
        solution.Best = static_cast<float>(best);
        const bool upwind = std::fabs(query.WindAngleTrue) <= 90.0F;
        auto& right = solution.Legs[upwind ? 0 : 1];
        auto& left = solution.Legs[upwind ? 1 : 0];
        const auto heading = [&](int offset) {
          return std::fmod(query.TargetBearing + static_cast<float>(offset) + 360.0F, 360.0F);
        };
        right = {heading(a),
                 0.0F,
                 static_cast<float>(s1),
                 static_cast<float>(x1),
                 static_cast<float>(y1),
                 static_cast<float>(t)};
        left = {heading(b),
                0.0F,
                static_cast<float>(s2),
                static_cast<float>(x2),
                static_cast<float>(y2),
                static_cast<float>(1.0 - t)};
      }
    }
  }
  return solution;
}

void ExpectSame(const CourseSolution& found, const CourseSolution& plain, int number) {
  EXPECT_EQ(found.Direct, plain.Direct) << number;
  EXPECT_FLOAT_EQ(found.Best, plain.Best) << number;
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_NEAR(Turn(found.Legs[i].Heading, plain.Legs[i].Heading), 0.0, 1e-4) << number << " leg " << i;
    EXPECT_FLOAT_EQ(found.Legs[i].Speed, plain.Legs[i].Speed) << number << " leg " << i;
    EXPECT_NEAR(found.Legs[i].Along, plain.Legs[i].Along, 1e-4) << number << " leg " << i;
    EXPECT_NEAR(found.Legs[i].Cross, plain.Legs[i].Cross, 1e-4) << number << " leg " << i;
    EXPECT_NEAR(found.Legs[i].Share, plain.Legs[i].Share, 1e-5) << number << " leg " << i;
  }
}

TEST(CourseTargets, IsThePlainRuleOnRandomPolars) {
  std::mt19937 random(20);
  const auto any = [&random](double least, double most) {
    return static_cast<float>(std::uniform_real_distribution<double>(least, most)(random));
  };
  int onTwoLegs = 0;
  for (int number = 0; number < 150; ++number) {
    PolarTable table;
    const int rows = static_cast<int>(any(2.0, 20.0));
    const int columns = static_cast<int>(any(1.0, 9.0));
    table.PolarRows(0) = static_cast<std::int16_t>(rows);
    table.PolarColumns(0) = static_cast<std::int16_t>(columns);
    for (int row = 1; row <= rows; ++row) {
      table.Value(0, row, 0) =
          std::round(static_cast<float>(row - 1) * 180.0F / static_cast<float>(rows - 1));
      for (int column = 1; column <= columns; ++column) {
        table.Value(0, 0, column) = 4.0F * static_cast<float>(column);
        // Holes among the speeds, and now and then one astern.
        table.Value(0, row, column) = any(0.0, 1.0) < 0.2F ? 0.0F : any(number % 10 == 0 ? -2.0 : 0.0, 12.0);
      }
    }
    table.Type(number % 5 == 4 ? PlotType::ApparentWind : PlotType::TrueWind);
    for (int query = 0; query < 3; ++query) {
      const CourseQuery asked{std::floor(any(0.0, 360.0)), std::floor(any(0.0, 360.0)),
                              std::floor(any(-179.0, 181.0)), any(0.0, 40.0)};
      const CourseSolution found = CourseTargets(table, asked);
      ExpectSame(found, Plainly(table, asked), number);
      onTwoLegs += found.Legs[0].Share > 0.0F && found.Legs[1].Share > 0.0F ? 1 : 0;
    }
  }
  EXPECT_GT(onTwoLegs, 200);
}

// Memory

TEST(CourseMemory, SearchesAgainOnlyWhenSomethingIsDifferent) {
  const PolarTable table = TableOf(kSmallPolar);
  const PolarTable other;
  CourseMemory memory;
  CourseQuery query{0.0F, 90.0F, -90.0F, 12.0F};
  // A table without rows leads nowhere, so a solution from it is a new one.
  const auto remembers = [&](std::uint64_t version) {
    return memory.Solve(table, version, query).Direct > 0.0F &&
           memory.Solve(other, version, query).Direct > 0.0F;
  };
  EXPECT_TRUE(remembers(1));
  EXPECT_EQ(memory.Solve(other, 2, query).Direct, 0.0F) << "another table";
  EXPECT_TRUE(remembers(3));
  for (float CourseQuery::*part : {&CourseQuery::Heading, &CourseQuery::TargetBearing,
                                   &CourseQuery::WindAngleTrue, &CourseQuery::WindSpeedTrue}) {
    query.*part += 1.0F;
    EXPECT_EQ(memory.Solve(other, 3, query).Direct, 0.0F);
    query.*part += 1.0F;
    EXPECT_TRUE(remembers(3));
  }
}

// The boat's pace

TEST(CourseScaled, MultipliesEverySpeed) {
  const CourseSolution solution = CourseTargets(WithNoGoZone(), {0.0F, 10.0F, 10.0F, 12.0F});
  const CourseSolution slow = CourseScaled(solution, 3.0F, 4.0F);
  EXPECT_FLOAT_EQ(slow.Best, solution.Best * 0.75F);
  EXPECT_EQ(slow.Direct, 0.0F);
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_FLOAT_EQ(slow.Legs[i].Speed, 4.5F);
    EXPECT_FLOAT_EQ(slow.Legs[i].Along, solution.Legs[i].Along * 0.75F);
    EXPECT_FLOAT_EQ(slow.Legs[i].Cross, solution.Legs[i].Cross * 0.75F);
    EXPECT_EQ(slow.Legs[i].Share, solution.Legs[i].Share);
    EXPECT_EQ(slow.Legs[i].Heading, solution.Legs[i].Heading);
  }
}

TEST(CourseScaled, DividesByNoZero) {
  const CourseSolution solution = CourseTargets(WithNoGoZone(), {0.0F, 10.0F, 10.0F, 12.0F});
  EXPECT_EQ(CourseScaled(solution, 3.0F, 0.0F).Best, solution.Best);
  EXPECT_TRUE(std::isfinite(CourseScaled(solution, 1e30F, 1e-30F).Best));
}

}  // namespace
}  // namespace veerwatch
