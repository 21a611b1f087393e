// A report to send to a friend: what runs, on which ports, what came, which settings are no defaults, and
// what the watch found. It holds no position and no name of a host, a network, a user or a file: whatever is
// not known to be none of these is left out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "helm/HelmNow.h"
#include "platform/Profile.h"

namespace veerwatch {

struct ReportFacts {
  std::int64_t Wall = 0;       ///< when it is made [ms since 1970 UTC]
  std::string Version;         ///< of the program
  std::string Toolkit;         ///< "Qt 6.4.2"
  std::string System;          ///< "Debian GNU/Linux 12, linux 6.1.0, x86_64"
  const Profile& Settings;     ///< the settings, as the profile would hold them now
  std::optional<HelmNow> Now;  ///< nothing where no helm could be had
  std::string Instead;         ///< why not, as a line
  std::vector<std::string> Sentences;
  std::vector<std::string> Watch;
};

/// The whole text, lines ended by "\n".
std::string ReportText(const ReportFacts& facts);

/// Where a port leads, without names: "tcp://<host>:10110", "/dev/ttyUSB0?baud=38400", "device <name>". Of
/// several one after the other.
std::string BlankedEndpoints(std::string_view endpoints);

/// Why a port is not open, without names: `text` with what the port's `endpoints` name, and whatever looks
/// like a name or a path, blanked.
std::string BlankedFailure(const std::string& text, std::string_view endpoints);

}  // namespace veerwatch
