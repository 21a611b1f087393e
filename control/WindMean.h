// The wind angle of the last ten seconds, as that of the mean of the winds' vectors: what is held when
// tracking begins, instead of the latest gust. What a swinging masthead adds to the wind cancels out in it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace veerwatch {

class WindMean {
 public:
  /// A wind [deg, any turn], [kn] that came at `moment` [ms of the steady clock]. Calms count a little.
  void Add(double angle, double speed, std::int64_t moment);

  /// The mean of the ten seconds before the newest sample [deg, (-180, 180]]; nothing without a sample.
  std::optional<double> Mean() const;

  void Clear() { m_count = 0; }

 private:
  static constexpr std::size_t kMost = 128;  // of ten a second there are a hundred

  struct Sample {
    double X = 0.0;  // the wind as a vector [kn]
    double Y = 0.0;
    std::int64_t Moment = 0;
  };

  std::array<Sample, kMost> m_samples{};  // a ring
  std::size_t m_next = 0;
  std::size_t m_count = 0;
};

}  // namespace veerwatch
