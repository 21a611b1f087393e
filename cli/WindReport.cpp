#include "cli/WindReport.h"

#include <array>
#include <utility>

namespace veerwatch {

namespace {

std::string Counted(long count, const char* what) { return std::to_string(count) + ' ' + what; }

}  // namespace

std::string NoWindText(const LogCounts& lines, const WindCounts& winds, const InstrumentData& record) {
  std::string reasons = winds.All() == 0 ? "no wind sentence" : "";
  const auto add = [&reasons](const std::string& reason) {
    reasons += (reasons.empty() ? "" : ", ") + reason;
  };
  for (const auto& [count, what] : std::array{
           std::pair{winds.OtherUnit, "winds in another unit than knots"},
           std::pair{winds.Incomplete, "winds without angle, reference, speed or unit"},
           std::pair{winds.NotChosen, "winds with a true wind, which is computed instead"},
           std::pair{winds.SwitchedOff, "winds while their sentences are switched off"},
           std::pair{lines.WrongChecksum, "with a wrong checksum"},
           std::pair{lines.NoSentence, "that is no sentence"},
       }) {
    if (count > 0) {
      add(Counted(count, what));
    }
  }
  if (winds.Used > 0 && !record.WindTrueValid) {
    add(Counted(winds.Used, record.BoatSpeedValid ? "winds but no true wind"
                                                  : "winds but no boat speed to compute the true wind from"));
  } else if (winds.Used > 0) {
    add(Counted(winds.Used, "winds but no apparent wind"));
  }
  return "no usable wind in " + std::to_string(lines.Lines) + (lines.Lines == 1 ? " line: " : " lines: ") +
         reasons;
}

}  // namespace veerwatch
