// The history's own nine traces and how a chart is set up for them. Used by frmHistory.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "history/StripChartOperations.h"
#include "platform/Language.h"

namespace veerwatch {

/// One day of samples, one every ten seconds.
inline constexpr std::int16_t kHistorySlotSeconds = 10;
inline constexpr double kHistorySlots = 86400.0 / 10.0;
inline constexpr std::int16_t kHistorySpan = 1800;

struct HistoryTrace {
  const char* Name;  ///< English, for Tr; a key of the profile and a column of what is saved
  const char* Units;
  std::int16_t Group;  ///< 0 speeds, 1 angles
};

/// Traces 1 to 9. Deliberate: the true wind angle is set up with "R" and fed with "M".
inline constexpr std::array<HistoryTrace, 9> kHistoryTraces{{
    {TrMark("Boat Speed"), "Kts", 0},
    {TrMark("Heading"), "M", 1},
    {TrMark("True Wind Speed"), "Kts", 0},
    {TrMark("True Wind Angle"), "R", 1},
    {TrMark("App Wind Speed"), "Kts", 0},
    {TrMark("App Wind Angle"), "R", 1},
    {TrMark("Pilot Heading"), "Deg", 1},
    {TrMark("Pilot Delta"), "Deg", 1},
    {TrMark("Polar Speed"), "Kts", 0},
}};

/// Traces [1, 9] whose names are the titles of groups 1 to 3.
inline constexpr std::array<int, 3> kHistoryGroupTitles{3, 4, 1};

/// What ShortName makes of the names.
inline constexpr std::array<const char*, 9> kBriefTraces{TrMark("BS"),  TrMark("Hdg"), TrMark("TWS"),
                                                         TrMark("TWA"), TrMark("AWS"), TrMark("AWA"),
                                                         TrMark("PH"),  TrMark("PD"),  TrMark("PS")};

/// Sets a chart up from scratch; `windowColour` is the colour of the window around it, 0xRRGGBB.
void HistorySetUp(StripChartOperations& chart, std::uint32_t windowColour);

/// A value as the chart is fed with it: one decimal, a blank, the units.
std::string HistoryText(float value, std::string_view units);

/// Half of the sum of a length and the place that it begins at, as the configuration pop-up is placed
/// [px]. Deliberate: on the axis on which the chart begins above 0 this is neither its centre nor the
/// window's.
std::int16_t HistoryPopupPlace(double length, double begin);

}  // namespace veerwatch
