// The port as the core sees it: a numbered port that is opened, read, written and that raises events.
// SerialPortQt is the real one; the command line and the tests have ports in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace veerwatch {

/// Codes with which a port raises its one event.
namespace CommEvent {
inline constexpr int kReceive = 2;      ///< characters are waiting
inline constexpr int kBreak = 1001;     ///< break signal
inline constexpr int kFrame = 1004;     ///< framing error
inline constexpr int kOverrun = 1006;   ///< a character was lost in the port
inline constexpr int kRxOver = 1008;    ///< the receive buffer overflowed
inline constexpr int kRxParity = 1009;  ///< parity error
}  // namespace CommEvent

/// The status text of an event that is not a receive event: "Break Signal Received", "Framing Error",
/// "Port Overrun", "Rx Overflow", "Parity Error", or "Event " and the code in decimal.
std::string CommEventText(int commEvent);

class SerialPort {
 public:
  /// Whoever uses a port hears of its events here, until its Connection ends. Calls come from the event
  /// loop, never from inside a call into the port, PollLineErrors apart.
  class Events {
   public:
    virtual ~Events() = default;
    /// `commEvent` is one of CommEvent's codes, or another that the driver invents.
    virtual void OnComm(int commEvent) = 0;
    /// The device went away; the port has closed itself.
    virtual void OnPortLost() = 0;
    /// The program itself stood still, and what had arrived meanwhile was dropped as too old.
    virtual void OnPortStandstill() {}
  };

  /// The tie between a port and whoever hears of its events. Its end unties them, so a member of this type
  /// cannot be forgotten: the port tells nothing to somebody who is gone. Either side may go first.
  class Connection {
   public:
    Connection() = default;
    Connection(Connection&& other) noexcept = default;
    Connection& operator=(Connection&& other) noexcept;
    ~Connection();

   private:
    friend class SerialPort;
    explicit Connection(std::shared_ptr<Events*> events) : m_events(std::move(events)) {}
    std::shared_ptr<Events*> m_events;  ///< what the port looks at, too
  };

  SerialPort() = default;
  SerialPort(const SerialPort&) = delete;
  SerialPort& operator=(const SerialPort&) = delete;
  virtual ~SerialPort() = default;

  /// `events` hears of the events from now on, in place of whoever did before, until the connection ends.
  [[nodiscard]] Connection Connect(Events& events);

  /// The port number [1, 32767] to open next; without effect on a port that is open.
  virtual void CommPort(int number) = 0;
  virtual int CommPort() const = 0;

  virtual bool PortOpen() const = 0;
  /// Opens (8N1 on a serial line) or closes; true when the port then is as asked. Opening an open port, or
  /// closing a closed one, changes nothing.
  virtual bool PortOpen(bool open) = 0;

  /// Why the latest try to open has failed, in words for the user; "" where it has not, or where that is not
  /// known.
  virtual std::string OpenFailure() const { return {}; }

  /// What an open port has to complain of, in words for the user, as "connection refused, next try in 4 s";
  /// "" for nothing.
  virtual std::string Trouble() const { return {}; }

  /// Whether characters come of which nothing is passed on, as no rate makes lines of them so far.
  virtual bool Noise() const { return false; }

  /// Replaces `text` by every character that waits; "" when none does. Keeps the capacity of `text`.
  virtual void Input(std::string& text) = 0;

  /// Which one of several endpoints the characters of the latest Input came from, from 1 on; 0 where the port
  /// has only one.
  virtual int InputFrom() const { return 0; }

  /// Hands a bundle to the port: one or more whole sentences that belong together, each with its line end.
  /// They leave in their order, with nothing between them. Never blocks; a device that has room has the
  /// bundle on return. While an earlier bundle has not left wholly, the newest takes the place of any that
  /// waits after it, as a whole; one that waits for more than two seconds is forgotten. A bundle of which
  /// anything has gone to the device is replaced and forgotten no more. Without effect on a closed port.
  virtual void Output(std::string_view bundle) = 0;

  /// How many bundles have gone to the device; one that waits, or was forgotten, is not among them.
  virtual std::uint64_t Sent() const = 0;

  /// What the line carries, 10 bits a character [baud]; nullopt where nothing is known to bound it, as on a
  /// socket. May change while the port is open, and is asked for whenever it is needed.
  virtual std::optional<int> BaudRate() const { return std::nullopt; }

  /// Forgets a bundle that waits after one that has not left.
  virtual void Withdraw() = 0;

  /// Asks the driver for line errors since the last time and raises an event, at once, for each kind that
  /// occurred. The port itself asks after every receive event.
  virtual void PollLineErrors() = 0;

 protected:
  /// Who hears of the events at this moment; null for nobody.
  Events* Connected() const { return m_events ? *m_events : nullptr; }

 private:
  std::shared_ptr<Events*> m_events;
};

}  // namespace veerwatch
