#include "connect/ConnectDesk.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "options/DeviceChoices.h"
#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/PortNames.h"

namespace veerwatch {

ConnectDesk::ConnectDesk(Parts parts)
    : m_parts(std::move(parts)),
      m_values(m_parts.Main),
      m_listening({m_parts.Main, m_parts.Store, m_parts.Time, m_parts.Make, m_parts.Exists},
                  [this](std::string_view line, const Moment& now) { m_values.Take(line, now); }),
      m_trial(m_parts.Main, m_parts.Store),
      m_form(OptionsFormOf(m_parts.Main)) {}

std::vector<Candidate> ConnectDesk::Usual(std::string_view host) const {
  std::vector<Candidate> all =
      m_parts.Finder != nullptr ? SerialCandidates(m_parts.Finder->Found()) : std::vector<Candidate>();
  AddCandidates(all, UsualCandidates());
  AddCandidates(all, HostCandidates(host));
  return all;
}

void ConnectDesk::Search(std::string_view host) {
  m_values.Restart();
  m_listening.Begin(Usual(host));
}

void ConnectDesk::Tick() { m_listening.Tick(); }

// The autopilot

std::vector<std::string> ConnectDesk::PilotPorts() const {
  std::vector<std::string> ports;
  const auto add = [&ports](const std::string& endpoint) {
    if (!endpoint.empty() && std::find(ports.begin(), ports.end(), endpoint) == ports.end()) {
      ports.push_back(endpoint);
    }
  };
  for (const PortEntry& entry : PortEntries(m_parts.Store)) {
    if (entry.Number == m_parts.Main.m_iPilotPort) {
      add(entry.Endpoints);
    }
  }
  for (const std::string& each : m_listening.ForPilot()) {
    add(each);
  }
  add(m_listening.Ticked());
  return ports;
}

std::string ConnectDesk::PilotPort() const {
  const std::vector<std::string> ports = PilotPorts();
  return !m_pilot.empty() || ports.empty() ? m_pilot : ports.front();
}

std::string ConnectDesk::PilotPortWrong(const std::string& endpoint) const {
  return DeviceChoices({}, m_parts.Exists).Wrong(EndpointOfPlace(endpoint));
}

std::string ConnectDesk::PilotPortWords() const {
  const ConnectPlan plan = Plan();
  const PlannedPorts ports = PortsOf(plan, m_parts.Main, m_parts.Store, m_parts.Exists);
  return ports.Input == ports.Pilot ? Tr("One port for both ways: the instruments and the autopilot.")
                                    : DeviceChoices({}, m_parts.Exists).Remark(plan.Pilot);
}

void ConnectDesk::SetPilotPort(const std::string& place) { m_pilot = EndpointOfPlace(place); }

PilotPreview ConnectDesk::Preview() const {
  HelmNow now = m_parts.Main.Now();
  now.Watch.At = m_parts.Time.Now();
  // The line that counts is the one that is chosen here.
  const auto parsed = ParseEndpoints(PilotPort(), m_parts.Exists);
  const auto* leads = std::get_if<std::vector<Endpoint>>(&parsed);
  const bool serial =
      leads != nullptr && leads->front().What == Endpoint::Kind::Device && leads->front().Baud > 0;
  now.PilotBaud = serial ? std::optional(leads->front().Baud) : std::nullopt;
  return PilotPreviewOf(m_form, Chosen(), m_values.Record(), now);
}

void ConnectDesk::TrialBegin() {
  const ConnectPlan plan = Plan();
  m_listening.End();
  m_trial.Begin(plan, m_parts.Exists);
}

void ConnectDesk::TrialEnd() {
  if (m_trial.Runs()) {
    m_trial.End();
    m_listening.Resume();
  }
}

void ConnectDesk::TakeLag(const std::string& lag) {
  const std::optional<double> seconds = StrictDouble(lag);
  if (seconds) {
    const HelmNow now = m_parts.Main.Now();
    m_tracking = TrackSuggestionFor(
        {now.WindsASecond.value_or(1.0), *seconds, now.Heading.has_value(), now.BoatSpeedKnown});
  }
}

// What follows

Settings ConnectDesk::Chosen() const {
  Settings chosen = m_parts.Main;
  m_values.ApplyTo(chosen);
  static_cast<void>(PilotChoicesStore(m_form, chosen));
  chosen.m_fPilotInvalidSeconds =
      StrictNumber(m_form.PilotInvalidSeconds).value_or(chosen.m_fPilotInvalidSeconds);
  if (m_tracking) {
    chosen.m_eTrackMethod = m_tracking->Method;
    chosen.m_fTrackBandwidth = m_tracking->Bandwidth;
    chosen.m_fNmeaTrueWindAverage = m_tracking->WindAverage;
    chosen.m_fTrackAlarmAverage = m_tracking->AlarmAverage;
  }
  return chosen;
}

bool ConnectDesk::Recommend(Settings& settings) const {
  bool smooth = SmoothWindsNow();
  ApplyRecommended(m_recommended, {settings, smooth});
  return smooth;
}

ConnectPlan ConnectDesk::Plan() const {
  ConnectPlan plan{Chosen(), m_listening.Ticked(), PilotPort()};
  Recommend(plan.Chosen);
  return plan;
}

std::vector<PlanLine> ConnectDesk::Words() const {
  const Settings& present = m_parts.Main;
  std::vector<PlanLine> lines = PlanLines(Plan(), present, m_parts.Store, m_parts.Exists);
  Settings settings = present;
  const bool smooth = Recommend(settings);
  if (smooth != SmoothWindsNow()) {
    lines.push_back(
        RecommendedLine(SmoothWindsRecommendation(), {settings, smooth}, {present, SmoothWindsNow()}));
  }
  return lines;
}

void ConnectDesk::End() {
  m_trial.End();
  m_listening.End();
}

void ConnectDesk::Save() {
  const ConnectPlan plan = Plan();
  Settings settings = plan.Chosen;
  const bool smooth = Recommend(settings);
  End();
  PlanApply(plan, m_parts.Main, m_parts.Store, m_parts.Exists);
  if (smooth != SmoothWindsNow()) {
    m_parts.Polar.Set(smooth);
  }
}

}  // namespace veerwatch
