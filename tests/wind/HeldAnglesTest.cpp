#include "wind/HeldAngles.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

HeldAngles::Angle Apparent(double degrees) { return {TrackSide::Apparent, degrees}; }

TEST(HeldAngles, RemembersTheAngleBeforeALargeChange) {
  HeldAngles angles;
  angles.Holds(Apparent(40.0));
  EXPECT_FALSE(angles.Last());
  angles.Holds(Apparent(55.0));
  ASSERT_TRUE(angles.Last());
  EXPECT_EQ(angles.Last()->Degrees, 40.0);
  angles.Holds(Apparent(57.0));
  EXPECT_EQ(angles.Last()->Degrees, 40.0);
  angles.Holds(Apparent(40.0));
  EXPECT_EQ(angles.Last()->Degrees, 57.0);
}

TEST(HeldAngles, TakesTenDegreesForASmallChange) {
  HeldAngles angles;
  angles.Holds(Apparent(40.0));
  angles.Holds(Apparent(50.0));
  EXPECT_FALSE(angles.Last());
}

TEST(HeldAngles, ForgetsAnAngleOfTheOtherTackOrSide) {
  HeldAngles angles;
  angles.Holds(Apparent(40.0));
  angles.Holds(Apparent(60.0));
  angles.Holds(Apparent(-60.0));
  EXPECT_FALSE(angles.Last());
  angles.Holds(Apparent(-40.0));
  ASSERT_TRUE(angles.Last());
  angles.Holds({TrackSide::True, -55.0});
  EXPECT_FALSE(angles.Last());
}

TEST(HeldAngles, KeepsWhereTheFirstDodgeBegan) {
  HeldAngles angles;
  angles.Holds(Apparent(40.0));
  angles.Dodged(Apparent(40.0), Apparent(30.5), 10.0);
  angles.Holds(Apparent(30.5));
  angles.Dodged(Apparent(30.5), Apparent(21.0), 10.0);
  angles.Holds(Apparent(21.0));
  ASSERT_TRUE(angles.Away());
  EXPECT_EQ(angles.Away()->Before.Degrees, 40.0);
  EXPECT_EQ(angles.Away()->Degrees, 20.0);
}

TEST(HeldAngles, ForgetsADodgeWhenTheUserSetsAnAngle) {
  HeldAngles angles;
  angles.Holds(Apparent(40.0));
  angles.Dodged(Apparent(40.0), Apparent(30.0), 10.0);
  angles.Holds(Apparent(33.0));
  EXPECT_FALSE(angles.Away());
}

TEST(HeldAngles, TakesWhatAnotherFunctionMovesForNoChange) {
  HeldAngles angles;
  angles.Holds(Apparent(40.0));
  angles.Moved(Apparent(60.0));
  angles.Holds(Apparent(60.0));
  EXPECT_FALSE(angles.Last());
}

}  // namespace
}  // namespace veerwatch
