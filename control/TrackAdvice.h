// What the tracking is best set to for the sentences that come and the boat that answers, and what cannot
// hold: for the options dialog and the main window.
#pragma once

#include <optional>
#include <string>

#include "control/TrackLoop.h"
#include "settings/Settings.h"
#include "settings/TrackMode.h"

namespace veerwatch {

/// What a suggestion goes by.
struct TrackConditions {
  double WindsASecond = 1.0;  ///< wind sentences [1/s, above 0]
  double Lag = 4.0;           ///< until the boat has made two thirds of a small turn [s, at least 0]
  bool Heading = true;        ///< one comes
  bool BoatSpeed = true;      ///< one comes
};

struct TrackSuggestion {
  TrackMethod Method = TrackMethod::Direction;
  float Bandwidth = 60.0F;    ///< [s]
  float WindAverage = 2.0F;   ///< of the true wind, as the settings have it
  float AlarmAverage = 5.0F;  ///< [s]
  std::string Reason;         ///< one sentence
};

/// What docs/control.md measured: a quick boat answers waves, so a small bandwidth is for slow ones.
TrackSuggestion TrackSuggestionFor(const TrackConditions& conditions);

/// A rate as it is told, "5 wind sentences a second", to a tenth.
std::string WindsASecondText(double rate);

/// Whether Sentence cannot hold with `bandwidth` [s] at `rate` [1/s, nothing while it is not known].
bool TrackSwings(TrackMethod method, double bandwidth, const std::optional<double>& rate);

/// "5 wind sentences a second: this bandwidth swings; choose Clock", where Sentence cannot hold with
/// `bandwidth` [s] at `rate` [1/s, nothing while it is not known]; else "".
std::string TrackSwingsText(TrackMethod method, double bandwidth, const std::optional<double>& rate);
/// The same of what `loop` tracks with, or will track with by `settings`; "" in Off.
std::string TrackSwingsText(const TrackLoop& loop, const Settings& settings);

}  // namespace veerwatch
