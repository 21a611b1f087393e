// The program's helm on the boat of the tests, joined by a wire: the loop closed over bytes alone.
#pragma once

#include <cstdint>
#include <functional>

#include "helm/Helm.h"
#include "pilot/WireBoat.h"
#include "tests/closedloop/Wire.h"
#include "tests/support/FixedRandom.h"
#include "tests/support/HandClock.h"
#include "tests/support/HandTimer.h"
#include "tests/support/ScriptedPort.h"

namespace veerwatch {

class Passage {
 public:
  /// The boat lies on `heading` [deg magnetic], the input is started, the mode is Setup. Settings are the
  /// defaults, with the pilot on a port of its own.
  Passage(const BoatSettings& boat, double heading, std::uint64_t seed);

  /// Goes on for `seconds`; `each` is called after every tick of the boat.
  void Sail(double seconds, const std::function<void()>& each = {});

  /// Tracks the measured angle of `side` at the present heading.
  void Track(TrackSide side);

  /// What the boat's real wind angle on the tracked side is off the desired one [deg].
  double RealError() const;
  /// The same for the angle that the program works with.
  double ShownError() const;
  /// Bearing that the program has set, off the heading that the boat's compass shows [deg].
  double BearingAhead() const;

  Helm& TheHelm() { return m_helm; }
  const Clock& Time() const { return m_clock; }

  Settings Set;
  WireBoat Boat;
  Wire Input;
  ScriptedPort NmeaPort;
  ScriptedPort PilotPort;

 private:
  double Off(double apparent, double trueWind) const;

  HandTimer m_timer;
  HandClock m_clock;
  FixedRandom m_random;
  Helm m_helm;
  double m_sinceTick = 0.0;
};

}  // namespace veerwatch
