// veerwatch_boat: a gusty boat on two pseudo terminals, in real time, to try the program on. Prints the
// [Ports] of a profile and sails until its standard input ends.
#include <poll.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

#include "tests/soak/Wire.h"

int main() {
  veerwatch::Wire wire;
  std::printf("1=%s\n2=%s\n", wire.Instruments().c_str(), wire.Pilot().c_str());
  std::fflush(stdout);
  constexpr int kPeriod = 100;  // [ms]
  auto before = std::chrono::steady_clock::now();
  for (;;) {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    char ignored = 0;
    if (::poll(&input, 1, kPeriod) > 0 && ::read(STDIN_FILENO, &ignored, 1) <= 0) {
      return 0;
    }
    const auto now = std::chrono::steady_clock::now();
    wire.Sail(std::chrono::duration<double>(now - before).count());
    before = now;
  }
}
