#include "cli/BoatEnds.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>
#include <variant>

#include "cli/Steering.h"
#include "platform/Endpoint.h"

namespace veerwatch {

namespace {

constexpr std::size_t kMostClients = 16;
constexpr std::size_t kMostWaiting = 65536;  // characters for a client that does not read
constexpr std::size_t kReadAtOnce = 4096;

void Unblocked(int descriptor) {
  ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
  ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

std::string Reason() { return std::strerror(errno); }

void Feed(LineFramer& framer, std::string_view bytes, const OnBoatLine& told) {
  framer.Feed(
      bytes, [&](std::string_view line) { told(line); }, [](std::string_view /*line*/) {});
}

struct FreeAddress {
  void operator()(addrinfo* address) const { ::freeaddrinfo(address); }
};

/// The address to listen on.
std::unique_ptr<addrinfo, FreeAddress> AddressOf(const std::string& host, std::uint16_t port,
                                                 const std::string& name) {
  addrinfo wanted{};
  wanted.ai_family = AF_UNSPEC;
  wanted.ai_socktype = SOCK_STREAM;
  wanted.ai_flags = AI_PASSIVE;
  addrinfo* found = nullptr;
  const std::string where = host.empty() ? "127.0.0.1" : host;
  if (const int wrong = ::getaddrinfo(where.c_str(), std::to_string(port).c_str(), &wanted, &found);
      wrong != 0) {
    throw CommandError("cannot listen on " + name + ": " + ::gai_strerror(wrong));
  }
  return std::unique_ptr<addrinfo, FreeAddress>(found);
}

/// The port that the system has given.
std::uint16_t PortOf(int descriptor) {
  sockaddr_storage address{};
  socklen_t size = sizeof address;
  // The system's way of handing out addresses of several kinds.
  auto* const plain = reinterpret_cast<sockaddr*>(&address);  // NOLINT(*-reinterpret-cast)
  if (::getsockname(descriptor, plain, &size) != 0) {
    return 0;
  }
  in_port_t port = 0;
  if (address.ss_family == AF_INET6) {
    sockaddr_in6 six{};
    std::memcpy(&six, &address, sizeof six);
    port = six.sin6_port;
  } else {
    sockaddr_in four{};
    std::memcpy(&four, &address, sizeof four);
    port = four.sin_port;
  }
  return ntohs(port);
}

std::string TcpName(const std::string& host, std::uint16_t port) {
  const std::string where = host.empty() ? "127.0.0.1" : host;
  const bool six = where.find(':') != std::string::npos;
  return "tcp://" + (six ? "[" + where + "]" : where) + ":" + std::to_string(port);
}

}  // namespace

Descriptor::~Descriptor() {
  if (m_number >= 0) {
    ::close(m_number);
  }
}

std::unique_ptr<BoatEnd> OpenBoatEnd(const std::string& text) {
  constexpr std::string_view kPty = "pty:";
  if (text.starts_with(kPty)) {
    return std::make_unique<BoatPtyEnd>(text.substr(kPty.size()));
  }
  const auto parsed = ParseEndpoints(text, [](const std::string& /*path*/) { return false; });
  if (const auto* wrong = std::get_if<std::string>(&parsed)) {
    throw CommandError(*wrong);
  }
  const auto& ends = std::get<std::vector<Endpoint>>(parsed);
  const Endpoint& end = ends.front();
  if (ends.size() != 1 || (end.What != Endpoint::Kind::TcpClient && end.What != Endpoint::Kind::TcpServer)) {
    throw CommandError(text + ": listen on tcp://HOST:PORT or pty:PATH");
  }
  return std::make_unique<BoatTcpEnd>(end.Host, end.Port);
}

BoatTcpEnd::BoatTcpEnd(const std::string& host, std::uint16_t port) : m_name(TcpName(host, port)) {
  const auto address = AddressOf(host, port, m_name);
  m_listening =
      Descriptor(::socket(address->ai_family, address->ai_socktype | SOCK_CLOEXEC, address->ai_protocol));
  const int yes = 1;
  constexpr int kBacklog = 16;
  const int listening = m_listening.Number();
  if (listening < 0 || ::setsockopt(listening, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes) != 0 ||
      ::bind(listening, address->ai_addr, address->ai_addrlen) != 0 || ::listen(listening, kBacklog) != 0) {
    throw CommandError("cannot listen on " + m_name + ": " + Reason());
  }
  Unblocked(listening);
  m_port = PortOf(listening);
  m_name = TcpName(host, m_port);
}

void BoatTcpEnd::Accept() {
  for (;;) {
    Descriptor client(::accept(m_listening.Number(), nullptr, nullptr));
    if (client.Number() < 0) {
      return;
    }
    if (m_clients.size() < kMostClients) {
      Unblocked(client.Number());
      m_clients.push_back({std::move(client)});
    }
  }
}

void BoatTcpEnd::Write(Client& client) {
  while (!client.Waiting.empty()) {
    const ssize_t written =
        ::send(client.Socket.Number(), client.Waiting.data(), client.Waiting.size(), MSG_NOSIGNAL);
    if (written <= 0) {
      client.Gone = client.Gone || (written < 0 && errno != EAGAIN && errno != EINTR);
      return;
    }
    client.Waiting.erase(0, static_cast<std::size_t>(written));
  }
}

void BoatTcpEnd::Send(std::string_view lines) {
  for (Client& client : m_clients) {
    if (client.Waiting.size() + lines.size() <= kMostWaiting) {
      client.Waiting.append(lines);
    }
    Write(client);
  }
  DropGone();
}

void BoatTcpEnd::Read(Client& client, const OnBoatLine& told) {
  // A client that never stops sending has its turn once in a step.
  std::array<char, kReadAtOnce> part{};
  const ssize_t read = ::recv(client.Socket.Number(), part.data(), part.size(), 0);
  if (read > 0) {
    Feed(client.Lines, {part.data(), static_cast<std::size_t>(read)}, told);
  } else {
    client.Gone = read == 0 || (errno != EAGAIN && errno != EINTR);
  }
}

void BoatTcpEnd::Take(const OnBoatLine& told) {
  Accept();
  for (Client& client : m_clients) {
    Read(client, told);
  }
  DropGone();
}

void BoatTcpEnd::DropGone() {
  std::erase_if(m_clients, [](const Client& client) { return client.Gone; });
}

void BoatTcpEnd::AddTo(std::vector<int>& descriptors) const {
  descriptors.push_back(m_listening.Number());
  for (const Client& client : m_clients) {
    descriptors.push_back(client.Socket.Number());
  }
}

BoatPtyEnd::BoatPtyEnd(std::string link) : m_master(::posix_openpt(O_RDWR | O_NOCTTY)) {
  const int master = m_master.Number();
  std::array<char, 256> name{};
  if (master < 0 || ::grantpt(master) != 0 || ::unlockpt(master) != 0 ||
      ::ptsname_r(master, name.data(), name.size()) != 0) {
    throw CommandError("no pseudo terminal: " + Reason());
  }
  m_device = name.data();
  m_slave = Descriptor(::open(m_device.c_str(), O_RDWR | O_NOCTTY));
  termios raw{};
  const bool known = m_slave.Number() >= 0 && ::tcgetattr(m_slave.Number(), &raw) == 0;
  ::cfmakeraw(&raw);
  if (!known || ::tcsetattr(m_slave.Number(), TCSANOW, &raw) != 0) {
    throw CommandError("no pseudo terminal: " + Reason());
  }
  Unblocked(master);
  Unblocked(m_slave.Number());
  if (!link.empty() && ::symlink(m_device.c_str(), link.c_str()) != 0) {
    throw CommandError("cannot make " + link + ": " + Reason());
  }
  m_link = std::move(link);
}

BoatPtyEnd::~BoatPtyEnd() {
  if (!m_link.empty()) {
    ::unlink(m_link.c_str());
  }
}

void BoatPtyEnd::Send(std::string_view lines) {
  const auto write = [&] { return ::write(m_master.Number(), lines.data(), lines.size()); };
  const ssize_t written = write();
  if (written < 0 || static_cast<std::size_t>(written) < lines.size()) {
    // Nobody has read for long: whoever comes gets the newest.
    ::tcflush(m_slave.Number(), TCIFLUSH);
    (void)!write();
  }
}

void BoatPtyEnd::Take(const OnBoatLine& told) {
  std::array<char, kReadAtOnce> part{};
  const ssize_t read = ::read(m_master.Number(), part.data(), part.size());
  if (read > 0) {
    Feed(m_lines, {part.data(), static_cast<std::size_t>(read)}, told);
  }
}

}  // namespace veerwatch
