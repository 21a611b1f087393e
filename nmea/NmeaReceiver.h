// The instrument input: opens and closes its port, turns receive events into lines, routes good ones into the
// record, reports the others, and watches for silence.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "instruments/InstrumentRecord.h"
#include "nmea/Dispatcher.h"
#include "nmea/LineFault.h"
#include "nmea/LineFramer.h"
#include "nmea/PortStatus.h"
#include "platform/Clock.h"
#include "platform/ReopenPause.h"
#include "platform/SerialPort.h"
#include "platform/Timer.h"
#include "settings/Settings.h"

namespace veerwatch {

class NmeaReceiver final : public SerialPort::Events {
 public:
  /// Who hears of what comes in.
  class Observer {
   public:
    virtual ~Observer() = default;
    /// The input starts anew: the record has no valid value, and the list of received sentences begins anew.
    virtual void OnInputStarts() = 0;
    /// The record has been given a line whose frame is good, which came at `now`.
    virtual void OnSentence(std::string_view line, const Dispatcher::Outcome& outcome, const Moment& now) = 0;
    /// A line that is no sentence: LineFault::Sentence or LineFault::Checksum, or None for one of another
    /// kind that is only listed.
    virtual void OnOtherLine(std::string_view line, LineFault fault) = 0;
    virtual void OnInputStatus(const PortStatus& status) = 0;
    virtual void OnInputState(InputState state) = 0;
    /// Why the port is not open, or what an open one has to complain of, as the system says; "" for nothing.
    virtual void OnInputFailure(const std::string& reason) = 0;
    /// What the chosen sources do not bring while others would, a line each; none when all is well.
    virtual void OnSourceAdvice(const std::vector<std::string>& lines) = 0;
  };

  NmeaReceiver(const Settings& settings, SerialPort& port, Timer& tmrNmea, const Clock& clock,
               InstrumentRecord& record, Observer& observer);

  /// Starts the input, with the present port number and with the present m_bSimulate. Always true; a port
  /// that cannot be opened is told as "Input Port n Not Open" and tried again at every fourth tick.
  bool NmeaStart();
  void NmeaStop();

  /// One tick of the started timer while not simulating: line errors, the watchdog, the port that is not
  /// open.
  void Tick();

  /// True while a receive event is being handled. Deliberate: an event that arrives meanwhile is dropped, its
  /// characters are read with the next one, but the watchdog counts it.
  bool Receiving() const { return m_receiving; }

  /// True between NmeaStart and NmeaStop.
  bool Started() const { return m_started; }

  /// What has come, and what is missing.
  const SourceWatch& Sources() const { return m_dispatcher.Sources(); }

  /// Which of several endpoints of the port the present line came from, from 1 on; 0 where there is only one.
  int LineFrom() const { return m_port.InputFrom(); }

  /// Characters of the line that is not whole yet.
  std::string_view LineBuffer() const { return m_framer.LineBuffer(); }

  void OnComm(int commEvent) override;
  void OnPortLost() override;
  void OnPortStandstill() override { m_framer.Clear(); }

 private:
  void Receive();
  void SentenceLine(std::string_view line);
  void BadLine(std::string_view line, LineFault fault);
  void Status(const PortStatus& status);
  /// Something has come: a status of before is over.
  void Heard();
  bool NotOpenShown() const { return m_status.Says == PortStatus::What::NotOpen; }
  void OpenPort();
  void Failure(std::string reason);
  void Advise(std::vector<std::string> lines);

  const Settings& m_settings;
  SerialPort& m_port;
  Timer& m_timer;
  const Clock& m_clock;
  InstrumentRecord& m_record;
  Observer& m_observer;
  Dispatcher m_dispatcher;

  LineFramer m_framer;
  bool m_started = false;
  bool m_receiving = false;
  ReopenPause m_reopenPause;
  int m_noDataCount = 0;
  bool m_noDataShown = false;
  bool m_heard = false;  ///< characters came, and the status of before still stands
  Moment m_arrived;      ///< the latest characters
  PortStatus m_status;
  std::string m_failure;
  std::vector<std::string> m_advice;
  std::string m_input;
  SerialPort::Connection m_connection;
};

}  // namespace veerwatch
