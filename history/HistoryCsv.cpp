#include "history/HistoryCsv.h"

#include <algorithm>
#include <cmath>

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

/// The name of a column: a trace, what of it, and its units.
std::string Heading(const StripChartData::Trace& trace, const char* part) {
  const std::string_view units = trace.ShownUnits();
  const std::string name = trace.Name + part;
  return Field(units.empty() ? name : name + " [" + std::string(units) + "]");
}

/// The lowest or highest value of a slot. An angle was moved by whole turns, which leaves a tail of decimals.
std::string EdgeText(TraceKind kind, float edge) {
  constexpr double kPerUnit = 1000.0;
  return ShortestText(kind == TraceKind::Angle
                          ? static_cast<float>(std::round(static_cast<double>(edge) * kPerUnit) / kPerUnit)
                          : edge);
}

std::string HeaderLine(const std::vector<StripChartData::Trace>& traces) {
  std::string text = "Time (UTC)";
  for (const StripChartData::Trace& trace : traces) {
    text += ',' + Heading(trace, "");
  }
  for (const StripChartData::Trace& trace : traces) {
    text += ',' + Heading(trace, " Lowest") + ',' + Heading(trace, " Highest");
  }
  return text + '\n';
}

}  // namespace

std::string HistoryCsv(const StripChartData& data) {
  const std::vector<StripChartData::Trace>& traces = data.Traces();
  std::string text = HeaderLine(traces);
  if (data.LastSlot() == StripChartData::kNone) {
    return text;
  }
  for (std::int64_t slot = data.FirstSlot(); slot <= data.LastSlot(); ++slot) {
    const std::size_t place = data.Place(slot);
    if (std::all_of(traces.begin(), traces.end(),
                    [place](const auto& trace) { return trace.Slots.At(place).Empty(); })) {
      continue;
    }
    text += Iso8601Text(data.Wall(slot));
    for (const StripChartData::Trace& trace : traces) {
      text += ',' + ShortestText(trace.Slots.At(place).Latest);
    }
    for (const StripChartData::Trace& trace : traces) {
      const TraceSlot& sample = trace.Slots.At(place);
      text += ',' + EdgeText(trace.Kind, sample.Low) + ',' + EdgeText(trace.Kind, sample.High);
    }
    text += '\n';
  }
  return text;
}

}  // namespace veerwatch
