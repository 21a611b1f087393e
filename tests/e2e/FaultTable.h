// The faults that are tried on the real program, each with what is to be said of it and what the pilot is to
// get.
#pragma once

#include <vector>

#include "tests/e2e/FaultRun.h"

namespace veerwatch {

/// Faults of the wind that comes in.
std::vector<Fault> WindFaults();
/// Faults of what else the instruments send.
std::vector<Fault> BoatFaults();
/// A pilot that does not do what it is told.
std::vector<Fault> PilotFaults();
/// Faults of the line to the pilot.
std::vector<Fault> PilotLineFaults();
/// What happens on the water, in the computer, and at once.
std::vector<Fault> OtherFaults();

}  // namespace veerwatch
