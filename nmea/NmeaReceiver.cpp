#include "nmea/NmeaReceiver.h"

#include <utility>

#include "nmea/Sentence.h"

namespace veerwatch {

namespace {

constexpr int kSilentTicks = 4;
constexpr std::string_view kNoInputData = "No Input Data";

}  // namespace

NmeaReceiver::NmeaReceiver(const Settings& settings, SerialPort& port, Timer& tmrNmea, const Clock& clock,
                           InstrumentRecord& record, FollowUp& followUp, Listener& listener)
    : m_settings(settings),
      m_port(port),
      m_timer(tmrNmea),
      m_clock(clock),
      m_record(record),
      m_followUp(followUp),
      m_listener(listener),
      m_dispatcher(settings, record) {
  m_connection = m_port.Connect(*this);
}

bool NmeaReceiver::NmeaStart() {
  m_started = true;
  m_reopenPause.Restart();
  m_noDataCount = 0;
  m_noDataShown = false;
  m_timer.Enabled(true);
  m_listener.OnNmeaListCleared();
  m_record.Restart();
  m_dispatcher.Sources().Restart();
  Advise({});
  if (m_settings.m_bSimulate) {
    Failure("");
    Status("Simulate");
    m_listener.OnInputState("Simulate");
    return true;
  }
  Status("");
  m_listener.OnInputState("Running");
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
  if (m_notOpenShown) {
    Status("");
  }
  m_listener.OnInputState("Stopped");
}

void NmeaReceiver::OpenPort() {
  m_port.CommPort(m_settings.m_iNmeaPort);
  const bool open = m_port.PortOpen(true);
  Failure(open ? "" : m_port.OpenFailure());
  m_framer.Clear();
  if (!open && m_noDataCount < kSilentTicks) {
    Status("Input Port " + std::to_string(m_settings.m_iNmeaPort) + " Not Open");
    m_notOpenShown = true;
  } else if (open && m_notOpenShown) {
    Status("");
  }
}

void NmeaReceiver::Failure(std::string reason) {
  if (reason != m_failure) {
    m_failure = std::move(reason);
    m_listener.OnInputFailure(m_failure);
  }
}

void NmeaReceiver::Advise(std::vector<std::string> lines) {
  if (lines != m_advice) {
    m_advice = std::move(lines);
    m_listener.OnSourceAdvice(m_advice);
  }
}

void NmeaReceiver::Tick() {
  if (!m_started || m_settings.m_bSimulate) {
    return;
  }
  m_dispatcher.Sources().Tick();
  Advise(m_dispatcher.Sources().Advice());
  m_port.PollLineErrors();
  ++m_noDataCount;
  if (m_noDataCount >= kSilentTicks) {
    Status(kNoInputData);
    m_listener.OnInputState(kNoInputData);
    m_noDataShown = true;
  } else if (m_noDataShown) {
    Status("");
    m_listener.OnInputState("Running");
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
    Status(CommEventText(commEvent));
  }
}

void NmeaReceiver::OnPortLost() {
  if (m_started) {
    m_framer.Clear();
    Status("Input Port " + std::to_string(m_port.CommPort()) + " Not Open");
    m_notOpenShown = true;
  }
}

void NmeaReceiver::Receive() {
  m_noDataCount = 0;
  if (m_receiving) {
    return;
  }
  m_receiving = true;
  if (!m_status.empty()) {
    Status("");
  }
  m_port.Input(m_input);
  m_arrived = m_clock.Now();
  m_framer.Feed(
      m_input, [this](std::string_view line) { SentenceLine(line); },
      [this](std::string_view line) { BadLine(line, "Sentence Error"); });
  m_receiving = false;
}

void NmeaReceiver::SentenceLine(std::string_view line) {
  switch (CheckFrame(line)) {
    case Frame::NoDollar:
      BadLine(line, "Sentence Error");
      return;
    case Frame::WrongChecksum:
      BadLine(line, "Checksum Error");
      return;
    case Frame::Good:
      break;
  }
  const Dispatcher::Outcome outcome = m_dispatcher.Dispatch(line, m_settings.m_iNmeaPort, m_arrived);
  if (outcome.Incomplete) {
    m_text.assign("Decode Error - ").append(line);
    m_listener.OnNmeaError(m_text);
  }
  m_listener.OnNmeaData(line, outcome.Used);

  const InstrumentData& data = m_record.Data();
  if (outcome.WindSentence && data.WindApparentValid && data.WindTrueValid) {
    m_followUp.ControlStep(m_arrived);
    if (data.BoatSpeedValid) {
      m_followUp.PolarUpdate();
    }
    if (data.VariationValid) {
      m_record.WindIndicatorUpdate();
    }
  }
}

void NmeaReceiver::BadLine(std::string_view line, std::string_view fault) {
  Status(fault);
  m_text.assign(line).append(" <<").append(fault).append(">>");
  m_listener.OnNmeaData(m_text, false);
  m_text.assign(fault).append(" - ").append(line);
  m_listener.OnNmeaError(m_text);
}

void NmeaReceiver::Status(std::string_view text) {
  m_notOpenShown = false;
  m_status = text;
  m_listener.OnInputStatus(text);
}

}  // namespace veerwatch
