// How many wind sentences come a second: what a bandwidth of the method Sentence has to be measured by.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace veerwatch {

class WindRate {
 public:
  /// A wind sentence came at `moment` [ms of the steady clock]. After a silence, or on a clock that runs
  /// back, it is the first one.
  void Add(std::int64_t moment);

  /// Sentences a second over the last twenty seconds [1/s, above 0]; nothing before five seconds are
  /// measured.
  std::optional<double> Rate() const;

 private:
  static constexpr std::size_t kMost = 512;

  std::int64_t At(std::size_t back) const { return m_moments[(m_next + kMost - 1 - back) % kMost]; }

  std::array<std::int64_t, kMost> m_moments{};  // a ring
  std::size_t m_next = 0;
  std::size_t m_count = 0;
};

}  // namespace veerwatch
