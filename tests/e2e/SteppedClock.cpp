#include "tests/e2e/SteppedClock.h"

#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <atomic>
#include <ctime>

namespace veerwatch {

namespace {

std::atomic<long long> g_wall{0};    // [s]
std::atomic<long long> g_steady{0};  // [s]
std::atomic<long long> g_asleep{0};  // [s], what one of them counts besides

}  // namespace

void StepWallClock(long long seconds) { g_wall += seconds; }

void StepSteadyClock(long long seconds) { g_steady += seconds > 0 ? seconds : 0; }

void StepBootClock(long long seconds) { g_asleep += seconds > 0 ? seconds : 0; }

}  // namespace veerwatch

// A program's own functions come before those of its libraries, for the libraries too. Theirs have reserved
// names for their parameters. NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

int clock_gettime(clockid_t clock, timespec* time) noexcept {
  const auto result = static_cast<int>(::syscall(SYS_clock_gettime, clock, time));
  if (result == 0) {
    switch (clock) {
      case CLOCK_REALTIME:
      case CLOCK_REALTIME_COARSE:
        time->tv_sec += veerwatch::g_wall;
        break;
      case CLOCK_MONOTONIC:
      case CLOCK_MONOTONIC_COARSE:
      case CLOCK_MONOTONIC_RAW:
        time->tv_sec += veerwatch::g_steady;
        break;
      case CLOCK_BOOTTIME:
        time->tv_sec += veerwatch::g_steady + veerwatch::g_asleep;
        break;
      default:  // the time that a process has used
        break;
    }
  }
  return result;
}

int gettimeofday(timeval* time, void*) noexcept {
  timespec now{};
  const int result = clock_gettime(CLOCK_REALTIME, &now);
  time->tv_sec = now.tv_sec;
  time->tv_usec = now.tv_nsec / 1000;
  return result;
}

std::time_t time(std::time_t* result) noexcept {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  if (result != nullptr) {
    *result = now.tv_sec;
  }
  return now.tv_sec;
}

}  // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
