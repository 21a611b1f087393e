// Sails two hours at a true wind angle of 165 in each sea with shifts of ten degrees, with each method, with
// and without the angle guard, and prints how often the wind got across the stern; then a day of gusts for
// the shift alarm: `veerwatch_downwind`. script/downwind calls it.
#include <algorithm>
#include <array>
#include <cstdint>
#include <iostream>
#include <string_view>
#include <utility>

#include "tests/closedloop/Downwind.h"

namespace {

using namespace veerwatch;

constexpr double kHours = 2.0;
constexpr std::uint64_t kSeeds = 5;
constexpr std::array<std::pair<Sea, std::string_view>, 5> kSeas{{{Sea::Flat, "flat"},
                                                                 {Sea::Slight, "slight"},
                                                                 {Sea::Beam, "beam"},
                                                                 {Sea::Following, "following"},
                                                                 {Sea::Head, "head"}}};

float BandwidthOf(const NamedMethod& method) {
  return method.Name == NamedMethods().front().Name ? 20.0F : 60.0F;
}

void PrintGybes() {
  for (const NamedMethod& method : NamedMethods()) {
    for (const auto& [sea, name] : kSeas) {
      std::cout << method.Name << ", " << name << " sea, gybes without/with guard:" << std::flush;
      for (std::uint64_t seed = 1; seed <= kSeeds; ++seed) {
        HoldCase what;
        what.Method = method;
        what.Bandwidth = BandwidthOf(method);
        what.TheSea = sea;
        what.Angle = 165.0;
        what.Seed = seed;
        what.Alter = ShiftTenDegrees;
        const RunResult bare = RunDownwind(what, kHours, false);
        const RunResult guarded = RunDownwind(what, kHours, true);
        std::cout << ' ' << bare.Gybes << '/' << guarded.Gybes << " (" << bare.Mean << '/' << guarded.Mean
                  << ')' << std::flush;
      }
      std::cout << '\n';
    }
  }
}

void PrintShifts() {
  constexpr double kDay = 24.0;
  for (const NamedMethod& method : NamedMethods()) {
    HoldCase what;
    what.Method = method;
    what.Bandwidth = BandwidthOf(method);
    what.TheSea = Sea::Slight;
    what.Alter = GustOften;
    double told = 0.0;
    std::uint64_t found = 0;
    double latest = 0.0;
    for (const auto& [side, angle] : kHeldAngles) {
      what.Side = side;
      what.Angle = angle;
      told += ShiftsTold(what, kDay / static_cast<double>(kHeldAngles.size()));
      for (std::uint64_t seed = 1; seed <= kSeeds; ++seed) {
        what.Seed = seed;
        for (const double shift : {25.0, -25.0}) {
          const auto after = ShiftFound(what, shift);
          found += after ? 1 : 0;
          latest = std::max(latest, after.value_or(0.0));
        }
      }
    }
    std::cout << method.Name << ", 24 hours of gusts: " << told << " shifts told; of "
              << 2 * kSeeds * kHeldAngles.size() << " shifts of 25 degrees " << found
              << " told, the latest after " << latest << " s\n";
  }
}

}  // namespace

int main() {
  PrintShifts();
  PrintGybes();
}
