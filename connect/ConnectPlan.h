// What the assistant would write: settings and where the ports lead. Nothing of it holds before it is
// applied.
#pragma once

#include <string>

#include "helm/MainWindowApi.h"
#include "platform/Endpoint.h"
#include "platform/Profile.h"
#include "settings/Settings.h"

namespace veerwatch {

struct ConnectPlan {
  Settings Chosen;    ///< all settings, but for the numbers of the ports
  std::string Input;  ///< endpoints of the instruments; "" to leave the port as it is
  std::string Pilot;  ///< the same of the autopilot
};

/// The numbers that the ports of a plan get.
struct PlannedPorts {
  int Input = 1;
  int Pilot = 1;
};

/// What leads there already keeps its number. An autopilot on a device of the instruments shares their port;
/// another one gets a number that leads nowhere yet, where its own is that of the instruments.
PlannedPorts PortsOf(const ConnectPlan& plan, const Settings& present, const Profile& profile,
                     const DeviceExists& exists);

/// The settings as the plan sets them.
Settings Planned(const ConnectPlan& plan, const Settings& present, const PlannedPorts& ports);

/// Stores the plan in the settings and names its ports in the profile in memory; the input and the pilot's
/// port begin again, in Setup. The bearing, the wanted angles and the colours stay as they are.
void PlanApply(const ConnectPlan& plan, MainWindowApi& main, Profile& profile, const DeviceExists& exists);

}  // namespace veerwatch
