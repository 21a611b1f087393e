#include "tack/TurnRun.h"

namespace veerwatch {

TurnRun::TurnRun(Helm& helm, Timer& timer, const Clock& clock)
    : m_helm(helm), m_timer(timer), m_clock(clock), m_told(helm.Observers().Join(*this)) {
  constexpr int kInterval = 1000;  // [ms]
  m_timer.Interval(kInterval);
}

void TurnRun::Begin(const TurnPlan& plan, float limit) {
  m_helm.Modes().TrackSetManual();
  m_helm.TurnBegins();
  m_plan = plan;
  m_engine.Begin(plan, TurnSenseOf(m_helm.Now()), static_cast<double>(limit));
  m_stepped = m_clock.Now().Steady;
  m_running = true;
  m_timer.Enabled(true);
  Tell();
}

void TurnRun::Stop() {
  if (m_running) {
    m_helm.TurnSteersTo(m_engine.BearingSent());
    m_helm.TurnOver();
    Over();
  }
}

void TurnRun::Tick() {
  if (!m_running) {
    return;
  }
  constexpr double kMillisecondsPerSecond = 1000.0;
  const std::int64_t now = m_clock.Now().Steady;
  const double seconds = static_cast<double>(now - std::exchange(m_stepped, now)) / kMillisecondsPerSecond;
  const TurnFate fate = m_engine.Step(TurnSenseOf(m_helm.Now()), seconds);
  if (fate != TurnFate::GoesOn) {
    m_helm.TurnEnds(fate);
  } else if (m_engine.Stage() == TurnStage::Done) {
    Over();
    m_helm.TrackTakesOver(m_plan.Held);
  } else {
    m_helm.TurnSteersTo(m_engine.Bearing());
    Tell();
  }
}

void TurnRun::OnTurnEnds(TurnFate why) {
  if (!m_running) {
    return;
  }
  // Whoever else takes the pilot says where it steers.
  if (why != TurnFate::Taken) {
    m_helm.TurnSteersTo(m_engine.BearingSent());
  }
  Over();
}

void TurnRun::Over() {
  m_running = false;
  m_timer.Enabled(false);
  Tell();
}

}  // namespace veerwatch
