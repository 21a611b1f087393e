#include "connect/Candidate.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <system_error>

#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

constexpr std::array<int, 3> kTcpPorts{10110, 2000, 39150};
constexpr std::array<int, 2> kUdpPorts{10110, 2000};

Candidate Tcp(const std::string& host, const std::string& port, const std::string& where) {
  return {Filled(Tr("TCP %1 on %2"), {port, where}), "tcp://" + host + ":" + port};
}

/// The parts of a line, cut at each semicolon.
std::vector<std::string_view> Cut(std::string_view line) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = std::min(line.find(';'), line.size());
    parts.push_back(line.substr(0, end));
    if (end == line.size()) {
      return parts;
    }
    line.remove_prefix(end + 1);
  }
}

/// The name of a service: blanks and other signs come as "\032", the number of a byte.
std::string Unescaped(std::string_view name) {
  std::string text;
  while (!name.empty()) {
    constexpr std::size_t kEscape = 4;
    const bool escaped = name.front() == '\\' && name.size() >= kEscape;
    const float code = escaped ? StrictNumber(name.substr(1, kEscape - 1)).value_or(0.0F) : 0.0F;
    if (code >= 1.0F && code <= static_cast<float>(UINT8_MAX)) {
      text += static_cast<char>(static_cast<unsigned char>(code));
      name.remove_prefix(kEscape);
    } else {
      text += name.front();
      name.remove_prefix(1);
    }
  }
  return VisibleText(text);
}

std::string DevicePlace(const std::string& path) {
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::canonical(path, error);
  return error ? path : whole.string();
}

}  // namespace

std::vector<Candidate> SerialCandidates(const std::vector<FoundPort>& found) {
  std::vector<Candidate> all;
  for (const FoundPort& port : found) {
    const bool adapter = !port.Description.empty();
    const std::string name =
        adapter ? Filled(Tr("USB serial (%1)"), {VisibleText(port.Description)}) : VisibleText(port.Device);
    all.push_back({name, port.Device + "?baud=auto", adapter});
  }
  return all;
}

std::vector<Candidate> UsualCandidates() {
  std::vector<Candidate> all;
  all.reserve(kTcpPorts.size() + kUdpPorts.size());
  for (const int port : kTcpPorts) {
    all.push_back(Tcp("localhost", std::to_string(port), Tr("this computer")));
  }
  for (const int port : kUdpPorts) {
    const std::string number = std::to_string(port);
    all.push_back({Filled(Tr("UDP %1 from the network"), {number}), "udp://0.0.0.0:" + number});
  }
  return all;
}

std::vector<Candidate> HostCandidates(std::string_view host) {
  const std::string name(Trim(host));
  if (name.empty()) {
    return {};
  }
  if (name.find("://") != std::string::npos) {
    return {{VisibleText(name), name}};
  }
  if (name.front() == '/') {
    const std::string rate = name.find('?') == std::string::npos ? "?baud=auto" : "";
    return {{VisibleText(name), name + rate}};
  }
  // Of several colons none is in front of a port: they are those of an address.
  const std::size_t colon = name.find(':');
  if (colon != std::string::npos && name.find(':', colon + 1) == std::string::npos) {
    return {Tcp(name.substr(0, colon), name.substr(colon + 1), VisibleText(name.substr(0, colon)))};
  }
  const std::string written = colon != std::string::npos && name.front() != '[' ? "[" + name + "]" : name;
  std::vector<Candidate> all;
  all.reserve(kTcpPorts.size());
  for (const int port : kTcpPorts) {
    all.push_back(Tcp(written, std::to_string(port), VisibleText(name)));
  }
  return all;
}

std::string EndpointOfPlace(std::string_view place) {
  const std::string text(Trim(place));
  const bool device = text.starts_with('/');
  const std::vector<Candidate> all = device ? std::vector<Candidate>() : HostCandidates(text);
  return all.size() == 1 ? all.front().Endpoint : text;
}

std::vector<Candidate> AnnouncedCandidates(std::string_view browsed) {
  // =;eth0;IPv4;NAME;_nmea-0183._tcp;local;HOST;ADDRESS;PORT;"TEXT"
  enum Part { kSign, kInterface, kProtocol, kName, kType, kDomain, kHost, kAddress, kPort, kParts };
  std::vector<Candidate> all;
  while (!browsed.empty()) {
    const std::size_t end = std::min(browsed.find('\n'), browsed.size());
    const std::vector<std::string_view> parts = Cut(browsed.substr(0, end));
    browsed.remove_prefix(std::min(end + 1, browsed.size()));
    if (parts.size() < kParts || parts[kSign] != "=" || parts[kProtocol] != "IPv4") {
      continue;
    }
    // The usual places name this computer so.
    const std::string host(parts[kInterface] == "lo" ? "localhost" : parts[kAddress]);
    const std::string name = Unescaped(parts[kName]);
    const auto add = [&](const char* pattern, std::string_view port) {
      AddCandidates(all, {{Filled(Tr(pattern), {name, VisibleText(host)}),
                           std::string("tcp://").append(host).append(":").append(port)}});
    };
    if (parts[kType] == "_nmea-0183._tcp") {
      add(TrMark("%1 at %2 (NMEA 0183, announced)"), parts[kPort]);
    } else if (parts[kType].starts_with("_signalk-")) {
      add(TrMark("%1 at %2 (Signal K, announced)"), "10110");
    }
  }
  return all;
}

void AddCandidates(std::vector<Candidate>& all, const std::vector<Candidate>& more) {
  for (const Candidate& each : more) {
    const bool known = std::any_of(all.begin(), all.end(),
                                   [&each](const Candidate& one) { return one.Endpoint == each.Endpoint; });
    if (!known) {
      all.push_back(each);
    }
  }
}

bool SamePlace(const Endpoint& a, const Endpoint& b) {
  if (a.What != b.What) {
    return false;
  }
  if (a.What == Endpoint::Kind::Device) {
    return DevicePlace(a.Path) == DevicePlace(b.Path);
  }
  const bool listens = a.What == Endpoint::Kind::UdpInput || a.What == Endpoint::Kind::TcpServer;
  return a.Path == b.Path && a.Port == b.Port && (listens || a.Host == b.Host);
}

}  // namespace veerwatch
