// The way to the autopilot: opens and closes the pilot port and sends bearings on it, or on the instrument
// port when both have the same number.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "nmea/PortStatus.h"
#include "pilot/PilotSentences.h"
#include "platform/ReopenPause.h"
#include "platform/SerialPort.h"
#include "settings/Settings.h"

namespace veerwatch {

class PilotOutput final : public SerialPort::Events {
 public:
  /// Who hears of the port.
  class Observer {
   public:
    virtual ~Observer() = default;
    virtual void OnOutputStatus(const PortStatus& status) = 0;
    virtual void OnOutputState(OutputState state) = 0;
    /// Why the pilot's own port is not open, as the system says; "" when it is, or is not wanted.
    virtual void OnOutputFailure(const std::string& reason) = 0;
    /// What does not leave though it was chosen, and why; with PilotRefusal::Why::None all does.
    virtual void OnOutputRefused(const PilotRefusal& refusal) = 0;
  };

  PilotOutput(const Settings& settings, SerialPort& nmeaPort, SerialPort& pilotPort, Observer& observer);

  /// Forgets a sentence that waits to be sent, and closes the pilot port where it is not needed or has
  /// another number than it should, so that the device is free for the instruments.
  void PilotRelease();

  /// Opens the pilot port where it is needed. One that cannot be opened is told
  /// and tried again at every fourth tick.
  void PilotStart();
  void PilotStop();

  /// One tick of the input's timer while not simulating: line errors and the port that is not open.
  void Tick();

  /// Builds the sentences of the chosen profile for `values` and writes them as one bundle. A bearing that is
  /// not finite is not sent. Returns them without the last line end, until the next call; also while no port
  /// is open to take them, and "" where none was built.
  std::string_view PilotSend(const PilotValues& values);

  /// The sentences of the latest PilotSend.
  const PilotBundle& Latest() const { return m_sentences.Bundle(); }
  /// What it left out.
  const PilotRefusal& Refused() const { return m_refusal; }

  /// How many bundles have left for the pilot. While simulating, where none leaves, each that is built
  /// counts.
  std::uint64_t Sent() const { return m_nmeaPort.Sent() + m_pilotPort.Sent() + m_simulated; }

  /// The port that carries the sentences is open, or none is needed.
  bool Open() const;

  /// What the line of that port carries; see SerialPort::BaudRate.
  std::optional<int> BaudRate() const { return Carrier().BaudRate(); }

  /// Every event of the pilot port is shown on the output panel. Deliberate: characters that arrive are read
  /// off and dropped, and shown as "Receive Error".
  void OnComm(int commEvent) override;
  void OnPortLost() override;

 private:
  bool OwnPort() const { return m_settings.m_iNmeaPort != m_settings.m_iPilotPort; }
  /// The port that carries the sentences.
  SerialPort& Carrier() const { return OwnPort() ? m_pilotPort : m_nmeaPort; }
  void CloseUnneeded();
  void OpenPort();
  void Failure(std::string reason);
  void Refusal(const PilotRefusal& refusal);
  void Status(const PortStatus& status);

  const Settings& m_settings;
  SerialPort& m_nmeaPort;
  SerialPort& m_pilotPort;
  Observer& m_observer;
  bool m_started = false;
  bool m_notOpenShown = false;
  ReopenPause m_reopenPause;
  std::uint64_t m_simulated = 0;  ///< sentences for the simulated boat
  std::string m_failure;
  PilotSentences m_sentences;
  PilotRefusal m_refusal;
  std::string m_dropped;
  SerialPort::Connection m_connection;
};

}  // namespace veerwatch
