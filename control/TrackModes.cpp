#include "control/TrackModes.h"

#include "platform/Language.h"

namespace veerwatch {

std::string_view TrackRefusalText(TrackRefusal why) {
  switch (why) {
    case TrackRefusal::NoGains:
      return TrMark("Track needs a bandwidth above 0 and a usable damping");
    case TrackRefusal::NoHeading:
      return TrMark("Track Needs a Heading");
  }
  return {};
}

void TrackModes::Leave() {
  m_settings.m_eTrackMode = TrackMode::Switching;
  if (m_loop.WithdrawAlarm()) {
    m_observer.OnAlarmOver();
  }
}

void TrackModes::Enter(TrackMode mode) {
  m_settings.m_eTrackMode = mode;
  m_observer.OnTrackMode(mode);
}

void TrackModes::TrackSetOff() {
  Leave();
  m_receiver.NmeaStop();
  m_pilot.PilotStop();
  Enter(TrackMode::Off);
}

void TrackModes::TrackSetSetup() {
  Leave();
  m_pilot.PilotRelease();
  m_receiver.NmeaStart();
  m_pilot.PilotStart();
  Enter(TrackMode::Setup);
}

void TrackModes::TrackSetManual() {
  Leave();
  m_pilot.PilotStart();
  Enter(TrackMode::Manual);
}

void TrackModes::TrackSetTrack(const std::optional<float>& angle) {
  const bool lacksHeading = m_loop.LacksHeading();
  if (lacksHeading || !m_loop.StartTracking(angle)) {
    m_observer.OnTrackMode(m_settings.m_eTrackMode);
    m_observer.OnTrackRefused(lacksHeading ? TrackRefusal::NoHeading : TrackRefusal::NoGains);
    return;
  }
  Leave();
  m_pilot.PilotStart();
  Enter(TrackMode::Track);
}

TrackControls ControlsFor(TrackMode mode, TrackSide side) {
  TrackControls controls;
  if (mode == TrackMode::Off || mode == TrackMode::Switching) {
    return controls;
  }
  controls.AutoPilot = mode != TrackMode::Track;
  controls.Side = true;
  controls.DesiredApparent = side == TrackSide::Apparent;
  controls.DesiredTrue = side == TrackSide::True;
  controls.NudgeApparent = controls.DesiredApparent && mode == TrackMode::Track;
  controls.NudgeTrue = controls.DesiredTrue && mode == TrackMode::Track;
  return controls;
}

}  // namespace veerwatch
