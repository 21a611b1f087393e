// A boat for the desk: makes a set of instrument values from the simulation settings at every tick and sails
// the heading that the control loop commands, so that the whole chain runs without a boat.
#pragma once

#include "instruments/InstrumentRecord.h"
#include "platform/Random.h"
#include "settings/Settings.h"

namespace veerwatch {

class Simulator {
 public:
  Simulator(Settings& settings, InstrumentRecord& record, RandomSource& random)
      : m_settings(settings), m_record(record), m_random(random) {}

  /// One second of simulated sailing at `now`: updates every value of the record. Draws four random numbers:
  /// angle and speed noise of the apparent wind, then of the true wind. Deliberate: the simulated true wind
  /// is not smoothed.
  void Tick(const Moment& now);

  /// Moves the boat along the autopilot bearing from m_fSimulateTime to `Time` [h] at the simulated speed,
  /// and returns the waypoint from there: bearing [deg, [-180, 180] once moved], range [nm]. Time 0 puts the
  /// boat back; the same time again changes nothing. A time or a result that is not finite changes nothing
  /// either.
  void SimulateTime(float Time, float& TimeWaypointBearing, float& TimeWaypointRange);

 private:
  double AngleNoise();
  double SpeedNoise();

  Settings& m_settings;
  InstrumentRecord& m_record;
  RandomSource& m_random;
  float m_waypointBearing = 0.0F;
  float m_waypointRange = 0.0F;
};

}  // namespace veerwatch
