#include "platform/SystemClock.h"

#include <chrono>
#include <ctime>

namespace veerwatch {

namespace {

constexpr std::int64_t kMillisecondsPerSecond = 1000;

std::int64_t SteadyMilliseconds() {
#ifdef __linux__
  // The one that goes on while the computer is suspended.
  timespec time{};
  if (clock_gettime(CLOCK_BOOTTIME, &time) == 0) {
    constexpr std::int64_t kNanosecondsPerMillisecond = 1000000;
    return static_cast<std::int64_t>(time.tv_sec) * kMillisecondsPerSecond +
           static_cast<std::int64_t>(time.tv_nsec) / kNanosecondsPerMillisecond;
  }
#endif
  using std::chrono::milliseconds;
  return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

}  // namespace

Moment SystemClock::Now() const {
  using std::chrono::milliseconds;
  const auto wall = std::chrono::system_clock::now().time_since_epoch();
  return {SteadyMilliseconds(), std::chrono::duration_cast<milliseconds>(wall).count()};
}

std::int32_t SystemClock::UtcOffset(std::int64_t wall) const {
  const auto seconds = static_cast<time_t>(wall / kMillisecondsPerSecond);
  tm local{};
  // Looks at the computer's time zone again, which may be another one in the next port.
#ifdef _WIN32
  _tzset();
  if (localtime_s(&local, &seconds) != 0) {
    return 0;
  }
  return static_cast<std::int32_t>(_mkgmtime(&local) - seconds);
#else
  tzset();
  if (localtime_r(&seconds, &local) == nullptr) {
    return 0;
  }
  return static_cast<std::int32_t>(local.tm_gmtoff);
#endif
}

}  // namespace veerwatch
