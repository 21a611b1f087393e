// Random numbers that the test chooses.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "platform/Random.h"

namespace veerwatch {

class FixedRandom final : public RandomSource {
 public:
  /// Gives `numbers` [0, 1) in turn, over and over. The one number 0.5 is no noise at all.
  explicit FixedRandom(std::vector<double> numbers = {0.5}) : m_numbers(std::move(numbers)) {}

  std::size_t Draws = 0;  ///< numbers given so far

  double Next() override { return m_numbers[Draws++ % m_numbers.size()]; }

 private:
  std::vector<double> m_numbers;
};

}  // namespace veerwatch
