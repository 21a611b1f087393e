#include "control/Manoeuvre.h"

#include <algorithm>
#include <cmath>

#include "instruments/MathLib.h"

namespace veerwatch {

namespace {

constexpr double kHalfCircle = 180.0;

/// The turn from one bearing to another [deg, (-180, 180]].
double Turn(double from, double to) { return static_cast<double>(FoldRelative(to - from)); }

}  // namespace

bool Manoeuvre::Open(float newHeading, float heading, float autoPilot, float windAngle) {
  if (!std::isfinite(newHeading) || !std::isfinite(heading) || !std::isfinite(autoPilot) ||
      !std::isfinite(windAngle)) {
    return false;
  }
  m_start = static_cast<double>(heading);
  m_pilotOffset = Turn(m_start, static_cast<double>(autoPilot));
  m_change = 0.0;
  m_progress = 0.0;

  const float before = FoldRelative(static_cast<double>(windAngle));
  m_wind = static_cast<double>(before);
  const float after = FoldRelative(m_wind - (static_cast<double>(newHeading) - m_start));
  const float low = std::min(before, after);
  const float high = std::max(before, after);
  if (-90.0F < low && low < 0.0F && 0.0F < high && high < 90.0F) {
    m_kind = ManoeuvreKind::Tack;
    m_direction = after <= 0.0F ? 1 : -1;
  } else if (low < -90.0F && high > 90.0F) {
    m_kind = ManoeuvreKind::Jibe;
    m_direction = after <= 0.0F ? -1 : 1;
  } else {
    m_kind = ManoeuvreKind::Steer;
    m_direction = 0;
  }
  return true;
}

double Manoeuvre::Planned(float newHeading, float overshoot) const {
  const double turn = std::isfinite(newHeading) ? Turn(m_start, static_cast<double>(newHeading)) : 0.0;
  const double past = std::isfinite(overshoot) ? static_cast<double>(overshoot) * m_direction : 0.0;
  return std::clamp(turn + past, turn > 0.0 ? 0.0 : -kHalfCircle, turn < 0.0 ? 0.0 : kHalfCircle);
}

void Manoeuvre::Start(float newHeading, float overshoot, float rate) {
  m_change = Planned(newHeading, overshoot);
  m_progress = 0.0;
  const double speed = std::isfinite(rate) && rate > 0.0F ? static_cast<double>(rate) : kUsualRate;
  m_rate = m_change < 0.0 ? -speed : speed;
}

bool Manoeuvre::Step(double seconds) {
  m_progress += m_rate * seconds;
  const bool done = std::fabs(m_progress) >= std::fabs(m_change);
  if (done) {
    m_progress = m_change;
  }
  return done;
}

float Manoeuvre::Heading() const { return FoldBearing(m_start + m_progress); }

float Manoeuvre::AutoPilot() const { return FoldBearing(m_start + m_progress + m_pilotOffset); }

}  // namespace veerwatch
