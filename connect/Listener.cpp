#include "connect/Listener.h"

#include <utility>
#include <variant>
#include <vector>

#include "nmea/Sentence.h"
#include "platform/Language.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

constexpr std::string_view kAutomatic = "?baud=auto";

/// `text` without `front`, where it begins with it.
std::string Without(const std::string& text, const std::string& front) {
  return text.starts_with(front) ? text.substr(front.size()) : text;
}

}  // namespace

Listener::Listener(Candidate candidate, const NamedPort::Maker& make, const DeviceExists& exists,
                   const Clock& clock, Line line)
    : m_candidate(std::move(candidate)),
      m_clock(clock),
      m_line(std::move(line)),
      m_begun(clock.Now().Steady) {
  const auto parsed = ParseEndpoints(m_candidate.Endpoint, exists);
  const auto* endpoints = std::get_if<std::vector<Endpoint>>(&parsed);
  if (endpoints == nullptr) {
    End(Without(std::get<std::string>(parsed), m_candidate.Endpoint + ": "));
    return;
  }
  m_device = endpoints->front().What == Endpoint::Kind::Device;
  m_place = m_device ? VisibleText(endpoints->front().Path) : m_candidate.Endpoint;
  m_port = make(endpoints->front());
  Open();
}

void Listener::Open() {
  if (!m_port) {
    return;
  }
  m_connection = m_port->Connect(*this);
  if (!m_port->PortOpen(true)) {
    const std::string why = m_port->OpenFailure();
    End(why.empty() ? Tr("cannot be opened") : Without(why, m_place + ": "));
  }
}

Listener::Listener(Candidate candidate, const Clock& clock, Line line)
    : m_candidate(std::move(candidate)),
      m_clock(clock),
      m_line(std::move(line)),
      m_inUse(true),
      m_begun(clock.Now().Steady) {}

Listener::Listener(Candidate candidate, const Clock& clock, std::string why)
    : m_candidate(std::move(candidate)), m_clock(clock), m_begun(clock.Now().Steady) {
  End(std::move(why));
}

bool Listener::Searching() const { return m_device && !m_rate && !m_over; }

void Listener::Tick() {
  const std::int64_t passed = m_clock.Now().Steady - m_begun;
  if (m_over || passed < (Searching() ? kSearches : kListens)) {
    return;
  }
  if (Brings() || m_inUse) {
    m_over = true;
  } else {
    End(Silence());
  }
}

std::string Listener::Silence() const {
  if (m_heard.Faults() > 0) {
    return Tr("no sentences, only lines that are none");
  }
  if (m_device) {
    return Tr(m_port->Noise() ? TrMark("noise at every rate, no sentences")
                              : TrMark("nothing comes, at no rate"));
  }
  const std::string why = Complaint();
  return why.empty() ? Tr("nothing comes") : why;
}

std::string Listener::Complaint() const {
  const std::string trouble = m_port ? Without(m_port->Trouble(), m_place + ": ") : std::string();
  const std::string next = Tr(", next try in %1 s");
  const std::string why = trouble.substr(0, trouble.find(next.substr(0, next.find("%1"))));
  return why == Tr("connecting") || why == Tr("no answer") ? Tr("the host does not answer") : why;
}

std::string Listener::Stopped() const {
  const bool listens = m_inUse || (m_port && m_port->PortOpen());
  if (!m_over || !listens || !Brings() || m_clock.Now().Steady - m_last <= kListens) {
    return {};
  }
  const std::string why = Complaint();
  return why.empty() ? Tr("; nothing more comes") : "; " + why;
}

void Listener::End(std::string why) {
  m_why = std::move(why);
  Close();
}

void Listener::Close() {
  m_over = true;
  m_connection = {};
  if (m_port) {
    m_port->PortOpen(false);
  }
}

void Listener::OnComm(int commEvent) {
  if (commEvent != CommEvent::kReceive) {
    return;
  }
  m_port->Input(m_input);
  if (Searching() && !m_input.empty()) {
    m_rate = m_port->BaudRate();
    m_begun = m_clock.Now().Steady;
  }
  m_framer.Feed(
      m_input, [this](std::string_view line) { Take(line); },
      [this](std::string_view line) { Hear(line, LineFault::Sentence); });
}

void Listener::Take(std::string_view line) {
  switch (line.starts_with('!') ? Frame::Good : CheckFrame(line)) {
    case Frame::NoDollar:
      return Hear(line, LineFault::Sentence);
    case Frame::WrongChecksum:
      return Hear(line, LineFault::Checksum);
    case Frame::Good:
      break;
  }
  Hear(line, LineFault::None);
}

void Listener::Hear(std::string_view line, LineFault fault) {
  const Moment now = m_clock.Now();
  m_heard.Take(line, fault, now);
  m_last = now.Steady;
  const bool good = fault == LineFault::None || fault == LineFault::Decode;
  if (good && line.starts_with('$') && m_line) {
    m_line(line, now);
  }
}

void Listener::OnPortLost() { End(Tr("vanished while it was listened to")); }

std::string Listener::LeadsTo() const {
  std::string text = m_candidate.Endpoint;
  if (m_rate && text.ends_with(kAutomatic)) {
    text.replace(text.size() - kAutomatic.size(), kAutomatic.size(), "?baud=" + std::to_string(*m_rate));
  }
  return text;
}

std::string Listener::Says() const {
  if (!m_why.empty()) {
    return m_why;
  }
  const std::string rate = m_inUse ? Tr("in use now: ") : m_rate ? std::to_string(*m_rate) + ": " : "";
  const std::string words = m_heard.Words(m_clock.Now());
  if (!words.empty()) {
    return rate +
           (Brings() || !m_over ? words : Tr("noise; press Off (F5), then Listen Again, to try every rate")) +
           Stopped();
  }
  if (m_over) {
    return Tr("in use now: nothing comes; press Off (F5), then Listen Again, to try every rate");
  }
  if (Searching()) {
    return Filled(Tr("searching the rate, now %1 baud"), {std::to_string(m_port->BaudRate().value_or(0))});
  }
  return Tr("listening...");
}

}  // namespace veerwatch
