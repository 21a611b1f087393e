// The text that "Save data..." writes.
#pragma once

#include <string>

#include "history/StripChartData.h"

namespace veerwatch {

/// Comma-separated values, lines ended by a line feed. The first line names the columns: "Time (UTC)", then
/// each trace with its units in brackets. Then a line per slot that holds a value, oldest first: the time at
/// which the slot begins [ISO 8601, UTC] and the latest value of each trace, nothing where it has a gap.
std::string HistoryCsv(const StripChartData& data);

}  // namespace veerwatch
