#include "pilot/PilotOutput.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "pilot/PilotForm.h"

namespace veerwatch {

namespace {

constexpr std::size_t kLineEnd = 2;  // characters

}  // namespace

PilotOutput::PilotOutput(const Settings& settings, SerialPort& nmeaPort, SerialPort& pilotPort,
                         Observer& observer)
    : m_settings(settings), m_nmeaPort(nmeaPort), m_pilotPort(pilotPort), m_observer(observer) {
  m_connection = m_pilotPort.Connect(*this);
}

void PilotOutput::PilotRelease() {
  Refusal({});
  m_nmeaPort.Withdraw();
  m_pilotPort.Withdraw();
  CloseUnneeded();
}

void PilotOutput::CloseUnneeded() {
  if (m_settings.m_bSimulate || !OwnPort() || m_pilotPort.CommPort() != m_settings.m_iPilotPort) {
    m_pilotPort.PortOpen(false);
  }
}

void PilotOutput::PilotStart() {
  CloseUnneeded();
  if (!m_started) {
    m_started = true;
    m_reopenPause.Restart();
  }
  if (m_settings.m_bSimulate || !OwnPort()) {
    Failure("");
  }
  if (m_settings.m_bSimulate) {
    Status({PortStatus::What::Simulate});
    m_observer.OnOutputState(OutputState::Simulate);
    return;
  }
  Status({});
  m_observer.OnOutputState(OutputState::Running);
  if (OwnPort()) {
    OpenPort();
  }
}

void PilotOutput::PilotStop() {
  m_started = false;
  m_pilotPort.PortOpen(false);
  Failure("");
  Refusal({});
  if (m_notOpenShown) {
    Status({});
  }
}

void PilotOutput::OpenPort() {
  m_pilotPort.CommPort(m_settings.m_iPilotPort);
  const bool open = m_pilotPort.PortOpen(true);
  Failure(open ? "" : m_pilotPort.OpenFailure());
  if (!open) {
    Status({PortStatus::What::NotOpen, m_settings.m_iPilotPort});
    m_notOpenShown = true;
  } else if (m_notOpenShown) {
    Status({});
  }
}

void PilotOutput::Failure(std::string reason) {
  if (reason != m_failure) {
    m_failure = std::move(reason);
    m_observer.OnOutputFailure(m_failure);
  }
}

void PilotOutput::Refusal(const PilotRefusal& refusal) {
  if (refusal != m_refusal) {
    m_refusal = refusal;
    m_observer.OnOutputRefused(m_refusal);
  }
}

void PilotOutput::Tick() {
  if (!m_started || m_settings.m_bSimulate) {
    return;
  }
  // The instruments were given its device.
  if (m_pilotPort.CommPort() == m_settings.m_iNmeaPort) {
    m_pilotPort.PortOpen(false);
  }
  if (!OwnPort()) {
    Failure("");
    if (m_notOpenShown) {
      Status({});
    }
    return;
  }
  m_pilotPort.PollLineErrors();
  if (m_pilotPort.PortOpen()) {
    Failure(m_pilotPort.Trouble());
  }
  if (m_reopenPause.Tick(m_pilotPort.PortOpen())) {
    OpenPort();
  }
}

std::string_view PilotOutput::PilotSend(const PilotValues& values) {
  if (!std::isfinite(values.Bearing)) {
    return {};
  }
  const PilotRefusal refusal = m_sentences.Build(PilotFormOf(m_settings), values);
  const std::string_view bundle = m_sentences.Bundle().Text();
  if (!bundle.empty() && Carrier().PortOpen()) {
    Carrier().Output(bundle);
  }
  if (!bundle.empty() && m_settings.m_bSimulate) {
    ++m_simulated;
  }
  Refusal(refusal);
  return bundle.substr(0, bundle.size() - std::min(bundle.size(), kLineEnd));
}

bool PilotOutput::Open() const { return m_settings.m_bSimulate || Carrier().PortOpen(); }

void PilotOutput::OnComm(int commEvent) {
  if (commEvent == CommEvent::kReceive) {
    m_pilotPort.Input(m_dropped);
    Status({PortStatus::What::ReceiveError});
  } else {
    Status({PortStatus::What::LineEvent, commEvent});
  }
}

void PilotOutput::OnPortLost() {
  if (m_started) {
    Status({PortStatus::What::NotOpen, m_pilotPort.CommPort()});
    m_notOpenShown = true;
  }
}

void PilotOutput::Status(const PortStatus& status) {
  m_notOpenShown = false;
  m_observer.OnOutputStatus(status);
}

}  // namespace veerwatch
