#include "platform/UdpPortQt.h"

#include <QNetworkInterface>
#include <QNetworkProxy>
#include <algorithm>

#include "platform/Language.h"

namespace veerwatch {

UdpPortQt::UdpPortQt(const Endpoint& endpoint, const Clock& clock)
    : SocketPortQt(clock), m_endpoint(endpoint) {
  m_socket.setProxy(QNetworkProxy::NoProxy);
  m_retry.setSingleShot(true);
  QObject::connect(&m_socket, &QUdpSocket::readyRead, &Context(), [this] { Arrived(); });
  QObject::connect(&m_retry, &QTimer::timeout, &Context(), [this] { LookUp(); });
}

UdpPortQt::~UdpPortQt() { PortOpen(false); }

bool UdpPortQt::OpenEndpoint(std::string& failure) {
  m_trouble.clear();
  if (!Sends()) {
    return Listen(failure);
  }
  const QHostAddress address(QString::fromStdString(m_endpoint.Host));
  if (!address.isNull() && !Allowed(address)) {
    failure = Filled(Tr("%1: a broadcast address needs ?broadcast"), {m_endpoint.Text});
    return false;
  }
  m_to = address;
  m_pause.Restart();
  if (m_to.isNull()) {
    LookUp();
  }
  return true;
}

bool UdpPortQt::Listen(std::string& failure) {
  const QHostAddress address = OwnAddress(m_endpoint, failure);
  if (address.isNull()) {
    return false;
  }
  const bool group = address.isMulticast();
  const bool six = address.protocol() == QAbstractSocket::IPv6Protocol;
  const QHostAddress any(six ? QHostAddress::AnyIPv6 : QHostAddress::AnyIPv4);
  if (!m_socket.bind(
          group ? any : address, m_endpoint.Port,
          group ? QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint : QUdpSocket::DontShareAddress) ||
      (group && !m_socket.joinMulticastGroup(address))) {
    failure = m_endpoint.Text + ": " + Uncapitalised(m_socket.errorString().toStdString());
    m_socket.close();
    return false;
  }
  return true;
}

void UdpPortQt::CloseEndpoint() {
  m_retry.stop();
  if (m_lookup >= 0) {
    QHostInfo::abortHostLookup(m_lookup);
    m_lookup = -1;
  }
  m_socket.close();
  m_to.clear();
  m_trouble.clear();
  Forget();
}

void UdpPortQt::LookUp() {
  m_trouble = Tr("looking the host up");
  m_lookup = QHostInfo::lookupHost(QString::fromStdString(m_endpoint.Host), &Context(),
                                   [this](const QHostInfo& host) { Found(host); });
}

void UdpPortQt::Found(const QHostInfo& host) {
  m_lookup = -1;
  if (!PortOpen()) {
    return;
  }
  const QList<QHostAddress> addresses = host.addresses();
  if (addresses.isEmpty() || !Allowed(addresses.front())) {
    m_trouble = addresses.isEmpty() ? Uncapitalised(host.errorString().toStdString())
                                    : Tr("a broadcast address needs ?broadcast");
    m_retry.start(m_pause.Next());
    return;
  }
  m_trouble.clear();
  m_to = addresses.front();
  Left();
}

bool UdpPortQt::Allowed(const QHostAddress& address) const {
  if (m_endpoint.Broadcast) {
    return true;
  }
  if (address == QHostAddress(QHostAddress::Broadcast)) {
    return false;
  }
  const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
  for (const QNetworkInterface& interface : interfaces) {
    const QList<QNetworkAddressEntry> entries = interface.addressEntries();
    for (const QNetworkAddressEntry& entry : entries) {
      if (!entry.broadcast().isNull() && entry.broadcast() == address) {
        return false;
      }
    }
  }
  return true;
}

void UdpPortQt::Fetch() {
  // One that is larger than the room stays until there is more.
  while (m_socket.hasPendingDatagrams() &&
         m_socket.pendingDatagramSize() <= static_cast<qint64>(std::min(Room(), m_datagram.size()))) {
    const qint64 read = m_socket.readDatagram(m_datagram.data(), static_cast<qint64>(m_datagram.size()));
    TakeMessage({m_datagram.data(), static_cast<std::size_t>(std::max<qint64>(read, 0))});
  }
}

std::size_t UdpPortQt::Write(std::string_view text) {
  if (!Sends() || m_to.isNull()) {
    return 0;
  }
  // A datagram that is refused is gone, as one that is lost on its way.
  for (std::string_view rest = text; !rest.empty();) {
    const std::size_t end = std::min(rest.find('\n'), rest.size() - 1) + 1;
    const qint64 sent = m_socket.writeDatagram(rest.data(), static_cast<qint64>(end), m_to, m_endpoint.Port);
    m_trouble = sent < 0 ? Uncapitalised(m_socket.errorString().toStdString()) : std::string();
    rest.remove_prefix(end);
  }
  return m_trouble.empty() ? text.size() : 0;
}

}  // namespace veerwatch
