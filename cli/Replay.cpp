#include "cli/Replay.h"

#include "cli/Trace.h"
#include "cli/WindReport.h"
#include "log/LineTime.h"

namespace veerwatch {

namespace {

void Count(LogCounts& counts, const std::optional<std::string>& error) {
  ++counts.Lines;
  counts.NoSentence += error && error->starts_with("Sentence Error") ? 1 : 0;
  counts.WrongChecksum += error && error->starts_with("Checksum Error") ? 1 : 0;
}

void Write(const ReplayOptions& options, const std::string& line, const Steering& steering,
           std::ostream& out) {
  if (options.Steer.Trace) {
    out << TraceLine(line, steering) << '\n';
  } else if (options.Steer.Watch) {
    for (const std::string& condition : steering.WatchLines()) {
      out << condition << '\n';
    }
  } else if (steering.PilotSentence().empty()) {
    return;
  } else if (options.Explain) {
    out << WhyText(steering.LastSentence()) << '\n';
  } else {
    out << steering.PilotSentence() << "\r\n";
  }
}

}  // namespace

void Replay(const ReplayOptions& options, std::istream& log, std::ostream& out, std::ostream& notes) {
  Steering steering(options.Steer, false, 0);
  steering.Start();
  long setupSteps = options.SetupSteps;
  bool inMode = false;
  bool steps = false;
  LogCounts counts;
  LogReader reader(log, options.Ends);
  std::string line;
  while (out && reader.Next(line)) {
    if (!inMode && setupSteps == 0 && steering.MayEnterMode()) {
      steering.EnterMode();
      inMode = true;
    }
    const auto time = TakeLineTime(line);
    steering.Line(line, time);
    Count(counts, steering.Error());
    steps = steps || steering.Delta();
    if (!inMode && setupSteps > 0 && steering.Delta()) {
      --setupSteps;
    }
    Write(options, line, steering, out);
    // Whoever feeds line by line sees the answer at once.
    if (log.rdbuf()->in_avail() <= 0) {
      out.flush();
    }
  }
  if (!steps) {
    notes << "veerwatch-cli: " << NoWindText(counts, steering.Winds(), steering.Data()) << '\n';
  }
}

}  // namespace veerwatch
