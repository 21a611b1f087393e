// What the list of alarms says of one entry under its text, a line each.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "alarms/AlarmCentre.h"

namespace veerwatch {

/// "Since 14:03:21, 2 min 5 s", the value with its source and age, what the program does and what the sailor
/// can do; lines that have nothing to say are left out. `utcOffset` is what local time is ahead of UTC [s].
std::vector<std::string> AlarmLines(const AlarmEntry& entry, const Moment& now, std::int32_t utcOffset);

}  // namespace veerwatch
