// Every table of settings of the program, for what has to hold for all of them.
#pragma once

#include "helm/SettingsProfile.h"
#include "history/HistoryPlace.h"
#include "history/HistoryTraces.h"
#include "history/TraceSettings.h"
#include "polar/PolarSettings.h"
#include "settings/SettingsTable.h"
#include "tack/TackSettings.h"

namespace veerwatch {

/// The section of the history's traces.
inline constexpr const char* kTraceSection = "History Trace";

/// The scales of the history window as it sets them up.
inline std::vector<ScaleChoice> HistoryScales() {
  StripChartData data;
  data.TraceCountSet(static_cast<int>(kHistoryTraces.size()));
  int number = 0;
  for (const HistoryTrace& trace : kHistoryTraces) {
    data.TraceDefine(++number, trace.Name, trace.Group == 0 ? TraceKind::Speed : TraceKind::Angle,
                     trace.Units);
  }
  std::vector<std::string> titles;
  for (const int trace : kHistoryGroupTitles) {
    titles.emplace_back(kHistoryTraces[static_cast<std::size_t>(trace) - 1].Name);
  }
  return DefaultScales(GroupTraces(data.Traces(), titles), titles.size() + 1);
}

/// Calls `visit(table, defaults)` for each, in the order of the profile's page.
template <class Visit>
void VisitTables(const Visit& visit) {
  visit(SettingsTable(), Settings());
  visit(OpenWindowsTable(), OpenWindows());
  visit(PolarPlaceTable(), PolarPlace());
  visit(PolarSettingsTable(), PolarSettings());
  visit(TackSettingsTable(), TackSettings());
  visit(HistoryPlaceTable(), HistoryPlace());
  for (const HistoryTrace& trace : kHistoryTraces) {
    visit(TraceChoiceTable(kTraceSection, trace.Name), TraceChoice());
  }
  visit(SpanTable(kTraceSection), TraceSettings());
  std::size_t number = 0;
  for (const ScaleChoice& scale : HistoryScales()) {
    visit(ScaleChoiceTable(kTraceSection, ++number), scale);
  }
}

/// What a row would write of a struct.
template <class Struct>
std::string WrittenText(const SettingRow<Struct>& row, const Struct& all) {
  Profile profile;
  row.Value.Write(profile, row.Section, row.Key, all);
  return profile.Text(row.Section, row.Key);
}

}  // namespace veerwatch
