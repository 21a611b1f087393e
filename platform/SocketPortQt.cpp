#include "platform/SocketPortQt.h"

#ifdef Q_OS_LINUX
#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

#include "platform/Language.h"
#endif

namespace veerwatch {

SocketPortQt::SocketPortQt(const Clock& clock) : EndpointPort(clock) {
  m_wakeTimer.setSingleShot(true);
  m_wakeTimer.setTimerType(Qt::PreciseTimer);
  QObject::connect(&m_wakeTimer, &QTimer::timeout, &m_context, [this] { Wake(); });
}

void SocketPortQt::TakeMessage(std::string_view bytes) {
  Take(bytes);
  if (!bytes.empty() && bytes.back() != '\n' && bytes.back() != '\r') {
    Take("\r\n");
  }
}

void SocketPortQt::Forget() {
  m_received.clear();
  m_ends.Restart();
  m_wakeTimer.stop();
}

void SocketPortQt::Read(std::string& text, std::size_t most) {
  Fetch();
  const std::size_t read = std::min(most, m_received.size());
  text.append(m_received, 0, read);
  m_received.erase(0, read);
}

QHostAddress OwnAddress(const Endpoint& endpoint, std::string& failure) {
  if (endpoint.Host.empty()) {
    return QHostAddress(QHostAddress::LocalHost);
  }
  const QHostAddress address(QString::fromStdString(endpoint.Host));
  if (address.isNull()) {
    failure = Filled(Tr("%1: \"%2\" is no address of this computer"), {endpoint.Text, endpoint.Host});
  }
  return address;
}

bool TakesMore(const QTcpSocket& connected) {
  if (connected.bytesToWrite() > 0) {
    return false;
  }
#ifdef Q_OS_LINUX
  // The system itself would keep megabytes.
  constexpr int kMostOnItsWay = 512;  // [bytes]
  int onItsWay = 0;
  return ::ioctl(static_cast<int>(connected.socketDescriptor()), SIOCOUTQ, &onItsWay) != 0 ||
         onItsWay <= kMostOnItsWay;
#else
  return true;
#endif
}

void KeepLink(QTcpSocket& connected) {
  connected.setSocketOption(QAbstractSocket::LowDelayOption, 1);
  connected.setSocketOption(QAbstractSocket::KeepAliveOption, 1);
#ifdef Q_OS_LINUX
  // The system's own times are hours while nothing is sent, and a quarter of an hour while something is.
  constexpr int kSecond = 1000;     // [ms]
  constexpr int kIdle = 10;         // [s]
  constexpr int kInterval = 5;      // [s]
  constexpr int kDead = kLinkDead;  // [ms]
  constexpr int kProbes = (kDead / kSecond - kIdle) / kInterval;
  const auto set = [&connected](int option, const int& value) {
    ::setsockopt(static_cast<int>(connected.socketDescriptor()), IPPROTO_TCP, option, &value, sizeof value);
  };
  set(TCP_KEEPIDLE, kIdle);
  set(TCP_KEEPINTVL, kInterval);
  set(TCP_KEEPCNT, kProbes);
  set(TCP_USER_TIMEOUT, kDead);
#endif
}

std::string Uncapitalised(std::string text) {
  if (text.size() > 1 && text[0] >= 'A' && text[0] <= 'Z' && text[1] >= 'a' && text[1] <= 'z') {
    text[0] = static_cast<char>(text[0] - 'A' + 'a');
  }
  return text;
}

}  // namespace veerwatch
