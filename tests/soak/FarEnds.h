// The far ends of the program's ports, whatever they lead to.
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "tests/e2e/Process.h"
#include "tests/e2e/Sockets.h"
#include "tests/support/Pty.h"

namespace veerwatch {

class FarEnd {
 public:
  FarEnd() = default;
  virtual ~FarEnd() = default;
  FarEnd(const FarEnd&) = delete;
  FarEnd& operator=(const FarEnd&) = delete;

  /// What the profile names.
  virtual std::string Endpoint() const = 0;
  /// To be called when the program runs; false when it does not come.
  virtual bool Join() { return true; }
  /// What to read, write and wait for.
  virtual int Handle() const = 0;

  /// Sends as much as there is room for; returns how much.
  virtual std::size_t Send(std::string_view text) {
    const ssize_t sent = ::write(Handle(), text.data(), text.size());
    return static_cast<std::size_t>(sent > 0 ? sent : 0);
  }
  /// What has come since the last call.
  std::string Read() const {
    std::string text;
    std::array<char, 65536> part{};
    for (ssize_t read = 0; (read = ::read(Handle(), part.data(), part.size())) > 0;) {
      text.append(part.data(), static_cast<std::size_t>(read));
    }
    return text;
  }
  /// Waits until something comes, or for so long [ms].
  void Wait(int milliseconds, short what = POLLIN) const {
    pollfd end{Handle(), what, 0};
    ::poll(&end, 1, milliseconds);
  }
};

class PtyEnd final : public FarEnd {
 public:
  std::string Endpoint() const override { return m_pty.Device(); }
  int Handle() const override { return m_pty.Master(); }

 private:
  Pty m_pty;
};

/// The program connects to it.
class TcpEnd final : public FarEnd {
 public:
  TcpEnd() { ::listen(m_listens.Socket(), 1); }
  ~TcpEnd() override { ::close(m_connected); }

  std::string Endpoint() const override { return "tcp://127.0.0.1:" + m_listens.Port(); }
  bool Join() override {
    return Await([this] {
      m_connected = ::accept4(m_listens.Socket(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
      return m_connected >= 0;
    });
  }
  int Handle() const override { return m_connected; }

 private:
  Loop m_listens{SOCK_STREAM};
  int m_connected = -1;
};

/// It connects to the program.
class CallingEnd final : public FarEnd {
 public:
  std::string Endpoint() const override { return "tcp-listen://:" + std::to_string(m_number); }
  bool Join() override {
    return Await([this] {
      m_caller.emplace(m_number);
      return m_caller->Connected();
    });
  }
  int Handle() const override { return m_caller->Socket(); }
  std::uint16_t Number() const { return m_number; }

 private:
  std::uint16_t m_number = Loop(SOCK_STREAM).Number();
  std::optional<Caller> m_caller;
};

/// It sends datagrams to the program.
class UdpSource final : public FarEnd {
 public:
  std::string Endpoint() const override { return "udp://:" + std::to_string(m_number); }
  int Handle() const override { return m_own.Socket(); }
  std::size_t Send(std::string_view text) override {
    const sockaddr_in to = Loopback(m_number);
    const ssize_t sent = ::sendto(m_own.Socket(), text.data(), text.size(), 0,
                                  reinterpret_cast<const sockaddr*>(&to), sizeof to);
    return static_cast<std::size_t>(sent > 0 ? sent : 0);
  }

 private:
  Loop m_own{SOCK_DGRAM};
  std::uint16_t m_number = Loop(SOCK_DGRAM).Number();
};

/// The program sends datagrams to it.
class UdpSink final : public FarEnd {
 public:
  std::string Endpoint() const override { return "udp://127.0.0.1:" + m_own.Port(); }
  int Handle() const override { return m_own.Socket(); }

 private:
  Loop m_own{SOCK_DGRAM};
};

}  // namespace veerwatch
