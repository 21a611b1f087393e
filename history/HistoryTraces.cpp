#include "history/HistoryTraces.h"

#include <algorithm>
#include <cmath>

#include "platform/NumberText.h"

namespace veerwatch {

void HistorySetUp(StripChartOperations& chart, std::uint32_t windowColour) {
  chart.TraceCountSet(static_cast<std::int16_t>(kHistoryTraces.size()));
  std::int16_t number = 1;
  for (const HistoryTrace& trace : kHistoryTraces) {
    chart.TraceDefine(number, trace.Name, trace.Group, trace.Units);
    ++number;
  }
  chart.SampleBufferSet(kHistorySlotSeconds, kHistorySlots);
  chart.RedrawIntervalSet(kHistorySlotSeconds);
  chart.FollowNow(true);
  chart.RedrawEnable(false);
  chart.RedrawIntervalSet(kHistorySlotSeconds);
  chart.FollowNow(true);
  chart.SpanSet(kHistorySpan);
  chart.BackColourSet(windowColour);
  chart.GroupCountSet(static_cast<std::int16_t>(kHistoryGroupTitles.size()));
  std::int16_t group = 1;
  for (const int trace : kHistoryGroupTitles) {
    chart.GroupTitleSet(group, kHistoryTraces[static_cast<std::size_t>(trace) - 1].Name);
    chart.GroupColourSet(group, windowColour);
    ++group;
  }
  chart.RedrawEnable(true);
}

std::string HistoryText(float value, std::string_view units) {
  return FormatNumber(value, "0.0").append(" ").append(units);
}

std::int16_t HistoryPopupPlace(double length, double begin) {
  return static_cast<std::int16_t>(std::clamp(std::floor((length + begin) / 2.0), -32768.0, 32767.0));
}

}  // namespace veerwatch
