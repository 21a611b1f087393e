// The test of the pilot that runs: has the pilot as a turn has it, gives PilotTest what the helm tells, and
// sends its bearing. However it ends, the bearing of before is sent again, unless somebody else has set one.
#pragma once

#include <functional>
#include <string>

#include "control/PilotTest.h"
#include "helm/MainWindowApi.h"
#include "platform/Clock.h"
#include "platform/Language.h"

namespace veerwatch {

/// Why the pilot cannot be tested now, in words; "" when it can.
std::string PilotTestHindrance(const HelmNow& now);

class PilotTestRun final : private HelmObserver {
 public:
  /// Both outlive this. `changed` is called whenever something about the test is another.
  PilotTestRun(MainWindowApi& main, const Clock& time, std::function<void()> changed);
  /// Stops a test that runs.
  ~PilotTestRun() override { Stop(); }
  PilotTestRun(const PilotTestRun&) = delete;
  PilotTestRun& operator=(const PilotTestRun&) = delete;

  /// Begins, where nothing hinders it.
  void Begin();
  /// Ends a test that runs.
  void Stop() { End(Tr("Stopped")); }

  bool Running() const { return m_test.Runs(); }
  const PilotTest& Test() const { return m_test; }
  /// Of the whole test [0, 1].
  double Progress() const { return m_test.Progress(m_time.Now().Steady); }
  /// Why the latest test ended without a result; "" for none.
  const std::string& Ended() const { return m_ended; }

 private:
  void OnHeading(float heading) override;
  void OnTick() override;
  void OnTurnEnds(TurnFate why) override;
  void End(const std::string& why);

  MainWindowApi& m_main;
  const Clock& m_time;
  std::function<void()> m_changed;
  PilotTest m_test;
  std::string m_ended;
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
