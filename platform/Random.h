// Uniform random numbers for the simulator's noise.
#pragma once

#include <cstdint>
#include <random>

namespace veerwatch {

class RandomSource {
 public:
  virtual ~RandomSource() = default;
  /// The next number, uniform in [0, 1).
  virtual double Next() = 0;
};

/// The same seed gives the same numbers on every machine.
class SeededRandom final : public RandomSource {
 public:
  explicit SeededRandom(std::uint64_t seed) : m_engine(seed) {}
  double Next() override {
    constexpr double kOneOver2To53 = 1.0 / 9007199254740992.0;
    return static_cast<double>(m_engine() >> 11U) * kOneOver2To53;
  }

 private:
  std::mt19937_64 m_engine;
};

}  // namespace veerwatch
