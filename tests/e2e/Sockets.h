// Sockets of this computer, as the system has them.
#pragma once

#include <arpa/inet.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace veerwatch {

inline sockaddr_in Loopback(std::uint16_t port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

/// A socket on the loopback address, with a number that the system chooses.
class Loop {
 public:
  explicit Loop(int type) : m_socket(::socket(AF_INET, type | SOCK_CLOEXEC, 0)) {
    sockaddr_in address = Loopback(0);
    socklen_t size = sizeof address;
    EXPECT_EQ(::bind(m_socket, reinterpret_cast<sockaddr*>(&address), size), 0);
    EXPECT_EQ(::getsockname(m_socket, reinterpret_cast<sockaddr*>(&address), &size), 0);
    m_port = ntohs(address.sin_port);
    ::fcntl(m_socket, F_SETFL, O_NONBLOCK);
  }
  ~Loop() { ::close(m_socket); }
  Loop(const Loop&) = delete;
  Loop& operator=(const Loop&) = delete;

  int Socket() const { return m_socket; }
  std::uint16_t Number() const { return m_port; }
  std::string Port() const { return std::to_string(m_port); }

  /// Everything that has come, each datagram or piece after the other.
  std::string Heard() {
    std::array<char, 4096> part{};
    for (ssize_t read = 0; (read = ::recv(m_socket, part.data(), part.size(), 0)) > 0;) {
      m_heard.append(part.data(), static_cast<std::size_t>(read));
    }
    return m_heard;
  }

 private:
  int m_socket;
  std::uint16_t m_port = 0;
  std::string m_heard;
};

/// A connection to a number of the loopback address.
class Caller {
 public:
  /// `buffer` bounds what the system takes in for it [bytes]; 0 leaves that to the system.
  explicit Caller(std::uint16_t port, int buffer = 0)
      : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    if (buffer > 0) {
      ::setsockopt(m_socket, SOL_SOCKET, SO_RCVBUF, &buffer, sizeof buffer);
    }
    const sockaddr_in address = Loopback(port);
    m_connected = ::connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::fcntl(m_socket, F_SETFL, O_NONBLOCK);
  }
  ~Caller() { ::close(m_socket); }
  Caller(const Caller&) = delete;
  Caller& operator=(const Caller&) = delete;

  bool Connected() const { return m_connected; }
  int Socket() const { return m_socket; }

  /// Everything that has come.
  const std::string& Heard() {
    std::array<char, 4096> part{};
    for (ssize_t read = 0; (read = ::recv(m_socket, part.data(), part.size(), 0)) > 0;) {
      m_heard.append(part.data(), static_cast<std::size_t>(read));
    }
    return m_heard;
  }

 private:
  int m_socket;
  bool m_connected = false;
  std::string m_heard;
};

/// Sends a datagram to a number of the loopback address.
inline void SendDatagram(std::uint16_t port, std::string_view text) {
  const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  const sockaddr_in address = Loopback(port);
  EXPECT_EQ(::sendto(socket, text.data(), text.size(), 0, reinterpret_cast<const sockaddr*>(&address),
                     sizeof address),
            static_cast<ssize_t>(text.size()));
  ::close(socket);
}

/// What an HTTP server on a number of the loopback address answers, with its head; "" for nothing.
inline std::string Get(std::uint16_t port, const std::string& path) {
  const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_in address = Loopback(port);
  std::string answer;
  if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
    const std::string request = "GET " + path + " HTTP/1.0\r\n\r\n";
    ::send(socket, request.data(), request.size(), MSG_NOSIGNAL);
    std::array<char, 4096> part{};
    for (ssize_t read = 0; (read = ::recv(socket, part.data(), part.size(), 0)) > 0;) {
      answer.append(part.data(), static_cast<std::size_t>(read));
    }
  }
  ::close(socket);
  return answer;
}

}  // namespace veerwatch
