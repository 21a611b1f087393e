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

void TrackLoop::ControlStep(const Moment& now) {
  const TrackMode mode = m_settings.m_eTrackMode;
  if (mode == TrackMode::Off || mode == TrackMode::Switching) {
    return;
  }
  float& apparent = Desired(TrackSide::Apparent);
  float& trueWind = Desired(TrackSide::True);
  if (mode == TrackMode::Setup || mode == TrackMode::Manual) {
    apparent = m_data.WindAngleApparent;
    trueWind = m_data.WindAngleTrue;
    ShowDesired();
  }
  const float deltaApparent =
      FoldRelative(static_cast<double>(m_data.WindAngleApparent) - static_cast<double>(apparent));
  const float deltaTrue =
      FoldRelative(static_cast<double>(m_data.WindAngleTrue) - static_cast<double>(trueWind));
  m_listener.OnDelta(deltaApparent, deltaTrue);

  if (mode == TrackMode::Track) {
    const float error = m_side == TrackSide::Apparent ? deltaApparent : deltaTrue;
    Control(error, now);
    m_listener.OnPilotDelta(error);
    m_listener.OnAutoPilot(m_settings.m_fAutoPilot);
    if (m_settings.m_bTrackAlarm) {
      TestAlarm(error);
    } else {
      WithdrawAlarm();
    }
  }
  if (mode != TrackMode::Setup) {
    m_pilot.PilotSend(m_settings.m_fAutoPilot);
    m_listener.OnPilotHeading(m_settings.m_fAutoPilot);
  }
  m_previousAutoPilot = m_settings.m_fAutoPilot;
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

void TrackLoop::TestAlarm(float error) {
  if (std::fabs(error) > m_settings.m_fTrackAlarmLimit) {
    m_alarmActive = true;
    m_listener.OnAlarm(m_side, error);
  } else {
    WithdrawAlarm();
  }
}

void TrackLoop::WithdrawAlarm() {
  if (m_alarmActive) {
    m_alarmActive = false;
    m_listener.OnAlarmOver();
  }
}

void TrackLoop::TrackSteerTo(float change) {
  if (m_settings.m_eTrackMode != TrackMode::Track || !std::isfinite(change)) {
    return;
  }
  if (m_data.WindApparentValid && m_data.WindTrueValid) {
    TurnHeldWind(change);
  } else {
    SetDesired(m_side, static_cast<double>(Desired(m_side)) - static_cast<double>(change));
  }
  SetAutoPilot(static_cast<double>(m_settings.m_fAutoPilot) + static_cast<double>(change));
  m_listener.OnAutoPilot(m_settings.m_fAutoPilot);
  m_controller.Reset();
  ShowDesired();
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
