// The seconds of a turn as the pilot hears of them. The bearing of a turn goes out with the wind's sentences;
// where none leaves, the turn waits for the pilot, so that it never hears of several seconds at once.
#pragma once

#include <cstdint>

#include "tack/Manoeuvre.h"

namespace veerwatch {

class TurnPace {
 public:
  /// The turn begins. `sent`, here and below, counts the sentences that have left for the pilot.
  void Start(std::uint64_t sent);

  /// One second of `turn`. Once nothing has left for two of them the turn waits where the pilot heard of it
  /// last, and goes on from there with the next sentence. True when the boat has arrived.
  bool Tick(Manoeuvre& turn, std::uint64_t sent);

  /// Takes `turn` back to where the pilot heard of it last.
  void Halt(Manoeuvre& turn, std::uint64_t sent);

  /// The latest second was waited through.
  bool Waiting() const { return m_silent >= kPatience; }

 private:
  static constexpr int kPatience = 2;  // [s]

  void Hear(const Manoeuvre& turn, std::uint64_t sent);

  std::uint64_t m_sent = 0;
  double m_heard = 0.0;  ///< what the pilot knows to be turned [deg]
  int m_silent = 0;      ///< seconds in which nothing has left
};

}  // namespace veerwatch
