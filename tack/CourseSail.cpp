#include "tack/CourseSail.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr double kDegree = std::numbers::pi / 180.0;
constexpr double kHalfCircle = 180.0;
constexpr double kSecondsInHour = 3600.0;
constexpr double kMeanTime = 30.0;     // [s] of wind and speed
constexpr double kAfterTurn = 15.0;    // [s] in which the vane settles
constexpr double kLeast = 0.1;         // [kn] of boat speed that leads anywhere
constexpr double kAstern = 170.0;      // [deg] from here on a straight way belongs to either tack
constexpr double kMostAstern = 175.0;  // [deg] that is held there
constexpr double kNoMoreDue = 3.0;     // [deg] by which the line has moved off again

double Fold(double angle) { return static_cast<double>(FoldRelative(angle)); }

}  // namespace

std::optional<double> SecondsToLine(double range, double bearing, double course, double line, double speed) {
  const double between = Fold(course - line);
  const double side = between < 0.0 ? -1.0 : 1.0;
  const double off = side * Fold(bearing - line);
  if (off <= 0.0) {
    return 0.0;
  }
  // From the course on she goes away from it.
  if (!(speed > kLeast) || off >= std::fabs(between) || std::fabs(between) >= kHalfCircle) {
    return std::nullopt;
  }
  const double way = range * std::sin(off * kDegree) / std::sin(std::fabs(between) * kDegree);
  return way / speed * kSecondsInHour;
}

double CourseSail::WindFrom() const { return std::atan2(m_windY, m_windX) / kDegree; }

void CourseSail::Turned() {
  m_two.reset();
  m_due = false;
  m_wait = kAfterTurn;
}

void CourseSail::Feed(const Sense& sense, double seconds) {
  m_wait = std::max(0.0, m_wait - seconds);
  const bool first = !std::exchange(m_fed, true);
  const double weight = first ? 1.0 : 1.0 - std::exp(-seconds / kMeanTime);
  if (m_wait == 0.0) {
    const double from = (sense.Heading + sense.Wind) * kDegree;
    m_windX += (std::cos(from) - m_windX) * weight;
    m_windY += (std::sin(from) - m_windY) * weight;
    m_windSpeed += (sense.WindSpeed - m_windSpeed) * weight;
  }
  if (sense.Speed) {
    m_speed = m_speedKnown ? m_speed + (*sense.Speed - m_speed) * weight : *sense.Speed;
  }
  m_speedKnown = sense.Speed.has_value();
}

std::optional<CourseSail::Answer> CourseSail::Step(const MarkLegsSource& polar, const Sense& sense,
                                                   double seconds) {
  Feed(sense, seconds);
  const double from = WindFrom();
  const double side = sense.Port ? -1.0 : 1.0;
  MarkAsk ask{sense.Bearing, from, m_windSpeed, std::copysign(sense.Wind, side)};
  const std::optional<MarkLegs> legs = polar ? polar(ask) : std::nullopt;
  if (!legs || !std::isfinite(legs->Now) || !std::isfinite(legs->Other)) {
    return std::nullopt;
  }
  Answer answer;
  const bool astern = !legs->Two && std::fabs(legs->Now) >= kAstern;
  if (astern || side * legs->Now > 0.0) {
    answer.Straight = !legs->Two;
    answer.Hold = astern ? side * std::min(std::fabs(legs->Now), kMostAstern) : legs->Now;
    m_two = legs->Two && side * legs->Other < 0.0 ? legs : std::nullopt;
    if (m_two) {
      answer.Aim = m_two->Other;
    }
  } else {
    // The ledger sails the other tack.
    if (m_two) {
      answer.Hold = m_two->Now;
    }
    answer.Aim = legs->Now;
  }
  if (!answer.Aim) {
    m_due = false;
    return answer;
  }
  FindLine(sense, answer);
  const bool bow = std::fabs(answer.Hold.value_or(sense.Wind)) + std::fabs(*answer.Aim) <= kHalfCircle;
  answer.Turn = bow ? ManoeuvreKind::Tack : ManoeuvreKind::Jibe;
  return answer;
}

void CourseSail::FindLine(const Sense& sense, Answer& answer) {
  if (!m_two) {
    answer.Due = true;
    return;
  }
  const double course = WindFrom() - m_two->Now;
  const double line = WindFrom() - m_two->Other;
  const double side = Fold(course - line) < 0.0 ? -1.0 : 1.0;
  const double off = side * Fold(sense.Bearing - line);
  m_due = off <= 0.0 || (m_due && off < kNoMoreDue);
  answer.Due = m_due;
  answer.Past = std::max(0.0, -off);
  if (m_due) {
    answer.ToLine = 0.0;
  } else if (sense.Range && m_speedKnown) {
    answer.ToLine = SecondsToLine(*sense.Range, sense.Bearing, course, line, m_speed);
  }
}

}  // namespace veerwatch
