// The instrument input: opens and closes its port, turns receive events into lines, routes good ones into the
// record, reports the others, and watches for silence.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "instruments/FollowUp.h"
#include "instruments/InstrumentRecord.h"
#include "nmea/Dispatcher.h"
#include "nmea/LineFramer.h"
#include "platform/Clock.h"
#include "platform/ReopenPause.h"
#include "platform/SerialPort.h"
#include "platform/Timer.h"
#include "settings/Settings.h"

namespace veerwatch {

class NmeaReceiver final : public SerialPort::Events {
 public:
  class Listener {
   public:
    virtual ~Listener() = default;
    /// Text of the input panel of the status bar; "" empties it.
    virtual void OnInputStatus(std::string_view /*text*/) {}
    /// State of the input: "Running", "Simulate", "Stopped", "No Input Data".
    virtual void OnInputState(std::string_view /*text*/) {}
    /// Why the port is not open, as the system says; "" when it is, or while nothing is known.
    virtual void OnInputFailure(std::string_view /*reason*/) {}
    /// What the chosen sources do not bring while others would, a line each; none when all is well.
    virtual void OnSourceAdvice(const std::vector<std::string>& /*lines*/) {}
    /// The input starts: the list of received sentences begins anew.
    virtual void OnNmeaListCleared() {}
    /// Each line, with a mark behind it when its frame is bad; `used` when it updated the record.
    virtual void OnNmeaData(std::string_view /*line*/, bool /*used*/) {}
    /// Each line that failed, behind the kind of failure. Comes before OnNmeaData when a decoder fails,
    /// behind it when the frame is bad.
    virtual void OnNmeaError(std::string_view /*text*/) {}
  };

  /// Everything outlives this; `clock` says when characters arrived.
  NmeaReceiver(const Settings& settings, SerialPort& port, Timer& tmrNmea, const Clock& clock,
               InstrumentRecord& record, FollowUp& followUp, Listener& listener);

  /// Starts the input, with the present port number and with the present m_bSimulate. Always true; a port
  /// that cannot be opened is shown as "Input Port n Not Open" and tried again at every fourth tick.
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

  /// Characters of the line that is not whole yet.
  std::string_view LineBuffer() const { return m_framer.LineBuffer(); }

  void OnComm(int commEvent) override;
  void OnPortLost() override;
  void OnPortOverslept() override { m_framer.Clear(); }

 private:
  void Receive();
  void SentenceLine(std::string_view line);
  void BadLine(std::string_view line, std::string_view fault);
  void Status(std::string_view text);
  void OpenPort();
  void Failure(std::string reason);
  void Advise(std::vector<std::string> lines);

  const Settings& m_settings;
  SerialPort& m_port;
  Timer& m_timer;
  const Clock& m_clock;
  InstrumentRecord& m_record;
  FollowUp& m_followUp;
  Listener& m_listener;
  Dispatcher m_dispatcher;

  LineFramer m_framer;
  bool m_started = false;
  bool m_receiving = false;
  ReopenPause m_reopenPause;
  int m_noDataCount = 0;
  bool m_noDataShown = false;
  bool m_notOpenShown = false;
  Moment m_arrived;  ///< the latest characters
  std::string m_status;
  std::string m_failure;
  std::vector<std::string> m_advice;
  std::string m_input;
  std::string m_text;
  SerialPort::Connection m_connection;
};

}  // namespace veerwatch
