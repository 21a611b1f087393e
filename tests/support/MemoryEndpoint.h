// An endpoint in memory, with its far end in the hands of the test, as is the clock.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/EndpointPort.h"
#include "tests/support/HandClock.h"

namespace veerwatch {

class MemoryEndpoint final : public EndpointPort {
 public:
  static constexpr std::size_t kAll = std::numeric_limits<std::size_t>::max();

  explicit MemoryEndpoint(HandClock& clock) : EndpointPort(clock), m_clock(clock) {}
  ~MemoryEndpoint() override { PortOpen(false); }

  // What the test scripts.

  std::size_t Takes = kAll;         ///< characters that one call takes
  std::size_t TakesInAll = kAll;    ///< characters that it takes from now on
  bool Holds = false;               ///< what it takes stays in it until it is drained
  std::size_t DrainsWhileSent = 0;  ///< characters that leave each time that the program waits for them
  int SendsLonger = 0;              ///< than it was asked to [ms]
  std::optional<int> Rate;          ///< what its line carries [baud]
  std::string Failure;              ///< why it does not open; "" when it does
  std::vector<int> LineErrors;      ///< raised at the next PollLineErrors
  bool TellsInside = false;         ///< tells of everything from inside each call

  // What the test sees.

  std::string Heard;             ///< what came out
  bool OpenAtTheEnd = false;     ///< the endpoint itself is open
  int Polls = 0;                 ///< calls of PollLineErrors
  int Waits = 0;                 ///< calls of SendFor
  std::optional<int> WakeAsked;  ///< the latest WakeAfter, until it is kept [ms]

  // The far end.

  void Arrive(std::string_view text) {
    m_arrived += text;
    Arrived();
  }
  void Fail() { Failed(); }
  /// So many of the characters that it holds leave; it tells so.
  void Drain(std::size_t characters = kAll) {
    Heard += m_held.substr(0, characters);
    m_held.erase(0, characters);
    Left();
  }
  bool Holding() const { return !m_held.empty(); }
  void RaiseError(int commEvent) { Raise(commEvent); }

  /// Time goes on by `milliseconds`, and the port is woken whenever it has asked for it.
  void Pass(int milliseconds) {
    const std::int64_t end = m_clock.Time.Steady + milliseconds;
    int wakes = 0;
    while (m_wake <= end) {
      m_clock.Pass(std::max<std::int64_t>(m_wake - m_clock.Time.Steady, 0));
      WakeNow();
      if (++wakes > 10 * milliseconds + 1000) {
        ADD_FAILURE() << "is woken without end";
        break;
      }
    }
    m_clock.Pass(end - m_clock.Time.Steady);
  }
  /// The event loop comes round.
  void Turn() { Pass(0); }
  void WakeNow() {
    m_wake = kNoWake;
    WakeAsked.reset();
    Wake();
  }

  std::optional<int> BaudRate() const override { return Rate; }
  void PollLineErrors() override {
    ++Polls;
    for (const int code : std::exchange(LineErrors, {})) {
      Raise(code);
    }
  }

 private:
  static constexpr std::int64_t kNoWake = std::numeric_limits<std::int64_t>::max();

  bool OpenEndpoint(std::string& failure) override {
    failure = Failure;
    OpenAtTheEnd = Failure.empty();
    return OpenAtTheEnd;
  }
  void CloseEndpoint() override {
    OpenAtTheEnd = false;
    m_arrived.clear();
    m_held.clear();
    m_wake = kNoWake;
    WakeAsked.reset();
  }
  void Read(std::string& text, std::size_t most) override {
    text.append(m_arrived, 0, most);
    m_arrived.erase(0, most);
  }
  bool Leaving() override { return !m_held.empty(); }
  std::size_t Write(std::string_view text) override {
    const std::size_t taken = std::min({text.size(), Takes, TakesInAll});
    TakesInAll -= TakesInAll == kAll ? 0 : taken;
    (Holds ? m_held : Heard).append(text, 0, taken);
    if (TellsInside) {
      Left();
      Arrived();
    }
    return taken;
  }
  void SendFor(int milliseconds) override {
    ++Waits;
    m_clock.Pass(milliseconds + SendsLonger);
    Drain(std::min(DrainsWhileSent, m_held.size()));
  }
  void WakeAfter(int milliseconds) override {
    WakeAsked = milliseconds;
    m_wake = m_clock.Time.Steady + milliseconds;
  }

  HandClock& m_clock;
  std::string m_arrived;
  std::string m_held;
  std::int64_t m_wake = kNoWake;
};

}  // namespace veerwatch
