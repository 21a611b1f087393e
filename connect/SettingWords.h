// The settings that the assistant can change, in the words of the sailor: what it is called, and what it is
// set to. What is recommended has its words in options/Recommended.
#pragma once

#include <string>

#include "options/Recommended.h"
#include "settings/SettingRow.h"
#include "settings/Settings.h"

namespace veerwatch {

/// Of what in the plan a line is.
enum class PlanPart { Instruments, Autopilot, Steers };

/// The heading of a part.
std::string PlanPartText(PlanPart part);

struct PlanLine {
  PlanPart Part = PlanPart::Instruments;
  std::string Text;
};

/// Whether a key has words of its own.
bool HasWords(const SettingRow<Settings>& row);

/// "Boat speed: over ground (now through the water)". A key without words is named with what the profile
/// holds.
PlanLine SettingLine(const SettingRow<Settings>& row, const Settings& planned, const Settings& present);

/// The same of what is recommended.
PlanLine RecommendedLine(const Recommendation& about, const RecommendedSeen& planned,
                         const RecommendedSeen& present);

}  // namespace veerwatch
