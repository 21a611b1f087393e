// When a port that is not open is tried again. Whoever opens a port counts its ticks here.
#pragma once

#include <algorithm>

namespace veerwatch {

class ReopenPause {
 public:
  /// Pauses in ticks, above 0: the first one, and the longest to which they double, one after the other,
  /// while every try fails.
  explicit constexpr ReopenPause(int first = kFirst, int longest = kFirst)
      : m_first(first), m_longest(longest), m_pause(first), m_left(first) {}

  /// The port was just tried for the first time.
  constexpr void Restart() {
    m_pause = m_first;
    m_left = m_first;
  }

  /// One tick. True when the port, which is `open` or not, is to be tried now. While it is open the pauses
  /// run on from the first, so that it is missed for no longer than that.
  constexpr bool Tick(bool open) {
    if (--m_left > 0) {
      return false;
    }
    m_pause = open ? m_first : std::min(2 * m_pause, m_longest);
    m_left = m_pause;
    return !open;
  }

 private:
  static constexpr int kFirst = 4;

  int m_first;
  int m_longest;
  int m_pause;
  int m_left;
};

}  // namespace veerwatch
