// What the history's chart costs: taking samples and drawing them.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QImage>
#include <QPainter>
#include <array>
#include <chrono>
#include <memory>
#include <string>

#include "bench/Allocations.h"
#include "bench/NoDialogs.h"
#include "bench/SampleDay.h"
#include "history/HistoryTraces.h"
#include "history/StripChartQt.h"
#include "platform/SystemClock.h"

namespace veerwatch {

namespace {

constexpr int kDay = 86400;  // [s]
constexpr int kWidth = 1200;
constexpr int kHeight = 600;

class SetClock final : public Clock {
 public:
  Moment Time{1000000000, 1774947600000};
  Moment Now() const override { return Time; }
  std::int32_t UtcOffset(std::int64_t /*wall*/) const override { return 0; }
};

/// A chart that has recorded a day, and the clock at its end.
struct Day {
  explicit Day(int span) : Chart(Time, Asks, nullptr) {
    HistorySetUp(Chart, 0x1B1E22);
    Chart.SpanSet(1800);
    const Moment end = Time.Time;
    SampleDay(end, kDay, 1, [this](const Moment& now, std::string_view name, const std::string& text) {
      Time.Time = now;
      Chart.SampleAdd(name, text);
    });
    Profile settings;
    settings.ProfileSet("History Trace", "Span", static_cast<float>(span));
    Chart.TraceSettingsLoad("History Trace", settings);
    Chart.resize(kWidth, kHeight);
    Chart.show();
  }

  SetClock Time;
  NoWindowDialogs Asks;
  StripChart Chart;
};

/// Samples per second into the data, with the moment at hand, and the heap allocations of each.
void SampleAddToData(benchmark::State& state) {
  StripChartData data;
  data.TraceCountSet(static_cast<int>(kHistoryTraces.size()));
  for (std::size_t i = 0; i < kHistoryTraces.size(); ++i) {
    const HistoryTrace& trace = kHistoryTraces[i];
    data.TraceDefine(static_cast<int>(i) + 1, trace.Name,
                     trace.Group == 0 ? TraceKind::Speed : TraceKind::Angle, trace.Units);
  }
  data.SampleBufferSet(kHistorySlotSeconds, kHistorySlots);
  const std::array<std::string, 4> texts{"5.3 Kts", "-123.4 deg", "275.25 deg", "12.8 Kts"};
  Moment now{0, 1774947600000};
  std::uint64_t samples = 0;
  std::uint64_t allocations = 0;
  for (auto _ : state) {
    const std::uint64_t before = AllocationCount();
    for (std::size_t i = 0; i < kHistoryTraces.size(); ++i) {
      data.SampleAdd(kHistoryTraces[i].Name, texts[i % texts.size()], now);
    }
    allocations += AllocationCount() - before;
    samples += kHistoryTraces.size();
    now.Steady += 100;
    now.Wall += 100;
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(samples));
  state.counters["allocations"] = static_cast<double>(allocations);
  state.counters["sample_bytes"] = static_cast<double>(data.Bytes());
}
BENCHMARK(SampleAddToData);

/// The same through the widget, which reads the computer's clocks itself. It is not visible.
void SampleAddToWidget(benchmark::State& state) {
  const SystemClock clock;
  NoWindowDialogs dialogs;
  StripChart chart(clock, dialogs, nullptr);
  HistorySetUp(chart, 0x1B1E22);
  const std::string name = "Pilot Delta";
  const std::string text = "-12.3 deg";
  std::uint64_t allocations = 0;
  for (auto _ : state) {
    const std::uint64_t before = AllocationCount();
    chart.SampleAdd(name, text);
    allocations += AllocationCount() - before;
  }
  state.SetItemsProcessed(state.iterations());
  state.counters["allocations"] = static_cast<double>(allocations);
}
BENCHMARK(SampleAddToWidget);

/// Everything anew, nine traces over `range` seconds: composed and painted at 1200 x 600.
void RedrawAll(benchmark::State& state) {
  Day day(static_cast<int>(state.range(0)));
  QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
  std::uint32_t colour = 0x1B1E22;
  for (auto _ : state) {
    colour ^= 1U;
    day.Chart.BackColourSet(colour);
    day.Chart.render(&image);
  }
  state.counters["full_redraws"] = static_cast<double>(day.Chart.FullRedraws());
}
BENCHMARK(RedrawAll)->Arg(1800)->Arg(kDay)->Unit(benchmark::kMillisecond);

/// One more sample: taken, composed and painted, most of the time within the newest slot.
void RedrawAfterSample(benchmark::State& state) {
  Day day(static_cast<int>(state.range(0)));
  QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
  int count = 0;
  for (auto _ : state) {
    ++count;
    day.Chart.SampleAdd("Heading", count % 2 == 0 ? "5.1 M" : "4.9 M");
    day.Chart.Refresh();
    day.Chart.render(&image);
  }
  state.counters["full_redraws"] = static_cast<double>(day.Chart.FullRedraws());
}
BENCHMARK(RedrawAfterSample)->Arg(1800)->Arg(kDay)->Unit(benchmark::kMillisecond);

/// The first sample of a slot, with which everything moves on: taken, composed and painted.
void RedrawAfterSlot(benchmark::State& state) {
  Day day(static_cast<int>(state.range(0)));
  QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
  int count = 0;
  for (auto _ : state) {
    day.Time.Time.Steady += kHistorySlotSeconds * 1000LL;
    day.Time.Time.Wall += kHistorySlotSeconds * 1000LL;
    ++count;
    day.Chart.SampleAdd("Heading", count % 2 == 0 ? "5.1 M" : "4.9 M");
    day.Chart.Refresh();
    day.Chart.render(&image);
  }
  state.counters["full_redraws"] = static_cast<double>(day.Chart.FullRedraws());
}
// Few enough that the other traces still fill most of the chart at the end.
BENCHMARK(RedrawAfterSlot)->Arg(1800)->Iterations(40)->Unit(benchmark::kMillisecond);

/// Heap memory that the program holds [bytes].
double HeapInUse() { return static_cast<double>(mallinfo2().uordblks); }

/// What the heap grows by in the last two of four days: nine values a second, drawn every minute.
void FollowingDays(benchmark::State& state) {
  for (auto _ : state) {
    Day day(kDay);
    day.Chart.resize(400, 300);
    QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
    double begin = 0.0;
    double end = 0.0;
    for (int number = 1; number <= 4; ++number) {
      Moment until = day.Time.Time;
      until.Steady += kDay * 1000LL;
      until.Wall += kDay * 1000LL;
      int count = 0;
      SampleDay(until, kDay, 1, [&](const Moment& now, std::string_view name, const std::string& text) {
        day.Time.Time = now;
        day.Chart.SampleAdd(name, text);
        constexpr int kPerDraw = 540;
        if (++count % kPerDraw == 0) {
          day.Chart.Refresh();
          day.Chart.render(&image);
        }
      });
      (number == 2 ? begin : end) = HeapInUse();
    }
    state.counters["heap_growth_bytes"] = end - begin;
  }
}
BENCHMARK(FollowingDays)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace

}  // namespace veerwatch
