// Tries what the watch says of pilots that follow and of such that do not: `veerwatch_followed [SEEDS
// [FIRST]]`. Prints the rows of a table in docs/reliability.md, and what was said wrongly. script/watch calls
// it.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>

#include "tests/closedloop/Following.h"

namespace {

using namespace veerwatch;

void Try(const PilotFault& fault, bool rudder, std::uint64_t first, std::uint64_t seeds) {
  constexpr double kSoon = 20.0;  // [s]
  std::uint64_t right = 0;
  std::uint64_t soon = 0;
  double latest = 0.0;
  for (std::uint64_t index = first; index < first + seeds; ++index) {
    const FollowResult result = Follow(FollowCaseOf(fault, rudder, index));
    right += result.Right ? 1 : 0;
    soon += result.Told.value_or(kSoon + 1.0) <= kSoon ? 1 : 0;
    latest = std::max(latest, result.Told.value_or(0.0));
    if (!result.Right) {
      std::cout << "  " << fault.Name << ", seed " << index << ": " << result.Wrong << '\n';
    }
  }
  std::cout << "| " << fault.Name << " | " << (rudder ? "a rudder" : "none, a lag alone") << " | " << right
            << " of " << seeds << " | " << soon << " | " << latest << " |\n"
            << std::flush;
}

/// A bearing a minute for 24 hours in rough seas, with a pilot that follows.
void TryForADay() {
  constexpr int kChanges = 479;
  for (const Sea sea : {Sea::Beam, Sea::Following, Sea::Head}) {
    FollowCase what;
    what.TheSea = sea;
    what.Changes = kChanges;
    what.Seed = 1 + static_cast<std::uint64_t>(sea);
    const FollowResult result = Follow(what);
    std::cout << "8 hours in sea " << static_cast<int>(sea)
              << ", a bearing a minute: " << (result.Right ? "follows" : result.Wrong) << '\n'
              << std::flush;
  }
}

}  // namespace

int main(int argc, char** argv) {
  const std::uint64_t seeds = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 100;
  const std::uint64_t first = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 0;
  for (const bool rudder : {true, false}) {
    for (const PilotFault& fault : kPilotFaults) {
      Try(fault, rudder, first, seeds);
    }
  }
  TryForADay();
  return 0;
}
