#include "platform/TcpClientQt.h"

#include <QNetworkProxy>
#include <array>

#include "platform/Language.h"

namespace veerwatch {

TcpClientQt::TcpClientQt(const Endpoint& endpoint, const Clock& clock)
    : SocketPortQt(clock), m_endpoint(endpoint) {
  m_socket.setProxy(QNetworkProxy::NoProxy);
  m_socket.setReadBufferSize(static_cast<qint64>(kLargestUnread));
  m_retry.setSingleShot(true);
  m_retry.setTimerType(Qt::PreciseTimer);
  m_silence.setSingleShot(true);
  QObject::connect(&m_socket, &QTcpSocket::readyRead, &Context(), [this] {
    Heard();
    Arrived();
  });
  QObject::connect(&m_socket, &QTcpSocket::bytesWritten, &Context(), [this] { Left(); });
  QObject::connect(&m_socket, &QTcpSocket::connected, &Context(), [this] {
    m_why.clear();
    KeepLink(m_socket);
    Heard();
    Left();
  });
  QObject::connect(&m_socket, &QTcpSocket::errorOccurred, &Context(),
                   [this] { Gone(Uncapitalised(m_socket.errorString().toStdString())); });
  QObject::connect(&m_retry, &QTimer::timeout, &Context(), [this] { Connect(); });
  QObject::connect(&m_silence, &QTimer::timeout, &Context(),
                   [this] { Gone(TrMark("connected, but silent")); });
}

TcpClientQt::~TcpClientQt() { PortOpen(false); }

bool TcpClientQt::OpenEndpoint(std::string& /*failure*/) {
  m_wanted = true;
  m_pause.Restart();
  Connect();
  return true;
}

void TcpClientQt::CloseEndpoint() {
  m_wanted = false;
  m_retry.stop();
  m_silence.stop();
  m_socket.abort();
  m_why.clear();
  m_lines.Clear();
  Forget();
}

void TcpClientQt::StoodStill() {
  // The other side may hold much more that is old.
  m_retry.stop();
  m_socket.abort();
  m_lines.Clear();
  Forget();
  Connect();
}

void TcpClientQt::Connect() {
  m_why = TrMark("connecting");
  m_socket.connectToHost(QString::fromStdString(m_endpoint.Host), m_endpoint.Port);
  // Who does not answer at all is given up as one that is silent.
  constexpr int kConnects = 10000;  // [ms]
  m_silence.start(kConnects);
}

void TcpClientQt::Heard() {
  m_silence.stop();
  if (m_endpoint.Silence > 0.0) {
    constexpr double kMilliseconds = 1000.0;
    m_silence.start(static_cast<int>(m_endpoint.Silence * kMilliseconds));
  }
  if (m_socket.bytesAvailable() > 0) {
    m_pause.Restart();
  }
}

void TcpClientQt::Gone(const std::string& why) {
  if (!m_wanted || m_retry.isActive()) {
    return;
  }
  m_why = m_why == "connecting" && why == "connected, but silent" ? TrMark("no answer") : why;
  m_silence.stop();
  m_retry.start(m_pause.Next());
  // What has arrived whole is still worth reading.
  Fetch();
  m_lines.Clear();
  m_socket.abort();
}

std::string TcpClientQt::Trouble() const {
  if (m_why.empty()) {
    return {};
  }
  constexpr int kSecond = 1000;  // [ms]
  const int left = m_retry.remainingTime();
  return m_endpoint.Text + ": " + Tr(m_why) +
         (left >= 0 ? Filled(Tr(", next try in %1 s"), {std::to_string((left + kSecond - 1) / kSecond)})
                    : "");
}

void TcpClientQt::Fetch() {
  std::array<char, 4096> part{};
  while (Room() > 0) {
    const auto most = static_cast<qint64>(std::min(part.size(), Room()));
    const qint64 read = m_socket.read(part.data(), most);
    if (read <= 0) {
      return;
    }
    TakeLines({part.data(), static_cast<std::size_t>(read)}, m_lines);
  }
}

std::size_t TcpClientQt::Write(std::string_view text) {
  // One bundle at a time, so that nothing old waits behind another.
  if (!Connected() || !TakesMore(m_socket)) {
    return 0;
  }
  const qint64 taken = m_socket.write(text.data(), static_cast<qint64>(text.size()));
  m_socket.flush();
  return static_cast<std::size_t>(taken > 0 ? taken : 0);
}

void TcpClientQt::SendFor(int milliseconds) { m_socket.waitForBytesWritten(milliseconds); }

}  // namespace veerwatch
