// One JSON object per line of a log or per tick of the simulator.
#pragma once

#include <string>

#include "cli/Steering.h"

namespace veerwatch {

/// A single as the number that its shortest text says, so that 12.4 is written "12.4".
double JsonNumber(float value);

/// A replayed line: "line" and "error" with bytes above 127 as the same code points, "status", "used", and
/// the keys of TraceTick.
std::string TraceLine(const std::string& line, const Steering& steering);

/// A tick: "apb" (the sentences for the autopilot, with a line end between two, or null), "record" (every
/// field of InstrumentData under its name), "autopilot", "desired" (two numbers), "delta" (two numbers, or
/// null when no control step ran), "integral".
std::string TraceTick(const Steering& steering);

}  // namespace veerwatch
