// Lets a plan hold for a while, so that the autopilot can be tested with it before anything is written: the
// settings and ports of the plan, and Manual on the present heading. However it ends, everything is brought
// back as it was, the mode and the ports included.
#pragma once

#include <optional>
#include <string>

#include "connect/ConnectPlan.h"
#include "helm/MainWindowApi.h"
#include "platform/Endpoint.h"
#include "platform/Profile.h"

namespace veerwatch {

class PilotTrial {
 public:
  /// Both outlive this.
  PilotTrial(MainWindowApi& main, Profile& profile) : m_main(main), m_profile(profile) {}
  ~PilotTrial() { End(); }
  PilotTrial(const PilotTrial&) = delete;
  PilotTrial& operator=(const PilotTrial&) = delete;

  /// Why it cannot begin now; "" when it can. Who steers is not to be disturbed.
  std::string Hindrance() const;
  /// Begins, where nothing hinders it.
  void Begin(const ConnectPlan& plan, const DeviceExists& exists);
  /// Brings everything back.
  void End();
  bool Runs() const { return m_before.has_value(); }

  /// A second has passed: goes to Manual as soon as a heading and a wind have come. What it waits for; ""
  /// when the pilot can be tested.
  std::string Tick();

 private:
  struct Before {
    Settings All;
    Profile Ports;
    TrackMode Mode;
  };

  MainWindowApi& m_main;
  Profile& m_profile;
  std::optional<Before> m_before;
};

}  // namespace veerwatch
