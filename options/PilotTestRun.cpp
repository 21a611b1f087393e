#include "options/PilotTestRun.h"

#include <utility>

#include "platform/Language.h"

namespace veerwatch {

std::string PilotTestHindrance(const HelmNow& now) {
  if (now.Mode != TrackMode::Manual) {
    return Tr("The pilot can be tested in Manual only: in any other mode the bearing is not yours.");
  }
  if (!now.TakesBearing) {
    return Tr("The pilot holds the wind by itself: it takes no bearing that could be tested.");
  }
  if (now.Hand != PilotHand::User) {
    return Tr("A turn has the pilot.");
  }
  if (!now.InputStarted || !now.InputOpen || now.WindLost) {
    return Tr("No wind comes, and without it nothing is sent.");
  }
  if (!now.OutputOpen) {
    return Tr("The port of the pilot is not open.");
  }
  if (!now.Heading || now.Watch.Of(Watched::Heading).Gone()) {
    return Tr("No heading comes that would show what the boat does.");
  }
  return {};
}

PilotTestRun::PilotTestRun(MainWindowApi& main, const Clock& time, std::function<void()> changed)
    : m_main(main), m_time(time), m_changed(std::move(changed)), m_told(main.Observers().Join(*this)) {}

void PilotTestRun::Begin() {
  m_ended = PilotTestHindrance(m_main.Now());
  if (m_ended.empty()) {
    m_main.TurnBegins();
    m_test.Begin(m_main.m_fAutoPilot, m_time.Now().Steady);
  }
  m_changed();
}

void PilotTestRun::OnHeading(float heading) { m_test.Heading(heading, m_time.Now().Steady); }

void PilotTestRun::OnTick() {
  if (!Running()) {
    return;
  }
  if (m_main.Now().Watch.Of(Watched::Heading).Gone()) {
    End(Tr("No Heading"));
    return;
  }
  const float before = m_test.Bearing();
  m_test.Tick(m_time.Now().Steady);
  if (m_test.Bearing() != before) {
    m_main.AutoPilotSet(m_test.Bearing());
  }
  if (!Running()) {
    m_main.TurnOver();
  }
  m_changed();
}

void PilotTestRun::End(const std::string& why) {
  if (!Running()) {
    return;
  }
  m_test.Stop();
  m_ended = why;
  m_main.AutoPilotSet(m_test.Before());
  m_main.PilotSendNow();
  m_main.TurnOver();
  m_changed();
}

void PilotTestRun::OnTurnEnds(TurnFate why) {
  if (!Running()) {
    return;
  }
  m_test.Stop();
  m_main.AutoPilotSet(m_test.Before());
  // Whoever else takes the pilot says what is sent next.
  if (why != TurnFate::Taken) {
    m_main.PilotSendNow();
  }
  m_ended = why == TurnFate::Taken ? Tr("Somebody else took the pilot") : Tr(TurnFateText(why));
  m_changed();
}

}  // namespace veerwatch
