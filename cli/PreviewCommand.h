// "veerwatch-cli preview": the response of the control loop for a bandwidth and a damping, second by second
// or in figures.
#pragma once

#include <cstdint>
#include <ostream>

#include "options/TrackResponse.h"

namespace veerwatch {

struct PreviewOptions {
  TrackResponseInputs Inputs;
  std::uint64_t Seed = 1;  ///< of the noise
  bool Summary = false;    ///< the figures instead of the seconds
};

/// Writes a line a second, time [s] and bearing [deg]; or the figures of TrackFigures, a line each. Throws
/// CommandError where the inputs allow no response, where the options would not take the bandwidth or the
/// damping, or where the response leaves the range of a single.
void PreviewCommand(const PreviewOptions& options, std::ostream& out);

}  // namespace veerwatch
