#include "cli/PreviewCommand.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "cli/Steering.h"
#include "instruments/MathLib.h"
#include "options/OptionNumber.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

bool FitsSingle(double value) {
  return std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max());
}

/// One line about what the options would not take, as singles like there; "" when they take it.
std::string SettingsTrouble(const TrackResponseInputs& inputs) {
  if (!Allows(kTrackBandwidthRange, ToSingle(inputs.Bandwidth))) {
    return "Bandwidth must be above 0";
  }
  return Allows(kTrackDampingRange, ToSingle(inputs.Damping)) ? "" : "Damping must not be below 0";
}

std::string Text(double value) { return ShortestText(ToSingle(value)); }

}  // namespace

void PreviewCommand(const PreviewOptions& options, std::ostream& out) {
  for (const std::string& trouble : {TrackResponseTrouble(options.Inputs), SettingsTrouble(options.Inputs)}) {
    if (!trouble.empty()) {
      throw CommandError(trouble);
    }
  }
  SeededRandom random(options.Seed);
  const auto bearings = TrackResponseSeries(options.Inputs, random);
  if (!bearings || !std::all_of(bearings->begin(), bearings->end(), FitsSingle)) {
    throw CommandError(kTrackResponseDiverges);
  }
  if (!options.Summary) {
    for (std::size_t second = 0; second < bearings->size(); ++second) {
      out << second << ' ' << Text((*bearings)[second]) << '\n';
    }
    return;
  }
  const TrackFigures figures = TrackFiguresOf(options.Inputs.Offset, *bearings);
  for (const std::string& text : TrackFigureTexts(figures, ShortestText)) {
    out << text << '\n';
  }
}

}  // namespace veerwatch
