// A port of the command line: always to be had, fed with a line at a time.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "platform/SerialPort.h"
#include "platform/Timer.h"

namespace veerwatch {

class MemoryPort final : public SerialPort {
 public:
  void CommPort(int number) override { m_number = number; }
  int CommPort() const override { return m_number; }
  bool PortOpen() const override { return m_open; }
  bool PortOpen(bool open) override {
    m_open = open;
    return true;
  }
  void Input(std::string& text) override {
    text.assign(m_waiting);
    m_waiting = {};
  }
  void Output(std::string_view /*bundle*/) override { ++m_sent; }
  std::uint64_t Sent() const override { return m_sent; }
  std::optional<int> BaudRate() const override { return 4800; }
  void Withdraw() override {}
  void PollLineErrors() override {}

  /// Lets `bytes` arrive as one receive event.
  void Arrive(std::string_view bytes) {
    m_waiting = bytes;
    Connected()->OnComm(CommEvent::kReceive);
  }

 private:
  int m_number = 1;
  bool m_open = false;
  std::string_view m_waiting;
  std::uint64_t m_sent = 0;
};

/// A clock that goes on only when it is told to, so that every run of a log is the same.
class LogClock final : public Clock {
 public:
  void Pass(std::int64_t milliseconds) {
    m_now.Steady += milliseconds;
    m_now.Wall += milliseconds;
  }
  Moment Now() const override { return m_now; }
  std::int32_t UtcOffset(std::int64_t /*wall*/) const override { return 0; }

 private:
  Moment m_now;
};

/// A timer that somebody else ticks.
class IdleTimer final : public Timer {
 public:
  void Interval(int /*milliseconds*/) override {}
  void Enabled(bool enabled) override { m_enabled = enabled; }
  bool Enabled() const override { return m_enabled; }

 private:
  bool m_enabled = false;
};

}  // namespace veerwatch
