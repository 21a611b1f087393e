// "veerwatch-cli preview": the response of a method of tracking for a bandwidth and a damping, pass by pass
// or in figures; or how each method would have held the wind of a log.
#pragma once

#include <cstdint>
#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "options/TrackResponse.h"

namespace veerwatch {

struct PreviewOptions {
  TrackResponseInputs Inputs;
  std::uint64_t Seed = 1;  ///< of the noise
  bool Summary = false;    ///< the figures instead of the passes
};

/// Writes a line a pass, time [s] and bearing [deg]; or the figures of TrackFigures, a line each. Throws
/// CommandError where the inputs allow no response, where the options would not take the bandwidth or the
/// damping, or where the response leaves the range of a single.
void PreviewCommand(const PreviewOptions& options, std::ostream& out);

struct LogPreviewOptions {
  std::optional<TrackMethod> Method;       ///< all three without one
  std::optional<double> Bandwidth;         ///< [s]; that of the profile without one
  std::optional<double> Damping;           ///< the same
  double Rate = 1.0;                       ///< winds a second in the log [1/s]
  double Lag = 4.0;                        ///< of the boat [s]
  std::optional<std::string> ProfileFile;  ///< settings that the log is read with; defaults without one
  bool Summary = false;                    ///< mean, rms and rudder instead of the winds
};

/// Runs the methods over the wind and the heading of the whole log. Writes a line a wind, time [s] and the
/// error of each method [deg]; or the figures of each, a line a method. Throws CommandError where the inputs
/// or the log allow no run.
void LogPreviewCommand(const LogPreviewOptions& options, std::istream& log, std::ostream& out);

}  // namespace veerwatch
