// A port on a TCP socket that others connect to: the lines of every client are input, merged whole, and what
// is sent goes to all of them.
#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Endpoint.h"
#include "platform/SocketPortQt.h"
#include "platform/WireLines.h"

namespace veerwatch {

class TcpServerQt final : public SocketPortQt {
 public:
  static constexpr std::size_t kMostClients = 16;
  /// A client that has let so much go by without reading is dropped [bytes].
  static constexpr std::size_t kMostMissed = std::size_t{64} * 1024;

  /// `endpoint` is one of Endpoint::Kind::TcpServer; `clock` outlives the port.
  TcpServerQt(const Endpoint& endpoint, const Clock& clock);
  ~TcpServerQt() override;

  std::string Trouble() const override { return {}; }
  std::size_t Clients() const { return m_clients.size(); }
  /// The port that it listens on; 0 while it is closed.
  std::uint16_t ListensOn() const { return m_server.serverPort(); }

 private:
  struct Client {
    std::unique_ptr<QTcpSocket> Socket;
    WireLines Lines;
    std::size_t Missed = 0;  ///< bytes that it had no room for, one after the other
    bool Gone = false;
  };

  bool OpenEndpoint(std::string& failure) override;
  void CloseEndpoint() override;
  void StoodStill() override;
  void Fetch() override;
  bool Leaving() override { return false; }
  std::size_t Write(std::string_view text) override;
  void SendFor(int milliseconds) override;

  void Accept();
  void Fetch(Client& client);
  void Drop(Client& client);
  void RemoveGone();

  const Endpoint m_endpoint;
  QTcpServer m_server;
  std::list<Client> m_clients;
};

}  // namespace veerwatch
