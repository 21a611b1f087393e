// How a method of tracking would pull a bearing offset back to zero, pass by pass: the preview of the options
// dialog and the command line's. It steps the laws that the loop steps, on a boat that answers at once.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "control/BearingLimits.h"
#include "platform/Language.h"
#include "platform/Random.h"
#include "settings/TrackMode.h"

namespace veerwatch {

/// Any finite numbers.
struct TrackResponseInputs {
  double Bandwidth = 0.0;  ///< [s]
  double Damping = 0.0;
  double Offset = 10.0;  ///< bearing at the start [deg]
  double Noise = 1.0;    ///< amplitude, to either side [deg]
  double Time = 120.0;   ///< length of the run [s]
  TrackMethod Method = TrackMethod::Sentence;
  double Rate = 1.0;          ///< passes, one for each wind sentence [1/s]
  BearingLimits Limits = {};  ///< but for Sentence
};

/// Longest run that is computed [s at one pass a second, less at more], and the largest offset and noise
/// [deg].
inline constexpr double kMostTrackTime = 1e6;
inline constexpr double kMostTrackBearing = 1e6;
/// Wind sentences that may come [1/s].
inline constexpr double kLeastTrackRate = 0.1;
inline constexpr double kMostTrackRate = 100.0;

/// The rate at which a preview steps for a measured one [1/s]: to a tenth, as it is told; 1 where none is
/// known.
double TrackRateFor(const std::optional<double>& measured);

/// One line about the first input that allows no response, by its name in the dialog; "" when all allow it:
/// the bandwidth is not 0 (for Direction above it), the time is above 0, none is absurdly large.
std::string TrackResponseTrouble(const TrackResponseInputs& inputs);

/// What to say when a response leaves the range of finite numbers.
inline constexpr const char* kTrackResponseDiverges =
    TrMark("Bandwidth: the response grows beyond all numbers");

/// The bearings after the passes at 0, 1, 2, ... of the time between two, to the last within the run [deg],
/// each taking one random number. Nothing when an input allows no response or it leaves the finite range.
/// Deliberate: the error includes the noise, and the bearing is not reduced to a turn.
std::optional<std::vector<double>> TrackResponseSeries(const TrackResponseInputs& inputs,
                                                       RandomSource& random);

/// A response in figures.
struct TrackFigures {
  /// How far the bearing goes to the other side of 0 than the offset, at least 0; with no offset, how far it
  /// goes to either side [deg].
  double Overshoot = 0.0;
  /// The time from which the bearing stays within 1 degree of 0, 1 included, to the end of the run [s];
  /// nothing when the last bearing is not.
  std::optional<double> SettlingTime;
  /// Root mean square of the bearings in the steady state, the passes from half of the last one on [deg].
  double SteadyRootMeanSquare = 0.0;
};

/// The figures in words, "overshoot 1.25 deg", "settling time 31 s" or "not settled", and "steady state 0.5
/// deg rms"; `number` writes the degrees.
std::array<std::string, 3> TrackFigureTexts(const TrackFigures& figures, std::string (*number)(float));

/// `bearings` holds one at least, `rate` a second [1/s], all finite.
TrackFigures TrackFiguresOf(double offset, const std::vector<double>& bearings, double rate = 1.0);

}  // namespace veerwatch
