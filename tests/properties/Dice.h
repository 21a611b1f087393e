// Whole random numbers.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/Random.h"

namespace veerwatch {

class Dice {
 public:
  explicit Dice(std::uint64_t seed) : m_random(seed) {}

  /// A number from 0 up to 1, without 1.
  double Part() { return m_random.Next(); }

  /// A whole number from `least` to `most`.
  int Within(int least, int most) {
    return least + static_cast<int>(Part() * static_cast<double>(most - least + 1));
  }

  template <class T, std::size_t N>
  T OneOf(const T (&choices)[N]) {
    return choices[static_cast<std::size_t>(Within(0, static_cast<int>(N) - 1))];
  }

 private:
  SeededRandom m_random;
};

}  // namespace veerwatch
