#include "platform/Endpoint.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <stdexcept>

#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

/// What is wrong with an endpoint, for the user.
struct Wrong : std::runtime_error {
  using std::runtime_error::runtime_error;
};

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

struct Option {
  std::string Name;
  std::string Value;
};

/// "a=1&b" as its parts.
std::vector<Option> OptionsOf(std::string_view text) {
  std::vector<Option> options;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('&'), text.size());
    const std::string_view one = text.substr(0, end);
    const std::size_t equals = std::min(one.find('='), one.size());
    options.push_back({std::string(one.substr(0, equals)),
                       std::string(equals < one.size() ? one.substr(equals + 1) : std::string_view{})});
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return options;
}

double NumberOf(const Option& option, double least, double most, const char* what) {
  const std::optional<double> number = StrictDouble(option.Value);
  if (!number || !(*number >= least) || !(*number <= most)) {
    throw Wrong(Filled(Tr("%1 is no %2"), {Quoted(option.Value), Tr(what)}));
  }
  return *number;
}

int BaudOf(const Option& option) {
  if (option.Value == "auto") {
    return 0;
  }
  const std::optional<double> number = StrictDouble(option.Value);
  const auto* const rate = std::find_if(std::begin(kBaudRates), std::end(kBaudRates), [&](int one) {
    return number && *number == static_cast<double>(one);
  });
  if (rate == std::end(kBaudRates)) {
    throw Wrong(Filled(Tr("%1 is no baud rate (4800, 9600, 19200, 38400, 57600, 115200 or auto)"),
                       {Quoted(option.Value)}));
  }
  return *rate;
}

void TakeOption(const Option& option, Endpoint& endpoint) {
  using Kind = Endpoint::Kind;
  const auto is = [&](Kind kind, std::string_view name) {
    return endpoint.What == kind && option.Name == name;
  };
  constexpr double kDay = 86400.0;  // [s]
  if (is(Kind::Device, "baud")) {
    endpoint.Baud = BaudOf(option);
  } else if (is(Kind::TcpClient, "silence")) {
    endpoint.Silence = NumberOf(option, 1.0, kDay, TrMark("number of seconds (1 to 86400)"));
  } else if (is(Kind::UdpOutput, "broadcast") && option.Value.empty()) {
    endpoint.Broadcast = true;
  } else if (is(Kind::UdpOutput, "listen") && option.Value.empty()) {
    endpoint.What = Kind::UdpInput;
  } else if (is(Kind::File, "speed")) {
    endpoint.Speed = NumberOf(option, 0.01, 1000.0, TrMark("speed (0.01 to 1000)"));
  } else if (is(Kind::File, "interval")) {
    endpoint.Interval = NumberOf(option, 0.001, 3600.0, TrMark("interval in seconds (0.001 to 3600)"));
  } else if (is(Kind::File, "loop") && option.Value.empty()) {
    endpoint.Loop = true;
  } else {
    throw Wrong(Filled(Tr("%1 is no option of it"), {Quoted(option.Name)}));
  }
}

std::uint16_t PortOf(std::string_view text) {
  constexpr double kMost = 65535.0;
  const bool digits = !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
  const std::optional<double> number = digits ? StrictDouble(text) : std::nullopt;
  if (!number || *number < 1.0 || *number > kMost) {
    throw Wrong(Filled(Tr("%1 is no port (1 to 65535)"), {Quoted(text)}));
  }
  return static_cast<std::uint16_t>(*number);
}

/// "host:port" or "[address]:port".
void TakeHost(std::string_view text, Endpoint& endpoint) {
  const std::size_t colon = text.rfind(':');
  if (colon == std::string_view::npos || text.ends_with(']')) {
    throw Wrong(Filled(Tr("%1 has no port (host:port)"), {Quoted(text)}));
  }
  std::string_view host = text.substr(0, colon);
  if (host.starts_with('[') && host.ends_with(']')) {
    host = host.substr(1, host.size() - 2);
  } else if (host.find(':') != std::string_view::npos) {
    throw Wrong(Filled(Tr("%1 is no host; an address with colons stands in [ ]"), {Quoted(host)}));
  }
  if (host.find_first_of(" \t/@[]?,") != std::string_view::npos) {
    throw Wrong(Filled(Tr("%1 is no host"), {Quoted(host)}));
  }
  endpoint.Host = host;
  endpoint.Port = PortOf(text.substr(colon + 1));
}

/// 224.0.0.0 to 239.255.255.255, or an IPv6 address that begins with ff.
bool IsGroup(std::string_view host) {
  if (host.find(':') != std::string_view::npos) {
    return host.starts_with("ff") || host.starts_with("FF");
  }
  const std::size_t point = host.find('.');
  const std::optional<double> first =
      point == std::string_view::npos ? std::nullopt : StrictDouble(host.substr(0, point));
  return first && *first >= 224.0 && *first <= 239.0 &&
         host.find_first_not_of("0123456789.") == std::string_view::npos;
}

bool IsEverywhere(std::string_view host) { return host == "0.0.0.0" || host == "::"; }

Endpoint::Kind KindOf(std::string_view scheme) {
  using Kind = Endpoint::Kind;
  constexpr std::array<std::pair<std::string_view, Kind>, 4> kSchemes{{{"tcp", Kind::TcpClient},
                                                                       {"tcp-listen", Kind::TcpServer},
                                                                       {"udp", Kind::UdpOutput},
                                                                       {"file", Kind::File}}};
  for (const auto& [name, kind] : kSchemes) {
    if (name == scheme) {
      return kind;
    }
  }
  throw Wrong(Filled(Tr("%1 is none of tcp://, tcp-listen://, udp:// and file://"),
                     {Quoted(std::string(scheme) + "://")}));
}

Endpoint DeviceOf(std::string_view text, const DeviceExists& exists) {
  Endpoint endpoint;
  endpoint.Path = text;
  const std::size_t mark = text.rfind('?');
  if (mark == std::string_view::npos || exists(endpoint.Path) ||
      !text.substr(mark + 1).starts_with("baud=")) {
    return endpoint;
  }
  endpoint.Path = text.substr(0, mark);
  if (endpoint.Path.empty()) {
    throw Wrong(Tr("it names no device"));
  }
  for (const Option& option : OptionsOf(text.substr(mark + 1))) {
    TakeOption(option, endpoint);
  }
  return endpoint;
}

Endpoint HostOrFileOf(std::string_view text, std::size_t schemeEnd) {
  using Kind = Endpoint::Kind;
  Endpoint endpoint;
  endpoint.What = KindOf(text.substr(0, schemeEnd));
  std::string_view rest = text.substr(schemeEnd + 3);
  const std::size_t mark = rest.rfind('?');
  const std::string_view options = mark == std::string_view::npos ? "" : rest.substr(mark + 1);
  rest = rest.substr(0, mark);
  if (endpoint.What == Kind::File) {
    endpoint.Path = rest;
    if (!rest.starts_with('/')) {
      throw Wrong(Filled(Tr("%1 is no whole path (file:///path)"), {Quoted(rest)}));
    }
  } else {
    TakeHost(rest, endpoint);
  }
  if (endpoint.What == Kind::TcpClient && endpoint.Host.empty()) {
    throw Wrong(Filled(Tr("%1 has no host (host:port)"), {Quoted(rest)}));
  }
  if (endpoint.What == Kind::UdpOutput &&
      (endpoint.Host.empty() || IsGroup(endpoint.Host) || IsEverywhere(endpoint.Host))) {
    endpoint.What = Kind::UdpInput;
  }
  for (const Option& option : OptionsOf(options)) {
    TakeOption(option, endpoint);
  }
  return endpoint;
}

Endpoint OneOf(std::string_view text, const DeviceExists& exists) {
  if (text.empty()) {
    throw Wrong(Tr("nothing stands between two commas"));
  }
  const std::size_t schemeEnd = text.find("://");
  Endpoint endpoint =
      schemeEnd == std::string_view::npos ? DeviceOf(text, exists) : HostOrFileOf(text, schemeEnd);
  endpoint.Text = text;
  return endpoint;
}

}  // namespace

std::variant<std::vector<Endpoint>, std::string> ParseEndpoints(std::string_view text,
                                                                const DeviceExists& exists) {
  std::vector<Endpoint> endpoints;
  std::string_view one = Trim(text);
  try {
    if (exists(std::string(one))) {
      endpoints.push_back(OneOf(one, exists));
      return endpoints;
    }
    for (std::string_view rest = one;;) {
      const std::size_t end = std::min(rest.find(", "), rest.size());
      one = Trim(rest.substr(0, end));
      endpoints.push_back(OneOf(one, exists));
      if (end == rest.size()) {
        return endpoints;
      }
      rest.remove_prefix(end + 2);
    }
  } catch (const Wrong& wrong) {
    return std::string(one) + ": " + wrong.what();
  }
}

}  // namespace veerwatch
