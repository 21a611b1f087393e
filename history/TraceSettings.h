// What the user chose for a strip chart, and how the profile keeps it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "history/StripChartData.h"
#include "history/TraceGroups.h"
#include "settings/SettingRow.h"

namespace veerwatch {

struct TraceChoice {
  bool Shown = true;
  std::optional<std::uint32_t> Colour;  ///< 0xRRGGBB; nothing: the chart's own, which suits its back colour
};

struct ScaleChoice {
  bool Automatic = true;
  float Low = 0.0F;    ///< lower edge of the fixed scale
  float High = 20.0F;  ///< upper edge, above Low

  bool operator==(const ScaleChoice&) const = default;
};

struct TraceSettings {
  std::vector<TraceChoice> Traces;  ///< as the chart's traces
  std::vector<ScaleChoice> Scales;  ///< as the chart's scales
  bool Marks = false;               ///< turns and held angles stand on the chart
  int Span = 1800;                  ///< visible time [s], one of kSpans
};

/// The spans to choose from [s].
inline constexpr int kSpans[] = {600, 1200, 1800, 3600, 7200, 10800, 21600, 43200, 86400};

/// Bounds of the edges of a fixed scale.
inline constexpr float kLeastEdge = -9999.0F;
inline constexpr float kMostEdge = 9999.0F;

/// Whether two edges make a fixed scale: finite, in bounds and `low` below `high`.
bool ScaleFits(float low, float high);

/// The scales [0, count) of a chart before anybody chose: -180 to 180 for angles to the bow, 0 to 360 for
/// directions, 0 to 20 for the others.
std::vector<ScaleChoice> DefaultScales(const std::vector<TraceGroup>& groups, std::size_t count);

/// The keys of one trace, of the visible time with the marks, and of scale `number` [1 and up] in a section.
SettingTable<TraceChoice> TraceChoiceTable(const std::string& section, const std::string& trace);
SettingTable<TraceSettings> SpanTable(const std::string& section);
SettingTable<ScaleChoice> ScaleChoiceTable(const std::string& section, std::size_t number);

/// Overlays what a section of the profile holds on settings that have their sizes and defaults already. What
/// is missing or damaged leaves its default; so does a pair of edges that makes no scale.
void TraceSettingsRead(const Profile& profile, const std::string& section,
                       const std::vector<StripChartData::Trace>& traces, TraceSettings& settings);

/// Sets every key of a section.
void TraceSettingsWrite(Profile& profile, const std::string& section,
                        const std::vector<StripChartData::Trace>& traces, const TraceSettings& settings);

}  // namespace veerwatch
