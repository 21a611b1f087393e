#include "control/WindMean.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(WindMean, HasNoneWithoutASample) {
  WindMean mean;
  EXPECT_FALSE(mean.Mean().has_value());
  mean.Add(10.0, 1000);
  mean.Clear();
  EXPECT_FALSE(mean.Mean().has_value());
}

TEST(WindMean, IsOfAllSamplesOfTheLastTenSeconds) {
  WindMean mean;
  mean.Add(170.0, 0);  // too old at the end
  for (int second = 1; second <= 11; ++second) {
    mean.Add(second % 2 == 0 ? 40.0 : 50.0, second * 1000);
  }
  // From the first second to the eleventh: six of 50 and five of 40.
  EXPECT_NEAR(*mean.Mean(), 45.4545, 0.01);
}

TEST(WindMean, FoldsAcrossDeadAstern) {
  WindMean mean;
  mean.Add(170.0, 1000);
  mean.Add(-170.0, 2000);
  EXPECT_NEAR(std::abs(*mean.Mean()), 180.0, 1e-9);
}

TEST(WindMean, KeepsTheNewestOfAFlood) {
  WindMean mean;
  for (int i = 0; i < 1000; ++i) {
    mean.Add(i < 500 ? 10.0 : 20.0, 5000);
  }
  EXPECT_NEAR(*mean.Mean(), 20.0, 1e-9);
}

}  // namespace
}  // namespace veerwatch
