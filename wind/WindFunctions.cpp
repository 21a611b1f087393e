#include "wind/WindFunctions.h"

#include <cmath>
#include <utility>

#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kFresh = 4000;       // [ms]
constexpr std::int64_t kRiskStays = 10000;  // [ms]
constexpr double kGuardedTime = 10.0;       // [s]
constexpr double kTold = 3.0;               // [deg] by which the guard corrects before it says so
constexpr double kUpwind = 70.0;            // [deg] of true wind angle
constexpr double kDownwind = 80.0;          // [deg]
constexpr double kSame = 0.01;              // [deg]

double Fold(double angle) { return static_cast<double>(FoldRelative(angle)); }

}  // namespace

AngleGuard::Limits WindFunctions::GuardLimits() const {
  return {static_cast<double>(m_settings.m_fWindLeastApparent),
          static_cast<double>(m_settings.m_fWindLargestTrue)};
}

HeldAngles::Angle WindFunctions::Held() const {
  return {m_loop.Side(), static_cast<double>(Held(m_loop.Side()))};
}

bool WindFunctions::HeadingFresh(const Moment& now) const {
  return m_record.Data().HeadingValid && m_record.Age(RecordValue::Heading, now).value_or(kFresh) < kFresh;
}

WindFunctions::Did WindFunctions::Before(const LoopInput& input) {
  Did did;
  Feed(input);
  const double seconds = m_passes.Next(input.Now);
  if (!Tracks()) {
    m_tracked = false;
    m_polarOn = false;
    m_known.reset();
    m_angles.Clear();
    m_risk = AngleGuard::Risk::None;
    return did;
  }
  FollowUser(did);
  if (!input.Stands) {
    ChooseSide(input.Now, did);
    StepPolar(seconds, did);
  }
  KeepHeld(did);
  m_known = Held();
  return did;
}

void WindFunctions::Feed(const LoopInput& input) {
  if (!m_settings.m_bWindGuard && !m_settings.m_bWindShift) {
    if (std::exchange(m_feeds, false)) {
      m_guard.Clear();
      m_shift = {};
      m_winds.Restart();
    }
    return;
  }
  if (!input.BringsTrue || !HeadingFresh(input.Now)) {
    return;
  }
  m_feeds = true;
  const double seconds = m_winds.Next(input.Now);
  const InstrumentData& data = m_record.Data();
  const auto trueAngle = static_cast<double>(m_record.WindTrueUnsmoothed().Angle);
  const auto heading = static_cast<double>(data.Heading);
  m_guard.Feed({static_cast<double>(data.WindAngleApparent), trueAngle, heading,
                static_cast<double>(m_settings.m_fAutoPilot)},
               seconds);
  m_shift.Feed(
      heading + trueAngle, seconds,
      {static_cast<double>(m_settings.m_fWindShiftLimit), static_cast<double>(m_settings.m_fWindShiftTime)});
}

// What the user, a turn or the watch did since the pass before.
void WindFunctions::FollowUser(Did& did) {
  const bool begins = !m_tracked;
  m_tracked = true;
  const HeldAngles::Angle held = Held();
  m_angles.Holds(held);
  const bool changed =
      !m_known || m_known->Side != held.Side || std::fabs(Fold(m_known->Degrees - held.Degrees)) > kSame;
  if (begins || changed) {
    m_shift.Begin();
  }
  if (begins || (m_settings.m_bWindPolar && !m_polarOn)) {
    const auto angle = m_loop.MeanAngle(TrackSide::True);
    m_polar.Begin(angle.value_or(held.Degrees));
    m_edge.reset();
  } else if (m_settings.m_bWindPolar && changed && !m_angles.Away()) {
    m_settings.m_bWindPolar = false;
    did.Says = WindSays::PolarByHand;
  }
  m_polarOn = m_settings.m_bWindPolar;
}

void WindFunctions::ChooseSide(const Moment& now, Did& did) {
  if (!m_settings.m_bWindSide || m_angles.Away() || m_watch.SpeedStuck(now) ||
      !m_watch.Values().Within(Watched::BoatSpeed, kFresh, now)) {
    return;
  }
  const auto mean = m_loop.MeanAngle(TrackSide::True);
  if (!mean) {
    return;
  }
  const double size = std::fabs(*mean);
  const bool toApparent = m_loop.Side() == TrackSide::True && size < kUpwind;
  const bool toTrue = m_loop.Side() == TrackSide::Apparent && size > kDownwind;
  if ((toApparent || toTrue) && m_loop.FollowSide(toApparent ? TrackSide::Apparent : TrackSide::True)) {
    did.Side = true;
    did.Desired = true;
    m_angles.Moved(Held());
  }
}

void WindFunctions::StepPolar(double seconds, Did& did) {
  if (!m_settings.m_bWindPolar || m_angles.Away()) {
    return;
  }
  const InstrumentData& data = m_record.Data();
  const auto answer =
      m_polar.Step(m_polarSource, static_cast<double>(m_settings.m_fWindLargestTrue),
                   {static_cast<double>(data.WindSpeedTrue), static_cast<double>(data.BoatSpeed),
                    m_loop.Side(), static_cast<double>(Held(m_loop.Side()))},
                   seconds);
  if (!answer) {
    m_settings.m_bWindPolar = false;
    m_polarOn = false;
    did.Says = WindSays::PolarNone;
    return;
  }
  if (answer->AtEdge && !m_edge.value_or(false)) {
    did.Says = WindSays::PolarEdge;
  }
  m_edge = answer->AtEdge;
  m_loop.SetDesired(m_loop.Side(), answer->Held);
  m_angles.Moved(Held());
  did.Desired = true;
}

void WindFunctions::KeepHeld(Did& did) {
  if (!m_settings.m_bWindGuard) {
    return;
  }
  const HeldAngles::Angle held = Held();
  const double kept = AngleGuard::Within(GuardLimits(), held.Side, held.Degrees);
  if (kept != held.Degrees) {
    m_loop.SetDesired(held.Side, kept);
    m_angles.Moved(Held());
    did.Desired = true;
    if (!m_settings.m_bWindPolar) {
      did.Says = WindSays::GuardHolds;
    }
  }
}

void WindFunctions::After(const LoopInput& input, LoopStep& step) {
  if (!m_settings.m_bWindGuard || !step.Tracked || input.Stands || !HeadingFresh(input.Now)) {
    return;
  }
  const auto bearing = static_cast<double>(m_settings.m_fAutoPilot);
  const HeldAngles::Angle held = Held();
  const AngleGuard::Answer answer = m_guard.Bound(GuardLimits(), held.Side, held.Degrees, bearing,
                                                  static_cast<double>(m_settings.m_fTrackMaxAhead));
  m_guarded *= std::exp(-m_corrections.Next(input.Now) / kGuardedTime);
  if (!answer.Corrected) {
    return;
  }
  const double more = Fold(answer.Bearing - bearing);
  m_loop.SetAutoPilot(answer.Bearing);
  step.ByGuard = true;
  step.Correction = FoldRelative(static_cast<double>(step.Correction) + more);
  m_guarded += std::fabs(more);
  if (m_guarded > kTold) {
    m_risk = answer.Of;
    m_riskAt = input.Now.Steady;
  }
}

AngleGuard::Risk WindFunctions::Risk(const Moment& now) const {
  const bool recent = now.Steady - m_riskAt < kRiskStays;
  return Tracks() && m_settings.m_bWindGuard && recent ? m_risk : AngleGuard::Risk::None;
}

std::optional<double> WindFunctions::Shift() const {
  return Tracks() && m_settings.m_bWindShift ? m_shift.Shift() : std::nullopt;
}

void WindFunctions::Report(const Moment& now, Watch::Around& around) const {
  const AngleGuard::Risk risk = Risk(now);
  around.Pinching = risk == AngleGuard::Risk::Pinching;
  around.Gybing = risk == AngleGuard::Risk::Gybe;
  around.Shift = Shift();
  around.Lifts = around.Shift && IsLift(*around.Shift, static_cast<double>(m_record.Data().WindAngleTrue));
}

bool WindFunctions::Dodge(double degrees) {
  if (!Tracks()) {
    return false;
  }
  const HeldAngles::Angle before = Held();
  m_angles.Holds(before);
  if (std::signbit(Fold(before.Degrees - degrees)) != std::signbit(before.Degrees)) {
    return false;
  }
  if (!m_loop.TrackSteerTo(ToSingle(degrees))) {
    return false;
  }
  m_angles.Dodged(before, Held(), degrees);
  m_known = Held();
  return true;
}

bool WindFunctions::DodgeBack() {
  if (!CanDodgeBack()) {
    return false;
  }
  const HeldAngles::Dodge away = *m_angles.Away();
  if (!m_loop.TrackSteerTo(ToSingle(-away.Degrees))) {
    return false;
  }
  // The other side's angle is what follows; this one is exactly what it was.
  m_loop.SetDesired(away.Before.Side, away.Before.Degrees);
  m_angles.Moved(Held());
  m_known = Held();
  return true;
}

bool WindFunctions::CourseHolds(double angle, bool turns) {
  const HeldAngles::Angle before = Held();
  if (!Tracks() || (turns && !m_loop.TrackSteerTo(ToSingle(Fold(before.Degrees - angle))))) {
    return false;
  }
  m_loop.SetDesired(before.Side, angle);
  m_angles.Moved(Held());
  m_known = Held();
  return true;
}

bool WindFunctions::LastAngle() {
  if (!CanLastAngle()) {
    return false;
  }
  const HeldAngles::Angle last = *m_angles.Last();
  const HeldAngles::Angle now = Held();
  if (last.Side != now.Side || !m_loop.TrackSteerTo(ToSingle(Fold(now.Degrees - last.Degrees)))) {
    return false;
  }
  m_loop.SetDesired(last.Side, last.Degrees);
  return true;
}

}  // namespace veerwatch
