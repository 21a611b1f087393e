// Where the simulated boat is heard: a TCP port with several clients, or a pseudo terminal. Nothing waits for
// anybody who does not read, and what comes is cut into lines of a bounded length.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "nmea/LineFramer.h"

namespace veerwatch {

/// A descriptor that is closed with its owner.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : m_number(number) {}
  ~Descriptor();
  Descriptor(Descriptor&& other) noexcept : m_number(other.m_number) { other.m_number = -1; }
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(m_number, other.m_number);
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int Number() const { return m_number; }

 private:
  int m_number;
};

/// Is told each whole line that came, without its end.
using OnBoatLine = std::function<void(std::string_view line)>;

class BoatEnd {
 public:
  virtual ~BoatEnd() = default;
  /// Where it is heard, for the user: "tcp://127.0.0.1:10110", "/dev/pts/5".
  virtual std::string Name() const = 0;
  /// Sends whole lines to everybody who takes them; who does not keep up misses some.
  virtual void Send(std::string_view lines) = 0;
  /// Takes what has come.
  virtual void Take(const OnBoatLine& told) = 0;
  /// Adds the descriptors that bring something.
  virtual void AddTo(std::vector<int>& descriptors) const = 0;
};

/// Opens the end that `text` names: "tcp://127.0.0.1:10110", "tcp-listen://0.0.0.0:10110", "pty:", or
/// "pty:/path/name", where a link to the pseudo terminal is made. Throws CommandError.
std::unique_ptr<BoatEnd> OpenBoatEnd(const std::string& text);

/// Listens on a TCP port. Clients beyond the sixteenth are sent away.
class BoatTcpEnd final : public BoatEnd {
 public:
  /// `host` is a name or an address, "" for the loopback address; `port` 0 for any that is free. Throws
  /// CommandError.
  BoatTcpEnd(const std::string& host, std::uint16_t port);

  std::string Name() const override { return m_name; }
  std::uint16_t Port() const { return m_port; }
  std::size_t Clients() const { return m_clients.size(); }
  void Send(std::string_view lines) override;
  void Take(const OnBoatLine& told) override;
  void AddTo(std::vector<int>& descriptors) const override;

 private:
  struct Client {
    Descriptor Socket;
    LineFramer Lines{};
    std::string Waiting{};  ///< what the system has not taken yet
    bool Gone = false;
  };

  void Accept();
  static void Write(Client& client);
  static void Read(Client& client, const OnBoatLine& told);
  void DropGone();

  Descriptor m_listening;
  std::string m_name;
  std::uint16_t m_port = 0;
  std::vector<Client> m_clients;
};

/// A pseudo terminal, which looks like a serial line to whoever opens it.
class BoatPtyEnd final : public BoatEnd {
 public:
  /// `link` is the path of a link to it, "" for none. Throws CommandError.
  explicit BoatPtyEnd(std::string link);
  ~BoatPtyEnd() override;
  BoatPtyEnd(const BoatPtyEnd&) = delete;
  BoatPtyEnd& operator=(const BoatPtyEnd&) = delete;

  std::string Name() const override { return m_link.empty() ? m_device : m_link; }
  void Send(std::string_view lines) override;
  void Take(const OnBoatLine& told) override;
  void AddTo(std::vector<int>& descriptors) const override { descriptors.push_back(m_master.Number()); }

 private:
  Descriptor m_master;
  Descriptor m_slave;  ///< held open, so that the line stays when others come and go
  std::string m_device;
  std::string m_link;
  LineFramer m_lines;
};

}  // namespace veerwatch
