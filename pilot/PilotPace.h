// When sentences leave for the pilot: with each wind, or by the cadence of the settings; and what is said
// when no bearing is good any more. The helm asks at each step, at each tick of tmrPilot and each second; it
// reads no clock.
#pragma once

#include <cstdint>
#include <optional>

#include "settings/Settings.h"

namespace veerwatch {

class PilotPace {
 public:
  /// What is to be sent.
  enum class Says { Nothing, Bearing, Invalid };

  /// Reads the cadence and the validity of `settings` whenever it is asked.
  explicit PilotPace(const Settings& settings) : m_settings(settings) {}

  /// A bearing was made at `now` [ms of the steady clock]: whether it leaves at once. If not, it does at a
  /// later Look.
  Says Step(std::int64_t now);

  /// Some time has passed until `now`. `good`: the data that the bearing rests on are of now. The newest
  /// bearing is said again by the cadence while it is good. One that is good no more is called invalid, by
  /// the cadence or without one each second, for as long as the settings say; then there is silence.
  Says Look(bool good, std::int64_t now);

  /// No bearing was made yet, as after a change to a mode that sends none.
  void Forget() { m_made = false; }
  bool Made() const { return m_made; }

  /// The shortest time from one bundle to the next [ms]; nothing where each wind sends one.
  static std::optional<int> Spacing(const Settings& settings);

 private:
  bool Due(std::int64_t spacing, std::int64_t now) const;
  Says Say(Says what, std::int64_t now);

  const Settings& m_settings;
  bool m_made = false;                 ///< there is a bearing to say again
  std::optional<std::int64_t> m_said;  ///< the latest bundle [ms]
  std::optional<std::int64_t> m_lost;  ///< since when none is good [ms]
};

}  // namespace veerwatch
