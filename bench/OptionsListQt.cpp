// What a line costs in a live list of the options dialog.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <string>

#include "options/LiveListQt.h"

namespace veerwatch {

namespace {

const std::string kLine = "$GPRMC,120344,A,4807.038,N,01131.000,E,007.4,084.4,230394,003.1,W*6A";

/// A full list that shows and follows every line: added, scrolled to and painted.
void ListedLine(benchmark::State& state) {
  QWidget window;
  LiveListQt list("lstNmeaData", "", &window);
  window.resize(880, 440);
  list.resize(880, 440);
  window.show();
  for (int i = 0; i < 200; ++i) {
    list.Add(kLine, i % 2 == 0);
  }
  QApplication::processEvents();
  bool highlighted = false;
  for (auto _ : state) {
    highlighted = !highlighted;
    list.Add(kLine, highlighted);
    if (state.range(0) != 0) {
      QApplication::processEvents();
    }
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ListedLine)->ArgName("painted")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace veerwatch
