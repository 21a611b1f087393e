#include "control/WindRate.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

/// Sentences at `rate` for so long, from `start` on; where the next one would be [ms].
std::int64_t Send(WindRate& rate, double perSecond, double seconds, std::int64_t start) {
  const auto count = static_cast<int>(perSecond * seconds);
  for (int i = 0; i < count; ++i) {
    rate.Add(start + static_cast<std::int64_t>(i * 1000 / perSecond));
  }
  return start + static_cast<std::int64_t>(seconds * 1000);
}

TEST(WindRate, CountsSentencesASecond) {
  for (const double perSecond : {0.2, 0.5, 1.0, 2.0, 5.0, 10.0, 20.0}) {
    WindRate rate;
    Send(rate, perSecond, 60.0, 7000);
    ASSERT_TRUE(rate.Rate().has_value()) << perSecond;
    EXPECT_NEAR(*rate.Rate(), perSecond, perSecond * 0.01);
  }
}

TEST(WindRate, CountsBothOfTwoThatComeTogether) {
  WindRate rate;
  for (int second = 0; second < 30; ++second) {
    rate.Add(second * 1000);
    rate.Add(second * 1000);
  }
  EXPECT_EQ(rate.Rate(), 2.0);
}

TEST(WindRate, IsNotKnownBeforeFiveSeconds) {
  WindRate rate;
  EXPECT_FALSE(rate.Rate().has_value());
  rate.Add(1000);
  EXPECT_FALSE(rate.Rate().has_value());
  rate.Add(5999);
  EXPECT_FALSE(rate.Rate().has_value());
  rate.Add(6000);
  EXPECT_EQ(rate.Rate(), 0.4);
}

TEST(WindRate, FollowsAnotherRateWithinTwentySeconds) {
  WindRate rate;
  const std::int64_t then = Send(rate, 10.0, 60.0, 0);
  Send(rate, 1.0, 22.0, then);
  EXPECT_EQ(rate.Rate(), 1.0);
}

TEST(WindRate, BeginsAnewAfterASilenceAndOnAClockThatRunsBack) {
  WindRate rate;
  std::int64_t then = Send(rate, 5.0, 30.0, 0);
  rate.Add(then + 16000);
  EXPECT_FALSE(rate.Rate().has_value());
  then = Send(rate, 5.0, 30.0, then + 16000);
  EXPECT_TRUE(rate.Rate().has_value());
  rate.Add(100);
  EXPECT_FALSE(rate.Rate().has_value());
}

TEST(WindRate, AFloodIsMeasuredOverLess) {
  WindRate rate;
  for (int i = 0; i < 5000; ++i) {
    rate.Add(i * 4);
  }
  ASSERT_TRUE(rate.Rate().has_value());
  EXPECT_NEAR(*rate.Rate(), 250.0, 1.0);
}

}  // namespace
}  // namespace veerwatch
