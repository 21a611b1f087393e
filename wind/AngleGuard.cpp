#include "wind/AngleGuard.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr double kDegree = std::numbers::pi / 180.0;

constexpr double kVaneLag = 1.2;        // [s]
constexpr double kDirectionTime = 3.0;  // [s]
constexpr double kTrimTime = 60.0;      // [s]
constexpr double kMeanTime = 15.0;      // [s] of the heading that a sea yaws her about
constexpr double kYawTime = 120.0;      // [s]
constexpr double kYawTimes = 3.5;       // of its standard deviation: the furthest that is reckoned with
constexpr double kDeadAstern = 180.0;   // [deg]
constexpr double kMostTrim = 15.0;      // [deg]
constexpr double kZone = 10.0;          // [deg] around a limit
constexpr double kFree = 5.0;           // [deg] around the held angle
constexpr double kAbeam = 90.0;         // [deg]

double Fold(double angle) { return static_cast<double>(FoldRelative(angle)); }

double Weight(double seconds, double time) { return 1.0 - std::exp(-seconds / time); }

}  // namespace

void AngleGuard::Direction::Add(double angle, double weight) {
  X += (std::cos(angle * kDegree) - X) * weight;
  Y += (std::sin(angle * kDegree) - Y) * weight;
}

double AngleGuard::Direction::Angle() const { return std::atan2(Y, X) / kDegree; }

void AngleGuard::Feed(const Sample& sample, double seconds) {
  const bool first = !m_fed;
  m_fed = true;
  m_heading = sample.Heading;
  const double ahead = Fold(sample.Bearing - sample.Heading);
  if (first) {
    m_vaneHeading = m_heading;
    m_mean = m_heading;
  } else {
    m_mean += Fold(m_heading - m_mean) * Weight(seconds, kMeanTime);
    const double yaw = Fold(m_heading - m_mean);
    m_yaw += (yaw * yaw - m_yaw) * Weight(seconds, kYawTime);
    m_vaneHeading += Fold(m_heading - m_vaneHeading) * Weight(seconds, kVaneLag);
    if (std::fabs(ahead) < kMostTrim) {
      m_trim += (ahead - m_trim) * Weight(seconds, kTrimTime);
    }
  }
  const double weight = first ? 1.0 : Weight(seconds, kDirectionTime);
  m_apparent.Add(m_vaneHeading + sample.Apparent, weight);
  m_true.Add(m_vaneHeading + sample.True, weight);
}

double AngleGuard::Within(const Limits& limits, TrackSide side, double held) {
  const double size = std::fabs(held);
  const double kept =
      side == TrackSide::Apparent ? std::max(size, limits.LeastApparent) : std::min(size, limits.LargestTrue);
  return kept == size ? held : std::copysign(kept, held);
}

AngleGuard::Answer AngleGuard::Bound(const Limits& limits, TrackSide side, double held, double bearing,
                                     double mostAhead) const {
  Answer answer;
  answer.Bearing = bearing;
  if (!m_fed) {
    return answer;
  }
  const double sign = std::signbit(held) ? -1.0 : 1.0;
  const double size = std::fabs(held);
  const double course = bearing - m_trim;
  // The angles to which the bearing leads, positive on the side of the held one.
  const double apparent = Fold(sign * (m_apparent.Angle() - course));
  const double trueWind = Fold(sign * (m_true.Angle() - course));
  double least = limits.LeastApparent;
  if (side == TrackSide::Apparent) {
    least = std::clamp(size - kFree, least, least + kZone);
  }
  double largest = std::clamp(kDeadAstern - kYawTimes * std::sqrt(m_yaw), kAbeam, limits.LargestTrue);
  if (side == TrackSide::True) {
    largest = std::clamp(size + kFree, largest - kZone, largest);
  }

  double away = 0.0;
  if (apparent < least && apparent > -kAbeam) {
    away = least - apparent;
    answer.Of = Risk::Pinching;
  }
  // Across the stern it goes on beyond 180.
  const double round = trueWind < -kAbeam ? trueWind + 360.0 : trueWind;
  if (round > largest) {
    away = largest - round;
    answer.Of = Risk::Gybe;
  }
  if (away == 0.0) {
    return answer;
  }
  const double ahead = Fold(bearing - sign * away - m_heading);
  answer.Bearing = m_heading + std::clamp(ahead, -mostAhead, mostAhead);
  answer.Corrected = true;
  return answer;
}

}  // namespace veerwatch
