// The law of the control loop: proportional plus integral. It knows no bus, no clock and no screen; the loop
// that steers and the preview of its response step the same object.
#pragma once

#include "control/TrackGains.h"

namespace veerwatch {

class TrackController {
 public:
  /// Takes gains and zeroes the accumulator.
  void Start(const TrackGains& gains) {
    m_gains = gains;
    m_integral = 0.0;
  }

  /// Zeroes the accumulator.
  void Reset() { m_integral = 0.0; }

  /// One pass with `error` [deg]: what the bearing is to be changed by [deg]. It may not be finite, for gains
  /// or errors without measure; an accumulator that runs out of range starts again instead of blocking the
  /// loop for good. `elapsed` is the time since the pass before [s, at least 0]. Deliberate: the correction
  /// uses the accumulator of before the pass, nothing limits it, and this law counts passes, so `elapsed`
  /// plays no part in it.
  double Step(double error, double elapsed);

  const TrackGains& Gains() const { return m_gains; }
  double Integral() const { return m_integral; }

 private:
  TrackGains m_gains;
  double m_integral = 0.0;
};

}  // namespace veerwatch
