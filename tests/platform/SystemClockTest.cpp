#include "platform/SystemClock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <string>

namespace veerwatch {
namespace {

TEST(SystemClock, NeverRunsBack) {
  const SystemClock clock;
  Moment last = clock.Now();
  for (int i = 0; i < 100000; ++i) {
    const Moment now = clock.Now();
    ASSERT_GE(now.Steady, last.Steady);
    last = now;
  }
}

TEST(SystemClock, TellsTheWallTimeInMilliseconds) {
  constexpr std::int64_t kMillisecondsPerSecond = 1000;
  const std::time_t before = std::time(nullptr);
  const Moment now = SystemClock().Now();
  const std::time_t after = std::time(nullptr);
  // time() may lag behind by a tick of the system's clock.
  EXPECT_GE(now.Wall / kMillisecondsPerSecond, before);
  EXPECT_LE(now.Wall / kMillisecondsPerSecond, after + 1);
}

#ifndef _WIN32
TEST(SystemClock, KnowsTheTimeZone) {
  const char* kept = std::getenv("TZ");
  const std::string zone = kept != nullptr ? kept : "";
  setenv("TZ", "UTC-5:30", 1);
  tzset();
  EXPECT_EQ(SystemClock().UtcOffset(1774947600000), 5 * 3600 + 1800);
  if (kept != nullptr) {
    setenv("TZ", zone.c_str(), 1);
  } else {
    unsetenv("TZ");
  }
  tzset();
}
#endif

}  // namespace
}  // namespace veerwatch
