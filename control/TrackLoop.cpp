#include "control/TrackLoop.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "control/TrackGains.h"
#include "instruments/MathLib.h"

namespace veerwatch {

bool TrackLoop::StartTracking() {
  if (!(m_settings.m_fTrackBandwidth > 0.0F)) {
    return false;
  }
  const auto gains = TrackGainsFor(static_cast<double>(m_settings.m_fTrackBandwidth),
                                   static_cast<double>(m_settings.m_fTrackDamping));
  if (!gains) {
    return false;
  }
  m_tuning = {m_settings.m_fTrackBandwidth, m_settings.m_fTrackDamping};
  m_controller.Start(*gains);
  m_stepped.reset();
  return true;
}

LoopStep TrackLoop::ControlStep(const Moment& now) {
  const TrackMode mode = m_settings.m_eTrackMode;
  LoopStep step;
  if (mode == TrackMode::Off || mode == TrackMode::Switching) {
    return step;
  }
  step.Ran = true;
  float& apparent = Desired(TrackSide::Apparent);
  float& trueWind = Desired(TrackSide::True);
  if (mode == TrackMode::Setup || mode == TrackMode::Manual) {
    apparent = m_data.WindAngleApparent;
    trueWind = m_data.WindAngleTrue;
    step.Followed = true;
  }
  step.DeltaApparent =
      FoldRelative(static_cast<double>(m_data.WindAngleApparent) - static_cast<double>(apparent));
  step.DeltaTrue = FoldRelative(static_cast<double>(m_data.WindAngleTrue) - static_cast<double>(trueWind));

  if (mode == TrackMode::Track) {
    step.Tracked = true;
    step.Error = m_side == TrackSide::Apparent ? step.DeltaApparent : step.DeltaTrue;
    Control(step.Error, now);
    step.Rings = TestAlarm(step.Error);
  }
  step.Sends = mode != TrackMode::Setup;
  m_previousAutoPilot = m_settings.m_fAutoPilot;
  return step;
}

double TrackLoop::Elapsed(const Moment& now) {
  constexpr double kMillisecondsPerSecond = 1000.0;
  const Moment before = std::exchange(m_stepped, now).value_or(now);
  return std::max(0.0, static_cast<double>(now.Steady - before.Steady) / kMillisecondsPerSecond);
}

void TrackLoop::Control(float error, const Moment& now) {
  const double bearing = m_controller.Step(static_cast<double>(error), Elapsed(now)) +
                         static_cast<double>(m_settings.m_fAutoPilot);
  if (std::isfinite(bearing)) {
    m_settings.m_fAutoPilot = FoldBearing(bearing);
  }
}

LoopStep::Alarm TrackLoop::TestAlarm(float error) {
  if (m_settings.m_bTrackAlarm && std::fabs(error) > m_settings.m_fTrackAlarmLimit) {
    m_alarmActive = true;
    return LoopStep::Alarm::Raised;
  }
  return WithdrawAlarm() ? LoopStep::Alarm::Over : LoopStep::Alarm::AsBefore;
}

bool TrackLoop::TrackSteerTo(float change) {
  if (m_settings.m_eTrackMode != TrackMode::Track || !std::isfinite(change)) {
    return false;
  }
  if (m_data.WindApparentValid && m_data.WindTrueValid) {
    TurnHeldWind(change);
  } else {
    SetDesired(m_side, static_cast<double>(Desired(m_side)) - static_cast<double>(change));
  }
  SetAutoPilot(static_cast<double>(m_settings.m_fAutoPilot) + static_cast<double>(change));
  m_controller.Reset();
  return true;
}

void TrackLoop::TurnHeldWind(float change) {
  float speed = 0.0F;
  float trueAngle = Desired(TrackSide::True);
  if (m_side == TrackSide::Apparent) {
    WindTrueFromApparent(m_data.WindSpeedApparent, Desired(TrackSide::Apparent), m_data.BoatSpeed, speed,
                         trueAngle);
  }
  SetDesired(TrackSide::True, static_cast<double>(trueAngle) - static_cast<double>(change));
  float apparent = 0.0F;
  WindApparentFromTrue(m_data.WindSpeedTrue, Desired(TrackSide::True), m_data.BoatSpeed, speed, apparent);
  SetDesired(TrackSide::Apparent, static_cast<double>(apparent));
}

void TrackLoop::SetAutoPilot(double bearing) {
  if (std::isfinite(bearing)) {
    m_settings.m_fAutoPilot = FoldBearing(bearing);
  }
}

void TrackLoop::SetDesired(TrackSide side, double angle) {
  if (std::isfinite(angle)) {
    Desired(side) = FoldRelative(angle);
  }
}

}  // namespace veerwatch
