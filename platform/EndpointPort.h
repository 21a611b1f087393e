// A port on an endpoint: on a serial device, a socket, a file. What is alike for all of them stands here:
// what waits, what is offered again, dropped, replaced or forgotten, and what happens at the close. The
// endpoint, a class derived from this one, only brings the bytes and wakes the port; SerialPortQt is one.
//
// - At most 64 KiB wait unread; then nothing more is taken from the endpoint.
// - Characters that the owner leaves unread are offered again after a while.
// - What waited while the program stood still is dropped as too old.
// - What is sent is a bundle; see OutputSlot.
// - A close drops what is unread and lets the bundle on its way leave whole, for at most 250 ms.
//
// The endpoint tells what happens at any time, also from inside a call into it; what follows from that comes
// with the next Wake, from the event loop. Time comes from the clock, so tests set it by hand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/OutputSlot.h"
#include "platform/SerialPort.h"
#include "platform/StandstillWatch.h"

namespace veerwatch {

class EndpointPort : public SerialPort, private OutputSlot::Line {
 public:
  static constexpr std::size_t kLargestUnread = std::size_t{64} * 1024;  ///< [bytes]
  static constexpr int kBeat = 500;        ///< [ms] between two looks for a standstill
  static constexpr int kOfferAgain = 100;  ///< [ms]
  static constexpr int kLookAgain = 20;    ///< [ms] until what waits is tried again, ten characters
  static constexpr int kLeaveTime = 250;   ///< [ms], twice what a sentence takes at 4800 baud

  void CommPort(int number) final;
  int CommPort() const final { return m_number; }
  bool PortOpen() const final { return m_open; }
  bool PortOpen(bool open) final;
  std::string OpenFailure() const final { return m_failure; }
  void Input(std::string& text) final;
  void Output(std::string_view bundle) final;
  std::uint64_t Sent() const final { return m_slot.Written(); }
  void Withdraw() final { m_slot.Withdraw(); }
  void PollLineErrors() override {}

 protected:
  /// `clock` outlives the port.
  explicit EndpointPort(const Clock& clock) : m_clock(clock), m_slot(*this) {}
  /// The endpoint closes in its own destructor, while it can still send.
  ~EndpointPort() override;

  // What the endpoint tells.

  /// Characters have arrived.
  void Arrived();
  /// It may have room for more.
  void Left();
  /// It has failed and works no more until it is opened again.
  void Failed();
  /// The time of the latest WakeAfter has come, or is near. Called from the event loop.
  void Wake();

  /// Raises a line error, or whatever else the endpoint has to tell, at once.
  void Raise(int commEvent);

 private:
  // What the endpoint does.

  /// Opens the endpoint of the port's number. When it does not open, `failure` says why, in words for the
  /// user.
  virtual bool OpenEndpoint(std::string& failure) = 0;
  /// Closes it at once. What has arrived and what has not left is dropped.
  virtual void CloseEndpoint() = 0;
  /// The program stood still: what the far end kept for it meanwhile is old.
  virtual void StoodStill() {}
  /// Appends what has arrived, at most `most` characters.
  virtual void Read(std::string& text, std::size_t most) = 0;
  bool Leaving() override = 0;
  std::size_t Write(std::string_view text) override = 0;
  /// Sends while the program waits, for at most so many milliseconds or a few more.
  virtual void SendFor(int milliseconds) = 0;
  /// Wake is to be called after this time [ms], in place of any that was asked for before.
  virtual void WakeAfter(int milliseconds) = 0;

  using Time = std::int64_t;  // [ms, steady]
  static constexpr Time kNever = std::numeric_limits<Time>::max();

  Time Now() const { return m_clock.Now().Steady; }
  bool Open();
  void Close(int leaveTime);
  void Later(Time& when, Time now, int milliseconds);
  void Offer(Time now);
  void Lose(Time now);
  void Pump();
  void PumpAgain(Time now);
  void Refill();

  const Clock& m_clock;
  OutputSlot m_slot;
  StandstillWatch m_standstill;
  int m_number = 1;
  bool m_open = false;
  bool m_failed = false;
  std::string m_failure;
  std::string m_unread;
  int m_offering = 0;  ///< receive events that are being handled, one inside the other
  Time m_beatTime = kNever;
  Time m_offerTime = kNever;
  Time m_pumpTime = kNever;
  Time m_wakeTime = kNever;  ///< what the endpoint was told last
};

}  // namespace veerwatch
