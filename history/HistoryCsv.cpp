#include "history/HistoryCsv.h"

#include <algorithm>

#include "history/ClockText.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

/// A field as it stands between commas.
std::string Field(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) {
    return text;
  }
  std::string quoted = "\"";
  for (const char c : text) {
    quoted.append(c == '"' ? 2 : 1, c);
  }
  return quoted + '"';
}

std::string Heading(const StripChartData::Trace& trace) {
  const std::string_view units = trace.ShownUnits();
  return units.empty() ? trace.Name : trace.Name + " [" + std::string(units) + "]";
}

}  // namespace

std::string HistoryCsv(const StripChartData& data) {
  std::string text = "Time (UTC)";
  for (const StripChartData::Trace& trace : data.Traces()) {
    text += ',' + Field(Heading(trace));
  }
  text += '\n';
  if (data.LastSlot() == StripChartData::kNone) {
    return text;
  }
  for (std::int64_t slot = data.FirstSlot(); slot <= data.LastSlot(); ++slot) {
    const std::size_t place = data.Place(slot);
    const auto& traces = data.Traces();
    if (std::all_of(traces.begin(), traces.end(),
                    [place](const auto& trace) { return trace.Slots.At(place).Empty(); })) {
      continue;
    }
    text += Iso8601Text(data.Wall(slot));
    for (const StripChartData::Trace& trace : traces) {
      text += ',' + ShortestText(trace.Slots.At(place).Latest);
    }
    text += '\n';
  }
  return text;
}

}  // namespace veerwatch
