// Sails 24 hours through rough seas with nothing wrong and prints every condition that the watch finds all
// the same: `veerwatch_watched [--method NAME]`. script/watch calls it.
#include <array>
#include <cstdint>
#include <iostream>
#include <string>
#include <string_view>
#include <utility>

#include "alarms/WatchText.h"
#include "tests/closedloop/Holding.h"
#include "tests/closedloop/Passage.h"

namespace {

using namespace veerwatch;

constexpr double kHours = 4.0;  // for each held angle
constexpr double kSecondsPerHour = 3600.0;
constexpr double kSettles = 60.0;  // [s] with the alarm that is set

constexpr std::array<Sea, 3> kRough{Sea::Beam, Sea::Following, Sea::Head};

/// Counts the conditions as they come.
class Counter final : private HelmObserver {
 public:
  /// What stands already does not count.
  explicit Counter(Helm& helm) : m_before(helm.Now().Watch), m_told(helm.Observers().Join(*this)) {}

  int Red = 0;
  int Amber = 0;

 private:
  void OnWatch(const WatchNow& watch) override {
    for (const Standing& one : watch.Conditions()) {
      if (m_before.Find(one.What) == nullptr && one.Rank != Level::Note) {
        ++(one.Rank == Level::Red ? Red : Amber);
        std::cout << "  " << watch.At.Steady / 1000 << " s " << LevelText(one.Rank) << ' ' << WatchText(one)
                  << '\n';
      }
    }
    m_before = watch;
  }

  WatchNow m_before;
  HelmObservers::Membership m_told;
};

/// Sails one angle, a third of the time in each rough sea.
std::pair<int, int> Sail(const NamedMethod& method, TrackSide side, double angle, std::uint64_t seed) {
  std::pair<int, int> found;
  for (const Sea sea : kRough) {
    HoldCase what;
    what.Method = method;
    what.Bandwidth = 60.0F;
    what.TheSea = sea;
    what.Side = side;
    what.Angle = angle;
    what.Seed = seed++;
    std::cout << (side == TrackSide::True ? "true " : "apparent ") << angle << ", sea "
              << static_cast<int>(sea) << '\n';
    HoldAnd(what, [&found](Passage& passage) {
      passage.Set.m_fTrackAlarmLimit = 30.0F;
      passage.Set.m_fTrackAlarmAverage = 5.0F;
      passage.Sail(kSettles);
      const Counter counter(passage.TheHelm());
      passage.Sail(kHours * kSecondsPerHour / static_cast<double>(kRough.size()));
      found.first += counter.Red;
      found.second += counter.Amber;
    });
  }
  return found;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view asked = argc == 3 && std::string_view(argv[1]) == "--method" ? argv[2] : "";
  for (const NamedMethod& method : NamedMethods()) {
    if (!asked.empty() && asked != method.Name) {
      continue;
    }
    int red = 0;
    int amber = 0;
    std::uint64_t seed = 1;
    for (const auto& [side, angle] : kHeldAngles) {
      const auto [r, a] = Sail(method, side, angle, seed);
      seed += kRough.size();
      red += r;
      amber += a;
    }
    std::cout << "| " << method.Name << " | " << red << " | " << amber << " |\n" << std::flush;
  }
  return 0;
}
