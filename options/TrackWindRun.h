// How each method would have held a wind angle in the wind that was recorded: the loop that steers, on a boat
// that does nothing but answer its bearing with a lag. For the options dialog and the command line.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "helm/WindRecorder.h"
#include "settings/Settings.h"

namespace veerwatch {

/// A run of one method.
struct TrackWindRun {
  TrackMethod Method = TrackMethod::Sentence;
  std::vector<double> Errors;   ///< of the boat's own wind angle, one for each wind [deg, (-180, 180]]
  double Mean = 0.0;            ///< of the errors [deg]
  double RootMeanSquare = 0.0;  ///< of the errors [deg]
  double Rudder = 0.0;          ///< what the bearing moves, either way [deg/min]

  /// "Clock: mean 0.1, rms 5.2 deg, rudder 68 deg/min".
  std::string Text() const;
};

/// The name of a method as the profile has it.
const char* TrackMethodName(TrackMethod method);

/// The least that a run needs [ms], and the largest lag of the boat [s].
inline constexpr std::int64_t kLeastTrackWind = 120000;
inline constexpr double kMostTrackLag = 60.0;

/// One line about winds or a lag that allow no run, "" when both do.
std::string TrackWindTrouble(const std::vector<WindSample>& winds, double lag);

/// Steers by `method` through `winds`, holding the true wind angle that the boat begins with. `settings` give
/// bandwidth, damping, limits and averages; the boat makes two thirds of each turn in `lag` [s], and her vane
/// shows it a second and a half late. Nothing where the settings allow no tracking or the winds no run.
std::optional<TrackWindRun> TrackWindRunOf(const Settings& settings, TrackMethod method, double lag,
                                           const std::vector<WindSample>& winds);

}  // namespace veerwatch
