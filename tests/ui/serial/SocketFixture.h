// Ports on sockets of this computer, for their tests.
#pragma once

#include <gtest/gtest.h>

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "app/PortMakerQt.h"
#include "platform/StandstillWatch.h"
#include "tests/support/PortOwner.h"
#include "tests/support/ShiftedClock.h"

namespace veerwatch {

inline bool TurnUntil(const std::function<bool()>& condition) {
  constexpr int kLimit = 30000;  // [ms]
  return QTest::qWaitFor(condition, kLimit);
}

/// The one endpoint of a text.
inline Endpoint EndpointOf(const std::string& text) {
  return std::get<std::vector<Endpoint>>(
             ParseEndpoints(text, [](const std::string& /*path*/) { return false; }))
      .front();
}

/// So long after a standstill what arrives had waited [ms].
inline constexpr int kOldTime = static_cast<int>(StandstillWatch::kOldTime);

/// What the other side sends and hears on a connection.
class Peer {
 public:
  explicit Peer(std::uint16_t port, const char* address = "127.0.0.1") {
    m_socket->connectToHost(QLatin1String(address), port);
  }
  explicit Peer(QTcpSocket* socket) : m_socket(socket) { socket->setParent(nullptr); }

  bool Connected() const { return m_socket->state() == QAbstractSocket::ConnectedState; }
  void Send(const std::string& text) { m_socket->write(text.data(), static_cast<qint64>(text.size())); }
  const std::string& Heard() {
    m_heard += m_socket->readAll().toStdString();
    return m_heard;
  }
  /// It takes no more than so much of what comes [bytes].
  void StopReading() { m_socket->setReadBufferSize(1); }
  void Close() { m_socket->abort(); }

 private:
  std::unique_ptr<QTcpSocket> m_socket = std::make_unique<QTcpSocket>();
  std::string m_heard;
};

}  // namespace veerwatch
