#include "wind/ShiftCheck.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr double kDegree = std::numbers::pi / 180.0;
constexpr double kNowTime = 10.0;      // [s]
constexpr double kRecentTime = 120.0;  // [s]
constexpr double kBack = 5.0;          // [deg] within the limit, and the shift is over

double Weight(double seconds, double time) { return 1.0 - std::exp(-seconds / time); }

}  // namespace

void ShiftCheck::Mean::Add(double direction, double weight) {
  X += (std::cos(direction * kDegree) - X) * weight;
  Y += (std::sin(direction * kDegree) - Y) * weight;
}

double ShiftCheck::Mean::Angle() const { return std::atan2(Y, X) / kDegree; }

void ShiftCheck::Feed(double direction, double seconds, const Limits& limits) {
  const bool first = !m_fed;
  m_fed = true;
  m_known += seconds;
  m_weight += seconds;
  m_now.Add(direction, first ? 1.0 : Weight(seconds, kNowTime));
  // Until it is full, each counts alike.
  m_recent.Add(direction, first ? 1.0 : std::max(Weight(seconds, kRecentTime), seconds / m_known));
  m_since.Add(direction, first || m_weight <= 0.0 ? 1.0 : seconds / m_weight);
  const auto off = std::fabs(static_cast<double>(FoldRelative(m_now.Angle() - m_since.Angle())));
  m_stands = m_stands && off > limits.Degrees - kBack;
  m_beyond = off > limits.Degrees ? m_beyond + seconds : 0.0;
  m_stands = m_stands || (m_beyond > 0.0 && m_beyond >= limits.Seconds);
}

void ShiftCheck::Begin() {
  m_since = m_recent;
  m_weight = std::min(m_known, kRecentTime);
  m_beyond = 0.0;
  m_stands = false;
}

std::optional<double> ShiftCheck::Shift() const {
  if (!m_stands) {
    return std::nullopt;
  }
  return static_cast<double>(FoldRelative(m_now.Angle() - m_since.Angle()));
}

bool IsLift(double shift, double angle) { return (shift < 0.0) == std::signbit(angle); }

}  // namespace veerwatch
