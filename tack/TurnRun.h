// The turn that runs: lets a TurnEngine turn the pilot, second by second, from a plan to the hand-over to
// Track. The helm ends it as soon as anybody else takes the pilot or a wind is lost; whatever else is lost it
// ends itself, through the helm, so that everybody hears of it in one way.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>

#include "helm/Helm.h"
#include "platform/Clock.h"
#include "platform/Timer.h"
#include "tack/TurnEngine.h"
#include "tack/TurnPlan.h"

namespace veerwatch {

class TurnRun final : private HelmObserver {
 public:
  /// Everything outlives this. `timer` ticks into Tick() while a turn runs, once a second.
  TurnRun(Helm& helm, Timer& timer, const Clock& clock);

  /// Called whenever something about the turn is another: it begins, has made a step, or is over.
  void Changed(std::function<void()> changed) { m_changed = std::move(changed); }

  /// What `ask` would make of this moment.
  TurnPlan Plan(const TurnAsk& ask) const { return PlanTurn(ask, m_helm.Now()); }
  /// Begins `plan`, which is of this moment and not refused, in Manual; the first step comes a second later.
  /// Ends a turn that runs, whoever turns. `limit` [s, above 0] is that of TurnEngine::Begin.
  void Begin(const TurnPlan& plan, float limit);
  /// Ends the turn, where one runs, on the bearing that the pilot heard last.
  void Stop();
  void Tick();

  bool Running() const { return m_running; }
  /// Of the turn that runs, or ran last.
  const TurnPlan& Made() const { return m_plan; }
  const TurnEngine& Engine() const { return m_engine; }

 private:
  void OnTurnEnds(TurnFate why) override;
  void Over();
  void Tell() const {
    if (m_changed) {
      m_changed();
    }
  }

  Helm& m_helm;
  Timer& m_timer;
  const Clock& m_clock;
  TurnPlan m_plan;
  TurnEngine m_engine;
  bool m_running = false;
  std::int64_t m_stepped = 0;  ///< when it began, or its latest step was made [ms of the steady clock]
  std::function<void()> m_changed;
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
