// How the control loop would pull a bearing offset back to zero, second by second: the preview of the options
// dialog and the command line's. It has nothing to do with the loop that steers.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "platform/Random.h"

namespace veerwatch {

/// Any finite numbers.
struct TrackResponseInputs {
  double Bandwidth = 0.0;  ///< [s]
  double Damping = 0.0;
  double Offset = 10.0;  ///< bearing at the start [deg]
  double Noise = 1.0;    ///< amplitude, to either side [deg]
  double Time = 120.0;   ///< length of the run [s]
};

/// Longest run that is computed [s], and the largest offset and noise [deg].
inline constexpr double kMostTrackTime = 1e6;
inline constexpr double kMostTrackBearing = 1e6;

/// One line about the first input that allows no response, by its name in the dialog; "" when all allow it:
/// the bandwidth is not 0, the time is above 0, none is absurdly large.
std::string TrackResponseTrouble(const TrackResponseInputs& inputs);

/// What to say when a response leaves the range of finite numbers.
inline constexpr const char* kTrackResponseDiverges = "Bandwidth: the response grows beyond all numbers";

/// The bearings after the passes at 0, 1, 2, ... seconds, to the last whole second of the run [deg], one
/// pass of the loop's law a second, each taking one random number. Nothing when an input allows no response
/// or it leaves the finite range. Deliberate: the error includes the noise, and the bearing is not reduced to
/// a turn.
std::optional<std::vector<double>> TrackResponseSeries(const TrackResponseInputs& inputs,
                                                       RandomSource& random);

/// A response in figures.
struct TrackFigures {
  /// How far the bearing goes to the other side of 0 than the offset, at least 0; with no offset, how far it
  /// goes to either side [deg].
  double Overshoot = 0.0;
  /// The first second from which the bearing stays within 1 degree of 0, 1 included, to the end of the run;
  /// nothing when the last bearing is not.
  std::optional<std::size_t> SettlingTime;
  /// Root mean square of the bearings in the steady state, the seconds from half of the last second on [deg].
  double SteadyRootMeanSquare = 0.0;
};

/// The figures in words, "overshoot 1.25 deg", "settling time 31 s" or "not settled", and "steady state 0.5
/// deg rms"; `number` writes the degrees.
std::array<std::string, 3> TrackFigureTexts(const TrackFigures& figures, std::string (*number)(float));

/// `bearings` holds one at least, a second apart, all finite.
TrackFigures TrackFiguresOf(double offset, const std::vector<double>& bearings);

}  // namespace veerwatch
