// Where a port leads: what section "Ports" of the profile says under its number, as data.
//
//     /dev/serial/by-id/usb-x     /dev/ttyUSB0?baud=38400     /dev/ttyUSB0?baud=auto
//     tcp://host:10110            tcp://[::1]:10110?silence=20
//     tcp-listen://:10110         tcp-listen://0.0.0.0:10110
//     udp://:10110                udp://0.0.0.0:10110         udp://239.2.1.1:10110    (listens)
//     udp://host:10110            udp://192.168.1.255:10110?broadcast                  (sends)
//     file:///home/me/log.nmea    file:///log.nmea?speed=10   file:///log.nmea?interval=0.1&loop
//
// Several, joined with ", ", are one port.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veerwatch {

struct Endpoint {
  enum class Kind {
    Device,     ///< a serial device
    TcpClient,  ///< connects to Host
    TcpServer,  ///< listens on Host: input from every client, output to all
    UdpInput,   ///< listens on Host, or to the group that Host is
    UdpOutput,  ///< sends to Host
    File,       ///< a recorded log
  };

  Kind What = Kind::Device;
  std::string Text;        ///< as it was written
  std::string Path;        ///< of a device or a file
  std::string Host;        ///< name or address, without brackets; "" for the loopback address
  std::uint16_t Port = 0;  ///< of a host
  int Baud = 4800;         ///< of a device [4800, 115200]; 0 to find it out
  double Silence = 0.0;    ///< a TCP client that has heard nothing for so long connects anew [s]; 0 for never
  bool Broadcast = false;  ///< Host may be a broadcast address
  double Speed = 1.0;      ///< of a file: how much faster than it was recorded, above 0
  double Interval = 0.0;   ///< between the lines of a file without time stamps [s]; 0 for a second a wind
  bool Loop = false;       ///< a file begins again at its end
};

/// The rates of serial lines that are tried, and allowed [baud].
inline constexpr int kBaudRates[] = {4800, 9600, 19200, 38400, 57600, 115200};

/// Whether the system has a device of that name, so that a "?" or ", " in it is no option and no end.
using DeviceExists = std::function<bool(const std::string& path)>;

/// The endpoints of one text, in their order, at least one; or what is wrong with it, for the user, with the
/// part that is wrong, as "tcp://boat:x: "x" is no port (1 to 65535)". A text without a scheme is the path of
/// a device.
std::variant<std::vector<Endpoint>, std::string> ParseEndpoints(std::string_view text,
                                                                const DeviceExists& exists);

}  // namespace veerwatch
