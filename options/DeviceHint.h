// What to do with a device that was typed where the number of a port belongs.
#pragma once

#include <string>

#include "options/OptionsForm.h"

namespace veerwatch {

/// How to name the device of a port, when one of the form's Comm boxes holds a device instead of a number; ""
/// when none does.
std::string DeviceHint(const OptionsForm& form);

}  // namespace veerwatch
