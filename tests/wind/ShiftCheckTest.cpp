#include "wind/ShiftCheck.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

constexpr ShiftCheck::Limits kLimits{15.0, 30.0};

void Blow(ShiftCheck& check, double direction, int seconds) {
  for (int i = 0; i < seconds; ++i) {
    check.Feed(direction, 1.0, kLimits);
  }
}

TEST(ShiftCheck, TellsAShiftThatLasts) {
  ShiftCheck check;
  Blow(check, 200.0, 300);
  check.Begin();
  Blow(check, 200.0, 300);
  Blow(check, 222.0, 35);
  EXPECT_FALSE(check.Shift());
  Blow(check, 222.0, 25);
  ASSERT_TRUE(check.Shift());
  EXPECT_NEAR(*check.Shift(), 20.0, 2.5);
}

TEST(ShiftCheck, TellsNothingOfAShortOne) {
  ShiftCheck check;
  Blow(check, 200.0, 600);
  Blow(check, 230.0, 25);
  Blow(check, 200.0, 200);
  EXPECT_FALSE(check.Shift());
}

TEST(ShiftCheck, TellsNothingOfASmallOne) {
  ShiftCheck check;
  Blow(check, 200.0, 600);
  Blow(check, 213.0, 600);
  EXPECT_FALSE(check.Shift());
}

TEST(ShiftCheck, GoesRightAcrossNorth) {
  ShiftCheck check;
  Blow(check, 355.0, 600);
  Blow(check, 15.0, 60);
  ASSERT_TRUE(check.Shift());
  EXPECT_GT(*check.Shift(), 15.0);
  EXPECT_LT(*check.Shift(), 20.0);
  ShiftCheck other;
  Blow(other, 5.0, 600);
  Blow(other, 344.0, 60);
  ASSERT_TRUE(other.Shift());
  EXPECT_LT(*other.Shift(), -15.0);
  EXPECT_GT(*other.Shift(), -21.0);
}

TEST(ShiftCheck, IsOverWhenTheWindComesBack) {
  ShiftCheck check;
  Blow(check, 200.0, 600);
  Blow(check, 225.0, 60);
  ASSERT_TRUE(check.Shift());
  Blow(check, 203.0, 60);
  EXPECT_FALSE(check.Shift());
}

TEST(ShiftCheck, BeginsAnewWithTheLatestWind) {
  ShiftCheck check;
  Blow(check, 200.0, 600);
  Blow(check, 225.0, 240);
  ASSERT_TRUE(check.Shift());
  check.Begin();
  EXPECT_FALSE(check.Shift());
  Blow(check, 225.0, 120);
  EXPECT_FALSE(check.Shift());
  // A shift in the first seconds after that is told, too.
  check.Begin();
  Blow(check, 250.0, 60);
  EXPECT_TRUE(check.Shift());
}

TEST(ShiftCheck, LiftsAWindFromFurtherAft) {
  EXPECT_TRUE(IsLift(18.0, 40.0));
  EXPECT_FALSE(IsLift(18.0, -40.0));
  EXPECT_TRUE(IsLift(-18.0, -40.0));
  EXPECT_FALSE(IsLift(-18.0, 40.0));
}

}  // namespace
}  // namespace veerwatch
