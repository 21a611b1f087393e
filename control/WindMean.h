// The wind angle of the last ten seconds as a vector mean: what is held when tracking begins, instead of the
// latest gust.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace veerwatch {

class WindMean {
 public:
  /// A wind angle [deg, any turn] that came at `moment` [ms of the steady clock].
  void Add(double angle, std::int64_t moment);

  /// The mean of the ten seconds before the newest sample [deg, (-180, 180]]; nothing without a sample.
  std::optional<double> Mean() const;

  void Clear() { m_count = 0; }

 private:
  static constexpr std::size_t kMost = 128;  // of ten a second there are a hundred

  struct Sample {
    double X = 0.0;  // the angle as a unit vector
    double Y = 0.0;
    std::int64_t Moment = 0;
  };

  std::array<Sample, kMost> m_samples{};  // a ring
  std::size_t m_next = 0;
  std::size_t m_count = 0;
};

}  // namespace veerwatch
