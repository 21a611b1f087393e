#include "cli/PreviewCommand.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "cli/Steering.h"
#include "instruments/MathLib.h"
#include "platform/NumberText.h"
#include "settings/SettingsTable.h"

namespace veerwatch {

namespace {

bool FitsSingle(double value) {
  return std::fabs(value) <= static_cast<double>(std::numeric_limits<float>::max());
}

/// Whether the options take a number for a setting, as a single like there.
bool Takes(float Settings::*setting, double value) {
  return RuleOf(SettingsTable(), setting).Take(ToSingle(value)).has_value();
}

/// One line about what the options would not take; "" when they take it.
std::string SettingsTrouble(const TrackResponseInputs& inputs) {
  if (!Takes(&Settings::m_fTrackBandwidth, inputs.Bandwidth)) {
    return "Bandwidth must be above 0";
  }
  return Takes(&Settings::m_fTrackDamping, inputs.Damping) ? "" : "Damping must not be below 0";
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
