// The figures that docs/performance.md keeps.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <vector>

#include "bench/Allocations.h"
#include "bench/Pass.h"
#include "bench/SampleLines.h"
#include "control/TrackDirection.h"
#include "control/TrackLoop.h"
#include "control/Watch.h"

namespace veerwatch {

namespace {

constexpr int kLines = 20000;

/// Lines per second from bytes to decoded values.
void BytesToValues(benchmark::State& state) {
  const std::string bytes = SampleLines(kLines);
  std::uint64_t lines = 0;
  for (auto _ : state) {
    PassResult result = DecodePass(bytes);
    lines += result.Lines;
    benchmark::DoNotOptimize(result.Accumulated);
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(lines));
}
BENCHMARK(BytesToValues);

/// Lines per second from bytes to autopilot sentences, in Track mode; half of the lines are wind sentences.
/// Counts the heap allocations per line once everything has its size.
void BytesToPilot(benchmark::State& state) {
  const std::string bytes = SampleLines(kLines);
  PathPass path;
  path.Run(bytes);
  std::uint64_t lines = 0;
  const std::uint64_t before = AllocationCount();
  for (auto _ : state) {
    lines += path.Run(bytes).Lines;
  }
  const std::uint64_t allocations = AllocationCount() - before;
  state.SetItemsProcessed(static_cast<std::int64_t>(lines));
  state.counters["allocations_per_line"] = static_cast<double>(allocations) / static_cast<double>(lines);
}
BENCHMARK(BytesToPilot);

/// Settings that send the pilot all that there is.
Settings EverySentence() {
  Settings settings;
  settings.m_ePilotProfile = PilotProfile::Own;
  settings.m_iPilotOwnFields = 15;
  settings.m_bPilotOwnRMB = settings.m_bPilotOwnHSC = true;
  settings.m_bPilotOwnXTE = settings.m_bPilotOwnBWC = true;
  return settings;
}

/// From the carriage return of a wind sentence to the last of `range` sentences for the autopilot, one or all
/// five: the median and the 99th percentile of many single ones [us], and the heap allocations of one.
void WindToPilot(benchmark::State& state) {
  const auto wanted = static_cast<std::uint64_t>(state.range(0));
  const std::string bytes = SampleLines(kLines);
  const std::string wind = WindLine();
  const std::string_view start = std::string_view(wind).substr(0, wind.size() - 2);
  PathPass path(wanted > 1 ? EverySentence() : Settings());
  path.Run(bytes);
  std::vector<double> times;
  times.reserve(4000000);
  const std::uint64_t before = AllocationCount();
  for (auto _ : state) {
    path.Arrive(start);
    const std::uint64_t sentences = path.Sentences();
    const auto begin = std::chrono::steady_clock::now();
    path.Arrive("\r");
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - begin;
    if (path.Sentences() != sentences + wanted) {
      state.SkipWithError("no autopilot sentence");
      break;
    }
    times.push_back(time.count());
  }
  if (times.empty()) {
    return;
  }
  const auto allocations = static_cast<double>(AllocationCount() - before);
  state.counters["allocations"] = allocations / static_cast<double>(times.size());
  std::sort(times.begin(), times.end());
  state.counters["median_us"] = times[times.size() / 2];
  state.counters["p99_us"] = times[times.size() * 99 / 100];
}
BENCHMARK(WindToPilot)->Arg(1)->Arg(5)->Iterations(1000000);

/// One pass of the method Direction: a wind and, as it comes once a second, an answer.
void DirectionPass(benchmark::State& state) {
  TrackDirection law;
  law.Start(45.0);
  double bearing = 45.0;
  double turn = 0.0;
  for (auto _ : state) {
    turn += 0.1;
    const double swing = std::sin(turn);
    law.Feed({45.0 + 8.0 * swing, 12.0 + swing, 6.0, 45.0 + 3.0 * swing, bearing}, 1.0, 20.0);
    const auto answer = law.Step({TrackSide::Apparent, 30.0, 30.0 + swing}, bearing, BearingLimits(), 1.0);
    bearing = answer ? answer->Steer.Bearing : bearing;
    benchmark::DoNotOptimize(bearing);
  }
}
BENCHMARK(DirectionPass);

/// The whole loop at one pass of Direction, with the means of both winds, at `range` winds a second.
void DirectionLoop(benchmark::State& state) {
  Settings settings;
  settings.m_eTrackMethod = TrackMethod::Direction;
  InstrumentData data;
  data.HeadingValid = data.BoatSpeedValid = data.WindApparentValid = data.WindTrueValid = true;
  data.Heading = settings.m_fAutoPilot;
  data.BoatSpeed = 6.0F;
  data.WindSpeedTrue = 12.0F;
  TrackLoop loop(settings, data);
  Moment now;
  const auto pass = [&] {
    now.Steady += 1000 / state.range(0);
    const float swing = std::sin(static_cast<float>(now.Steady) * 1e-3F);
    data.WindAngleApparent = 30.0F + swing;
    data.WindAngleTrue = 45.0F + 8.0F * swing;
    benchmark::DoNotOptimize(loop.ControlStep(now));
  };
  settings.m_eTrackMode = TrackMode::Manual;
  pass();
  if (!loop.StartTracking()) {
    state.SkipWithError("does not track");
    return;
  }
  settings.m_eTrackMode = TrackMode::Track;
  for (auto _ : state) {
    pass();
  }
}
BENCHMARK(DirectionLoop)->Arg(1)->Arg(10);

/// What the watch takes for a wind sentence and the pass that it led to, its readings included.
void WatchSentence(benchmark::State& state) {
  Settings settings;
  InstrumentRecord record(settings);
  Watch watch(settings, record);
  Origin from{{'M', 'W', 'V'}, {'I', 'I'}, 1, {}};
  const LoopStep step;
  const std::uint64_t before = AllocationCount();
  for (auto _ : state) {
    from.At.Steady += 33;
    const float angle = 30.0F + static_cast<float>(from.At.Steady % 20);
    Readings readings(from);
    readings.Add(Quantity::ApparentWindAngle, angle);
    readings.Add(Quantity::ApparentWindSpeed, 12.0F);
    record.WindApparentUpdate(angle, 12.0F, true, from);
    watch.Sentence(readings);
    watch.Step(step);
    watch.Built(54, from.At);
  }
  state.counters["allocations"] = static_cast<double>(AllocationCount() - before);
}
BENCHMARK(WatchSentence);

/// Its look at everything, once a second.
void WatchLook(benchmark::State& state) {
  Settings settings;
  settings.m_eTrackMode = TrackMode::Track;
  const InstrumentRecord record(settings);
  Watch watch(settings, record);
  Watch::Around around;
  around.InputStarted = true;
  Moment now;
  const std::uint64_t before = AllocationCount();
  for (auto _ : state) {
    now.Steady += 1000;
    benchmark::DoNotOptimize(watch.Look(around, now));
  }
  state.counters["allocations"] = static_cast<double>(AllocationCount() - before);
}
BENCHMARK(WatchLook);

}  // namespace

}  // namespace veerwatch
