// What sails while the program simulates: the boat that the settings choose, and her clock.
#pragma once

#include <cstdint>
#include <string_view>

#include "helm/SimulatedBoat.h"
#include "instruments/InstrumentRecord.h"
#include "instruments/Simulator.h"
#include "platform/Clock.h"
#include "platform/Random.h"
#include "settings/Settings.h"

namespace veerwatch {

class Simulation {
 public:
  /// All of them outlive it.
  Simulation(Settings& settings, InstrumentRecord& record, RandomSource& random)
      : m_settings(settings), m_steady(settings, record, random), m_boat(settings, record, random) {}

  /// The input starts: the boat begins anew.
  void Restart() { m_boat.Restart(); }

  /// One second of sailing; every value of the record is new. Returns the moment on the boat's own clock,
  /// where a tick is a second however coarse the timer, and `wall` [ms].
  Moment Tick(std::int64_t wall) {
    constexpr std::int64_t kSecond = 1000;  // [ms]
    m_now += kSecond;
    const Moment now{m_now, wall};
    if (m_settings.SimulatesBoat()) {
      m_boat.Tick(now);
    } else {
      m_steady.Tick(now);
    }
    return now;
  }

  /// Gives what was built for the pilot to the boat's own.
  void Steer(std::string_view sentences) {
    if (m_settings.SimulatesBoat()) {
      m_boat.Steer(sentences);
    }
  }

  Simulator& Steady() { return m_steady; }

 private:
  const Settings& m_settings;
  Simulator m_steady;
  SimulatedBoat m_boat;
  std::int64_t m_now = 0;  ///< [ms]
};

}  // namespace veerwatch
