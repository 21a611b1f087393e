// All that the assistant's pages work on: what is heard, what it would give, what the autopilot gets, and the
// plan that follows from it. Nothing is written before Save.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "connect/ConnectPlan.h"
#include "connect/Listening.h"
#include "connect/PilotTrial.h"
#include "connect/PlanWords.h"
#include "connect/ValueDesk.h"
#include "control/TrackAdvice.h"
#include "options/OptionsForm.h"
#include "options/PilotChoices.h"
#include "options/Recommended.h"
#include "platform/PortFinder.h"

namespace veerwatch {

class ConnectDesk {
 public:
  /// The polar's choice between two wind speeds, which is no setting of the main window.
  struct SmoothWinds {
    std::function<bool()> Get;
    std::function<void(bool smooth)> Set;
  };

  /// What it works with. All but the functions outlive it; without a finder no serial port is found.
  struct Parts {
    MainWindowApi& Main;
    Profile& Store;
    const Clock& Time;
    const PortFinder* Finder;
    NamedPort::Maker Make;
    DeviceExists Exists;
    SmoothWinds Polar;
  };

  explicit ConnectDesk(Parts parts);

  /// Listens anew to every serial port and to the usual places, also on `host`.
  void Search(std::string_view host);
  /// Listens to a host as well.
  void SearchHost(std::string_view host) { m_listening.Add(HostCandidates(host)); }
  /// Listens to what was announced as well, by the text of AnnouncedCandidates.
  void SearchAnnounced(std::string_view browsed) { m_listening.Add(AnnouncedCandidates(browsed)); }
  /// A part of a second has passed.
  void Tick();

  Listening& Heard() { return m_listening; }
  ValueDesk& Values() { return m_values; }
  Moment Now() const { return m_parts.Time.Now(); }

  // The autopilot.

  /// What may be chosen for its port.
  std::vector<std::string> PilotPorts() const;
  /// The one that is proposed: what the profile names, else the first.
  std::string PilotPort() const;
  /// What is wrong with an endpoint, for the user; "" when it can be chosen.
  std::string PilotPortWrong(const std::string& endpoint) const;
  /// What one should know of where it leads: that it is the instruments' port, too, or a device that is not
  /// there; "" for nothing.
  std::string PilotPortWords() const;
  /// Where it leads from now on, as EndpointOfPlace takes it; "" for what is proposed.
  void SetPilotPort(const std::string& place);
  OptionsForm& PilotForm() { return m_form; }
  /// What would leave now.
  PilotPreview Preview() const;
  PilotTrial& Trial() { return m_trial; }
  /// Gives the ports to the trial and begins it.
  void TrialBegin();
  /// Ends it and listens again to what is ticked.
  void TrialEnd();
  /// The lag that the test has measured, as a text of seconds: the tracking is set for it.
  void TakeLag(const std::string& lag);

  // What follows.

  /// The settings as they would be, without what is recommended.
  Settings Chosen() const;
  /// The polar's choice as it is now.
  bool SmoothWindsNow() const { return m_parts.Polar.Get && m_parts.Polar.Get(); }
  /// What is to be set of what is recommended.
  void SetRecommended(const RecommendedTicks& ticks) { m_recommended = ticks; }
  ConnectPlan Plan() const;
  /// What would be written, a line each.
  std::vector<PlanLine> Words() const;
  /// Gives every port back, and brings back what was tried.
  void End();
  /// Ends, and applies the plan.
  void Save();

 private:
  std::vector<Candidate> Usual(std::string_view host) const;
  /// What is recommended, set in `settings` and, for the polar, in the answer.
  bool Recommend(Settings& settings) const;

  Parts m_parts;
  ValueDesk m_values;
  Listening m_listening;
  PilotTrial m_trial;
  OptionsForm m_form;
  std::string m_pilot;
  RecommendedTicks m_recommended{};
  std::optional<TrackSuggestion> m_tracking;  ///< what suits the pilot that was tested
};

}  // namespace veerwatch
