// The law of TrackController by the time that passes: as many corrections a second however many sentences a
// second come. It never runs ahead of a boat that does not follow.
#pragma once

#include <optional>

#include "control/BearingLimits.h"
#include "control/TrackGains.h"

namespace veerwatch {

class TrackClock {
 public:
  /// Takes gains [per second] and zeroes the accumulator.
  void Start(const TrackGains& gains) {
    m_gains = gains;
    m_integral = 0.0;
  }

  /// Zeroes the accumulator.
  void Reset() { m_integral = 0.0; }

  /// One pass with `error` [deg], `seconds` [s, [0, 2]] after the one before: the new bearing, from `bearing`
  /// [deg magnetic, any turn]. While a limit bites the accumulator stands still.
  LimitedBearing Step(double error, double seconds, double bearing, const std::optional<double>& heading,
                      const BearingLimits& limits);

  double Integral() const { return m_integral; }

 private:
  TrackGains m_gains;
  double m_integral = 0.0;
};

}  // namespace veerwatch
