#include "connect/PlanWords.h"

#include "nmea/SentenceTable.h"
#include "platform/Language.h"
#include "platform/PortNames.h"
#include "platform/VisibleText.h"
#include "settings/SettingsTable.h"

namespace veerwatch {

namespace {

/// A line when the number does not lead there yet, or another one is used now.
void AddPort(PlanPart part, int number, int present, const std::string& endpoints, const Profile& profile,
             std::vector<PlanLine>& lines) {
  if (endpoints.empty()) {
    return;
  }
  const std::string at = std::to_string(number);
  if (PortDevice(profile, number) != endpoints) {
    lines.push_back({part, Filled(Tr("Port %1 leads to %2"), {at, VisibleText(endpoints)})});
  } else if (number != present) {
    lines.push_back({part, Filled(Tr("Port %1, which leads to %2 (now port %3)"),
                                  {at, VisibleText(endpoints), std::to_string(present)})});
  }
}

void AddPorts(const ConnectPlan& plan, const PlannedPorts& ports, const Settings& present,
              const Profile& profile, std::vector<PlanLine>& lines) {
  AddPort(PlanPart::Instruments, ports.Input, present.m_iNmeaPort, plan.Input, profile, lines);
  if (ports.Pilot != ports.Input) {
    AddPort(PlanPart::Autopilot, ports.Pilot, present.m_iPilotPort, plan.Pilot, profile, lines);
  } else if (present.m_iPilotPort != present.m_iNmeaPort || ports.Pilot != present.m_iPilotPort) {
    lines.push_back({PlanPart::Autopilot, Tr("On the port of the instruments, both ways")});
  }
}

/// The types of sentences whose switch becomes `on`.
std::string Switched(const Settings& planned, const Settings& present, bool on) {
  std::string names;
  for (const SentenceKind& kind : kSentences) {
    if (planned.*kind.Enabled == on && present.*kind.Enabled != on) {
      names.append(names.empty() ? "" : ", ").append(kind.Name);
    }
  }
  return names;
}

void AddSentences(const Settings& planned, const Settings& present, std::vector<PlanLine>& lines) {
  if (const std::string names = Switched(planned, present, true); !names.empty()) {
    lines.push_back({PlanPart::Instruments, Filled(Tr("Sentences that are read from now on: %1"), {names})});
  }
  if (const std::string names = Switched(planned, present, false); !names.empty()) {
    lines.push_back({PlanPart::Instruments, Filled(Tr("Sentences that are no longer read: %1"), {names})});
  }
}

/// Whether a line of its own tells of the row.
bool IsToldOtherwise(const SettingRow<Settings>& row) {
  return row.Key == "Port" || row.Key.starts_with("Sentence ");
}

}  // namespace

std::vector<PlanLine> PlanLines(const ConnectPlan& plan, const Settings& present, const Profile& profile,
                                const DeviceExists& exists) {
  const PlannedPorts ports = PortsOf(plan, present, profile, exists);
  const Settings planned = Planned(plan, present, ports);
  std::vector<PlanLine> lines;
  AddPorts(plan, ports, present, profile, lines);
  AddSentences(planned, present, lines);
  Profile before;
  Profile after;
  SettingsWrite(SettingsTable(), before, present);
  SettingsWrite(SettingsTable(), after, planned);
  for (const SettingRow<Settings>& row : SettingsTable()) {
    if (!IsToldOtherwise(row) && after.Text(row.Section, row.Key) != before.Text(row.Section, row.Key)) {
      lines.push_back(SettingLine(row, planned, present));
    }
  }
  return lines;
}

std::string PlanText(const std::vector<PlanLine>& lines) {
  std::string text;
  for (const PlanPart part : {PlanPart::Instruments, PlanPart::Autopilot, PlanPart::Steers}) {
    std::string under;
    for (const PlanLine& line : lines) {
      if (line.Part == part) {
        under.append("\n\u2022 ").append(line.Text);
      }
    }
    if (!under.empty()) {
      text.append(text.empty() ? "" : "\n\n").append(PlanPartText(part)).append(under);
    }
  }
  return text;
}

}  // namespace veerwatch
