// From a port's number to its device.
#pragma once

#include <string>
#include <vector>

#include "platform/Profile.h"

namespace veerwatch {

/// The device that section "Ports" of the profile names under the number (any path or endpoint), else the
/// system's own: COMn on Windows, /dev/ttyS(n-1) elsewhere. `number` in [1, 32767].
std::string PortDevice(const Profile& profile, int number);

/// One entry of section "Ports".
struct PortEntry {
  int Number = 1;  ///< [1, 32767]
  std::string Endpoints;

  friend bool operator==(const PortEntry& a, const PortEntry& b) = default;
};

/// All entries of the section that name something, in the order of their numbers.
std::vector<PortEntry> PortEntries(const Profile& profile);

/// Names what the number leads to from now on. `number` in [1, 32767].
void NamePort(Profile& profile, int number, const std::string& endpoints);

/// Names in `profile` what `now` has and `before` has not: what was named since.
void NameNewer(Profile& profile, const std::vector<PortEntry>& before, const std::vector<PortEntry>& now);

/// Whether the system has a device of that name.
bool DeviceIsThere(const std::string& path);

}  // namespace veerwatch
