// The serial port on a real device. It needs a running event loop, from which it raises its events.
//
// Opening takes the device that its name leads to at that moment, through any links, and takes only character
// devices; one that is missing, busy, locked or no serial device at all just does not open. A
// device that goes away closes the port. Everything else is as for every EndpointPort; on a stuck line the
// rest of a sentence is dropped at the close, also in the driver.
#pragma once

#include <QSerialPort>
#include <QTimer>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/BaudSearch.h"
#include "platform/Endpoint.h"
#include "platform/EndpointPort.h"
#include "platform/LineErrors.h"

namespace veerwatch {

class SerialPortQt final : public EndpointPort {
 public:
  /// Makes the counters of line errors for an open device; null for none.
  using CountersMaker = std::function<std::unique_ptr<LineErrorCounters>(const QSerialPort& device)>;

  /// The counters of the device's driver, where the system has them.
  static std::unique_ptr<LineErrorCounters> DriverCounters(const QSerialPort& device);

  /// `device` is one of Endpoint::Kind::Device; `clock` outlives the port. `good` judges lines where the rate
  /// is to be found out; nothing is passed on, either way, until it is.
  SerialPortQt(const Endpoint& device, const Clock& clock, BaudSearch::Good good,
               CountersMaker makeCounters = DriverCounters);
  ~SerialPortQt() override;

  void PollLineErrors() override;
  /// The rate that is searched, or was found.
  std::string Trouble() const override;
  bool Noise() const override { return Searching() && m_search.Noise(); }
  /// What the endpoint says, or the rate that is searched or was found.
  std::optional<int> BaudRate() const override;

 private:
  bool OpenEndpoint(std::string& failure) override;
  void CloseEndpoint() override;
  void Read(std::string& text, std::size_t most) override;
  bool Leaving() override;
  std::size_t Write(std::string_view text) override;
  void SendFor(int milliseconds) override;
  void WakeAfter(int milliseconds) override;

  std::string WhyNotOpen() const;
  bool Searching() const { return m_device.Baud == 0 && !m_search.Found(); }
  void TryNextRate();
  void ErrorOccurred(QSerialPort::SerialPortError error);

  const Endpoint m_device;
  const Clock& m_clock;
  CountersMaker m_makeCounters;
  QSerialPort m_port;
  QTimer m_wakeTimer;
  BaudSearch m_search;
  QTimer m_searchTimer;
  bool m_handed = false;  ///< to the driver, and the event loop has not come round since
  std::unique_ptr<LineErrorCounters> m_counters;
  LineErrorWatch m_lineErrors;
};

}  // namespace veerwatch
