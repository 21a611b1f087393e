#include "control/PassTime.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(PassTime, TheFirstPassHasNoTime) {
  PassTime time;
  EXPECT_EQ(time.Next({5000, 0}), 0.0);
  EXPECT_EQ(time.Next({5250, 0}), 0.25);
  time.Restart();
  EXPECT_EQ(time.Next({9000, 0}), 0.0);
}

TEST(PassTime, CountsAtMostTwoSecondsAndNeverBack) {
  PassTime time;
  time.Next({5000, 0});
  EXPECT_EQ(time.Next({90000, 0}), 2.0);
  EXPECT_EQ(time.Next({80000, 0}), 0.0);
  EXPECT_EQ(time.Next({81000, 0}), 1.0);
}

TEST(PassTime, LooksAtTheSteadyClockAlone) {
  PassTime time;
  time.Next({5000, 100000});
  EXPECT_EQ(time.Next({6000, 0}), 1.0);
}

}  // namespace
}  // namespace veerwatch
