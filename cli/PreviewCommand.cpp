#include "cli/PreviewCommand.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "cli/Steering.h"
#include "instruments/MathLib.h"
#include "log/LineTime.h"
#include "log/LogReader.h"
#include "options/TrackWindRun.h"
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
std::string SettingsTrouble(double bandwidth, double damping) {
  if (!Takes(&Settings::m_fTrackBandwidth, bandwidth)) {
    return "Bandwidth must be above 0";
  }
  return Takes(&Settings::m_fTrackDamping, damping) ? "" : "Damping must not be below 0";
}

std::string Text(double value) { return ShortestText(ToSingle(value)); }

/// A time [s] to the millisecond, whole where it is.
std::string TimeText(double seconds) {
  const auto milliseconds = std::llround(seconds * 1000.0);
  std::string text = std::to_string(milliseconds / 1000);
  if (milliseconds % 1000 != 0) {
    text += '.' + std::to_string(1000 + milliseconds % 1000).substr(1);
    text.erase(text.find_last_not_of('0') + 1);
  }
  return text;
}

/// The wind of a log, sailed through without tracking.
std::vector<WindSample> WindsOf(const LogPreviewOptions& options, std::istream& log, Settings& settings) {
  constexpr std::size_t kMost = 1U << 20U;
  SteeringOptions steer;
  steer.ProfileFile = options.ProfileFile;
  steer.Mode = TrackMode::Setup;
  steer.WindsASecond = options.Rate;
  Steering steering(steer, false, 0);
  const WindRecorder recorder(steering.Observers(), steering.Record(),
                              std::numeric_limits<std::int64_t>::max() / 2, kMost);
  steering.Start();
  LogReader reader(log, LineEnds::Any);
  for (std::string line; reader.Next(line);) {
    const auto time = TakeLineTime(line);
    steering.Line(line, time);
  }
  settings = steering.Set();
  return recorder.Winds();
}

}  // namespace

void PreviewCommand(const PreviewOptions& options, std::ostream& out) {
  for (const std::string& trouble : {TrackResponseTrouble(options.Inputs),
                                     SettingsTrouble(options.Inputs.Bandwidth, options.Inputs.Damping)}) {
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
    for (std::size_t pass = 0; pass < bearings->size(); ++pass) {
      out << TimeText(static_cast<double>(pass) / options.Inputs.Rate) << ' ' << Text((*bearings)[pass])
          << '\n';
    }
    return;
  }
  const TrackFigures figures = TrackFiguresOf(options.Inputs.Offset, *bearings, options.Inputs.Rate);
  for (const std::string& text : TrackFigureTexts(figures, ShortestText)) {
    out << text << '\n';
  }
}

void LogPreviewCommand(const LogPreviewOptions& options, std::istream& log, std::ostream& out) {
  const Settings usual;
  TrackResponseInputs law;
  law.Bandwidth = options.Bandwidth.value_or(static_cast<double>(usual.m_fTrackBandwidth));
  law.Damping = options.Damping.value_or(static_cast<double>(usual.m_fTrackDamping));
  law.Rate = options.Rate;
  for (const std::string& trouble :
       {TrackResponseTrouble(law), SettingsTrouble(law.Bandwidth, law.Damping)}) {
    if (!trouble.empty()) {
      throw CommandError(trouble);
    }
  }
  Settings settings;
  const std::vector<WindSample> winds = WindsOf(options, log, settings);
  if (const std::string trouble = TrackWindTrouble(winds, options.Lag); !trouble.empty()) {
    throw CommandError(trouble);
  }
  if (options.Bandwidth) {
    settings.m_fTrackBandwidth = ToSingle(*options.Bandwidth);
  }
  if (options.Damping) {
    settings.m_fTrackDamping = ToSingle(*options.Damping);
  }
  std::vector<TrackWindRun> runs;
  for (const TrackMethod method : {TrackMethod::Sentence, TrackMethod::Clock, TrackMethod::Direction}) {
    if (options.Method.value_or(method) != method) {
      continue;
    }
    auto run = TrackWindRunOf(settings, method, options.Lag, winds);
    if (!run) {
      throw CommandError("Bandwidth or damping allow no tracking");
    }
    runs.push_back(std::move(*run));
  }
  if (options.Summary) {
    for (const TrackWindRun& run : runs) {
      out << run.Text() << '\n';
    }
    return;
  }
  for (std::size_t i = 0; i < winds.size(); ++i) {
    out << TimeText(static_cast<double>(winds[i].Moment - winds.front().Moment) / 1000.0);
    for (const TrackWindRun& run : runs) {
      out << ' ' << Text(run.Errors[i]);
    }
    out << '\n';
  }
}

}  // namespace veerwatch
