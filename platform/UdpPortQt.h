// A port on datagrams: one that listens, or one that sends. What is sent is a datagram a sentence.
#pragma once

#include <QHostAddress>
#include <QHostInfo>
#include <QTimer>
#include <QUdpSocket>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Endpoint.h"
#include "platform/SocketPortQt.h"

namespace veerwatch {

class UdpPortQt final : public SocketPortQt {
 public:
  /// `endpoint` is one of Endpoint::Kind::UdpInput or UdpOutput; `clock` outlives the port.
  UdpPortQt(const Endpoint& endpoint, const Clock& clock);
  ~UdpPortQt() override;

  std::string Trouble() const override { return m_trouble.empty() ? "" : m_endpoint.Text + ": " + m_trouble; }

 private:
  bool Sends() const { return m_endpoint.What == Endpoint::Kind::UdpOutput; }
  bool OpenEndpoint(std::string& failure) override;
  void CloseEndpoint() override;
  void Fetch() override;
  bool Leaving() override { return false; }
  std::size_t Write(std::string_view text) override;
  void SendFor(int /*milliseconds*/) override {}

  bool Listen(std::string& failure);
  void LookUp();
  void Found(const QHostInfo& host);
  bool Allowed(const QHostAddress& address) const;

  const Endpoint m_endpoint;
  QUdpSocket m_socket;
  QTimer m_retry;
  RetryPause m_pause;
  int m_lookup = -1;
  QHostAddress m_to;  ///< null while it is not known
  std::string m_trouble;
  std::vector<char> m_datagram = std::vector<char>(kLargestUnread);  ///< room for one
};

}  // namespace veerwatch
