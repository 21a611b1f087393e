// veerwatch-bench-ui: how long the preview of the loop's response takes to draw, without a display.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>

#include "options/TrackPreviewQt.h"

namespace veerwatch {

namespace {

/// Everything anew at about the size it has in the dialog, over `range` seconds: computed, drawn and painted.
void TrackPreviewRedraw(benchmark::State& state) {
  SeededRandom random(1);
  TrackPreviewQt plot(random, nullptr);
  plot.resize(600, 260);
  plot.show();
  QApplication::processEvents();
  const std::string time = std::to_string(state.range(0));
  const std::string degrees = std::to_string(state.range(1));
  QImage image(plot.size(), QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    plot.Draw({"30", "1", "10", "1", time, "-5", degrees});
    plot.render(&image);
  }
  if (plot.Picture().Trace.empty()) {
    state.SkipWithError("nothing is drawn");
  }
}
BENCHMARK(TrackPreviewRedraw)
    ->Args({120, 15})
    ->Args({3600, 15})
    ->Args({100000, 10000})
    ->Args({100000, 1})
    ->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace veerwatch
