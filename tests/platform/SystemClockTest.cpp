#include "platform/SystemClock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <string>
#include <thread>

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

TEST(SystemClock, CountsTheTimeThatPasses) {
  const auto milliseconds = [] {
    const auto since = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
  };
  const SystemClock clock;
  const auto earliest = milliseconds();
  const std::int64_t first = clock.Now().Steady;
  const auto latest = milliseconds();
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  const auto from = milliseconds();
  const std::int64_t second = clock.Now().Steady;
  const auto until = milliseconds();
  // Each reading is cut to a millisecond.
  EXPECT_GE(second - first, from - latest - 2);
  EXPECT_LE(second - first, until - earliest + 2);
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
/// Puts the time zone of the computer back at its end.
class SystemClockZone : public testing::Test {
 public:
  SystemClockZone() : m_known(std::getenv("TZ") != nullptr), m_kept(m_known ? std::getenv("TZ") : "") {}
  ~SystemClockZone() override {
    if (m_known) {
      setenv("TZ", m_kept.c_str(), 1);
    } else {
      unsetenv("TZ");
    }
    tzset();
  }

 private:
  bool m_known;
  std::string m_kept;
};

TEST_F(SystemClockZone, IsKnown) {
  setenv("TZ", "UTC-5:30", 1);
  EXPECT_EQ(SystemClock().UtcOffset(1774947600000), 5 * 3600 + 1800);
}

TEST_F(SystemClockZone, MayChangeWhileTheProgramRuns) {
  const SystemClock clock;
  setenv("TZ", "UTC-1", 1);
  EXPECT_EQ(clock.UtcOffset(1774947600000), 3600);
  setenv("TZ", "UTC+2", 1);
  EXPECT_EQ(clock.UtcOffset(1774947600000), -7200);
}
#endif

}  // namespace
}  // namespace veerwatch
