// Which trace is drawn in which panel and on which scale.
#pragma once

#include <string>
#include <vector>

#include "history/ChartScale.h"
#include "history/StripChartData.h"

namespace veerwatch {

/// Where a trace belongs. Groups and scales count from 0.
struct TraceGroup {
  int Group = 0;
  /// The scale: that of its group, or, for directions, the one after those of all groups. Angles to the bow
  /// and directions share a panel, and each has a scale of its own on its side.
  int Scale = 0;
  ScaleKind Kind = ScaleKind::Linear;
};

/// The group of every trace. A trace can join the groups whose title is the name of a trace of its kind (any
/// group where there is none). Of those it takes the one whose title ends with the most words that its own
/// name ends with; where several do, the one with the shortest title. So "App Wind Speed" joins "True Wind
/// Speed" and "Polar Speed" joins "Boat Speed". An angle whose name ends with "Heading" is a direction.
std::vector<TraceGroup> GroupTraces(const std::vector<StripChartData::Trace>& traces,
                                    const std::vector<std::string>& titles);

/// Units as they are shown: "Kts" in the user's language, others as they are.
std::string UnitsText(std::string_view units);

/// A name short enough for any legend: its initials, the first three letters of a single word, "Hdg" for
/// "Heading".
std::string ShortName(const std::string& name);

}  // namespace veerwatch
