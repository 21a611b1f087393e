#include "control/TrackLoop.h"

#include <cmath>

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
  m_trackGainIntegral = gains->Integral;
  m_trackGainProportional = gains->Proportional;
  m_trackIntegral = 0.0;
  return true;
}

void TrackLoop::ControlStep() {
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
    Control(error);
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

void TrackLoop::Control(float error) {
  const double bearing = (static_cast<double>(error) + m_trackIntegral) * m_trackGainProportional +
                         static_cast<double>(m_settings.m_fAutoPilot);
  const double integral = m_trackIntegral + static_cast<double>(error) * m_trackGainIntegral;
  // An accumulator that has run out of range starts anew instead of blocking the loop for good.
  m_trackIntegral = std::isfinite(integral) ? integral : 0.0;
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
  m_trackIntegral = 0.0;
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
