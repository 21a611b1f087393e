#include "platform/TcpServerQt.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <array>

namespace veerwatch {

TcpServerQt::TcpServerQt(const Endpoint& endpoint, const Clock& clock)
    : SocketPortQt(clock), m_endpoint(endpoint) {
  m_server.setProxy(QNetworkProxy::NoProxy);
  QObject::connect(&m_server, &QTcpServer::newConnection, &Context(), [this] { Accept(); });
}

TcpServerQt::~TcpServerQt() { PortOpen(false); }

bool TcpServerQt::OpenEndpoint(std::string& failure) {
  const QHostAddress address = OwnAddress(m_endpoint, failure);
  if (address.isNull()) {
    return false;
  }
  if (!m_server.listen(address, m_endpoint.Port)) {
    failure = m_endpoint.Text + ": " + Uncapitalised(m_server.errorString().toStdString());
    return false;
  }
  return true;
}

void TcpServerQt::CloseEndpoint() {
  m_server.close();
  for (Client& client : m_clients) {
    Drop(client);
  }
  RemoveGone();
  Forget();
}

void TcpServerQt::StoodStill() {
  for (Client& client : m_clients) {
    client.Lines.Clear();
  }
}

void TcpServerQt::Accept() {
  RemoveGone();
  while (QTcpSocket* socket = m_server.nextPendingConnection()) {
    // It goes with its client here, and not with the server.
    socket->setParent(nullptr);
    if (m_clients.size() >= kMostClients) {
      socket->abort();
      socket->deleteLater();
      continue;
    }
    Client& client = m_clients.emplace_back();
    client.Socket.reset(socket);
    socket->setReadBufferSize(static_cast<qint64>(kLargestUnread));
    KeepLink(*socket);
    QObject::connect(socket, &QTcpSocket::readyRead, &Context(), [this] { Arrived(); });
    QObject::connect(socket, &QTcpSocket::disconnected, &Context(), [this, &client] {
      // What came before it went is read with the next look.
      client.Gone = true;
      Arrived();
    });
    Left();
  }
}

void TcpServerQt::Drop(Client& client) {
  client.Gone = true;
  client.Socket->disconnect(&Context());
  client.Socket->abort();
}

void TcpServerQt::RemoveGone() {
  m_clients.remove_if([](const Client& client) { return client.Gone; });
}

void TcpServerQt::Fetch() {
  for (Client& client : m_clients) {
    Fetch(client);
  }
  m_clients.remove_if(
      [](const Client& client) { return client.Gone && client.Socket->bytesAvailable() == 0; });
}

void TcpServerQt::Fetch(Client& client) {
  std::array<char, 4096> part{};
  while (Room() > 0) {
    const auto most = static_cast<qint64>(std::min(part.size(), Room()));
    const qint64 read = client.Socket->read(part.data(), most);
    if (read <= 0) {
      return;
    }
    TakeLines({part.data(), static_cast<std::size_t>(read)}, client.Lines);
  }
}

std::size_t TcpServerQt::Write(std::string_view text) {
  bool heard = false;
  for (Client& client : m_clients) {
    if (client.Gone) {
      continue;
    }
    // Nothing old waits in front of something new: who has no room misses it.
    if (!TakesMore(*client.Socket)) {
      client.Missed += text.size();
      if (client.Missed > kMostMissed) {
        Drop(client);
      }
      continue;
    }
    client.Missed = 0;
    client.Socket->write(text.data(), static_cast<qint64>(text.size()));
    client.Socket->flush();
    heard = true;
  }
  RemoveGone();
  return heard ? text.size() : 0;
}

void TcpServerQt::SendFor(int milliseconds) {
  for (Client& client : m_clients) {
    if (client.Socket->bytesToWrite() > 0) {
      client.Socket->waitForBytesWritten(milliseconds);
      return;
    }
  }
}

}  // namespace veerwatch
