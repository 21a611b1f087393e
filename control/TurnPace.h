// The steps of a turn as the pilot hears of them. The bearing of a turn goes out with the wind's sentences;
// where none leaves, the turn waits for the pilot, so that it never hears of several seconds at once.
#pragma once

#include <cstdint>

#include "control/Manoeuvre.h"

namespace veerwatch {

class TurnPace {
 public:
  /// The turn begins. `sent`, here and below, counts the sentences that have left for the pilot.
  void Start(std::uint64_t sent);

  /// One step of `turn`, `seconds` after the one before [s, at least 0]; a step of about a second is meant.
  /// Once nothing has left for two of them the turn waits where the pilot heard of it last, and goes on from
  /// there with the next sentence. What is longer than two seconds counts as two: a program that stood still
  /// does not swing the boat round at once. True when the boat has arrived.
  bool Step(Manoeuvre& turn, std::uint64_t sent, double seconds);

  /// Takes `turn` back to where the pilot heard of it last.
  void Halt(Manoeuvre& turn, std::uint64_t sent);

  /// The latest step was waited through.
  bool Waiting() const { return m_silent >= kPatience; }

 private:
  static constexpr double kPatience = 1.5;     // [s]: the second step, however coarse the timer
  static constexpr double kLongestStep = 2.0;  // [s]

  void Hear(const Manoeuvre& turn, std::uint64_t sent, double seconds);

  std::uint64_t m_sent = 0;
  double m_heard = 0.0;   ///< what the pilot knows to be turned [deg]
  double m_silent = 0.0;  ///< for so long nothing has left [s]
};

}  // namespace veerwatch
