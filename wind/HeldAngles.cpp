#include "wind/HeldAngles.h"

#include <cmath>
#include <utility>

#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr double kLarge = 10.0;  // [deg]
constexpr double kSame = 0.01;   // [deg]

double Apart(double a, double b) { return std::fabs(static_cast<double>(FoldRelative(a - b))); }

}  // namespace

void HeldAngles::Holds(const Angle& now) {
  const std::optional<Angle> before = std::exchange(m_now, now);
  if (!before || (before->Side == now.Side && Apart(before->Degrees, now.Degrees) < kSame)) {
    return;
  }
  m_dodge.reset();
  if (before->Side != now.Side || std::signbit(before->Degrees) != std::signbit(now.Degrees)) {
    m_last.reset();
  } else if (Apart(before->Degrees, now.Degrees) > kLarge + kSame) {
    m_last = before;
  }
}

void HeldAngles::Dodged(const Angle& before, const Angle& now, double degrees) {
  if (!m_dodge) {
    m_dodge = Dodge{before, 0.0};
  }
  m_dodge->Degrees += degrees;
  m_now = now;
}

void HeldAngles::Moved(const Angle& now) {
  m_dodge.reset();
  m_now = now;
}

}  // namespace veerwatch
