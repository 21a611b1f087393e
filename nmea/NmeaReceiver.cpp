#include "nmea/NmeaReceiver.h"

#include <utility>

#include "nmea/Sentence.h"

namespace veerwatch {

namespace {

constexpr int kSilentTicks = 4;

}  // namespace

NmeaReceiver::NmeaReceiver(const Settings& settings, SerialPort& port, Timer& tmrNmea, const Clock& clock,
                           InstrumentRecord& record, Observer& observer)
    : m_settings(settings),
      m_port(port),
      m_timer(tmrNmea),
      m_clock(clock),
      m_record(record),
      m_observer(observer),
      m_dispatcher(settings, record) {
  m_connection = m_port.Connect(*this);
}

bool NmeaReceiver::NmeaStart() {
  m_started = true;
  m_reopenPause.Restart();
  m_noDataCount = 0;
  m_noDataShown = false;
  m_timer.Enabled(true);
  m_record.Restart();
  m_observer.OnInputStarts();
  m_dispatcher.Sources().Restart();
  Advise({});
  if (m_settings.m_bSimulate) {
    Failure("");
    Status({PortStatus::What::Simulate});
    m_observer.OnInputState(InputState::Simulate);
    return true;
  }
  Status({});
  m_observer.OnInputState(InputState::Running);
  if (m_port.PortOpen() && m_port.CommPort() != m_settings.m_iNmeaPort) {
    m_port.PortOpen(false);
  }
  OpenPort();
  return true;
}

void NmeaReceiver::NmeaStop() {
  m_started = false;
  m_timer.Enabled(false);
  m_port.PortOpen(false);
  Failure("");
  Advise({});
  if (NotOpenShown()) {
    Status({});
  }
  m_observer.OnInputState(InputState::Stopped);
}

void NmeaReceiver::OpenPort() {
  m_port.CommPort(m_settings.m_iNmeaPort);
  const bool open = m_port.PortOpen(true);
  Failure(open ? "" : m_port.OpenFailure());
  m_framer.Clear();
  if (!open && m_noDataCount < kSilentTicks) {
    Status({PortStatus::What::NotOpen, m_settings.m_iNmeaPort});
  } else if (open && NotOpenShown()) {
    Status({});
  }
}

void NmeaReceiver::Failure(std::string reason) {
  if (reason != m_failure) {
    m_failure = std::move(reason);
    m_observer.OnInputFailure(m_failure);
  }
}

void NmeaReceiver::Advise(std::vector<std::string> lines) {
  if (lines != m_advice) {
    m_advice = std::move(lines);
    m_observer.OnSourceAdvice(m_advice);
  }
}

void NmeaReceiver::Tick() {
  if (!m_started || m_settings.m_bSimulate) {
    return;
  }
  m_dispatcher.Sources().Tick();
  Advise(m_dispatcher.Sources().Advice());
  m_port.PollLineErrors();
  if (m_port.PortOpen()) {
    Failure(m_port.Trouble());
  }
  ++m_noDataCount;
  if (m_noDataCount >= kSilentTicks) {
    Status({PortStatus::What::NoInputData});
    m_observer.OnInputState(InputState::NoData);
    m_noDataShown = true;
  } else if (m_noDataShown) {
    Status({});
    m_observer.OnInputState(InputState::Running);
    m_noDataShown = false;
  }
  if (m_reopenPause.Tick(m_port.PortOpen())) {
    OpenPort();
  }
}

void NmeaReceiver::OnComm(int commEvent) {
  if (commEvent == CommEvent::kReceive) {
    Receive();
  } else {
    Status({PortStatus::What::LineEvent, commEvent});
  }
}

void NmeaReceiver::OnPortLost() {
  if (m_started) {
    m_framer.Clear();
    Status({PortStatus::What::NotOpen, m_port.CommPort()});
  }
}

void NmeaReceiver::Receive() {
  m_noDataCount = 0;
  if (m_receiving) {
    return;
  }
  m_receiving = true;
  m_heard = true;
  m_arrived = m_clock.Now();
  m_port.Input(m_input);
  m_framer.Feed(
      m_input, [this](std::string_view line) { SentenceLine(line); },
      [this](std::string_view line) { BadLine(line, LineFault::Sentence); });
  Heard();
  m_receiving = false;
}

void NmeaReceiver::SentenceLine(std::string_view line) {
  switch (CheckFrame(line, {m_settings.m_eNmeaChecksum, m_settings.m_bNmeaLowerCase})) {
    case Frame::NoDollar:
      if (line.starts_with('!') && m_settings.m_eNmeaForeignLines == ForeignRule::List) {
        m_observer.OnOtherLine(line, LineFault::None);
        Heard();
        return;
      }
      BadLine(line, LineFault::Sentence);
      return;
    case Frame::WrongChecksum:
      BadLine(line, LineFault::Checksum);
      return;
    case Frame::Good:
      break;
  }
  const Dispatcher::Outcome outcome = m_dispatcher.Dispatch(line, m_settings.m_iNmeaPort, m_arrived);
  m_observer.OnSentence(line, outcome, m_arrived);
  Heard();
}

void NmeaReceiver::BadLine(std::string_view line, LineFault fault) {
  m_heard = false;
  Status({fault == LineFault::Checksum ? PortStatus::What::ChecksumError : PortStatus::What::SentenceError});
  m_observer.OnOtherLine(line, fault);
}

void NmeaReceiver::Heard() {
  if (std::exchange(m_heard, false) && m_status.Says != PortStatus::What::Clear) {
    Status({});
  }
}

void NmeaReceiver::Status(const PortStatus& status) {
  m_status = status;
  m_observer.OnInputStatus(status);
}

}  // namespace veerwatch
