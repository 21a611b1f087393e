#include "platform/SocketPortQt.h"

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
    failure = endpoint.Text + ": \"" + endpoint.Host + "\" is no address of this computer";
  }
  return address;
}

std::string Uncapitalised(std::string text) {
  if (text.size() > 1 && text[0] >= 'A' && text[0] <= 'Z' && text[1] >= 'a' && text[1] <= 'z') {
    text[0] = static_cast<char>(text[0] - 'A' + 'a');
  }
  return text;
}

}  // namespace veerwatch
