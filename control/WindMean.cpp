#include "control/WindMean.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace veerwatch {

namespace {

constexpr std::int64_t kSpan = 10000;  // [ms]
constexpr double kLeastSpeed = 0.1;    // [kn]
constexpr double kDegree = std::numbers::pi / 180.0;

}  // namespace

void WindMean::Add(double angle, double speed, std::int64_t moment) {
  const double length = std::max(speed, kLeastSpeed);
  m_samples[m_next] = {length * std::cos(angle * kDegree), length * std::sin(angle * kDegree), moment};
  m_next = (m_next + 1) % kMost;
  m_count = std::min(m_count + 1, kMost);
}

std::optional<double> WindMean::Mean() const {
  if (m_count == 0) {
    return std::nullopt;
  }
  const std::int64_t newest = m_samples[(m_next + kMost - 1) % kMost].Moment;
  double x = 0.0;
  double y = 0.0;
  for (std::size_t i = 1; i <= m_count; ++i) {
    const Sample& sample = m_samples[(m_next + kMost - i) % kMost];
    if (newest - sample.Moment > kSpan) {
      break;
    }
    x += sample.X;
    y += sample.Y;
  }
  return std::atan2(y, x) / kDegree;
}

}  // namespace veerwatch
