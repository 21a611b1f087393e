#include "control/WindWatch.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(WindWatch, LosesEitherWindAtTheFifthTickWithoutIt) {
  for (const bool apparent : {true, false}) {
    WindWatch watch;
    for (int tick = 0; tick < 20; ++tick) {
      EXPECT_EQ(watch.Lost(), tick >= 5) << tick;
      EXPECT_EQ(watch.Tick(), tick == 4) << tick;
      apparent ? watch.Apparent() : watch.True();
    }
    apparent ? watch.True() : watch.Apparent();
    EXPECT_TRUE(watch.Tick());
    EXPECT_FALSE(watch.Lost());
  }
}

TEST(WindWatch, KeepsWindsThatComeEveryFourSeconds) {
  WindWatch watch;
  for (int tick = 1; tick < 40; ++tick) {
    EXPECT_FALSE(watch.Tick());
    EXPECT_FALSE(watch.Lost());
    if (tick % 4 == 0) {
      watch.Apparent();
      watch.True();
    }
  }
}

}  // namespace
}  // namespace veerwatch
