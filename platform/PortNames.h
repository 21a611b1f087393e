// From a port's number to its device.
#pragma once

#include <string>

#include "platform/Profile.h"

namespace veerwatch {

/// The device that section "Ports" of the profile names under the number (any path), else the system's own:
/// COMn on Windows, /dev/ttyS(n-1) elsewhere. `number` in [1, 32767].
std::string PortDevice(const Profile& profile, int number);

}  // namespace veerwatch
