#include "control/TrackLoop.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "control/TrackGains.h"
#include "instruments/MathLib.h"

namespace veerwatch {

namespace {

constexpr double kFarOff = 15.0;         // [deg]
constexpr float kLeastBandwidth = 1.0F;  // [s], of settings that give no time constant

constexpr std::size_t At(TrackSide side) { return side == TrackSide::True ? 1 : 0; }

}  // namespace

bool TrackLoop::CanTrack() const {
  const auto above0 = [](float value) { return value > 0.0F && std::isfinite(value); };
  const bool bandwidth = above0(m_settings.m_fTrackBandwidth);
  const bool limits = above0(m_settings.m_fTrackMaxAhead) && above0(m_settings.m_fTrackMaxRate);
  const bool gains = bandwidth && TrackGainsFor(static_cast<double>(m_settings.m_fTrackBandwidth),
                                                static_cast<double>(m_settings.m_fTrackDamping));
  switch (m_settings.m_eTrackMethod) {
    case TrackMethod::Sentence:
      return gains;
    case TrackMethod::Clock:
      return gains && limits;
    case TrackMethod::Direction:
      return bandwidth && limits;
  }
  return false;
}

bool TrackLoop::LacksHeading() const {
  return m_settings.m_eTrackMethod != TrackMethod::Sentence && (!m_data.HeadingValid || !m_headingFresh);
}

bool TrackLoop::StartTracking(const std::optional<float>& angle) {
  if (!CanTrack()) {
    return false;
  }
  m_method = m_settings.m_eTrackMethod;
  m_tuning = {m_settings.m_fTrackBandwidth, m_settings.m_fTrackDamping, m_method};
  m_limits = {static_cast<double>(m_settings.m_fTrackMaxAhead),
              static_cast<double>(m_settings.m_fTrackMaxRate)};
  const TrackGains gains =
      TrackGainsFor(static_cast<double>(m_tuning.Bandwidth), static_cast<double>(m_tuning.Damping))
          .value_or(TrackGains());
  m_controller.Start(gains);
  m_clock.Start(gains);
  m_tracked.Restart();
  m_alarmError = 0.0F;
  const bool begins = m_settings.m_eTrackMode != TrackMode::Track;
  if (begins) {
    m_luff = 0.0;
  }
  if (angle) {
    SetDesired(m_side, static_cast<double>(*angle));
    m_direction.Resume(static_cast<double>(m_settings.m_fAutoPilot));
    return true;
  }
  if (begins && m_method != TrackMethod::Sentence) {
    HoldMean(TrackSide::Apparent);
    HoldMean(TrackSide::True);
    const double off = static_cast<double>(m_settings.m_fAutoPilot) - static_cast<double>(m_data.Heading);
    if (m_data.HeadingValid && std::fabs(FoldRelative(off)) > static_cast<float>(kFarOff)) {
      SetAutoPilot(static_cast<double>(m_data.Heading));
    }
  }
  m_direction.Start(static_cast<double>(m_settings.m_fAutoPilot));
  return true;
}

bool TrackLoop::HoldMean(TrackSide side) {
  const auto mean = m_means[At(side)].Mean();
  if (mean) {
    SetDesired(side, *mean);
  }
  return mean.has_value();
}

bool TrackLoop::Side(TrackSide side) {
  const bool other = std::exchange(m_side, side) != side;
  if (!other || m_method == TrackMethod::Sentence || m_settings.m_eTrackMode != TrackMode::Track) {
    return false;
  }
  ForgetErrors();
  m_tracked.Restart();
  return HoldMean(side);
}

std::optional<double> TrackLoop::MeanAngle(TrackSide side) const { return m_means[At(side)].Mean(); }

bool TrackLoop::FollowSide(TrackSide side) {
  const auto from = MeanAngle(m_side);
  const auto to = MeanAngle(side);
  if (!from || !to) {
    return false;
  }
  const float off = FoldRelative(static_cast<double>(Desired(m_side)) - *from);
  SetDesired(side, *to + static_cast<double>(off));
  m_side = side;
  m_direction.Reset();
  m_tracked.Restart();
  return true;
}

bool TrackLoop::HoldApparent() {
  if (!HoldMean(TrackSide::Apparent)) {
    return false;
  }
  m_side = TrackSide::Apparent;
  ForgetErrors();
  m_tracked.Restart();
  return true;
}

void TrackLoop::BeginAt(double heading) {
  ForgetErrors();
  m_direction.Start(heading);
  SetAutoPilot(heading);
}

void TrackLoop::Luff(double degrees) {
  const bool begins = m_luff == 0.0;
  m_luff = std::copysign(degrees, static_cast<double>(Desired(m_side)));
  if (begins) {
    SetAutoPilot(static_cast<double>(m_settings.m_fAutoPilot) + m_luff);
  }
}

void TrackLoop::ForgetErrors() {
  m_controller.Reset();
  m_clock.Reset();
  m_direction.Reset();
}

LoopStep TrackLoop::ControlStep(const LoopInput& input) {
  const TrackMode mode = m_settings.m_eTrackMode;
  LoopStep step;
  if (mode == TrackMode::Off || mode == TrackMode::Switching) {
    return step;
  }
  step.Ran = true;
  m_headingFresh = input.HeadingFresh;
  m_windRate.Add(input.Now.Steady);
  Listen(input);
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

  const double seconds = m_passes.Next(input.Now);
  if (mode == TrackMode::Track) {
    step.Tracked = true;
    const float error = m_side == TrackSide::Apparent ? step.DeltaApparent : step.DeltaTrue;
    if (input.Stands) {
      step.Error = error;
    } else {
      Control(m_luff == 0.0 ? error : FoldRelative(static_cast<double>(error) + m_luff), input, step);
    }
    step.Rings = TestAlarm(error, seconds);
    step.AlarmError = m_alarmError;
  }
  step.Sends = mode != TrackMode::Setup;
  m_previousAutoPilot = m_settings.m_fAutoPilot;
  return step;
}

void TrackLoop::Listen(const LoopInput& input) {
  if (input.BringsApparent) {
    m_means[At(TrackSide::Apparent)].Add(static_cast<double>(m_data.WindAngleApparent),
                                         static_cast<double>(m_data.WindSpeedApparent), input.Now.Steady);
  }
  m_trueSeconds = 0.0;
  if (!input.BringsTrue) {
    return;
  }
  const LoopInput::Wind wind =
      input.TrueWind.value_or(LoopInput::Wind{m_data.WindAngleTrue, m_data.WindSpeedTrue});
  m_means[At(TrackSide::True)].Add(static_cast<double>(wind.Angle), static_cast<double>(wind.Speed),
                                   input.Now.Steady);
  if (m_settings.m_eTrackMethod != TrackMethod::Direction && m_method != TrackMethod::Direction) {
    return;
  }
  m_trueSeconds = m_winds.Next(input.Now);
  m_direction.Feed({static_cast<double>(wind.Angle), static_cast<double>(wind.Speed),
                    m_data.BoatSpeedValid ? static_cast<double>(m_data.BoatSpeed) : 0.0, Heading(input),
                    static_cast<double>(m_settings.m_fAutoPilot)},
                   m_trueSeconds, DirectionBandwidth());
}

TrackMethod TrackLoop::Method() const {
  return m_settings.m_eTrackMode == TrackMode::Track ? m_method : m_settings.m_eTrackMethod;
}

double TrackLoop::DirectionBandwidth() const {
  const bool tracks = m_settings.m_eTrackMode == TrackMode::Track;
  const float bandwidth = tracks ? m_tuning.Bandwidth : m_settings.m_fTrackBandwidth;
  return static_cast<double>(std::isfinite(bandwidth) ? std::max(bandwidth, kLeastBandwidth)
                                                      : kLeastBandwidth);
}

std::optional<double> TrackLoop::Heading(const LoopInput& input) const {
  const bool there = m_data.HeadingValid && input.HeadingFresh;
  return there ? std::optional(static_cast<double>(m_data.Heading)) : std::nullopt;
}

void TrackLoop::Control(float error, const LoopInput& input, LoopStep& step) {
  const auto before = static_cast<double>(m_settings.m_fAutoPilot);
  const bool tracked = m_side == TrackSide::Apparent ? input.BringsApparent : input.BringsTrue;
  step.Error = error;
  switch (m_method) {
    case TrackMethod::Sentence:
      step.Seconds = m_tracked.Next(input.Now);
      Take(before + m_controller.Step(static_cast<double>(error), step.Seconds));
      break;
    case TrackMethod::Clock:
      if (tracked) {
        step.Seconds = m_tracked.Next(input.Now);
        Take(m_clock.Step(static_cast<double>(error), step.Seconds, before, Heading(input), m_limits), step);
      }
      break;
    case TrackMethod::Direction:
      step.Seconds = m_trueSeconds;
      if (const auto answer = m_direction.Step({m_side, static_cast<double>(Desired(m_side)) - m_luff,
                                                m_means[At(TrackSide::Apparent)].Mean()},
                                               before, m_limits, m_trueSeconds)) {
        Take(answer->Steer, step);
        m_directionError = ToSingle(answer->Error);
      }
      step.Error = m_directionError;
      break;
  }
  step.Correction = FoldRelative(static_cast<double>(m_settings.m_fAutoPilot) - before);
}

void TrackLoop::Take(const LimitedBearing& limited, LoopStep& step) {
  Take(limited.Bearing);
  step.ByRate = limited.ByRate;
  step.ByAhead = limited.ByAhead;
}

void TrackLoop::Take(double bearing) {
  if (std::isfinite(bearing)) {
    m_settings.m_fAutoPilot = FoldBearing(bearing);
  }
}

LoopStep::Alarm TrackLoop::TestAlarm(float error, double seconds) {
  if (const auto average = static_cast<double>(m_settings.m_fTrackAlarmAverage); average > 0.0) {
    const auto before = static_cast<double>(m_alarmError);
    const auto apart = static_cast<double>(FoldRelative(static_cast<double>(error) - before));
    m_alarmError = FoldRelative(before + apart * (1.0 - std::exp(-seconds / average)));
  } else {
    m_alarmError = error;
  }
  if (m_settings.m_bTrackAlarm && std::fabs(m_alarmError) > m_settings.m_fTrackAlarmLimit) {
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
  ForgetErrors();
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

void TrackLoop::SetAutoPilot(double bearing) { Take(bearing); }

void TrackLoop::SetDesired(TrackSide side, double angle) {
  if (std::isfinite(angle)) {
    Desired(side) = FoldRelative(angle);
  }
}

}  // namespace veerwatch
