#include "connect/ConnectPlan.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <variant>

#include "connect/Candidate.h"
#include "platform/PortNames.h"

namespace veerwatch {

namespace {

/// The number of a port of the profile that leads to `endpoints`; else `otherwise`.
int NumberOf(const std::string& endpoints, const Profile& profile, int otherwise) {
  if (PortDevice(profile, otherwise) == endpoints) {
    return otherwise;
  }
  for (const PortEntry& entry : PortEntries(profile)) {
    if (entry.Endpoints == endpoints) {
      return entry.Number;
    }
  }
  return otherwise;
}

/// The first number that leads nowhere yet and is not `taken`.
int FreeNumber(const Profile& profile, int taken) {
  const std::vector<PortEntry> entries = PortEntries(profile);
  int number = 1;
  while (number == taken || std::any_of(entries.begin(), entries.end(),
                                        [number](const PortEntry& each) { return each.Number == number; })) {
    ++number;
  }
  return number;
}

std::vector<Endpoint> EndpointsOf(const std::string& text, const DeviceExists& exists) {
  auto parsed = ParseEndpoints(text, exists);
  auto* endpoints = std::get_if<std::vector<Endpoint>>(&parsed);
  return endpoints != nullptr ? std::move(*endpoints) : std::vector<Endpoint>();
}

/// Whether one of `some` leads to where one of `others` does.
bool Meet(const std::vector<Endpoint>& some, const std::vector<Endpoint>& others) {
  return std::any_of(some.begin(), some.end(), [&others](const Endpoint& a) {
    return std::any_of(others.begin(), others.end(), [&a](const Endpoint& b) { return SamePlace(a, b); });
  });
}

/// Where the instruments of the plan lead.
std::string InputOf(const ConnectPlan& plan, const Settings& present, const Profile& profile) {
  return plan.Input.empty() ? PortDevice(profile, present.m_iNmeaPort) : plan.Input;
}

}  // namespace

PlannedPorts PortsOf(const ConnectPlan& plan, const Settings& present, const Profile& profile,
                     const DeviceExists& exists) {
  PlannedPorts ports{present.m_iNmeaPort, present.m_iPilotPort};
  if (!plan.Input.empty()) {
    ports.Input = NumberOf(plan.Input, profile, ports.Input);
  }
  if (plan.Pilot.empty()) {
    return ports;
  }
  const std::string input = InputOf(plan, present, profile);
  if (plan.Pilot == input || Meet(EndpointsOf(plan.Pilot, exists), EndpointsOf(input, exists))) {
    ports.Pilot = ports.Input;
    return ports;
  }
  ports.Pilot = NumberOf(plan.Pilot, profile, ports.Pilot);
  if (ports.Pilot == ports.Input) {
    ports.Pilot = FreeNumber(profile, ports.Input);
  }
  return ports;
}

Settings Planned(const ConnectPlan& plan, const Settings& present, const PlannedPorts& ports) {
  Settings planned = plan.Chosen;
  planned.m_iNmeaPort = static_cast<std::int16_t>(ports.Input);
  planned.m_iPilotPort = static_cast<std::int16_t>(ports.Pilot);
  planned.m_fAutoPilot = present.m_fAutoPilot;
  planned.DesiredAngle = present.DesiredAngle;
  planned.m_eTrackMode = present.m_eTrackMode;
  planned.m_bNightColours = present.m_bNightColours;
  planned.m_sProfileFile = present.m_sProfileFile;
  if (!plan.Input.empty()) {
    planned.m_bSimulate = false;
  }
  return planned;
}

void PlanApply(const ConnectPlan& plan, MainWindowApi& main, Profile& profile, const DeviceExists& exists) {
  const PlannedPorts ports = PortsOf(plan, main, profile, exists);
  const Settings planned = Planned(plan, main, ports);
  main.TrackSetOff();
  const TrackMode mode = main.m_eTrackMode;
  static_cast<Settings&>(main) = planned;
  main.m_eTrackMode = mode;
  if (!plan.Input.empty()) {
    NamePort(profile, ports.Input, plan.Input);
  }
  if (!plan.Pilot.empty() && ports.Pilot != ports.Input) {
    NamePort(profile, ports.Pilot, plan.Pilot);
  }
  main.TrackSetSetup();
}

}  // namespace veerwatch
