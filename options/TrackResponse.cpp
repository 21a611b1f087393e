#include "options/TrackResponse.h"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "control/PassTime.h"
#include "control/TrackClock.h"
#include "control/TrackController.h"
#include "control/TrackDirection.h"
#include "control/TrackGains.h"
#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

/// A boat that answers at once, in a true wind from 0 that is to be held at 0, steered by one of the methods.
class SteeredBoat {
 public:
  SteeredBoat(const TrackResponseInputs& inputs, const TrackGains& gains)
      : m_inputs(inputs), m_bearing(inputs.Offset) {
    m_controller.Start(gains);
    m_clock.Start(gains);
    m_direction.Start(m_bearing);
  }

  /// A pass at `milliseconds` with a wind that is off by `noise` [deg]: the bearing after it [deg].
  double Pass(std::int64_t milliseconds, double noise) {
    const double seconds = m_passes.Next({milliseconds, 0});
    const double error = noise - m_bearing;
    switch (m_inputs.Method) {
      case TrackMethod::Sentence:
        m_bearing += m_controller.Step(error, seconds);
        break;
      case TrackMethod::Clock:
        m_bearing = m_clock.Step(error, seconds, m_bearing, m_bearing, m_inputs.Limits).Bearing;
        break;
      case TrackMethod::Direction:
        m_direction.Feed({error, 0.0, 0.0, m_bearing, m_bearing}, seconds, m_inputs.Bandwidth);
        if (const auto answer =
                m_direction.Step(TrackDirection::Aim(), m_bearing, m_inputs.Limits, seconds)) {
          m_bearing = answer->Steer.Bearing;
        }
        break;
    }
    return m_bearing;
  }

 private:
  const TrackResponseInputs& m_inputs;
  double m_bearing;
  PassTime m_passes;
  TrackController m_controller;
  TrackClock m_clock;
  TrackDirection m_direction;
};

/// One line about a bandwidth and a damping that give no law, or "".
std::string LawTrouble(const TrackResponseInputs& inputs) {
  if (inputs.Bandwidth == 0.0) {
    return Tr("Bandwidth must not be 0");
  }
  if (inputs.Method == TrackMethod::Direction) {
    return inputs.Bandwidth > 0.0 ? std::string() : Tr("Bandwidth must be above 0");
  }
  return TrackGainsFor(inputs.Bandwidth, inputs.Damping) ? std::string() : Tr("Bandwidth is too small");
}

/// The longest run at a rate [s].
double MostTime(double rate) { return kMostTrackTime / std::max(rate, 1.0); }

}  // namespace

double TrackRateFor(const std::optional<double>& measured) {
  return std::clamp(std::round(measured.value_or(1.0) * 10.0) / 10.0, kLeastTrackRate, kMostTrackRate);
}

std::string TrackResponseTrouble(const TrackResponseInputs& inputs) {
  std::string trouble = LawTrouble(inputs);
  if (!trouble.empty()) {
    return trouble;
  }
  if (!(inputs.Rate >= kLeastTrackRate && inputs.Rate <= kMostTrackRate)) {
    return Tr("Rate must be from 0.1 to 100 wind sentences a second");
  }
  if (std::fabs(inputs.Offset) > kMostTrackBearing) {
    return Tr("Offset must be within 1000000 degrees");
  }
  if (std::fabs(inputs.Noise) > kMostTrackBearing) {
    return Tr("Noise must be within 1000000 degrees");
  }
  if (!(inputs.Time > 0.0)) {
    return Tr("Time must be above 0");
  }
  if (inputs.Time > MostTime(inputs.Rate)) {
    return Filled(Tr("Time must be at most %1 seconds"),
                  {FormatNumber(ToSingle(MostTime(inputs.Rate)), "0")});
  }
  return {};
}

std::optional<std::vector<double>> TrackResponseSeries(const TrackResponseInputs& inputs,
                                                       RandomSource& random) {
  if (!TrackResponseTrouble(inputs).empty()) {
    return std::nullopt;
  }
  constexpr double kMillisecondsPerSecond = 1000.0;
  const auto count = static_cast<std::size_t>(inputs.Time * inputs.Rate) + 1;
  const double span = 2.0 * inputs.Noise;
  SteeredBoat boat(inputs, TrackGainsFor(inputs.Bandwidth, inputs.Damping).value_or(TrackGains()));
  std::vector<double> bearings;
  bearings.reserve(count);
  while (bearings.size() < count) {
    const double moment = static_cast<double>(bearings.size()) * kMillisecondsPerSecond / inputs.Rate;
    const double bearing = boat.Pass(std::llround(moment), (random.Next() - 0.5) * span);
    if (!std::isfinite(bearing)) {
      return std::nullopt;
    }
    bearings.push_back(bearing);
  }
  return bearings;
}

std::array<std::string, 3> TrackFigureTexts(const TrackFigures& figures, std::string (*number)(float)) {
  return {Filled(Tr("overshoot %1 deg"), {number(ToSingle(figures.Overshoot))}),
          figures.SettlingTime
              ? Filled(Tr("settling time %1 s"),
                       {ShortestText(ToSingle(std::round(*figures.SettlingTime * 10.0) / 10.0))})
              : Tr("not settled"),
          Filled(Tr("steady state %1 deg rms"), {number(ToSingle(figures.SteadyRootMeanSquare))})};
}

TrackFigures TrackFiguresOf(double offset, const std::vector<double>& bearings, double rate) {
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
    figures.SettlingTime = static_cast<double>(bearings.rend() - lastOutside) / rate;
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
