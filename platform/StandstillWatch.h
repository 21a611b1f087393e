// Notices that the program stood still, or was suspended with its computer: what arrived meanwhile has waited
// and is old. Whoever takes in characters beats all the time and asks before he hands any on.
#pragma once

#include <cstdint>
#include <limits>
#include <utility>

namespace veerwatch {

class StandstillWatch {
 public:
  /// Time between two beats from which on it was a standstill: more than this [ms].
  static constexpr std::int64_t kStandstill = 2000;
  /// Time from the end of a standstill on in which what arrives had waited [ms]: a driver hands over all that
  /// it holds.
  static constexpr std::int64_t kOldTime = 300;

  /// Begins at `now` [ms, steady]: nothing is old.
  void Restart(std::int64_t now) {
    m_beat = now;
    m_oldUntil = kNever;
  }

  /// The program runs at `now` [ms, steady]. True when it stood still before.
  bool Beat(std::int64_t now) {
    const bool stoodStill = now - std::exchange(m_beat, now) > kStandstill;
    if (stoodStill) {
      m_oldUntil = now + kOldTime;
    }
    return stoodStill;
  }

  /// What arrives at `now` [ms, steady] had waited.
  bool Old(std::int64_t now) const { return now < m_oldUntil; }

 private:
  static constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::min();

  std::int64_t m_beat = 0;
  std::int64_t m_oldUntil = kNever;
};

}  // namespace veerwatch
