// A port on a TCP connection that it makes itself, and makes again when it is gone: it is open as long as its
// owner wants, connected or not.
#pragma once

#include <QTcpSocket>
#include <QTimer>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Endpoint.h"
#include "platform/SocketPortQt.h"

namespace veerwatch {

class TcpClientQt final : public SocketPortQt {
 public:
  /// `endpoint` is one of Endpoint::Kind::TcpClient; `clock` outlives the port.
  TcpClientQt(const Endpoint& endpoint, const Clock& clock);
  ~TcpClientQt() override;

  std::string Trouble() const override;

 private:
  bool OpenEndpoint(std::string& failure) override;
  void CloseEndpoint() override;
  void StoodStill() override;
  void Fetch() override;
  bool Leaving() override { return Connected() && m_socket.bytesToWrite() > 0; }
  std::size_t Write(std::string_view text) override;
  void SendFor(int milliseconds) override;

  bool Connected() const { return m_socket.state() == QAbstractSocket::ConnectedState; }
  void Connect();
  void Gone(const std::string& why);
  void Heard();

  const Endpoint m_endpoint;
  QTcpSocket m_socket;
  QTimer m_retry;
  QTimer m_silence;
  RetryPause m_pause;
  WireLines m_lines;
  std::string m_why;  ///< it is not connected
  bool m_wanted = false;
};

}  // namespace veerwatch
