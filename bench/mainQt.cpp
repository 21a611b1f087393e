// veerwatch-bench-ui: the benchmark of what is drawn, on no screen.

#include <benchmark/benchmark.h>

#include "platform/ApplicationQt.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  veerwatch::ApplicationQt application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
    return 1;
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
