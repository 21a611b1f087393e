// The real serial port. It needs a running event loop, from which it raises its events.
//
// Opening takes the device that the profile names at that moment, through any links to it, and takes only
// character devices; one that is missing, busy, locked or no serial device at all just does not open. A
// device that goes away closes the port. Characters that the owner leaves unread are offered again after a
// while. At most 64 KiB wait unread in the port; then the driver's own buffer fills.
#pragma once

#include <QDeadlineTimer>
#include <QSerialPort>
#include <QTimer>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/LineErrors.h"
#include "platform/OutputSlot.h"
#include "platform/Profile.h"
#include "platform/SerialPort.h"

namespace veerwatch {

class SerialPortQt final : public SerialPort, private OutputSlot::Line {
 public:
  /// Makes the counters of line errors for an open device; null for none.
  using CountersMaker = std::function<std::unique_ptr<LineErrorCounters>(const QSerialPort& device)>;

  /// The counters of the device's driver, where the system has them.
  static std::unique_ptr<LineErrorCounters> DriverCounters(const QSerialPort& device);

  /// `profile` outlives the port.
  explicit SerialPortQt(const Profile& profile, CountersMaker makeCounters = DriverCounters);
  ~SerialPortQt() override;

  SerialPortQt(const SerialPortQt&) = delete;
  SerialPortQt& operator=(const SerialPortQt&) = delete;

  void Connect(Events* events) override { m_events = events; }

  void CommPort(int number) override;
  int CommPort() const override { return m_number; }

  bool PortOpen() const override { return m_open; }
  /// Closing drops what is unread and lets the sentence on its way leave whole, for at most a quarter of a
  /// second; on a stuck line the rest of it is dropped, also in the driver.
  bool PortOpen(bool open) override;
  std::string OpenFailure() const override { return m_failure; }

  void Input(std::string& text) override;
  void Output(std::string_view sentence) override;
  std::uint64_t Sent() const override { return m_slot.Written(); }
  void Withdraw() override { m_slot.Clear(); }
  void PollLineErrors() override;

 private:
  bool Busy() override;
  void Write(std::string_view sentence) override;
  /// Qt or the driver holds characters that have not left.
  bool Leaving() const;

  bool Open();
  std::string WhyNotOpen(const std::string& device) const;
  /// Gives the sentence on its way `leaveTime` [ms] to leave.
  void Close(int leaveTime);
  void ErrorOccurred(QSerialPort::SerialPortError error);
  void Offer();
  /// To be called all the time while the port is open. Behind a standstill of the program what waits is old.
  void Beat();
  void Lose();
  void Pump();
  void Raise(int commEvent);

  const Profile& m_profile;
  CountersMaker m_makeCounters;
  Events* m_events = nullptr;
  int m_number = 1;
  std::string m_failure;
  bool m_open = false;
  int m_offering = 0;  ///< receive events that are being handled, one inside the other
  QSerialPort m_port;
  QTimer m_beatTimer;
  std::int64_t m_beat = 0;  ///< the last one [ms], on the clock that goes on during sleep
  QDeadlineTimer m_stale;   ///< what arrives until then had waited through a standstill
  QTimer m_offerTimer;
  QTimer m_loseTimer;
  QTimer m_pumpTimer;
  OutputSlot m_slot;
  bool m_handed = false;   ///< to the driver, and the event loop has not come round since
  QDeadlineTimer m_fresh;  ///< until when a sentence that waits is worth sending
  std::unique_ptr<LineErrorCounters> m_counters;
  LineErrorWatch m_lineErrors;
};

}  // namespace veerwatch
