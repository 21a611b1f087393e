// "veerwatch-cli simulate": the simulator and the loop without a window.
#pragma once

#include <cstdint>
#include <ostream>

#include "cli/Steering.h"

namespace veerwatch {

struct SimulateOptions {
  SteeringOptions Steer;
  long Ticks = 60;         ///< seconds to sail, at least 0
  std::uint64_t Seed = 1;  ///< of the noise
  bool RealTime = false;   ///< a tick a second
};

/// Writes a line a tick, in aligned columns or as a trace. Throws CommandError.
void Simulate(const SimulateOptions& options, std::ostream& out);

}  // namespace veerwatch
