// What is alike for the ports on sockets and files: the wake of the event loop, lines with the ends of a
// serial line, and the pauses in which a link that is down is tried again.
#pragma once

#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Endpoint.h"
#include "platform/EndpointPort.h"
#include "platform/WireEnds.h"
#include "platform/WireLines.h"

namespace veerwatch {

/// A connection on which nothing comes back for so long is dead [ms].
inline constexpr int kLinkDead = 20000;

/// The pauses between tries to come back: they double from a second to half a minute.
class RetryPause {
 public:
  void Restart() { m_pause = kFirst; }
  /// The pause before the next try [ms].
  int Next() {
    const int pause = m_pause;
    m_pause = std::min(2 * m_pause, kLongest);
    return pause;
  }

 private:
  static constexpr int kFirst = 1000;
  static constexpr int kLongest = 30000;
  int m_pause = kFirst;
};

class SocketPortQt : public EndpointPort {
 protected:
  /// `clock` outlives the port.
  explicit SocketPortQt(const Clock& clock);

  /// For connections to slots of a port that is going: whatever is tied to it hears nothing any more.
  QObject& Context() { return m_context; }

  // For whoever derives.

  /// So many characters may still be taken from the endpoint; the rest is to stay in it.
  std::size_t Room() const {
    return m_received.size() < kLargestUnread ? kLargestUnread - m_received.size() : 0;
  }
  /// Takes bytes of a file into what Read() returns.
  void Take(std::string_view bytes) { m_ends.Add(bytes, m_received); }
  /// The same, of a message of its own: its last line ends with it.
  void TakeMessage(std::string_view bytes);
  /// The same, of a stream that others share or that may break off: the lines that it makes whole.
  void TakeLines(std::string_view bytes, WireLines& stream) { stream.Add(bytes, m_received); }
  /// Forgets what was taken and not read.
  void Forget();

  /// Takes up to Room() characters from the endpoint by Take().
  virtual void Fetch() = 0;

 private:
  void Read(std::string& text, std::size_t most) final;
  void WakeAfter(int milliseconds) final { m_wakeTimer.start(milliseconds); }

  QObject m_context;
  QTimer m_wakeTimer;
  WireEnds m_ends;
  std::string m_received;
};

/// The address of this computer, or the group, at which `endpoint` listens: without a host the computer
/// itself. A host that is no address gives a null address, and `failure` says so.
QHostAddress OwnAddress(const Endpoint& endpoint, std::string& failure);

/// Whether `connected` takes a bundle at this moment: nothing that the other side has not taken is more than
/// a few sentences, so that a link that comes through again after a while brings nothing old.
bool TakesMore(const QTcpSocket& connected);

/// Lets `connected` send at once, and notice after kLinkDead that the other side has gone without a word.
void KeepLink(QTcpSocket& connected);

/// `text` as the part of a sentence: without a capital in front.
std::string Uncapitalised(std::string text);

}  // namespace veerwatch
