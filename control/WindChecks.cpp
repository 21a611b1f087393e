#include "control/WindChecks.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kMinute = 60000;  // [ms]

double Apart(double a, double b) { return std::fabs(static_cast<double>(FoldRelative(a - b))); }

}  // namespace

void UnchangedCheck::Add(float angle, float speed, std::int64_t moment) {
  if (m_count == 0 || angle != m_angle || speed != m_speed) {
    m_angle = angle;
    m_speed = speed;
    m_count = 0;
    m_since = moment;
  }
  m_count = std::min(m_count + 1, kTimes);
  m_latest = moment;
}

void JumpCheck::Add(double direction, std::int64_t moment) {
  constexpr double kJump = 60.0;        // [deg]
  constexpr std::int64_t kBack = 4000;  // [ms]
  constexpr double kMemory = 5000.0;    // [ms]
  const double apart = m_direction ? static_cast<double>(FoldRelative(direction - *m_direction)) : 0.0;
  if (std::fabs(apart) > kJump) {
    m_away = m_away.value_or(moment);
    if (moment - *m_away < kBack) {
      return;
    }
    m_direction = direction;
  } else {
    if (m_away && moment - *m_away < kBack) {
      m_jumps[m_next] = moment;
      m_next = (m_next + 1) % kTimes;
    }
    const auto passed = static_cast<double>(moment - m_latest);
    m_direction = m_direction.value_or(direction) + apart * passed / (passed + kMemory);
  }
  m_away.reset();
  m_latest = moment;
}

bool JumpCheck::Stands(std::int64_t moment) const {
  return std::all_of(m_jumps.begin(), m_jumps.end(),
                     [moment](const auto& jump) { return jump && moment - *jump <= kMinute; });
}

bool TalkerCheck::Late(const One& one, std::int64_t moment) {
  constexpr std::int64_t kLate = 4000;  // [ms]
  return !one.At || moment - *one.At > kLate;
}

bool TalkerCheck::Differ(const Said& a, const Said& b) {
  constexpr double kAngle = 10.0;  // [deg]
  constexpr float kSpeed = 3.0F;   // [kn]
  const bool angle =
      a.Angle && b.Angle && Apart(static_cast<double>(*a.Angle), static_cast<double>(*b.Angle)) > kAngle;
  return angle || (a.Speed && b.Speed && std::fabs(*a.Speed - *b.Speed) > kSpeed);
}

void TalkerCheck::Add(const Talker& talker, const Said& said, std::int64_t moment) {
  One* mine = std::find_if(m_of.begin(), m_of.end(),
                           [&talker](const One& one) { return one.At && one.Name == talker; });
  if (mine == m_of.end()) {
    mine = std::find_if(m_of.begin(), m_of.end(), [moment](const One& one) { return Late(one, moment); });
  }
  if (mine == m_of.end()) {
    return;  // a third one
  }
  *mine = {talker, said, moment};
  const One& other = mine == m_of.data() ? m_of[1] : m_of[0];
  if (Late(other, moment) || !Differ(said, other.Latest)) {
    m_apart.reset();
  } else if (!m_apart) {
    m_apart = moment;
  }
}

bool TalkerCheck::Stands(std::int64_t moment) const {
  constexpr std::int64_t kLong = 10000;  // [ms]
  return m_apart && moment - *m_apart >= kLong && !Late(m_of[0], moment) && !Late(m_of[1], moment);
}

bool TalkerCheck::IsFirst(const Talker& talker, std::int64_t moment) const {
  return Late(m_of[0], moment) || m_of[0].Name == talker;
}

}  // namespace veerwatch
