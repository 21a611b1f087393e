#include "bench/SampleDay.h"

#include <cmath>

#include "history/HistoryTraces.h"
#include "instruments/MathLib.h"
#include "platform/Random.h"

namespace veerwatch {

void SampleDay(const Moment& end, int seconds, int step,
               const std::function<void(const Moment&, std::string_view, const std::string&)>& sample) {
  constexpr std::int64_t kMillisecondsPerSecond = 1000;
  constexpr double kTackEvery = 2400.0;
  SeededRandom random(7);
  const auto noise = [&random](double width) { return (random.Next() - 0.5) * width; };
  double swing = 0.0;
  for (int second = 0; second < seconds; second += step) {
    const int fromMiddle = std::abs(second - seconds / 2);
    if (seconds > 4 * kSampleDayPause && fromMiddle < kSampleDayPause / 2) {
      continue;
    }
    const std::int64_t before = (seconds - step - second) * kMillisecondsPerSecond;
    const Moment now{end.Steady - before, end.Wall - before};
    const double t = second;
    swing += noise(0.6) - swing * 0.02;
    const double wind = 14.0 + 3.5 * std::sin(t / 5200.0) + 1.2 * std::sin(t / 300.0) + noise(1.2);
    const double direction = 350.0 + 35.0 * std::sin(t / 14000.0) + 4.0 * std::sin(t / 700.0) + swing;
    const double side = std::fmod(t, 2.0 * kTackEvery) < kTackEvery ? 1.0 : -1.0;
    const double sinceTack = std::fmod(t, kTackEvery);
    const double turn = sinceTack < 40.0 ? -side + 2.0 * side * sinceTack / 40.0 : side;
    const double trueAngle = turn * 46.0 + swing + noise(3.0);
    const double apparentAngle = turn * 31.0 + 0.7 * swing + noise(3.0);
    const double heading = direction - trueAngle;
    const double boat = (sinceTack < 90.0 ? 4.6 + sinceTack / 45.0 : 6.6) + (wind - 14.0) * 0.16 + noise(0.4);
    const auto feed = [&](const char* name, double value, const char* units) {
      sample(now, name, HistoryText(static_cast<float>(value), units));
    };
    feed("Heading", static_cast<double>(FoldBearing(heading)), "M");
    feed("Boat Speed", boat, "Kts");
    feed("App Wind Angle", static_cast<double>(FoldRelative(apparentAngle)), "R");
    feed("App Wind Speed", wind + 4.6 + noise(1.0), "Kts");
    feed("True Wind Angle", static_cast<double>(FoldRelative(trueAngle)), "M");
    feed("True Wind Speed", wind, "Kts");
    feed("Pilot Delta", swing * 1.4 + noise(1.0), "deg");
    feed("Pilot Heading", static_cast<double>(FoldBearing(direction - turn * 46.0)), "deg");
    feed("Polar Speed", 7.1 + (wind - 14.0) * 0.2, "deg");
  }
}

}  // namespace veerwatch
