#include "control/WindMean.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace veerwatch {
namespace {

TEST(WindMean, HasNoneWithoutASample) {
  WindMean mean;
  EXPECT_FALSE(mean.Mean().has_value());
  mean.Add(10.0, 12.0, 1000);
  mean.Clear();
  EXPECT_FALSE(mean.Mean().has_value());
}

TEST(WindMean, IsOfAllSamplesOfTheLastTenSeconds) {
  WindMean mean;
  mean.Add(170.0, 12.0, 0);  // too old at the end
  for (int second = 1; second <= 11; ++second) {
    mean.Add(second % 2 == 0 ? 40.0 : 50.0, 12.0, second * 1000);
  }
  // From the first second to the eleventh: six of 50 and five of 40.
  EXPECT_NEAR(*mean.Mean(), 45.4545, 0.01);
}

TEST(WindMean, FoldsAcrossDeadAstern) {
  WindMean mean;
  mean.Add(170.0, 12.0, 1000);
  mean.Add(-170.0, 12.0, 2000);
  EXPECT_NEAR(std::abs(*mean.Mean()), 180.0, 1e-9);
}

TEST(WindMean, KeepsTheNewestOfAFlood) {
  WindMean mean;
  for (int i = 0; i < 1000; ++i) {
    mean.Add(i < 500 ? 10.0 : 20.0, 12.0, 5000);
  }
  EXPECT_NEAR(*mean.Mean(), 20.0, 1e-9);
}

TEST(WindMean, IsThatOfTheWindWhateverTheMastheadSwings) {
  // 10 knots from 140 degrees; the masthead goes to either side with 5.
  WindMean mean;
  const double ahead = 10.0 * std::cos(140.0 * std::numbers::pi / 180.0);
  const double right = 10.0 * std::sin(140.0 * std::numbers::pi / 180.0);
  for (int second = 0; second < 10; ++second) {
    const double swung = right + (second % 2 == 0 ? 5.0 : -5.0);
    mean.Add(std::atan2(swung, ahead) * 180.0 / std::numbers::pi, std::hypot(swung, ahead), second * 1000);
  }
  EXPECT_NEAR(*mean.Mean(), 140.0, 1e-9);
}

TEST(WindMean, HasAnAngleOfACalm) {
  WindMean mean;
  mean.Add(30.0, 0.0, 1000);
  mean.Add(50.0, 0.0, 2000);
  EXPECT_NEAR(*mean.Mean(), 40.0, 1e-9);
}

}  // namespace
}  // namespace veerwatch
