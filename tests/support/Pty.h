// A pseudo terminal: the test holds the master, whoever is tested opens the slave as a serial device.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string>
#include <string_view>
#include <utility>

namespace veerwatch {

class Pty {
 public:
  Pty() {
    termios raw{};
    cfmakeraw(&raw);
    std::array<char, 256> name{};
    int slave = -1;
    if (::openpty(&m_master, &slave, name.data(), &raw, nullptr) != 0) {
      ADD_FAILURE() << "no pseudo terminal, errno " << errno;
      return;
    }
    ::close(slave);
    ::fcntl(m_master, F_SETFL, O_NONBLOCK);
    ::fcntl(m_master, F_SETFD, FD_CLOEXEC);
    m_device = name.data();
  }
  ~Pty() { HangUp(); }
  Pty(const Pty&) = delete;
  Pty& operator=(const Pty&) = delete;

  /// The path of the slave.
  const std::string& Device() const { return m_device; }

  /// The descriptor of the master.
  int Master() const { return m_master; }

  /// The settings with which the slave was opened.
  termios Settings() const {
    termios settings{};
    EXPECT_EQ(::tcgetattr(m_master, &settings), 0);
    return settings;
  }

  /// Closes the master, as a plug that is pulled.
  void HangUp() {
    if (m_master >= 0) {
      ::close(std::exchange(m_master, -1));
    }
  }

  /// How many of the characters the terminal took.
  std::size_t Write(std::string_view text) const {
    const ssize_t written = ::write(m_master, text.data(), text.size());
    return written > 0 ? static_cast<std::size_t>(written) : 0;
  }

  /// All characters that came out since the last time.
  std::string Read() const {
    std::string text;
    std::array<char, 4096> part{};
    for (;;) {
      const ssize_t read = ::read(m_master, part.data(), part.size());
      if (read <= 0) {
        return text;
      }
      text.append(part.data(), static_cast<std::size_t>(read));
    }
  }

 private:
  int m_master = -1;
  std::string m_device;
};

}  // namespace veerwatch
