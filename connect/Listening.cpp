#include "connect/Listening.h"

#include <algorithm>
#include <set>
#include <utility>
#include <variant>

#include "nmea/SentenceTable.h"
#include "platform/Language.h"
#include "platform/PortNames.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

bool Among(const std::vector<Endpoint>& all, const Endpoint& one) {
  return std::any_of(all.begin(), all.end(), [&one](const Endpoint& each) { return SamePlace(each, one); });
}

}  // namespace

Listening::Listening(Parts parts, Listener::Line line)
    : m_parts(std::move(parts)), m_line(std::move(line)), m_told(m_parts.Main.Observers().Join(*this)) {}

std::vector<Endpoint> Listening::EndpointsOf(const std::string& text) const {
  auto parsed = ParseEndpoints(text, m_parts.Exists);
  auto* endpoints = std::get_if<std::vector<Endpoint>>(&parsed);
  return endpoints != nullptr ? std::move(*endpoints) : std::vector<Endpoint>();
}

void Listening::Begin(const std::vector<Candidate>& candidates) {
  m_rows.clear();
  m_input.clear();
  m_pilot.clear();
  const HelmNow now = m_parts.Main.Now();
  const int input = m_parts.Main.m_iNmeaPort;
  const int pilot = m_parts.Main.m_iPilotPort;
  if (now.InputStarted && now.InputOpen && !m_parts.Main.m_bSimulate) {
    const std::string text = PortDevice(m_parts.Store, input);
    m_input = EndpointsOf(text);
    m_rows.push_back({std::make_unique<Listener>(
        Candidate{Filled(Tr("Port %1 (%2)"), {std::to_string(input), VisibleText(text)}), text}, m_parts.Time,
        NextRow())});
  }
  if (pilot != input && now.OutputOpen && !m_parts.Main.m_bSimulate) {
    m_pilot = EndpointsOf(PortDevice(m_parts.Store, pilot));
  }
  Add(candidates);
}

void Listening::Add(const std::vector<Candidate>& candidates) {
  for (const Candidate& each : candidates) {
    const bool known = std::any_of(m_rows.begin(), m_rows.end(), [&each](const Heard& row) {
      return row.Of->Of().Endpoint == each.Endpoint;
    });
    if (!known) {
      Open(each);
    }
  }
}

void Listening::Open(const Candidate& candidate) {
  const std::vector<Endpoint> leads = EndpointsOf(candidate.Endpoint);
  if (!leads.empty() && Among(m_input, leads.front())) {
    return;  // the port in use now has a row of its own
  }
  if (!leads.empty() && Among(m_pilot, leads.front())) {
    m_rows.push_back(
        {std::make_unique<Listener>(candidate, m_parts.Time, Tr("in use now: the autopilot's port"))});
    return;
  }
  m_rows.push_back(
      {std::make_unique<Listener>(candidate, m_parts.Make, m_parts.Exists, m_parts.Time, NextRow())});
}

Listener::Line Listening::NextRow() {
  return [this, place = m_rows.size()](std::string_view line, const Moment& at) {
    if (m_rows[place].Ticked && m_line) {
      m_line(line, at);
    }
  };
}

void Listening::End() {
  for (Heard& row : m_rows) {
    row.Of->Close();
  }
}

void Listening::Resume() {
  for (Heard& row : m_rows) {
    if (row.Ticked) {
      row.Of->Open();
    }
  }
}

void Listening::OnNmeaLine(std::string_view line, LineFault fault, bool /*used*/) {
  if (!m_rows.empty() && m_rows.front().Of->InUse()) {
    m_rows.front().Of->Hear(line, fault);
  }
}

void Listening::Tick() {
  for (Heard& row : m_rows) {
    row.Of->Tick();
  }
  FindTwins();
  for (Heard& row : m_rows) {
    if (row.Of->Over() && !row.Offered) {
      row.Offered = true;
      row.Ticked = row.Of->Heard().Known() > 0 && std::none_of(row.Twins.begin(), row.Twins.end(), IsTicked);
    }
  }
}

void Listening::FindTwins() {
  std::vector<std::set<std::size_t>> lines;
  lines.reserve(m_rows.size());
  for (Heard& row : m_rows) {
    row.Twins.clear();
    lines.push_back(row.Of->Heard().Different());
  }
  for (std::size_t i = 0; i < m_rows.size(); ++i) {
    for (std::size_t j = i + 1; j < m_rows.size(); ++j) {
      if (BringSame(lines[i], lines[j])) {
        m_rows[i].Twins.push_back(&m_rows[j]);
        m_rows[j].Twins.push_back(&m_rows[i]);
      }
    }
  }
}

std::string Listening::TwinWords(const Heard& row) {
  if (row.Twins.empty()) {
    return {};
  }
  const auto ticked = std::find_if(row.Twins.begin(), row.Twins.end(), IsTicked);
  const Heard& twin = ticked == row.Twins.end() ? *row.Twins.front() : **ticked;
  return Filled(twin.Ticked == row.Ticked ? Tr("; the same comes on %1: tick one of them")
                                          : Tr("; the same comes on %1"),
                {twin.Of->Of().Name});
}

Listening::Row Listening::RowAt(std::size_t index) const {
  const Heard& row = m_rows[index];
  const Listener& of = *row.Of;
  Row shown{of.Of().Name + (of.Rate() ? ", " : ": ") + of.Says() + TwinWords(row), VisibleText(of.LeadsTo()),
            of.Brings(), row.Ticked, of.Over()};
  if (of.Brings()) {
    shown.Details += "\n" + of.Heard().Details(m_parts.Time.Now());
  }
  return shown;
}

void Listening::SetTicked(std::size_t index, bool ticked) {
  m_rows[index].Ticked = ticked && m_rows[index].Of->Brings();
  m_rows[index].Offered = true;
}

bool Listening::Over() const {
  return std::all_of(m_rows.begin(), m_rows.end(), [](const Heard& row) { return row.Of->Over(); });
}

std::string Listening::Ticked() const {
  std::string all;
  for (const Heard& row : m_rows) {
    if (row.Ticked) {
      all += (all.empty() ? "" : ", ") + row.Of->LeadsTo();
    }
  }
  return all;
}

std::vector<std::string> Listening::ForPilot() const {
  std::vector<std::string> adapters;
  std::vector<std::string> devices;
  std::vector<std::string> hosts;
  std::vector<std::string> others;
  for (const Heard& row : m_rows) {
    const std::string leads = row.Of->LeadsTo();
    const std::vector<Endpoint> endpoints = EndpointsOf(leads);
    const bool device = !endpoints.empty() && endpoints.front().What == Endpoint::Kind::Device;
    if (row.Ticked) {
      (device ? devices : hosts).push_back(leads);
    } else if (device) {
      // A pilot that is silent listens at 4800 baud.
      const std::string& silent = endpoints.front().Path;
      (row.Of->Of().Adapter ? adapters : others).push_back(endpoints.front().Baud == 0 ? silent : leads);
    }
  }
  for (const auto& more : {devices, hosts, others}) {
    adapters.insert(adapters.end(), more.begin(), more.end());
  }
  return adapters;
}

}  // namespace veerwatch
