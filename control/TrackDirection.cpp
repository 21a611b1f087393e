#include "control/TrackDirection.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr double kDegree = std::numbers::pi / 180.0;

constexpr double kVaneLag = 1.2;        // [s]
constexpr double kPilotLag = 4.0;       // [s], of the heading that is not on the wire
constexpr double kSpeedTime = 20.0;     // [s]
constexpr double kElsewhere = 60.0;     // [deg]
constexpr double kElsewhereTime = 4.0;  // [s]
constexpr double kBandwidthTimes = 4.0;
constexpr double kLeastLength = 0.1;
constexpr double kMostLength = 2.0;

constexpr double kAnswerTime = 0.95;  // [s]: a second, of winds that come a little early
constexpr double kNear = 12.0;        // [deg]
constexpr double kTrimTime = 60.0;    // [s]
constexpr double kMostTrim = 15.0;    // [deg]
constexpr double kOffsetTime = 8.0;   // [s]
constexpr double kFreshTime = 90.0;   // [s]
constexpr double kFreshTrim = 15.0;   // [s]
constexpr double kBiasTime = 200.0;   // [s]
constexpr double kMostBias = 10.0;    // [deg]
constexpr double kWorthMoving = 0.3;  // [deg]
constexpr double kWorthInAll = 1.8;   // [deg s]
constexpr double kStraight = 2.0;     // [deg] between the heading and that of the vane

double Fold(double angle) { return static_cast<double>(FoldRelative(angle)); }

/// 1 with the wind to be held from starboard, -1 from port.
double SideOf(const TrackDirection::Aim& aim) { return aim.Target < 0.0 ? -1.0 : 1.0; }

/// The weight of a sample `seconds` after the one before, for a time constant [s].
double Weight(double seconds, double time) { return 1.0 - std::exp(-seconds / time); }

}  // namespace

void TrackDirection::Feed(const Sample& sample, double seconds, double bandwidth) {
  if (!m_fed) {
    m_fed = true;
    m_heading = sample.Heading.value_or(sample.Bearing);
    m_vaneHeading = m_heading;
    m_windSpeed = sample.WindSpeed;
    m_boatSpeed = sample.BoatSpeed;
    m_offset = Fold(sample.Bearing - m_heading);
    const double direction = (m_heading + sample.WindAngle) * kDegree;
    m_x = std::cos(direction);
    m_y = std::sin(direction);
    return;
  }
  m_heading =
      sample.Heading.value_or(m_heading + Fold(sample.Bearing - m_heading) * Weight(seconds, kPilotLag));
  m_vaneHeading += Fold(m_heading - m_vaneHeading) * Weight(seconds, kVaneLag);
  m_offset += Fold(sample.Bearing - m_heading - m_offset) * Weight(seconds, kOffsetTime);
  m_windSpeed += (sample.WindSpeed - m_windSpeed) * Weight(seconds, kSpeedTime);
  m_boatSpeed += (sample.BoatSpeed - m_boatSpeed) * Weight(seconds, kSpeedTime);

  const double theta = m_vaneHeading + sample.WindAngle;
  const bool elsewhere = std::fabs(Fold(theta - Direction())) > kElsewhere;
  m_apart = elsewhere ? m_apart + seconds : 0.0;
  if (elsewhere && m_apart < kElsewhereTime) {
    return;
  }
  const double weight = elsewhere ? 1.0 : Weight(seconds, bandwidth / kBandwidthTimes);
  m_apart = 0.0;
  const double length = Length(sample.WindSpeed);
  m_x += (length * std::cos(theta * kDegree) - m_x) * weight;
  m_y += (length * std::sin(theta * kDegree) - m_y) * weight;
}

void TrackDirection::Start(double bearing) {
  Reset();
  const bool straight = m_fed && std::fabs(Fold(m_heading - m_vaneHeading)) < kStraight;
  m_trim = straight ? std::clamp(Fold(bearing - m_heading), -kMostTrim, kMostTrim) : 0.0;
  m_sinceAnswer = 0.0;
  m_fresh = 0.0;
}

void TrackDirection::Resume(double bearing) {
  const double bias = m_bias;
  Start(bearing);
  m_bias = bias;
  m_trim = std::clamp(m_offset, -kMostTrim, kMostTrim);
  m_fresh = kFreshTime;
}

void TrackDirection::Reset() {
  m_bias = 0.0;
  m_off = 0.0;
}

double TrackDirection::Length(double windSpeed) const {
  return m_windSpeed > 0.0 ? std::clamp(windSpeed / m_windSpeed, kLeastLength, kMostLength) : 1.0;
}

double TrackDirection::Direction() const { return std::atan2(m_y, m_x) / kDegree; }

double TrackDirection::TrueTarget(const Aim& aim) const {
  if (aim.Side == TrackSide::True) {
    return aim.Target;
  }
  const double share = m_windSpeed > 0.0 ? m_boatSpeed / m_windSpeed * std::sin(aim.Target * kDegree) : 0.0;
  return aim.Target + std::asin(std::clamp(share, -1.0, 1.0)) / kDegree + SideOf(aim) * m_bias;
}

std::optional<TrackDirection::Answer> TrackDirection::Step(const Aim& aim, double bearing,
                                                           const BearingLimits& limits, double seconds) {
  m_sinceAnswer += seconds;
  if (!m_fed || m_sinceAnswer < kAnswerTime) {
    return std::nullopt;
  }
  const double passed = std::min(std::exchange(m_sinceAnswer, 0.0), 2.0);
  m_fresh = std::max(0.0, m_fresh - passed);
  const double wanted = Direction() - TrueTarget(aim);
  const double error = Fold(wanted - m_heading);
  const LimitedBearing steer = Move(wanted + m_trim, bearing, limits, passed);
  if (std::fabs(error) < kNear && !steer.Bites) {
    const double time = m_fresh > 0.0 ? kFreshTrim : kTrimTime;
    m_trim = std::clamp(m_trim + error * passed / time, -kMostTrim, kMostTrim);
    if (aim.Side == TrackSide::Apparent && aim.ApparentMean) {
      m_bias = std::clamp(m_bias - SideOf(aim) * Fold(*aim.ApparentMean - aim.Target) * passed / kBiasTime,
                          -kMostBias, kMostBias);
    }
  }
  return Answer{steer, error};
}

LimitedBearing TrackDirection::Move(double goal, double bearing, const BearingLimits& limits,
                                    double seconds) {
  // The goal itself stays within Max Ahead of the heading.
  const double ahead = Fold(goal - m_heading);
  const double held = m_heading + std::clamp(ahead, -limits.MaxAhead, limits.MaxAhead);
  const bool beyond = std::fabs(ahead) > limits.MaxAhead;
  const double off = Fold(held - bearing);
  m_off += off * seconds;
  if (std::fabs(off) <= kWorthMoving && std::fabs(m_off) < kWorthInAll) {
    LimitedBearing waits;
    waits.Bearing = bearing;
    waits.ByAhead = waits.Bites = beyond;
    return waits;
  }
  m_off = 0.0;
  LimitedBearing steer = LimitBearing(bearing, held, m_heading, limits, seconds);
  steer.ByAhead = steer.ByAhead || beyond;
  steer.Bites = steer.Bites || steer.ByAhead;
  return steer;
}

}  // namespace veerwatch
