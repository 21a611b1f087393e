// Watches that both winds keep coming, in every mode. Standard library only.
#pragma once

#include <algorithm>
#include <array>
#include <utility>

namespace veerwatch {

class WindWatch {
 public:
  /// An apparent, or a true wind has come.
  void Apparent() { m_age[0] = 0; }
  void True() { m_age[1] = 0; }

  /// A second has passed. True when Lost() is now another than before.
  bool Tick() {
    for (int& age : m_age) {
      age = std::min(age + 1, kLost);
    }
    const bool lost = std::max(m_age[0], m_age[1]) == kLost;
    return std::exchange(m_lost, lost) != lost;
  }

  /// At the latest tick one of them had not come for four seconds.
  bool Lost() const { return m_lost; }

 private:
  static constexpr int kLost = 5;  // the first tick may come at once
  std::array<int, 2> m_age{};      // ticks since each has come
  bool m_lost = false;
};

}  // namespace veerwatch
