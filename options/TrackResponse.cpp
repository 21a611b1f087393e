#include "options/TrackResponse.h"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "control/TrackController.h"
#include "control/TrackGains.h"
#include "instruments/MathLib.h"

namespace veerwatch {

std::string TrackResponseTrouble(const TrackResponseInputs& inputs) {
  if (inputs.Bandwidth == 0.0) {
    return "Bandwidth must not be 0";
  }
  if (!TrackGainsFor(inputs.Bandwidth, inputs.Damping)) {
    return "Bandwidth is too small";
  }
  if (std::fabs(inputs.Offset) > kMostTrackBearing) {
    return "Offset must be within 1000000 degrees";
  }
  if (std::fabs(inputs.Noise) > kMostTrackBearing) {
    return "Noise must be within 1000000 degrees";
  }
  if (!(inputs.Time > 0.0)) {
    return "Time must be above 0";
  }
  if (inputs.Time > kMostTrackTime) {
    return "Time must be at most 1000000 seconds";
  }
  return {};
}

std::optional<std::vector<double>> TrackResponseSeries(const TrackResponseInputs& inputs,
                                                       RandomSource& random) {
  const auto gains = TrackGainsFor(inputs.Bandwidth, inputs.Damping);
  if (!gains || !TrackResponseTrouble(inputs).empty()) {
    return std::nullopt;
  }
  const auto count = static_cast<std::size_t>(inputs.Time) + 1;
  constexpr double kPassTime = 1.0;  // [s]
  const double span = 2.0 * inputs.Noise;
  double bearing = inputs.Offset;
  TrackController controller;
  controller.Start(*gains);
  std::vector<double> bearings;
  bearings.reserve(count);
  while (bearings.size() < count) {
    const double error = (random.Next() - 0.5) * span - bearing;
    bearing += controller.Step(error, kPassTime);
    if (!std::isfinite(bearing)) {
      return std::nullopt;
    }
    bearings.push_back(bearing);
  }
  return bearings;
}

std::array<std::string, 3> TrackFigureTexts(const TrackFigures& figures, std::string (*number)(float)) {
  return {"overshoot " + number(ToSingle(figures.Overshoot)) + " deg",
          figures.SettlingTime ? "settling time " + std::to_string(*figures.SettlingTime) + " s"
                               : std::string("not settled"),
          "steady state " + number(ToSingle(figures.SteadyRootMeanSquare)) + " deg rms"};
}

TrackFigures TrackFiguresOf(double offset, const std::vector<double>& bearings) {
  assert(!bearings.empty());
  TrackFigures figures;
  const auto [lowest, highest] = std::minmax_element(bearings.begin(), bearings.end());
  if (offset >= 0.0) {
    figures.Overshoot = std::max(figures.Overshoot, -*lowest);
  }
  if (offset <= 0.0) {
    figures.Overshoot = std::max(figures.Overshoot, *highest);
  }

  const auto outside = [](double bearing) { return std::fabs(bearing) > 1.0; };
  const auto lastOutside = std::find_if(bearings.rbegin(), bearings.rend(), outside);
  if (lastOutside != bearings.rbegin()) {
    figures.SettlingTime = static_cast<std::size_t>(bearings.rend() - lastOutside);
  }

  // The squares of the shares of the largest bearing stay finite whatever it is.
  const std::size_t first = bearings.size() / 2;
  double largest = 0.0;
  for (std::size_t i = first; i < bearings.size(); ++i) {
    largest = std::max(largest, std::fabs(bearings[i]));
  }
  double squares = 0.0;
  for (std::size_t i = first; i < bearings.size() && largest > 0.0; ++i) {
    squares += std::pow(bearings[i] / largest, 2.0);
  }
  figures.SteadyRootMeanSquare = largest * std::sqrt(squares / static_cast<double>(bearings.size() - first));
  return figures;
}

}  // namespace veerwatch
