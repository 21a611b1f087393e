// Course targets, turned and seen in a mirror.
#include "tests/properties/AnyCourse.h"

namespace veerwatch {
namespace {

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
