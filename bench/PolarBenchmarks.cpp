// Lookups in polar tables.

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>

#include "polar/CourseTargets.h"
#include "polar/PolarFile.h"
#include "polar/PolarTable.h"

namespace veerwatch {

namespace {

/// The polar that comes with the program.
PolarTable DefaultTable() {
  PolarTable table;
  if (!PolarLoad(table, 0, 1.0F, VEERWATCH_DEFAULT_POLAR).Loaded) {
    table.PolarRows(0) = 0;
  }
  return table;
}

/// Every cell in use.
PolarTable LargestTable() {
  PolarTable table;
  for (int row = 1; row <= PolarTable::kMostRows; ++row) {
    table.Value(0, row, 0) = 180.0F * static_cast<float>(row) / static_cast<float>(PolarTable::kMostRows);
    for (int column = 1; column <= PolarTable::kMostColumns; ++column) {
      table.Value(0, 0, column) = static_cast<float>(column);
      table.Value(0, row, column) = std::sqrt(table.Value(0, row, 0) * static_cast<float>(column)) / 3.0F;
    }
  }
  table.PolarRows(0) = PolarTable::kMostRows;
  table.PolarColumns(0) = PolarTable::kMostColumns;
  return table;
}

/// Lookups per second, at angles and wind speeds all over the table.
void Lookups(benchmark::State& state, PolarTable table, PlotType type) {
  if (table.PolarRows(0) == 0) {
    state.SkipWithError("no default polar");
    return;
  }
  table.Type(type);
  constexpr std::size_t kPlaces = 4096;
  std::array<std::array<float, 2>, kPlaces> places{};
  const float leastAngle = table.Value(0, 1, 0);
  const float mostWind = table.Value(0, 0, table.PolarColumns(0));
  for (std::size_t i = 0; i < kPlaces; ++i) {
    const auto part = [i](std::size_t step) {
      return static_cast<float>((i * step) % kPlaces) / static_cast<float>(kPlaces);
    };
    places[i] = {leastAngle + (180.0F - leastAngle) * part(1597), mostWind * part(2843)};
  }
  std::size_t i = 0;
  for (auto _ : state) {
    const auto& place = places[++i % kPlaces];
    benchmark::DoNotOptimize(table.PolarSpeed(0, place[0], place[1]));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(Lookups, DefaultTable, DefaultTable(), PlotType::TrueWind);
BENCHMARK_CAPTURE(Lookups, DefaultTableApparent, DefaultTable(), PlotType::ApparentWind);
BENCHMARK_CAPTURE(Lookups, LargestTable, LargestTable(), PlotType::TrueWind);
BENCHMARK_CAPTURE(Lookups, LargestTableApparent, LargestTable(), PlotType::ApparentWind);

/// Searches per second for the best way to a bearing all around the compass, in any wind that the table has.
void Targets(benchmark::State& state, PolarTable table, PlotType type) {
  if (table.PolarRows(0) == 0) {
    state.SkipWithError("no default polar");
    return;
  }
  table.Type(type);
  const float leastWind = table.Value(0, 0, 1);
  const float mostWind = table.Value(0, 0, table.PolarColumns(0));
  CourseQuery query{30.0F, 0.0F, 45.0F, leastWind};
  for (auto _ : state) {
    query.TargetBearing = std::fmod(query.TargetBearing + 137.5F, 360.0F);
    query.WindSpeedTrue = query.WindSpeedTrue + 0.7F > mostWind ? leastWind : query.WindSpeedTrue + 0.7F;
    benchmark::DoNotOptimize(CourseTargets(table, query));
  }
}
BENCHMARK_CAPTURE(Targets, DefaultTable, DefaultTable(), PlotType::TrueWind);
BENCHMARK_CAPTURE(Targets, DefaultTableApparent, DefaultTable(), PlotType::ApparentWind);
BENCHMARK_CAPTURE(Targets, LargestTable, LargestTable(), PlotType::TrueWind);
BENCHMARK_CAPTURE(Targets, LargestTableApparent, LargestTable(), PlotType::ApparentWind);

}  // namespace

}  // namespace veerwatch
