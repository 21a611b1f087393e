#include "wind/PolarAngle.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "instruments/MathLib.h"
#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr double kSpeedTime = 30.0;  // [s]
constexpr double kPace = 0.2;        // [deg/s]: a degree in five seconds
constexpr double kAbeam = 90.0;      // [deg]

}  // namespace

void PolarAngle::Begin(double angle) {
  m_upwind = std::fabs(angle) < kAbeam;
  m_first = true;
}

std::optional<PolarAngle::Answer> PolarAngle::Step(const BestCourseSource& polar, double largest,
                                                   const Sample& sample, double seconds) {
  const double weight = std::exchange(m_first, false) ? 1.0 : 1.0 - std::exp(-seconds / kSpeedTime);
  m_windSpeed += (sample.WindSpeed - m_windSpeed) * weight;
  m_boatSpeed += (sample.BoatSpeed - m_boatSpeed) * weight;
  const std::optional<BestCourse> best = polar ? polar(m_windSpeed, m_upwind) : std::nullopt;
  if (!best || !std::isfinite(best->Angle)) {
    return std::nullopt;
  }
  double goal = std::min(best->Angle, largest);
  if (sample.Side == TrackSide::Apparent) {
    float speed = 0.0F;
    float angle = 0.0F;
    WindApparentFromTrue(ToSingle(m_windSpeed), ToSingle(goal), ToSingle(m_boatSpeed), speed, angle);
    goal = static_cast<double>(std::fabs(angle));
  }
  const double size = std::fabs(sample.Held);
  const double most = kPace * seconds;
  return Answer{std::copysign(size + std::clamp(goal - size, -most, most), sample.Held), best->AtEdge};
}

}  // namespace veerwatch
