#include "tack/TurnEngine.h"

#include <algorithm>
#include <cmath>

#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kLongestStep = 2.0;    // [s]
constexpr double kMostAhead = 90.0;     // [deg]
constexpr double kSilence = 6.0;        // [s], longer than a wind that is lost
constexpr double kAtTheEnd = 3.0;       // [deg] before the end of the overshoot
constexpr double kEasedOut = 0.1;       // [deg]
constexpr double kOffTime = 6.0;        // [s]
constexpr double kLeanTime = 15.0;      // [s]
constexpr double kMostOff = 15.0;       // [deg]
constexpr double kMostLean = 20.0;      // [deg]
constexpr double kMostLeanLate = 40.0;  // [deg] of a boat whose pilot pulls the other way on the other side
constexpr double kNear = 2.0;           // [deg] off the wind angle where the turn ends
constexpr double kLeftToTrack =
    10.0;                        // [deg] that Track makes up as well, in a wind that does not let her settle
constexpr double kSteady = 6.0;  // [s] near there
constexpr double kComesCloser = 1.0;   // [deg]
constexpr double kRest = 6.0;          // [s]
constexpr double kRestsWithin = 40.0;  // [deg]
constexpr double kPush = 10.0;         // [deg]
constexpr double kHalfCircle = 180.0;

std::string Figure(double degrees) { return FormatNumber(ToSingle(std::max(0.0, degrees)), "0"); }

}  // namespace

TurnSense TurnSenseOf(const HelmNow& now) {
  TurnSense sense;
  if (!now.Watch.Of(Watched::Heading).Gone()) {
    sense.Heading = now.Heading;
  }
  sense.Wind = now.WindAngleTrue;
  sense.OutputOpen = now.OutputOpen;
  sense.Sent = now.Sent;
  sense.SentBearing = now.Sentence.Bearing;
  return sense;
}

void TurnEngine::Begin(const TurnPlan& plan, const TurnSense& sense, double limit) {
  *this = TurnEngine();
  m_plan = plan;
  m_side = plan.Change < 0.0 ? -1.0 : 1.0;
  m_whole = std::fabs(plan.Change);
  m_past = std::max(0.0, m_whole + m_side * plan.Overshoot);
  const double off = std::fabs(plan.Wind);
  m_crossing = plan.Crossing == WindCrossing::Stern ? kHalfCircle - off : off;
  m_limit = std::max(limit, 2.0 * m_past / plan.Rate);
  m_heading = sense.Heading.value_or(0.0F);
  m_sent = sense.Sent;
  Enter(TurnStage::Turning);
}

float TurnEngine::BearingAt(double progress) const { return FoldBearing(m_plan.Bearing + m_side * progress); }

TurnFate TurnEngine::Step(const TurnSense& sense, double passed) {
  const double seconds = std::min(passed, kLongestStep);
  if (!sense.OutputOpen) {
    return TurnFate::NoOutput;
  }
  if (!sense.Heading) {
    return TurnFate::NoHeading;
  }
  Follow(sense, seconds);
  const bool heard = Hear(sense, seconds);
  if (m_silent >= kSilence) {
    return TurnFate::NoOutput;
  }
  LookAtStage(sense, seconds);
  if (m_stage == TurnStage::Done) {
    return TurnFate::GoesOn;
  }
  if (m_inStage > m_limit) {
    return TurnFate::Stuck;
  }
  if (heard) {
    const double most = m_plan.Rate * seconds;
    const double way = std::clamp(Goal() - m_progress, -most, most);
    m_progress =
        way > 0.0 ? std::clamp(m_turned + kMostAhead, m_progress, m_progress + way) : m_progress + way;
  }
  return TurnFate::GoesOn;
}

void TurnEngine::Follow(const TurnSense& sense, double seconds) {
  const float heading = sense.Heading.value_or(m_heading);
  const double turned = static_cast<double>(heading) - static_cast<double>(m_heading);
  m_turned += m_side * static_cast<double>(FoldRelative(turned));
  m_heading = heading;
  m_inStage += seconds;
  const double off = std::fabs(Goal() - m_turned);
  if (m_progress != Goal() || off < m_nearest - kComesCloser) {
    m_nearest = off;
    m_standing = 0.0;
  } else {
    m_standing += seconds;
  }
}

bool TurnEngine::Hear(const TurnSense& sense, double seconds) {
  m_silent += seconds;
  if (sense.Sent != m_sent) {
    m_silent = 0.0;
    // One that was made before the latest step may leave only now.
    if (sense.SentBearing == Bearing()) {
      m_heard = m_progress;
    }
    m_sent = sense.Sent;
  }
  return m_heard == m_progress;
}

bool TurnEngine::WindIsAcross(const TurnSense& sense) const {
  if (m_plan.Crossing == WindCrossing::None || !sense.Wind) {
    return m_plan.Crossing == WindCrossing::None;
  }
  return (*sense.Wind < 0.0F) != (m_plan.Wind < 0.0);
}

bool TurnEngine::Rests(double end) const {
  return m_standing >= kRest && m_heard == m_progress && std::fabs(end - m_turned) <= kRestsWithin;
}

void TurnEngine::Ease(const TurnSense& sense, double seconds) {
  const bool eased = m_easedOut || std::fabs(m_progress - m_whole) < kEasedOut;
  if (!sense.Wind || !eased) {
    return;
  }
  // Positive where she has to turn on.
  const double after = m_plan.Wind - m_plan.Change;
  const double off = m_side * static_cast<double>(FoldRelative(static_cast<double>(*sense.Wind) - after));
  if (!m_easedOut) {
    m_easedOut = true;
    m_off = off;
  }
  m_off += (off - m_off) * (1.0 - std::exp(-seconds / kOffTime));
  if (m_heard == m_progress) {
    const double most = m_inStage < m_limit / 2.0 ? kMostLean : kMostLeanLate;
    m_lean = std::clamp(m_lean + std::clamp(off, -kMostOff, kMostOff) * seconds / kLeanTime, -most, most);
  }
}

bool TurnEngine::Arrived(const TurnSense& sense, double seconds) {
  if (!m_easedOut || !WindIsAcross(sense)) {
    return false;
  }
  m_there = std::fabs(m_off) <= kNear ? m_there + seconds : 0.0;
  return m_there >= kSteady || (m_inStage >= m_limit / 2.0 && std::fabs(m_off) <= kLeftToTrack);
}

void TurnEngine::LookAtStage(const TurnSense& sense, double seconds) {
  const bool crosses = m_plan.Crossing != WindCrossing::None;
  if (m_stage == TurnStage::Turning && crosses && WindIsAcross(sense) && m_turned >= m_crossing / 2.0) {
    Enter(TurnStage::Through);
  } else if (m_stage == TurnStage::Turning && crosses && Rests(m_past) && m_pushed < kMostLeanLate) {
    // The wind has turned along with her.
    m_past += kPush;
    m_pushed += kPush;
    m_standing = 0.0;
  }
  if (m_stage == TurnStage::Through || (m_stage == TurnStage::Turning && !crosses)) {
    if (m_turned >= m_past - kAtTheEnd || Rests(m_past)) {
      Enter(TurnStage::Easing);
    }
  }
  if (m_stage == TurnStage::Easing) {
    Ease(sense, seconds);
    if (Arrived(sense, seconds)) {
      Enter(TurnStage::Done);
    }
  }
}

void TurnEngine::Enter(TurnStage stage) {
  m_stage = stage;
  m_inStage = 0.0;
  m_standing = 0.0;
  m_nearest = std::fabs(Goal() - m_turned);
}

std::string TurnEngine::StageText() const {
  switch (m_stage) {
    case TurnStage::Turning: {
      const double end = m_plan.Crossing == WindCrossing::None ? m_past : m_crossing;
      return Filled(Tr("Turning: %1 of %2 degrees"), {Figure(m_turned), Figure(end)});
    }
    case TurnStage::Through:
      return Filled(Tr("Through the wind: %1 of %2 degrees"), {Figure(m_turned), Figure(m_past)});
    case TurnStage::Easing:
      return Filled(Tr("Easing: %1 degrees to go"), {Figure(std::fabs(m_whole - m_turned))});
    case TurnStage::Done:
      break;
  }
  return Filled(Tr("Done: %1 degrees"), {Figure(m_turned)});
}

}  // namespace veerwatch
