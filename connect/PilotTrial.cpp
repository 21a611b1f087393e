#include "connect/PilotTrial.h"

#include <cmath>
#include <utility>

#include "options/PilotTestRun.h"
#include "platform/Angles.h"
#include "platform/Language.h"

namespace veerwatch {

std::string PilotTrial::Hindrance() const {
  const TrackMode mode = m_main.m_eTrackMode;
  return mode == TrackMode::Manual || mode == TrackMode::Track
             ? Tr("The pilot is sent to now: press Setup (F6) first, then it can be tested.")
             : std::string();
}

void PilotTrial::Begin(const ConnectPlan& plan, const DeviceExists& exists) {
  if (Runs() || !Hindrance().empty()) {
    return;
  }
  m_before = Before{m_main, m_profile, m_main.m_eTrackMode};
  ConnectPlan tried = plan;
  // What is only tried is not saved.
  tried.Chosen.m_bSaveWhileRunning = false;
  PlanApply(tried, m_main, m_profile, exists);
}

void PilotTrial::End() {
  if (!Runs()) {
    return;
  }
  const Before before = *std::exchange(m_before, std::nullopt);
  m_main.TrackSetOff();
  const TrackMode mode = m_main.m_eTrackMode;
  static_cast<Settings&>(m_main) = before.All;
  m_main.m_eTrackMode = mode;
  m_profile = before.Ports;
  if (before.Mode != TrackMode::Off) {
    m_main.TrackSetSetup();
  }
  // Shows the bearing of before.
  m_main.AutoPilotSet(before.All.m_fAutoPilot);
}

std::string PilotTrial::Tick() {
  const HelmNow now = m_main.Now();
  if (now.Mode == TrackMode::Setup && now.InputOpen && now.Heading &&
      m_main.Record().Data().WindApparentValid) {
    m_main.AutoPilotSet(FoldBearing(std::round(static_cast<double>(*now.Heading))));
    m_main.TrackSetManual();
  }
  if (m_main.m_eTrackMode == TrackMode::Setup) {
    return Tr("Waiting for a heading and the wind...");
  }
  return PilotTestHindrance(m_main.Now());
}

}  // namespace veerwatch
