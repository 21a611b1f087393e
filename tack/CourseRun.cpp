#include "tack/CourseRun.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"
#include "wind/AngleGuard.h"

namespace veerwatch {

namespace {

constexpr int kSilence = 10;            // [s]
constexpr double kSame = 0.01;          // [deg]
constexpr double kAtRest = 0.7;         // [deg] that the held angle may be off
constexpr double kPace = 0.2;           // [deg/s], as slow as the polar angle moves it
constexpr double kTurnFrom = 5.0;       // [deg] off from where the boat turns at once
constexpr double kNoMorePrompt = 75.0;  // [s]
constexpr double kTold = 2.0;           // [deg] past the line from where it is said
constexpr double kBearingJump = 10.0;   // [deg]
constexpr double kPlaceJump = 0.3;      // [nm]
constexpr double kRangeJump = 0.5;      // [nm]
constexpr double kRangeShare = 0.05;
constexpr double kDegree = kPi / 180.0;
constexpr double kMinute = 60.0;

double Fold(double angle) { return static_cast<double>(FoldRelative(angle)); }

std::string Whole(double number) { return FormatNumber(ToSingle(number), "0"); }

CourseEnd EndOf(TurnFate why) {
  switch (why) {
    case TurnFate::NoWind:
    case TurnFate::NoInputData:
    case TurnFate::InputStopped:
      return CourseEnd::NoWind;
    case TurnFate::NoHeading:
      return CourseEnd::NoHeading;
    case TurnFate::NoOutput:
      return CourseEnd::NoOutput;
    case TurnFate::GoesOn:
    case TurnFate::Taken:
    case TurnFate::Stuck:
      break;
  }
  return CourseEnd::TurnEnded;
}

}  // namespace

std::string_view CourseEndText(CourseEnd why) {
  switch (why) {
    case CourseEnd::ByUser:
      break;
    case CourseEnd::Reached:
      return TrMark("Mark Reached");
    case CourseEnd::NoMark:
      return TrMark("No Waypoint");
    case CourseEnd::OtherMark:
      return TrMark("Another Waypoint");
    case CourseEnd::NoTrack:
      return TrMark("Not in Track");
    case CourseEnd::NoWind:
      return TrMark("No Wind");
    case CourseEnd::NoHeading:
      return TrMark("No Heading");
    case CourseEnd::NoOutput:
      return TrMark("No Output");
    case CourseEnd::NoPolar:
      return TrMark("the polar makes no way to the mark");
    case CourseEnd::OtherAngle:
      return TrMark("another angle was set");
    case CourseEnd::OtherSide:
      return TrMark("the other wind was chosen");
    case CourseEnd::PolarAngle:
      return TrMark("Polar Angle was chosen");
    case CourseEnd::TurnEnded:
      return TrMark("the turn was ended");
  }
  return {};
}

CourseRun::CourseRun(Parts parts) : m_parts(std::move(parts)), m_told(m_parts.Boat.Observers().Join(*this)) {}

double CourseRun::Held() const {
  return static_cast<double>(m_parts.Set.DesiredAngle[static_cast<std::size_t>(m_parts.Boat.Loop().Side())]);
}

std::optional<CourseEnd> CourseRun::Lost(const HelmNow& now) const {
  if (now.Mode != TrackMode::Track) {
    return CourseEnd::NoTrack;
  }
  if (!now.OutputOpen || m_silent >= kSilence) {
    return CourseEnd::NoOutput;
  }
  if (now.WindLost || !now.WindAngleTrue) {
    return CourseEnd::NoWind;
  }
  if (!now.Heading || now.Watch.Of(Watched::Heading).State == Freshness::Lost) {
    return CourseEnd::NoHeading;
  }
  return std::nullopt;
}

std::optional<CourseEnd> CourseRun::Begin() {
  End(CourseEnd::ByUser);
  const HelmNow now = m_parts.Boat.Now();
  m_sent = now.Sent;
  m_silent = 0;
  if (const auto why = Lost(now)) {
    return why;
  }
  const auto mark = m_parts.Mark();
  if (!mark) {
    return CourseEnd::NoMark;
  }
  if (mark->Range && *mark->Range <= kReached) {
    return CourseEnd::Reached;
  }
  m_sail.Begin();
  m_mark = mark;
  m_side = now.Side;
  m_held = Held();
  m_parts.Set.m_bWindPolar = false;
  m_runs = true;
  m_runs = Sail(now, *mark);
  return m_runs ? std::nullopt : std::optional(CourseEnd::NoPolar);
}

void CourseRun::End(CourseEnd why) {
  if (!m_runs) {
    return;
  }
  m_runs = false;
  m_turning = false;
  m_line.clear();
  m_prompt.clear();
  m_prompted = 0.0;
  m_due = false;
  m_answer = {};
  m_parts.Ended(why);
}

bool CourseRun::Jumps(const CourseMark& mark) const {
  if (!m_mark || mark.Range.has_value() != m_mark->Range.has_value()) {
    return m_mark.has_value();
  }
  const double turned = std::fabs(Fold(mark.Bearing - m_mark->Bearing));
  if (!mark.Range) {
    return turned > kBearingJump;
  }
  const double closer = std::fabs(*mark.Range - *m_mark->Range);
  const double nearest = std::min(*mark.Range, *m_mark->Range);
  const double across = 2.0 * nearest * std::sin(turned / 2.0 * kDegree);
  return closer > std::max(kRangeJump, kRangeShare * nearest) ||
         (turned > kBearingJump && across > kPlaceJump);
}

void CourseRun::OnTick() {
  if (!m_runs) {
    return;
  }
  const HelmNow now = m_parts.Boat.Now();
  const auto mark = m_parts.Mark();
  m_silent = now.Sent == std::exchange(m_sent, now.Sent) ? m_silent + 1 : 0;
  if (m_turning) {
    m_mark = mark;
    if (!m_parts.Turn.Running() && now.Mode != TrackMode::Track) {
      End(CourseEnd::TurnEnded);
    }
    return;
  }
  const bool dodges = m_parts.Boat.Functions().CanDodgeBack();
  if (const auto why = Lost(now)) {
    End(*why);
  } else if (!mark) {
    End(CourseEnd::NoMark);
  } else if (mark->Range && *mark->Range <= kReached) {
    End(CourseEnd::Reached);
  } else if (Jumps(*mark)) {
    End(CourseEnd::OtherMark);
  } else if (m_parts.Set.m_bWindPolar) {
    End(CourseEnd::PolarAngle);
  } else if (now.Side != m_side) {
    End(CourseEnd::OtherSide);
  } else if (!dodges && std::fabs(Fold(Held() - m_held)) > kSame) {
    End(CourseEnd::OtherAngle);
  } else {
    m_mark = mark;
    if (!Sail(now, *mark)) {
      End(CourseEnd::NoPolar);
    }
  }
}

bool CourseRun::Sail(const HelmNow& now, const CourseMark& mark) {
  const InstrumentData& data = m_parts.Boat.Data();
  CourseSail::Sense sense;
  sense.Heading = static_cast<double>(now.Heading.value_or(0.0F));
  sense.Wind = static_cast<double>(m_parts.Boat.Record().WindTrueUnsmoothed().Angle);
  sense.WindSpeed = static_cast<double>(data.WindSpeedTrue);
  if (data.BoatSpeedValid && !now.Watch.Of(Watched::BoatSpeed).Gone()) {
    sense.Speed = static_cast<double>(data.BoatSpeed);
  }
  sense.Bearing = mark.Bearing;
  sense.Range = mark.Range;
  sense.Port = m_held < 0.0;
  const auto answer = m_sail.Step(m_parts.Legs, sense, 1.0);
  if (!answer) {
    return false;
  }
  m_answer = *answer;
  if (m_answer.Hold && !m_parts.Boat.Functions().CanDodgeBack()) {
    Hold(*m_answer.Hold);
  }
  ShowLine(mark);
  ShowPrompt();
  m_parts.Changed();
  TurnByItself();
  return true;
}

double CourseRun::OnSide(double angle) const {
  const TrackSide side = m_parts.Boat.Loop().Side();
  double on = angle;
  if (side == TrackSide::Apparent) {
    float speed = 0.0F;
    float apparent = 0.0F;
    WindApparentFromTrue(ToSingle(m_sail.WindSpeed()), ToSingle(angle), ToSingle(m_sail.Speed()), speed,
                         apparent);
    on = static_cast<double>(apparent);
  }
  if (m_parts.Set.m_bWindGuard) {
    on = AngleGuard::Within({static_cast<double>(m_parts.Set.m_fWindLeastApparent),
                             static_cast<double>(m_parts.Set.m_fWindLargestTrue)},
                            side, on);
  }
  return on;
}

void CourseRun::Hold(double angle) {
  const double off = Fold(Held() - OnSide(angle));
  if (std::fabs(off) < kAtRest) {
    return;
  }
  const bool turns = std::fabs(off) > kTurnFrom;
  const double step = turns ? off : std::clamp(off, -kPace, kPace);
  m_parts.Boat.CourseHolds(Held() - step, turns);
  m_held = Held();
}

void CourseRun::ShowLine(const CourseMark& mark) {
  const double held = m_answer.Hold.value_or(static_cast<double>(m_parts.Boat.Data().WindAngleTrue));
  const std::string leg = m_answer.Straight ? Tr("Straight")
                          : m_held < 0.0    ? Tr("Port tack")
                                            : Tr("Starboard tack");
  const std::string there = mark.Range ? Filled(Tr("%1 nm"), {FormatNumber(ToSingle(*mark.Range), "0.0")})
                                       : FormatNumber(FoldBearing(mark.Bearing), "0") + " M";
  m_line = Filled(Tr("%1, %2 degrees, mark %3"), {leg, Whole(std::fabs(held)), there});
  if (m_answer.ToLine && *m_answer.ToLine > kPromptFrom) {
    m_line += Filled(Tr(", line in %1 min"), {Whole(std::ceil(*m_answer.ToLine / kMinute))});
  }
}

void CourseRun::ShowPrompt() {
  const bool stood = !m_prompt.empty();
  const bool soon = m_answer.ToLine && *m_answer.ToLine <= (stood ? kNoMorePrompt : kPromptFrom);
  const bool prompts = m_answer.Aim && (m_answer.Due || soon);
  const bool wasDue = std::exchange(m_due, prompts && m_answer.Due);
  m_prompt.clear();
  if (!prompts) {
    m_prompted = 0.0;
    return;
  }
  m_prompted += stood ? 1.0 : 0.0;
  m_prompt = m_answer.Turn == ManoeuvreKind::Tack ? Tr("Tack now (Enter)") : Tr("Jibe now (Enter)");
  if (!m_due) {
    m_prompt = Filled(Tr("In %1 s: %2"), {Whole(*m_answer.ToLine), m_prompt});
  }
  if (m_answer.Past >= kTold) {
    m_prompt = Filled(Tr("%1, %2 degrees past the line"), {m_prompt, Whole(m_answer.Past)});
  }
  if (!stood || (m_due && !wasDue)) {
    m_parts.Prompts();
  }
}

TurnPlan CourseRun::Plan() const {
  const TackSettings turns = m_parts.Turns();
  const auto index = static_cast<std::size_t>(m_answer.Turn);
  TurnAsk ask;
  ask.Kind = m_answer.Turn;
  ask.Overshoot = turns.Overshoot[index];
  ask.Rate = turns.Rate[index];
  TurnAim aim;
  aim.True = ToSingle(std::fabs(*m_answer.Aim));
  aim.Apparent = aim.True;
  if (m_parts.Boat.Loop().Side() == TrackSide::Apparent) {
    aim.Apparent = ToSingle(std::fabs(OnSide(*m_answer.Aim)));
  }
  ask.Aim = aim;
  return m_parts.Turn.Plan(ask);
}

void CourseRun::TurnNow() {
  if (m_prompt.empty()) {
    return;
  }
  const TurnPlan plan = Plan();
  if (!plan.Refusal.empty()) {
    return;
  }
  m_turning = true;
  m_prompt.clear();
  m_prompted = 0.0;
  m_due = false;
  m_line = PlanWords(plan);
  m_parts.Begin(plan);
  m_parts.Changed();
}

void CourseRun::TurnByItself() {
  // A gybe is never made unasked.
  const bool may = m_due && m_answer.Turn == ManoeuvreKind::Tack && m_prompted >= kWarned;
  if (may && m_parts.ByItself() && PlanQuestion(Plan(), WindCrossing::Bow).empty()) {
    TurnNow();
  }
}

void CourseRun::OnTrackMode(TrackMode mode) {
  if (!m_runs || mode == TrackMode::Switching) {
    return;
  }
  if (m_turning && mode == TrackMode::Track) {
    m_turning = false;
    m_sail.Turned();
    m_answer = {};
    m_side = m_parts.Boat.Loop().Side();
    m_held = Held();
  } else if (mode != TrackMode::Track && !(m_turning && mode == TrackMode::Manual)) {
    End(CourseEnd::NoTrack);
  }
}

void CourseRun::OnTrackSide(TrackSide side) {
  m_side = side;
  m_held = Held();
}

void CourseRun::OnTurnEnds(TurnFate why) {
  if (m_runs && m_turning) {
    End(EndOf(why));
  }
}

}  // namespace veerwatch
