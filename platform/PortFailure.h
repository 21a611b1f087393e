// Why a device could not be opened, in words that say what to do: for the texts beside the status.
#pragma once

#include <string>

namespace veerwatch {

/// Called after opening `device` (a path, or a name in /dev) has failed: the device, and that there is none,
/// that it is no serial device, that this user may not open it, or that it is in use, with the name of the
/// program where it can be found; control characters as pictures. `reason` is the system's own, used where
/// none of these holds. Looks at no more than 10,000 open files of other programs, some hundredths of a
/// second.
std::string PortFailure(std::string device, const std::string& reason);

/// The path of `device`, a path or a name in /dev.
std::string DevicePath(std::string device);

}  // namespace veerwatch
