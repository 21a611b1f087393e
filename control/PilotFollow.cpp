#include "control/PilotFollow.h"

#include <algorithm>
#include <cmath>

#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr std::size_t kMean = 7;           // [s] over which the heading is averaged
constexpr std::size_t kTurn = 6;           // [s] over which a turn is seen
constexpr double kFar = 15.0;              // [deg]
constexpr double kTurns = 9.0;             // [deg] in kTurn, at least
constexpr double kNear = 10.0;             // [deg]
constexpr std::int64_t kStaysNear = 3000;  // [ms]
constexpr std::int64_t kSecond = 1000;     // [ms]

double Fold(double angle) { return static_cast<double>(FoldRelative(angle)); }

}  // namespace

void PilotFollow::Heading(float heading) {
  const auto shown = static_cast<double>(heading);
  m_latest = m_latest ? *m_latest + Fold(shown - *m_latest) : shown;
  m_sum += *m_latest;
  ++m_count;
}

void PilotFollow::Pause() {
  PilotFollow fresh;
  fresh.m_offset = m_offset;
  fresh.m_learned = m_learned;
  *this = fresh;
}

std::optional<double> PilotFollow::Offset() const {
  constexpr std::int64_t kKnown = 120 * kSecond;
  return m_learned >= kKnown ? std::optional(m_offset) : std::nullopt;
}

void PilotFollow::KeepSecond() {
  m_seconds[m_kept % kKept] = m_count > 0 ? m_sum / m_count : *m_latest;
  m_missing[m_kept % kKept] = Fold(*m_bearing - m_seconds[m_kept % kKept]);
  ++m_kept;
  m_sum = 0.0;
  m_count = 0;
}

double PilotFollow::Mean(const Seconds& values, std::size_t from) const {
  const std::size_t end = m_kept - from;
  const std::size_t begin = end - std::min({end, kMean, kKept - from});
  double sum = 0.0;
  for (std::size_t i = begin; i < end; ++i) {
    sum += values[i % kKept];
  }
  return sum / static_cast<double>(end - begin);
}

void PilotFollow::Look(std::int64_t moment) {
  constexpr std::int64_t kAlmost = kSecond / 2;
  if (!m_bearing || !m_latest || (m_lookedAt && moment - *m_lookedAt < kAlmost)) {
    return;
  }
  KeepSecond();
  const double heading = Mean(m_seconds, 0);
  const double off = Fold(*m_bearing - heading);
  Judge(Fold(off - m_offset), heading, moment);
  Learn(off, moment);
  m_lookedAt = moment;
}

void PilotFollow::Judge(double off, double heading, std::int64_t moment) {
  if (m_verdict == FollowVerdict::Unknown) {
    m_verdict = FollowVerdict::Follows;
  }
  const double far = std::fabs(off);
  // She may pass the bearing, or take it along, while she turns the wrong way.
  const bool passes = m_verdict == FollowVerdict::TurnsAway && std::fabs(Turned()) >= kTurns;
  if (far > kNear || passes) {
    m_near.reset();
  } else if (!m_near) {
    m_near = moment;
  }
  if (m_near && moment - *m_near >= kStaysNear) {
    m_verdict = FollowVerdict::Follows;
  }
  LookForTurn(moment);
  if (far <= kFar) {
    m_chase.reset();
  } else {
    Approach(off, heading, moment);
    JudgeTurn(far, m_chase->Side, moment);
  }
}

void PilotFollow::Approach(double off, double heading, std::int64_t moment) {
  constexpr double kCloser = 3.0;        // [deg]
  constexpr double kCloserShare = 0.15;  // of what is missing
  const double side = off > 0.0 ? 1.0 : -1.0;
  if (!m_chase || m_chase->Side != side) {
    m_chase = {moment, moment, side, heading, 0.0};
  } else if (side * (heading - m_chase->Best) >= std::max(kCloser, kCloserShare * std::fabs(off))) {
    m_chase->Best = heading;
    m_chase->Closer = moment;
  }
  m_chase->Most = std::max(m_chase->Most, std::fabs(off));
}

double PilotFollow::Turned() const {
  return m_kept > kMean + kTurn ? Mean(m_seconds, 0) - Mean(m_seconds, kTurn) : 0.0;
}

double PilotFollow::Patience() const {
  constexpr double kLeast = 10000.0;  // [ms]
  constexpr double kEach = 500.0;     // [ms] for each degree
  constexpr double kMost = 15000.0;   // [ms]
  const double mean = Mean(m_seconds, 0);
  const std::size_t count = std::min(m_kept, kMean);
  double squares = 0.0;
  for (std::size_t i = m_kept - count; i < m_kept; ++i) {
    squares += std::pow(m_seconds[i % kKept] - mean, 2.0);
  }
  return std::min(kLeast + kEach * std::sqrt(squares / static_cast<double>(count)), kMost);
}

// A bearing that is kept near the heading turns with a boat that turns away from it, so each second's heading
// is held against the bearing of that second.
void PilotFollow::LookForTurn(std::int64_t moment) {
  constexpr double kMissing = 10.0;       // [deg]
  constexpr std::int64_t kGoesOn = 6000;  // [ms]
  const double missing = Mean(m_missing, 0) - m_offset;
  if (std::fabs(missing) < kMissing || -std::copysign(1.0, missing) * Turned() < kTurns) {
    m_away.reset();
    return;
  }
  m_away = m_away.value_or(moment);
  if (moment - *m_away >= kGoesOn) {
    m_verdict = FollowVerdict::TurnsAway;
    m_turned = moment;
  }
}

void PilotFollow::JudgeTurn(double far, double side, std::int64_t moment) {
  constexpr std::int64_t kStill = 3000;     // [ms] since she turned away, and is taken to do so still
  constexpr std::int64_t kStopped = 15000;  // [ms] the same, where that was said
  constexpr std::int64_t kTakes = 15000;    // [ms] for any turn, and beside that
  constexpr double kTakesEach = 500.0;      // [ms] for each degree
  constexpr double kAcross = 150.0;         // [deg] where a pilot that turns the wrong way comes to rest
  if (-side * Turned() >= kTurns || (m_verdict == FollowVerdict::TurnsAway && far > kAcross)) {
    m_turned = moment;
  }
  const std::int64_t holds = m_verdict == FollowVerdict::TurnsAway ? kStopped : kStill;
  const bool turnsAway = m_turned && moment - *m_turned <= holds;
  if (Fails() || static_cast<double>(moment - m_chase->Closer) >= Patience()) {
    m_verdict = turnsAway ? FollowVerdict::TurnsAway : FollowVerdict::DoesNotFollow;
  } else if (static_cast<double>(moment - m_chase->Since - kTakes) > kTakesEach * m_chase->Most) {
    m_verdict = FollowVerdict::Slow;
  }
}

void PilotFollow::Learn(double off, std::int64_t moment) {
  constexpr double kTime = 120000.0;    // [ms]
  constexpr double kMost = 10.0;        // [deg]
  constexpr double kRests = 8.0;        // [deg]
  constexpr double kSame = 5.0;         // [deg] by which the bearing may have changed
  constexpr double kForgets = 10000.0;  // [ms] the time constant of the bearing before
  const double passed = static_cast<double>(m_lookedAt ? moment - *m_lookedAt : 0);
  m_before =
      m_before ? *m_before + Fold(*m_bearing - *m_before) * std::min(1.0, passed / kForgets) : *m_bearing;
  const bool rests = m_verdict == FollowVerdict::Follows && !m_chase && m_kept > kMean &&
                     std::fabs(Fold(*m_bearing - *m_before)) < kSame && std::fabs(off - m_offset) < kRests;
  if (rests) {
    m_offset += (off - m_offset) * std::min(1.0, passed / kTime);
    m_offset = std::clamp(m_offset, -kMost, kMost);
    m_learned += static_cast<std::int64_t>(passed);
  }
}

}  // namespace veerwatch
