#include "cli/Replay.h"

#include "cli/Trace.h"

namespace veerwatch {

void Replay(const ReplayOptions& options, std::istream& log, std::ostream& out) {
  Steering steering(options.Steer, false, 0);
  steering.Start();
  long setupSteps = options.SetupSteps;
  bool inMode = false;
  LogReader reader(log, options.Ends);
  std::string line;
  while (out && reader.Next(line)) {
    if (!inMode && setupSteps == 0) {
      steering.EnterMode();
      inMode = true;
    }
    steering.Line(line);
    if (!inMode && steering.Delta()) {
      --setupSteps;
    }
    if (options.Steer.Trace) {
      out << TraceLine(line, steering) << '\n';
    } else if (!steering.PilotSentence().empty()) {
      out << steering.PilotSentence() << "\r\n";
    }
    // Whoever feeds line by line sees the answer at once.
    if (log.rdbuf()->in_avail() <= 0) {
      out.flush();
    }
  }
}

}  // namespace veerwatch
