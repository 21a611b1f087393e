#include "platform/SerialPortQt.h"

#include <QFile>
#include <QObject>
#include <QThread>
#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/Language.h"
#include "platform/LineErrorCountersLinux.h"
#include "platform/PortFailure.h"

#ifdef Q_OS_UNIX
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#endif

namespace veerwatch {

namespace {

constexpr int kSearchBeat = 250;      // [ms]
constexpr qint64 kDriverRead = 4096;  // [bytes], as many as a driver hands over at a time

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

SerialPortQt::SerialPortQt(const Endpoint& device, const Clock& clock, BaudSearch::Good good,
                           CountersMaker makeCounters)
    : EndpointPort(clock),
      m_device(device),
      m_clock(clock),
      m_makeCounters(std::move(makeCounters)),
      m_search(std::move(good)) {
  m_port.setDataBits(QSerialPort::Data8);
  m_port.setParity(QSerialPort::NoParity);
  m_port.setStopBits(QSerialPort::OneStop);
  m_port.setFlowControl(QSerialPort::NoFlowControl);
  m_port.setReadBufferSize(kDriverRead);
  m_wakeTimer.setSingleShot(true);
  m_wakeTimer.setTimerType(Qt::PreciseTimer);
  // Each waits for the loop: Qt swallows readyRead inside readyRead, closing inside errorOccurred takes the
  // notifier away under its own feet, and Qt forgets what is handed to the driver inside bytesWritten.
  QObject::connect(&m_port, &QSerialPort::readyRead, &m_port, [this] { Arrived(); });
  QObject::connect(&m_port, &QSerialPort::bytesWritten, &m_port, [this] {
    m_handed = false;
    Left();
  });
  QObject::connect(&m_port, &QSerialPort::errorOccurred, &m_port,
                   [this](QSerialPort::SerialPortError error) { ErrorOccurred(error); });
  QObject::connect(&m_wakeTimer, &QTimer::timeout, &m_port, [this] { Wake(); });
  m_searchTimer.setInterval(kSearchBeat);
  QObject::connect(&m_searchTimer, &QTimer::timeout, &m_port, [this] { TryNextRate(); });
}

SerialPortQt::~SerialPortQt() { PortOpen(false); }

bool SerialPortQt::OpenEndpoint(std::string& failure) {
  const QString file = DeviceFile(m_device.Path);
  m_port.clearError();
  m_port.setPortName(file);
  m_search.Restart(m_clock.Now().Steady);
  m_port.setBaudRate(Searching() ? m_search.Rate() : m_device.Baud);
  if (file.isEmpty() || !m_port.open(QIODevice::ReadWrite)) {
    failure = WhyNotOpen();
    return false;
  }
  m_counters = m_makeCounters(m_port);
  m_lineErrors.Restart();
  PollLineErrors();
  if (Searching()) {
    m_searchTimer.start();
  }
  return true;
}

std::string SerialPortQt::WhyNotOpen() const {
  // Locked and busy devices come as no permission, too.
  const bool denied = m_port.error() == QSerialPort::PermissionError;
  return PortFailure(m_device.Path, denied ? "" : m_port.errorString().toStdString());
}

void SerialPortQt::CloseEndpoint() {
  if (Leaving()) {
    m_port.clear(QSerialPort::Output);
  }
  m_port.clear(QSerialPort::Input);
  m_port.close();
  m_handed = false;
  m_counters.reset();
  m_wakeTimer.stop();
  m_searchTimer.stop();
}

void SerialPortQt::TryNextRate() {
  if (m_search.Tick(m_clock.Now().Steady)) {
    m_port.setBaudRate(m_search.Rate());
    m_port.clear(QSerialPort::Input);
  }
}

std::string SerialPortQt::Trouble() const {
  if (m_device.Baud != 0) {
    return {};
  }
  return Filled(Searching() ? Tr("%1: searching the rate, now %2 baud") : Tr("%1: found %2 baud"),
                {m_device.Path, std::to_string(m_search.Rate())});
}

std::optional<int> SerialPortQt::BaudRate() const {
  return m_device.Baud == 0 ? m_search.Rate() : m_device.Baud;
}

void SerialPortQt::Read(std::string& text, std::size_t most) {
  if (Searching()) {
    std::string arrived = m_port.read(kDriverRead).toStdString();
    m_search.Take(arrived, m_clock.Now().Steady);
    if (Searching()) {
      return;
    }
    m_searchTimer.stop();
    text.append(arrived, 0, most);
    return;
  }
  const std::size_t held = text.size();
  const qint64 waiting = std::min(m_port.bytesAvailable(), static_cast<qint64>(most));
  if (waiting > 0) {
    text.resize(held + static_cast<std::size_t>(waiting));
    const qint64 read = m_port.read(text.data() + held, waiting);
    text.resize(held + static_cast<std::size_t>(read > 0 ? read : 0));
  }
}

bool SerialPortQt::Leaving() { return m_port.bytesToWrite() > 0 || DriverBusy(m_port); }

std::size_t SerialPortQt::Write(std::string_view text) {
  if (m_handed || Searching()) {
    return 0;
  }
  const qint64 taken = m_port.write(text.data(), static_cast<qint64>(text.size()));
  // Qt would keep it until the event loop comes round, after everything that follows from the same wind. A
  // driver that has no room is asked by the loop; asked here, it would count as an error of the port.
  m_handed = DriverTakes(m_port) && m_port.flush();
  return static_cast<std::size_t>(taken > 0 ? taken : 0);
}

void SerialPortQt::SendFor(int milliseconds) {
  // Qt sends its own characters only while it is waited for; nothing tells when the driver has sent its own.
  if (m_port.bytesToWrite() == 0 || !m_port.waitForBytesWritten(milliseconds)) {
    constexpr unsigned long kDriverTime = 5;  // [ms]
    QThread::msleep(kDriverTime);
  }
}

void SerialPortQt::WakeAfter(int milliseconds) { m_wakeTimer.start(milliseconds); }

void SerialPortQt::PollLineErrors() {
  if (!m_counters) {
    return;
  }
  for (const int commEvent : m_lineErrors.Poll(*m_counters)) {
    if (PortOpen()) {
      Raise(commEvent);
    }
  }
}

void SerialPortQt::ErrorOccurred(QSerialPort::SerialPortError error) {
  switch (error) {
    case QSerialPort::NoError:
    case QSerialPort::TimeoutError:
    case QSerialPort::UnsupportedOperationError:  // pseudo terminals have no modem lines
      return;
    default:
      Failed();
  }
}

}  // namespace veerwatch
