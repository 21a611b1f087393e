// "veerwatch-cli replay": a recorded passage through the core, as fast as it goes.
#pragma once

#include <istream>
#include <ostream>

#include "cli/Steering.h"
#include "log/LogReader.h"

namespace veerwatch {

struct ReplayOptions {
  SteeringOptions Steer;
  long SetupSteps = 0;  ///< control steps that run in Setup before the switch to the mode, at least 0
  LineEnds Ends = LineEnds::Any;
  bool Explain = false;  ///< why each sentence says what it says, in its place
};

/// Writes the autopilot sentences with CR LF, or a trace, the conditions of the watch or the reasons. A line
/// may have its time in front of it. A log in which no wind could be used is told in one line on `notes`.
/// Throws CommandError.
void Replay(const ReplayOptions& options, std::istream& log, std::ostream& out, std::ostream& notes);

}  // namespace veerwatch
