#include "control/WindRate.h"

#include <algorithm>

namespace veerwatch {

namespace {

constexpr std::int64_t kSpan = 20000;     // [ms]
constexpr std::int64_t kLeast = 5000;     // [ms]
constexpr std::int64_t kSilence = 15000;  // [ms]
constexpr double kMillisecondsPerSecond = 1000.0;

}  // namespace

void WindRate::Add(std::int64_t moment) {
  if (m_count > 0 && (moment < At(0) || moment - At(0) > kSilence)) {
    m_count = 0;
  }
  m_moments[m_next] = moment;
  m_next = (m_next + 1) % kMost;
  m_count = std::min(m_count + 1, kMost);
}

std::optional<double> WindRate::Rate() const {
  if (m_count == 0) {
    return std::nullopt;
  }
  const std::int64_t newest = At(0);
  std::size_t taken = 1;
  while (taken < m_count && newest - At(taken) <= kSpan) {
    ++taken;
  }
  // Those of the oldest moment came before the span that is measured.
  const std::int64_t oldest = At(taken - 1);
  std::size_t after = taken;
  while (after > 0 && At(after - 1) == oldest) {
    --after;
  }
  const std::int64_t span = newest - oldest;
  if (span <= 0 || (span < kLeast && m_count < kMost)) {
    return std::nullopt;
  }
  return static_cast<double>(after) * kMillisecondsPerSecond / static_cast<double>(span);
}

}  // namespace veerwatch
