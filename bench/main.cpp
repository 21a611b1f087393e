// veerwatch-bench: the project's benchmark. With "--decode FILE" or "--path FILE" it times one pass over a
// file instead and prints one line.

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>

#include "bench/Pass.h"

namespace {

int TimeOnePass(std::string_view what, const std::string& file) {
  using Clock = std::chrono::steady_clock;
  const std::string bytes = veerwatch::LoadLines(file);
  veerwatch::PathPass path;
  const auto begin = Clock::now();
  const veerwatch::PassResult result = what == "--decode" ? veerwatch::DecodePass(bytes) : path.Run(bytes);
  const std::chrono::duration<double> time = Clock::now() - begin;
  std::printf(
      "RESULT name=veerwatch lines=%llu parsed=%llu unsupported=%llu bad=%llu seconds=%.6f acc=%.4f\n",
      static_cast<unsigned long long>(result.Lines), static_cast<unsigned long long>(result.Parsed),
      static_cast<unsigned long long>(result.Unsupported), static_cast<unsigned long long>(result.Bad),
      time.count(), result.Accumulated);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view what = argc > 1 ? argv[1] : "";
  if (what == "--decode" || what == "--path") {
    if (argc != 3) {
      std::fprintf(stderr, "veerwatch-bench: %s takes one file\n", argv[1]);
      return 2;
    }
    try {
      return TimeOnePass(what, argv[2]);
    } catch (const std::exception& error) {
      std::fprintf(stderr, "veerwatch-bench: %s\n", error.what());
      return 2;
    }
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
    return 2;
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
