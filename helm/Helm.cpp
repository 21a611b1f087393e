#include "helm/Helm.h"

#include "platform/Angles.h"

namespace veerwatch {

Helm::Helm(Settings& settings, SerialPort& nmeaPort, SerialPort& pilotPort, Timer& tmrNmea,
           const Clock& clock, RandomSource& random)
    : m_settings(settings),
      m_clock(clock),
      m_nmeaPort(nmeaPort),
      m_record(settings),
      m_receiver(settings, nmeaPort, tmrNmea, clock, m_record, *this),
      m_pilot(settings, nmeaPort, pilotPort, *this),
      m_pace(settings),
      m_loop(settings, m_record.Data()),
      m_modes(settings, m_receiver, m_pilot, m_loop, *this),
      m_simulation(settings, m_record, random),
      m_watch(settings, m_record),
      m_act(settings, m_record, m_watch, m_loop),
      m_functions(settings, m_record, m_watch, m_loop) {}

HelmNow Helm::Now() const {
  HelmNow now;
  now.Mode = m_settings.m_eTrackMode;
  now.Hand = m_supervisor.Hand(now.Mode);
  now.InputStarted = m_receiver.Started();
  now.InputPort = m_settings.m_iNmeaPort;
  now.InputOpen = m_settings.m_bSimulate || m_nmeaPort.PortOpen();
  now.Input = m_inputState;
  now.InputFailure = m_inputFailure;
  now.Advice = m_advice;
  now.OutputPort = m_settings.m_iPilotPort;
  now.OutputOpen = m_pilot.Open();
  now.Output = m_outputState;
  now.OutputFailure = m_outputFailure;
  now.Refused = m_pilot.Refused();
  now.PilotBaud = m_pilot.BaudRate();
  now.PilotBytes = m_pilot.Latest().Text().size();
  now.WindLost = m_supervisor.WindLost();
  now.Sent = m_pilot.Sent();
  now.AutoPilot = m_settings.m_fAutoPilot;
  if (now.Mode == TrackMode::Track) {
    now.InUse = m_loop.Tuning();
  }
  const InstrumentData& data = Data();
  if (data.HeadingValid) {
    now.Heading = data.Heading;
  }
  now.BoatSpeedKnown = data.BoatSpeedValid;
  now.WindsASecond = m_loop.WindsASecond();
  if (data.WindTrueValid) {
    now.WindAngleTrue = data.WindAngleTrue;
  }
  now.Side = m_loop.Side();
  now.CanTrack = m_loop.CanTrack();
  now.TakesBearing = m_settings.m_ePilotProfile != PilotProfile::Wind;
  now.Desired = m_settings.DesiredAngle;
  for (const TrackSide side : {TrackSide::Apparent, TrackSide::True}) {
    if (const auto mean = m_loop.MeanAngle(side)) {
      now.WindMean[static_cast<std::size_t>(side)] = FoldRelative(*mean);
    }
  }
  now.Watch = m_watch.Now();
  now.Sentence = m_why;
  return now;
}

// The order of the steps

namespace {

constexpr std::int64_t kStale = 4000;  // [ms]

}  // namespace

void Helm::OnSentence(std::string_view line, const Dispatcher::Outcome& outcome, const Moment& now) {
  // Deliberate: an enabled wind sentence that brings no wind runs the steps, too.
  const InstrumentData& data = Data();
  const bool steers = outcome.WindSentence && data.WindApparentValid && data.WindTrueValid;
  // What may hold the pass back has to know the sentence first; otherwise it waits for the watch.
  const bool first = m_settings.m_bWatchAct || m_settings.m_bPilotInvalidWhenLost;
  if (first) {
    Feed(outcome);
  }
  const Pass pass = steers ? Steer(now) : Pass{};

  if (!first) {
    Feed(outcome);
  }
  Keep(pass, now);
  TellChanges();
  m_observers.Tell([&](HelmObserver& observer) {
    observer.OnNmeaLine(line, outcome.Incomplete ? LineFault::Decode : LineFault::None, outcome.Used);
  });
  if (!steers) {
    return;
  }
  TellPass(pass);
  if (data.BoatSpeedValid) {
    TellPolar();
  }
  if (data.VariationValid) {
    m_record.WindIndicatorUpdate();
    TellChanges();
  }
}

void Helm::SimulatorTick() {
  const Moment now = m_simulation.Tick(m_clock.Now().Wall);
  // Deliberate: no validity is tested.
  const Pass pass = Steer(now);

  m_watch.Simulated(m_clock.Now());
  Keep(pass, now);
  TellChanges();
  // Deliberate: the polar window comes before the loop; after a wind sentence it comes after it.
  TellPolar();
  TellPass(pass);
}

Helm::Pass Helm::Steer(const Moment& now) {
  const WatchAct::Pass may =
      m_settings.m_bWatchAct ? m_act.Before(m_pilot.Open(), now) : WatchAct::Pass::Steers;
  if (may == WatchAct::Pass::None) {
    return {};
  }
  LoopInput input(now);
  // A pilot that holds the wind by itself takes no bearing.
  const bool takesBearing = m_settings.m_ePilotProfile != PilotProfile::Wind;
  input.Stands = may == WatchAct::Pass::Stands || !takesBearing;
  input.BringsApparent = m_record.Changed(RecordValue::WindApparent);
  input.BringsTrue = m_record.Changed(RecordValue::WindTrue);
  const TrackMethod method = m_loop.Method();
  if (method != TrackMethod::Sentence) {
    const std::int64_t oldest = m_settings.m_bWatchAct ? kStale / 2 : kStale;
    input.HeadingFresh = m_record.Age(RecordValue::Heading, now).value_or(oldest) < oldest;
  }
  if (method == TrackMethod::Direction) {
    const InstrumentRecord::Wind wind = m_record.WindTrueUnsmoothed();
    input.TrueWind = LoopInput::Wind{wind.Angle, wind.Speed};
  }
  Pass pass;
  pass.Did = m_functions.Before(input);
  pass.Step = m_loop.ControlStep(input);
  m_functions.After(input, pass.Step);
  m_act.After(pass.Step);
  const Moment sends = SendMoment(now);
  if (pass.Step.Sends && (!m_settings.m_bPilotInvalidWhenLost || BearingHolds(sends))) {
    pass.Sentence = Send(m_pace.Step(sends.Steady), sends);
  }
  return pass;
}

bool Helm::BearingHolds(const Moment& now) const {
  const Watched held = m_loop.Side() == TrackSide::True ? Watched::WindTrue : Watched::WindApparent;
  const bool fresh = m_watch.Values().At(held, now).Fresh() && !m_act.Lacks(now);
  return m_receiver.Started() && (fresh || m_keepsOn);
}

std::string_view Helm::Send(PilotPace::Says says, const Moment& now) {
  if (says == PilotPace::Says::Nothing) {
    return {};
  }
  PilotValues values = PilotValuesOf(m_settings.m_fAutoPilot, m_record, m_settings, now);
  m_good = values.Good = says == PilotPace::Says::Bearing;
  const std::string_view sentences = m_pilot.PilotSend(values);
  if (!sentences.empty() && !m_settings.SimulatesSteady()) {
    m_watch.Built(sentences.size(), now);
  }
  m_simulation.Steer(m_pilot.Latest().Text());
  if (const auto spacing = PilotPace::Spacing(m_settings); spacing && m_pilotTimer != nullptr) {
    m_pilotTimer->Interval(*spacing);
    m_pilotTimer->Enabled(true);
  }
  return sentences;
}

void Helm::Repeat(const Moment& now) {
  const std::string_view sentences = Send(m_pace.Look(BearingHolds(now), now.Steady), now);
  if (sentences.empty()) {
    return;
  }
  if (m_good) {
    m_newest.At = m_settings.m_bSimulate ? m_newest.At : now;
    m_newest.Bearing = m_settings.m_fAutoPilot;
    m_why = m_newest;
  }
  m_observers.Tell([this](HelmObserver& observer) { TellSent(observer); });
}

void Helm::PilotTick() {
  if (!PilotPace::Spacing(m_settings) || !m_pace.Made()) {
    m_pilotTimer->Enabled(false);
    return;
  }
  Repeat(m_clock.Now());
}

void Helm::Tick() {
  if (m_settings.m_bSimulate) {
    SimulatorTick();
  } else {
    m_receiver.Tick();
    m_pilot.Tick();
  }
  if (m_supervisor.Second()) {
    m_observers.Tell([lost = m_supervisor.WindLost()](HelmObserver& observer) { observer.OnWindLost(lost); });
  }
  Decide(m_supervisor.Look());
  LookOut();
  m_observers.Tell([](HelmObserver& observer) { observer.OnTick(); });
}

void Helm::Feed(const Dispatcher::Outcome& outcome) {
  if (outcome.Brought != nullptr) {
    m_watch.Sentence(*outcome.Brought);
  }
}

void Helm::Keep(const Pass& pass, const Moment& now) {
  if (!pass.Step.Ran) {
    return;
  }
  m_watch.Step(pass.Step);
  if (pass.Step.Sends) {
    Explain(pass.Step, now);
  }
  if (!pass.Sentence.empty()) {
    m_why = m_newest;
  }
}

void Helm::Explain(const LoopStep& step, const Moment& now) {
  m_newest.Sent = true;
  m_newest.At = now;
  m_newest.Bearing = m_settings.m_fAutoPilot;
  m_newest.Mode = m_settings.m_eTrackMode;
  m_newest.Side = m_loop.Side();
  m_newest.Method = m_loop.Tuning().Method;
  m_newest.Desired = m_settings.DesiredAngle[static_cast<std::size_t>(m_newest.Side)];
  m_newest.Step = step;
  m_newest.Data = Data();
  for (std::size_t i = 0; i < kWhyValues.size(); ++i) {
    m_newest.From[i] = m_record.Source(kWhyValues[i]);
  }
}

void Helm::Obey(const WatchAct::Order& order, const Moment& now) {
  m_keepsOn = order.Sends;
  const std::string_view sentences = order.Sends ? Send(m_pace.Step(now.Steady), now) : std::string_view();
  if (order.Switched) {
    m_observers.Tell([this](HelmObserver& observer) { observer.OnTrackSide(m_loop.Side()); });
    TellDesired();
  }
  m_observers.Tell([&](HelmObserver& observer) {
    if (order.Turned) {
      observer.OnAutoPilot(m_settings.m_fAutoPilot);
    }
    if (!sentences.empty()) {
      TellSent(observer);
    }
  });
}

void Helm::LookOut() {
  Watch::Around around;
  around.Side = m_loop.Side();
  around.Method = m_loop.Tuning().Method;
  around.Bandwidth = m_loop.Tuning().Bandwidth;
  around.Winds = m_loop.WindsASecond();
  around.InputStarted = m_receiver.Started();
  around.OutputOpen = m_pilot.Open();
  around.BaudRate = m_pilot.BaudRate();
  around.Sent = m_pilot.Sent();
  around.Acts = m_act.Acts();
  const Moment now = m_clock.Now();
  m_functions.Report(now, around);
  m_watch.Look(around, now);
  Obey(m_act.Second(now), now);
  Repeat(now);
  m_observers.Tell([this](HelmObserver& observer) { observer.OnWatch(m_watch.Now()); });
}

// What is told

void Helm::TellChanges() {
  if (!m_record.AnyChange()) {
    return;
  }
  const InstrumentData& data = Data();
  if (m_record.Changed(RecordValue::WindApparent)) {
    m_supervisor.Came(TrackSide::Apparent);
  }
  if (m_record.Changed(RecordValue::WindTrue)) {
    m_supervisor.Came(TrackSide::True);
  }
  m_observers.Tell([&](HelmObserver& observer) {
    if (m_record.Changed(RecordValue::Heading)) {
      observer.OnHeading(data.Heading);
    }
    if (m_record.Changed(RecordValue::BoatSpeed)) {
      observer.OnBoatSpeed(data.BoatSpeed);
    }
    if (m_record.Changed(RecordValue::WindApparent)) {
      observer.OnWindApparent(data.WindAngleApparent, data.WindSpeedApparent);
    }
    if (m_record.Changed(RecordValue::WindTrue)) {
      observer.OnWindTrue(data.WindAngleTrue, data.WindSpeedTrue);
    }
    if (m_record.Changed(RecordValue::WindIndicator)) {
      observer.OnWindIndicator(data.WindDirectionAverage, data.WindSpeedAverage);
    }
    if (m_record.Changed(RecordValue::Waypoint)) {
      observer.OnWaypoint(data.WaypointRange, data.WaypointBearing);
    }
  });
  m_record.ForgetChanges();
}

void Helm::TellPass(const Pass& pass) {
  const LoopStep& step = pass.Step;
  if (!step.Ran) {
    return;
  }
  if (pass.Did.Side) {
    m_observers.Tell([this](HelmObserver& observer) { observer.OnTrackSide(m_loop.Side()); });
  }
  if (step.Followed || pass.Did.Desired) {
    TellDesired();
  }
  if (pass.Did.Says) {
    m_observers.Tell([&](HelmObserver& observer) { observer.OnWindSays(*pass.Did.Says); });
  }
  m_observers.Tell([&](HelmObserver& observer) {
    observer.OnDelta(step.DeltaApparent, step.DeltaTrue);
    if (step.Tracked) {
      observer.OnPilotDelta(step.Error);
      observer.OnAutoPilot(m_settings.m_fAutoPilot);
    }
    if (step.Rings == LoopStep::Alarm::Raised) {
      observer.OnAlarm(m_loop.Side(), step.AlarmError);
    } else if (step.Rings == LoopStep::Alarm::Over) {
      observer.OnAlarmOver();
    }
    if (!pass.Sentence.empty()) {
      TellSent(observer);
    }
  });
}

void Helm::TellSent(HelmObserver& observer) const {
  const PilotBundle& sentences = m_pilot.Latest();
  for (std::size_t i = 0; i < sentences.Count(); ++i) {
    observer.OnPilotData(sentences.Sentence(i));
  }
  if (m_good && m_settings.m_ePilotProfile != PilotProfile::Wind) {
    observer.OnPilotHeading(m_settings.m_fAutoPilot);
  }
}

void Helm::TellDesired() {
  m_observers.Tell([this](HelmObserver& observer) {
    observer.OnDesired(m_settings.DesiredAngle[1], m_settings.DesiredAngle[2]);
  });
}

void Helm::TellPolar() {
  m_observers.Tell(
      [this](HelmObserver& observer) { observer.OnPolarUpdate(m_settings.m_eTrackMode, Data()); });
}

// What the user, or a turn, does

bool Helm::TellTurned(bool turned) {
  if (turned) {
    m_observers.Tell([this](HelmObserver& observer) { observer.OnAutoPilot(m_settings.m_fAutoPilot); });
    TellDesired();
  }
  return turned;
}

void Helm::TrackSteerTo(float change) { TellTurned(m_loop.TrackSteerTo(change)); }

void Helm::Track(TrackSide side) {
  if (m_loop.Side(side)) {
    TellDesired();
  }
}

void Helm::UserSteersTo(double bearing) {
  UserTakesPilot();
  m_loop.SetAutoPilot(bearing);
}

void Helm::TurnSteersTo(float bearing) {
  m_loop.SetAutoPilot(static_cast<double>(bearing));
  m_observers.Tell([this](HelmObserver& observer) { observer.OnAutoPilot(m_settings.m_fAutoPilot); });
}

void Helm::PilotSendNow() {
  if (m_settings.m_eTrackMode == TrackMode::Manual) {
    WatchAct::Order order;
    order.Sends = true;
    Obey(order, m_clock.Now());
  }
}

void Helm::TrackTakesOver(float angle) {
  m_supervisor.TurnOver();
  m_modes.TrackSetTrack(angle);
  TellDesired();
}

void Helm::Decide(TurnFate fate) {
  if (fate != TurnFate::GoesOn) {
    m_observers.Tell([fate](HelmObserver& observer) { observer.OnTurnEnds(fate); });
  }
}

// What input, output and modes say

void Helm::OnInputStarts() {
  m_watch.Restart();
  m_simulation.Restart();
  m_record.ForgetChanges();
  m_observers.Tell([](HelmObserver& observer) { observer.OnInputStarts(); });
}

void Helm::OnOtherLine(std::string_view line, LineFault fault) {
  m_observers.Tell([&](HelmObserver& observer) { observer.OnNmeaLine(line, fault, false); });
}

void Helm::OnInputStatus(const PortStatus& status) {
  m_observers.Tell([&](HelmObserver& observer) { observer.OnInputStatus(status); });
}

void Helm::OnInputState(InputState state) {
  m_inputState = state;
  Decide(m_supervisor.Input(state, m_settings.m_eTrackMode));
  m_observers.Tell([state](HelmObserver& observer) { observer.OnInputState(state); });
}

void Helm::OnInputFailure(const std::string& reason) {
  m_inputFailure = reason;
  m_observers.Tell([&](HelmObserver& observer) { observer.OnInputFailure(m_inputFailure); });
}

void Helm::OnSourceAdvice(const std::vector<std::string>& lines) {
  m_advice = lines;
  m_observers.Tell([&](HelmObserver& observer) { observer.OnSourceAdvice(m_advice); });
}

void Helm::OnOutputStatus(const PortStatus& status) {
  m_observers.Tell([&](HelmObserver& observer) { observer.OnOutputStatus(status); });
}

void Helm::OnOutputState(OutputState state) {
  m_outputState = state;
  m_observers.Tell([state](HelmObserver& observer) { observer.OnOutputState(state); });
}

void Helm::OnOutputFailure(const std::string& reason) {
  m_outputFailure = reason;
  m_observers.Tell([&](HelmObserver& observer) { observer.OnOutputFailure(m_outputFailure); });
}

void Helm::OnOutputRefused(const PilotRefusal& refusal) {
  m_observers.Tell([&](HelmObserver& observer) { observer.OnOutputRefused(refusal); });
}

void Helm::OnTrackMode(TrackMode mode) {
  if (mode != TrackMode::Manual && mode != TrackMode::Track) {
    m_pace.Forget();
  }
  Decide(m_supervisor.Entered(mode));
  m_observers.Tell([mode](HelmObserver& observer) { observer.OnTrackMode(mode); });
  if (mode == TrackMode::Track && m_loop.Method() != TrackMethod::Sentence) {
    // Track begins with the mean of the wind, and perhaps at the heading.
    m_observers.Tell([this](HelmObserver& observer) { observer.OnAutoPilot(m_settings.m_fAutoPilot); });
    TellDesired();
  }
  LookOut();
}

void Helm::OnTrackRefused(TrackRefusal why) {
  m_observers.Tell([why](HelmObserver& observer) { observer.OnTrackRefused(why); });
}

void Helm::OnAlarmOver() {
  m_watch.AlarmOver();
  m_observers.Tell([](HelmObserver& observer) { observer.OnAlarmOver(); });
}

}  // namespace veerwatch
