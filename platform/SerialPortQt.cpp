#include "platform/SerialPortQt.h"

#include <QFile>
#include <QObject>
#include <QThread>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/LineErrorCountersLinux.h"
#include "platform/PortFailure.h"
#include "platform/PortNames.h"
#include "platform/SystemClock.h"

#ifdef Q_OS_UNIX
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#endif

namespace veerwatch {

namespace {

constexpr qint64 kLargestUnread = qint64{64} * 1024;  // [bytes]
constexpr int kBeat = 500;                            // [ms]
constexpr int kStandstill = 2000;                     // [ms] between two beats
constexpr int kStaleTime = 300;                       // [ms], for the driver to hand over all that it holds
constexpr int kOfferAgain = 100;                      // [ms]
constexpr int kLookAgain = 20;                        // [ms], about ten characters at 4800 baud
constexpr int kFreshTime = 2000;                      // [ms], many times what a sentence takes
constexpr int kLeaveTime = 250;                       // [ms], twice what a sentence takes at 4800 baud

/// The device to open, free of links, so that two names of one device meet at the same lock; "" for anything
/// that is no character device.
QString DeviceFile(const std::string& device) {
#ifdef Q_OS_UNIX
  std::error_code error;
  const std::filesystem::path file = std::filesystem::canonical(DevicePath(device), error);
  if (error || !std::filesystem::is_character_file(file, error) || error) {
    return {};
  }
  return QFile::decodeName(file.c_str());
#else
  return QString::fromStdString(device);
#endif
}

/// True while the driver holds characters that have not left, where it can tell.
bool DriverBusy(const QSerialPort& port) {
#ifdef Q_OS_UNIX
  int waiting = 0;
  return ::ioctl(port.handle(), TIOCOUTQ, &waiting) == 0 && waiting > 0;
#else
  static_cast<void>(port);
  return false;
#endif
}

/// True when the driver takes characters at this moment, without waiting.
bool DriverTakes(const QSerialPort& port) {
#ifdef Q_OS_UNIX
  pollfd device{port.handle(), POLLOUT, 0};
  return ::poll(&device, 1, 0) == 1 && (device.revents & (POLLOUT | POLLERR | POLLHUP)) == POLLOUT;
#else
  static_cast<void>(port);
  return true;
#endif
}

}  // namespace

std::unique_ptr<LineErrorCounters> SerialPortQt::DriverCounters(const QSerialPort& device) {
#ifdef Q_OS_UNIX
  return std::make_unique<LineErrorCountersLinux>(device.handle());
#else
  static_cast<void>(device);
  return nullptr;
#endif
}

SerialPortQt::SerialPortQt(const Profile& profile, CountersMaker makeCounters)
    : m_profile(profile), m_makeCounters(std::move(makeCounters)), m_slot(*this) {
  m_port.setBaudRate(QSerialPort::Baud4800);
  m_port.setDataBits(QSerialPort::Data8);
  m_port.setParity(QSerialPort::NoParity);
  m_port.setStopBits(QSerialPort::OneStop);
  m_port.setFlowControl(QSerialPort::NoFlowControl);
  m_port.setReadBufferSize(kLargestUnread);
  for (QTimer* timer : {&m_offerTimer, &m_loseTimer, &m_pumpTimer}) {
    timer->setSingleShot(true);
  }
  // Events wait for the loop: Qt swallows readyRead inside readyRead, and closing inside errorOccurred takes
  // the notifier away under its own feet.
  QObject::connect(&m_port, &QSerialPort::readyRead, &m_port, [this] { m_offerTimer.start(0); });
  // Qt forgets what is handed to the driver inside bytesWritten.
  QObject::connect(&m_port, &QSerialPort::bytesWritten, &m_port, [this] {
    m_handed = false;
    m_pumpTimer.start(0);
  });
  QObject::connect(&m_port, &QSerialPort::errorOccurred, &m_port,
                   [this](QSerialPort::SerialPortError error) { ErrorOccurred(error); });
  m_beatTimer.setInterval(kBeat);
  QObject::connect(&m_beatTimer, &QTimer::timeout, &m_port, [this] { Beat(); });
  QObject::connect(&m_offerTimer, &QTimer::timeout, &m_port, [this] { Offer(); });
  QObject::connect(&m_loseTimer, &QTimer::timeout, &m_port, [this] { Lose(); });
  QObject::connect(&m_pumpTimer, &QTimer::timeout, &m_port, [this] { Pump(); });
}

SerialPortQt::~SerialPortQt() { Close(kLeaveTime); }

void SerialPortQt::CommPort(int number) {
  if (!m_open) {
    m_number = number;
  }
}

bool SerialPortQt::PortOpen(bool open) {
  if (open && !m_open) {
    return Open();
  }
  if (!open) {
    Close(kLeaveTime);
  }
  return true;
}

bool SerialPortQt::Open() {
  const std::string device = PortDevice(m_profile, m_number);
  const QString file = DeviceFile(device);
  m_port.clearError();
  m_port.setPortName(file);
  if (file.isEmpty() || !m_port.open(QIODevice::ReadWrite)) {
    m_failure = WhyNotOpen(device);
    return false;
  }
  m_failure.clear();
  m_open = true;
  m_counters = m_makeCounters(m_port);
  m_lineErrors.Restart();
  PollLineErrors();
  m_beat = SystemClock().Now().Steady;
  m_beatTimer.start();
  return true;
}

std::string SerialPortQt::WhyNotOpen(const std::string& device) const {
  // Locked and busy devices come as no permission, too.
  const bool denied = m_port.error() == QSerialPort::PermissionError;
  std::string text = PortFailure(device, denied ? "" : m_port.errorString().toStdString());
  if (m_profile.Text("Ports", std::to_string(m_number)).empty()) {
    text += "; [Ports] in the profile names the device of port " + std::to_string(m_number);
  }
  return text;
}

void SerialPortQt::Close(int leaveTime) {
  if (!m_open) {
    return;
  }
  m_open = false;
  m_slot.Clear();
  for (QDeadlineTimer patience(leaveTime); Leaving() && !patience.hasExpired();) {
    // Qt sends its own characters only while it is waited for; nothing tells when the driver has sent its
    // own.
    if (m_port.bytesToWrite() == 0 || !m_port.waitForBytesWritten(kLookAgain)) {
      QThread::msleep(kLookAgain / 4);
    }
  }
  if (Leaving()) {
    m_port.clear(QSerialPort::Output);
  }
  m_port.clear(QSerialPort::Input);
  m_port.close();
  m_handed = false;
  m_counters.reset();
  m_beatTimer.stop();
  m_stale = QDeadlineTimer();
  m_offerTimer.stop();
  m_loseTimer.stop();
  m_pumpTimer.stop();
}

void SerialPortQt::Input(std::string& text) {
  const qint64 waiting = m_open ? m_port.bytesAvailable() : 0;
  text.resize(static_cast<std::size_t>(waiting));
  if (waiting > 0) {
    const qint64 read = m_port.read(text.data(), waiting);
    text.resize(static_cast<std::size_t>(read > 0 ? read : 0));
  }
}

void SerialPortQt::Output(std::string_view sentence) {
  if (m_open) {
    m_fresh.setRemainingTime(kFreshTime);
    m_slot.Put(sentence);
    Pump();
  }
}

bool SerialPortQt::Leaving() const { return m_port.bytesToWrite() > 0 || DriverBusy(m_port); }

bool SerialPortQt::Busy() { return m_handed || Leaving(); }

void SerialPortQt::Write(std::string_view sentence) {
  m_port.write(sentence.data(), static_cast<qint64>(sentence.size()));
  // Qt would keep it until the event loop comes round, behind everything that follows from the same wind. A
  // driver that has no room is asked by the loop; asked here, it would count as an error of the port.
  m_handed = DriverTakes(m_port) && m_port.flush();
}

void SerialPortQt::Pump() {
  if (m_fresh.hasExpired()) {
    m_slot.Clear();
  }
  m_slot.Pump();
  // While Qt still holds characters bytesWritten calls again; nothing tells when the driver has sent its own.
  if (m_slot.Waiting() && m_port.bytesToWrite() == 0) {
    m_pumpTimer.start(kLookAgain);
  }
}

void SerialPortQt::PollLineErrors() {
  if (!m_counters) {
    return;
  }
  for (const int commEvent : m_lineErrors.Poll(*m_counters)) {
    if (m_open) {
      Raise(commEvent);
    }
  }
}

void SerialPortQt::Beat() {
  const std::int64_t now = SystemClock().Now().Steady;
  if (now - std::exchange(m_beat, now) > kStandstill) {
    m_stale.setRemainingTime(kStaleTime);
    if (m_events != nullptr) {
      m_events->OnPortOverslept();
    }
  }
}

void SerialPortQt::Offer() {
  if (!m_open || m_port.bytesAvailable() == 0) {
    return;
  }
  Beat();
  if (!m_stale.hasExpired()) {
    m_port.readAll();
    return;
  }
  ++m_offering;
  Raise(CommEvent::kReceive);
  --m_offering;
  if (m_offering > 0 || !m_open) {
    return;
  }
  PollLineErrors();
  if (m_open && m_port.bytesAvailable() > 0 && !m_offerTimer.isActive()) {
    m_offerTimer.start(kOfferAgain);
  }
}

void SerialPortQt::ErrorOccurred(QSerialPort::SerialPortError error) {
  switch (error) {
    case QSerialPort::NoError:
    case QSerialPort::TimeoutError:
    case QSerialPort::UnsupportedOperationError:  // pseudo terminals have no modem lines
      return;
    default:
      if (m_open) {
        m_loseTimer.start(0);
      }
  }
}

void SerialPortQt::Lose() {
  Offer();
  if (!m_open) {
    return;
  }
  Close(0);
  if (m_events != nullptr) {
    m_events->OnPortLost();
  }
}

void SerialPortQt::Raise(int commEvent) {
  if (m_events != nullptr) {
    m_events->OnComm(commEvent);
  }
}

}  // namespace veerwatch
