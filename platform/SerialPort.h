// The serial port as the core sees it: a numbered port that is opened, read, written and that raises events.
// SerialPortQt is the real one; the command line and the tests have ports in memory.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

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
  /// Whoever owns a port hears of its events here. Calls come from the event loop, never from inside a
  /// call into the port, PollLineErrors apart.
  class Events {
   public:
    virtual ~Events() = default;
    /// `commEvent` is one of CommEvent's codes, or another that the driver invents.
    virtual void OnComm(int commEvent) = 0;
    /// The device went away; the port has closed itself.
    virtual void OnPortLost() = 0;
    /// The program itself stood still, and what had arrived meanwhile was dropped as too old.
    virtual void OnPortOverslept() {}
  };

  virtual ~SerialPort() = default;

  /// Who hears of the events; null for nobody. The port does not own it.
  virtual void Connect(Events* events) = 0;

  /// The port number [1, 32767] to open next; without effect on a port that is open.
  virtual void CommPort(int number) = 0;
  virtual int CommPort() const = 0;

  virtual bool PortOpen() const = 0;
  /// Opens (4800 baud, 8N1) or closes; true when the port then is as asked. Opening an open port, or closing
  /// a closed one, changes nothing.
  virtual bool PortOpen(bool open) = 0;

  /// Why the latest try to open has failed, in words for the user; "" where it has not, or where that is not
  /// known.
  virtual std::string OpenFailure() const { return {}; }

  /// Replaces `text` by every character that waits; "" when none does. Keeps the capacity of `text`.
  virtual void Input(std::string& text) = 0;

  /// Hands one whole sentence to the port. Never blocks; a device that has room has it on return. While an
  /// earlier sentence has not left, the newest takes the place of any that waits behind it; one that waits
  /// for more than two seconds is forgotten. Without effect on a closed port.
  virtual void Output(std::string_view sentence) = 0;

  /// How many sentences have gone to the device; one that waits, or was forgotten, is not among them.
  virtual std::uint64_t Sent() const = 0;

  /// Forgets a sentence that waits behind one that has not left.
  virtual void Withdraw() = 0;

  /// Asks the driver for line errors since the last time and raises an event, at once, for each kind that
  /// occurred. The port itself asks behind every receive event.
  virtual void PollLineErrors() = 0;
};

}  // namespace veerwatch
