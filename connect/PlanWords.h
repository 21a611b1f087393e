// What the assistant would write, in words.
#pragma once

#include <string>
#include <vector>

#include "connect/ConnectPlan.h"
#include "connect/SettingWords.h"
#include "platform/Profile.h"
#include "settings/Settings.h"

namespace veerwatch {

/// What would be written, a line each, by parts; none when everything is so already.
std::vector<PlanLine> PlanLines(const ConnectPlan& plan, const Settings& present, const Profile& profile,
                                const DeviceExists& exists);

/// The lines under the heading of their part, each part in its order.
std::string PlanText(const std::vector<PlanLine>& lines);

}  // namespace veerwatch
