#include "control/TrackController.h"

#include <gtest/gtest.h>

#include <limits>

namespace veerwatch {
namespace {

TEST(TrackController, UsesTheAccumulatorOfBeforeThePass) {
  TrackController controller;
  controller.Start({0.25, 0.5});
  EXPECT_EQ(controller.Step(8.0, 1.0), 4.0);
  EXPECT_EQ(controller.Integral(), 2.0);
  EXPECT_EQ(controller.Step(8.0, 1.0), 5.0);
  EXPECT_EQ(controller.Integral(), 4.0);
  EXPECT_EQ(controller.Step(-4.0, 1.0), 0.0);
  EXPECT_EQ(controller.Integral(), 3.0);
}

TEST(TrackController, CountsPassesWhateverTheTimeBetweenThem) {
  TrackController quick;
  TrackController slow;
  quick.Start({0.1, 0.7});
  slow.Start({0.1, 0.7});
  for (int pass = 0; pass < 20; ++pass) {
    EXPECT_EQ(quick.Step(3.0, 0.0), slow.Step(3.0, 60.0));
  }
}

TEST(TrackController, StartAndResetZeroTheAccumulator) {
  TrackController controller;
  controller.Start({0.25, 0.5});
  controller.Step(8.0, 1.0);
  controller.Reset();
  EXPECT_EQ(controller.Integral(), 0.0);
  EXPECT_EQ(controller.Gains().Proportional, 0.5);
  controller.Step(8.0, 1.0);
  controller.Start({0.5, 0.25});
  EXPECT_EQ(controller.Integral(), 0.0);
  EXPECT_EQ(controller.Step(8.0, 1.0), 2.0);
}

TEST(TrackController, AnAccumulatorOutOfRangeStartsAnew) {
  TrackController controller;
  controller.Start({1e300, 0.0});
  controller.Step(std::numeric_limits<float>::max(), 1.0);
  EXPECT_EQ(controller.Integral(), 0.0);
}

}  // namespace
}  // namespace veerwatch
