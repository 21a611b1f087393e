#include "platform/NamedPort.h"

#include <algorithm>
#include <utility>

#include "platform/Language.h"
#include "platform/PortNames.h"
#include "platform/ReopenPause.h"
#include "platform/WholeLines.h"

namespace veerwatch {

/// One endpoint of the port.
class NamedPort::Branch final : private SerialPort::Events {
 public:
  Branch(NamedPort& owner, std::unique_ptr<SerialPort> port)
      : m_owner(owner), m_port(std::move(port)), m_connection(m_port->Connect(*this)) {}
  ~Branch() override { m_port->PortOpen(false); }

  SerialPort& Port() { return *m_port; }
  const SerialPort& Port() const { return *m_port; }

  bool Open(int number) {
    m_lines.Clear();
    m_pause.Restart();
    m_port->CommPort(number);
    return m_port->PortOpen(true);
  }
  /// Once a second while the others are open.
  void Tick() {
    if (m_pause.Tick(m_port->PortOpen())) {
      m_port->PortOpen(true);
    }
  }
  /// Appends the whole lines that wait. `part` is room for what is not whole.
  void Lines(std::string& text, std::string& part) {
    m_port->Input(part);
    m_lines.Add(part, text);
  }
  std::string Complaint() const { return m_port->PortOpen() ? m_port->Trouble() : m_port->OpenFailure(); }

 private:
  void OnComm(int commEvent) override { m_owner.OnEvent(*this, commEvent); }
  void OnPortLost() override {
    m_lines.Clear();
    m_owner.OnLost();
  }
  void OnPortStandstill() override {
    m_lines.Clear();
    m_owner.OnStandstill();
  }

  NamedPort& m_owner;
  std::unique_ptr<SerialPort> m_port;
  WholeLines m_lines;
  ReopenPause m_pause;
  SerialPort::Connection m_connection;
};

NamedPort::NamedPort(const Profile& profile, Maker make, DeviceExists exists)
    : m_profile(profile), m_make(std::move(make)), m_exists(std::move(exists)) {}

NamedPort::~NamedPort() = default;

void NamedPort::CommPort(int number) {
  if (!m_open) {
    m_number = number;
  }
}

bool NamedPort::PortOpen(bool open) {
  if (open && !m_open) {
    m_open = Make() && OpenAll();
    return m_open;
  }
  if (!open && m_open) {
    m_open = false;
    for (const auto& branch : m_branches) {
      branch->Port().PortOpen(false);
    }
  }
  return true;
}

bool NamedPort::Make() {
  if (m_events == 0) {
    m_old.clear();
  }
  const std::string text = PortDevice(m_profile, m_number);
  if (text == m_text && !m_branches.empty()) {
    return true;
  }
  const auto parsed = ParseEndpoints(text, m_exists);
  if (const auto* wrong = std::get_if<std::string>(&parsed)) {
    m_failure = *wrong;
    return false;
  }
  m_sentBefore = Sent();
  std::move(m_branches.begin(), m_branches.end(), std::back_inserter(m_old));
  m_branches.clear();
  for (const Endpoint& endpoint : std::get<std::vector<Endpoint>>(parsed)) {
    m_branches.push_back(std::make_unique<Branch>(*this, m_make(endpoint)));
  }
  m_text = text;
  return true;
}

bool NamedPort::OpenAll() {
  bool any = false;
  m_failure.clear();
  for (const auto& branch : m_branches) {
    if (branch->Open(m_number)) {
      any = true;
    } else {
      m_failure += (m_failure.empty() ? "" : "; ") + branch->Port().OpenFailure();
    }
  }
  if (any) {
    m_failure.clear();
  } else if (m_profile.Text("Ports", std::to_string(m_number)).empty()) {
    m_failure +=
        Filled(Tr("; [Ports] in the profile names the device of port %1"), {std::to_string(m_number)});
  }
  return any;
}

std::string NamedPort::Trouble() const {
  std::string trouble;
  for (const auto& branch : m_branches) {
    const std::string complaint = m_open ? branch->Complaint() : std::string();
    trouble += (trouble.empty() || complaint.empty() ? "" : "; ") + complaint;
  }
  return trouble;
}

void NamedPort::Input(std::string& text) {
  text.clear();
  if (!m_open) {
    return;
  }
  if (Single()) {
    m_branches.front()->Port().Input(text);
    return;
  }
  for (std::size_t i = 0; i < m_branches.size() && text.empty(); ++i) {
    if (m_telling == nullptr || m_telling == m_branches[i].get()) {
      m_branches[i]->Lines(text, m_part);
      m_from = static_cast<int>(i) + 1;
    }
  }
}

void NamedPort::Output(std::string_view bundle) {
  if (!m_open) {
    return;
  }
  for (const auto& branch : m_branches) {
    branch->Port().Output(bundle);
  }
}

std::uint64_t NamedPort::Sent() const {
  // A bundle counts once, however many endpoints it goes to.
  std::uint64_t most = 0;
  for (const auto& branch : m_branches) {
    most = std::max(most, branch->Port().Sent());
  }
  return m_sentBefore + most;
}

std::optional<int> NamedPort::BaudRate() const {
  std::optional<int> slowest;
  for (const auto& branch : m_branches) {
    const std::optional<int> rate = branch->Port().BaudRate();
    if (rate && (!slowest || *rate < *slowest)) {
      slowest = rate;
    }
  }
  return slowest;
}

void NamedPort::Withdraw() {
  for (const auto& branch : m_branches) {
    branch->Port().Withdraw();
  }
}

void NamedPort::PollLineErrors() {
  for (const auto& branch : m_branches) {
    branch->Port().PollLineErrors();
    if (m_open && !Single()) {
      branch->Tick();
    }
  }
}

void NamedPort::OnEvent(const Branch& from, int commEvent) {
  if (Events* const events = Connected(); events != nullptr && m_open) {
    const Branch* const before = std::exchange(m_telling, &from);
    ++m_events;
    events->OnComm(commEvent);
    --m_events;
    m_telling = before;
  }
}

void NamedPort::OnStandstill() {
  if (Events* const events = Connected(); events != nullptr && m_open) {
    ++m_events;
    events->OnPortStandstill();
    --m_events;
  }
}

void NamedPort::OnLost() {
  const auto open = [](const auto& branch) { return branch->Port().PortOpen(); };
  if (!m_open || std::any_of(m_branches.begin(), m_branches.end(), open)) {
    return;
  }
  m_open = false;
  if (Events* const events = Connected()) {
    ++m_events;
    events->OnPortLost();
    --m_events;
  }
}

}  // namespace veerwatch
