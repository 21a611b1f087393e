// The text that "Save data..." writes.
#pragma once

#include <string>

#include "history/StripChartData.h"

namespace veerwatch {

/// Comma-separated values, lines ended by a line feed. The first line names the columns: "Time (UTC)", then
/// each trace with its units in brackets, then "Lowest" and "Highest" of each trace. Then a line per slot
/// that holds a value, oldest first: the time at which the slot begins [ISO 8601, UTC], the latest value of
/// each trace, and the lowest and the highest of each, nothing where it has a gap. Deliberate: of an angle
/// the lowest and the highest lie on the turn of the latest: lowest <= latest <= highest, and one of them may
/// be below 0 or above 360, or beyond 180 to either side.
std::string HistoryCsv(const StripChartData& data);

}  // namespace veerwatch
