// The main window: shows the instruments, the modes and the status of the ports, takes the bearing and the
// angles to hold, and keeps the settings for the session. It owns the helm; ports, timers, dialogs and the
// profile are handed to it, real ones by main, scripted ones by tests.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/AlarmDeskQt.h"
#include "app/InstrumentPanelQt.h"
#include "app/MainWindowParts.h"
#include "app/OtherWindowsQt.h"
#include "app/ProfilesMenuQt.h"
#include "app/RecordingQt.h"
#include "app/ReportQt.h"
#include "app/SaveWatch.h"
#include "app/SentAge.h"
#include "app/StatusPanelsQt.h"
#include "app/WindMenuQt.h"
#include "app/frmMainCommands.h"
#include "helm/Helm.h"
#include "helm/MainWindowApi.h"
#include "platform/PortNames.h"
#include "tack/TurnRun.h"

namespace veerwatch {

class frmMain final : public QMainWindow, public MainWindowApi, private HelmObserver {
 public:
  /// Makes the window and touches no port.
  explicit frmMain(const MainWindowParts& parts);
  ~frmMain() override;

  /// Reads the profile and goes to Setup, or to Manual when simulating; or stays Off after a change of the
  /// profile. Once, before the window is shown.
  void Form_Load(bool changed = false);

  /// Shows the window in front of those that the profile has opened again.
  void ShowInFront();

  /// Closes in order without asking anything; a question that is open goes with its window. For the end of
  /// the session.
  void CloseUnasked();

  /// Writes the profile as a close does and goes on. What goes wrong is said on standard error and in the
  /// banner.
  void KeepSettings() override;

  /// What the latest writing of the profile could not do; "" for nothing.
  const std::string& SaveFailure() const { return m_saveFailure; }
  /// Whether the close was not the user's.
  bool ClosedUnasked() const { return m_unasked; }

  /// Says `text` in the banner and its list, as long as `kind` has nothing else to say; "" withdraws it.
  void NoticeSet(AlarmKind kind, const std::string& text) { m_alarms.NoticeSet(kind, text); }

  /// A second has passed. Saves settings that were changed, with "Save While Running". Deliberate: what
  /// follows the boat by itself, bearing and wanted angles, is saved along and sets nothing off.
  void tmrSave_Timer();

  void tmrNmea_Timer();
  void tmrUnload_Timer();
  void tmrPilot_Timer() { m_helm.PilotTick(); }
  void TimerTack_Timer() {
    m_turn.Tick();
    m_others.TimerTack_Timer();
  }

  bool NmeaStart() override { return m_helm.Receiver().NmeaStart(); }
  void NmeaStop() override { m_helm.Receiver().NmeaStop(); }
  void PilotStart() override { m_helm.Pilot().PilotStart(); }
  void PilotStop() override { m_helm.Pilot().PilotStop(); }
  void ProfileRecall(bool recall) override;
  void SimulateTime(float time, float& timeWaypointBearing, float& timeWaypointRange) override {
    m_helm.Boat().SimulateTime(time, timeWaypointBearing, timeWaypointRange);
  }
  void TrackSteerTo(float change) override { m_helm.TrackSteerTo(change); }
  void TurnBegins() override { m_helm.TurnBegins(); }
  void TurnOver() override { m_helm.TurnOver(); }
  void AutoPilotSet(float bearing) override { m_helm.TurnSteersTo(bearing); }
  void PilotSendNow() override { m_helm.PilotSendNow(); }
  HelmObservers& Observers() override { return m_helm.Observers(); }
  HelmNow Now() const override { return m_helm.Now(); }
  const InstrumentRecord& Record() const override { return m_helm.Record(); }
  void AlarmTest(AlarmSound sound) override { m_alarms.Test(sound); }
  void TrackSetOff() override { m_helm.Modes().TrackSetOff(); }
  void TrackSetSetup() override { m_helm.Modes().TrackSetSetup(); }
  void TrackSetManual() override { m_helm.Modes().TrackSetManual(); }
  void TrackSetTrack() override { m_helm.Modes().TrackSetTrack(); }

  /// Feeds the history's chart with a text of a number, a blank and the units.
  void HistorySample(std::string_view name, std::string_view text) { m_others.HistorySample(name, text); }

  /// Opens the manoeuvre dialog for a turn to `newHeading` from the present `heading` [deg magnetic] with the
  /// wind at `windAngle` [deg relative, positive to starboard].
  void TackOpen(float newHeading, float heading, float windAngle) {
    m_others.TackOpen(newHeading, heading, windAngle);
  }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Asks whether to stop tracking, and closes at a Yes.
  void AskToStop();
  void MakeStatusBar();
  void ConnectControls();
  void ConnectKeys();
  void ApplyTheme();
  void ShowControls();
  void ShowModeText();
  /// Shows one line in place of the mode, for ten seconds.
  void SayForAWhile(const std::string& text);
  /// Shows the turn that a course prompts for, in place of the mode and in the banner; "" for none.
  void ShowPrompt(const std::string& text);
  /// Heading and age of the latest sentence beside the bearing, while the pilot is sent to.
  void ShowSent();
  /// In Setup the banner says what the sources do not bring.
  void ShowAdvice();
  /// The profile as far as a change of it is worth saving at once.
  std::string Keepable();
  void tbrTrack_ButtonClick(TrackMode mode);
  void optControl_Click(int index);
  void TakeAutoPilot(double bearing);
  /// What is typed into `box` over `present` [deg]: taken by `take`, asked about, or put back.
  void TakeTyped(EntryBoxQt& box, float present, const QString& pattern, std::function<void(float)> take);
  void txtAutoPilot_Taken();
  void txtDesired_Taken(int index);
  void cmdAutoPilot_Click(int index);
  void cmdDesired_Click(int index);
  /// Takes the keyboard off every control, so that a box that is being typed in is left.
  void LeaveControls();
  void NudgeKey(int index);

  void OnHeading(float heading) override;
  void OnBoatSpeed(float speed) override;
  void OnWaypoint(float range, float bearing) override;
  void OnWindApparent(float angle, float speed) override;
  void OnWindTrue(float angle, float speed) override;
  void OnWindIndicator(float direction, float speed) override;
  void OnInputStarts() override;
  void OnInputStatus(const PortStatus& status) override;
  void OnOutputStatus(const PortStatus& status) override;
  void OnInputFailure(const std::string& reason) override;
  void OnOutputFailure(const std::string& reason) override;
  void OnOutputRefused(const PilotRefusal& refusal) override;
  void OnSourceAdvice(const std::vector<std::string>& lines) override;
  void OnDesired(float apparent, float trueWind) override;
  void OnDelta(float apparent, float trueWind) override;
  void OnAutoPilot(float bearing) override;
  void OnAlarm(TrackSide side, float error) override;
  void OnAlarmOver() override;
  void OnTrackMode(TrackMode mode) override;
  void OnTrackRefused(TrackRefusal why) override;
  void OnTrackSide(TrackSide side) override;
  void OnWindLost(bool lost) override;
  void OnTurnEnds(TurnFate why) override;
  void OnPilotData(std::string_view sentence) override;
  void OnTick() override;
  void OnWatch(const WatchNow& watch) override;
  /// What else there is to say of the output: why its port is not open, or that its line is too full.
  void ExplainOutput();
  /// The caption, with the age of its wind.
  void ShowTitle();
  /// The profile as it would be written now.
  Profile Present();
  /// What "File > Profiles" needs of the window.
  ProfilesMenuQt::Does ProfileWishes();

  MainWindowParts m_parts;
  std::unique_ptr<WindowDialogs> m_asks;
  frmMainMenu m_menu;
  frmMainModeBar* m_tbrTrack;
  InstrumentPanelQt* m_panel;
  StatusPanelsQt* m_status;
  Helm m_helm;
  HelmObservers::Membership m_told;
  TurnRun m_turn;
  OtherWindowsQt m_others;
  AlarmDeskQt m_alarms;
  RecordingQt m_recording;
  WindMenuQt m_windMenu;
  ProfilesMenuQt m_profiles;
  ReportQt m_report;
  bool m_staysOff = false;      ///< the profile is read and nothing begins
  bool m_ask = true;            ///< a close still has to ask
  QString m_instead;            ///< shown in place of the mode: why Track was refused, or a turn has ended
  QString m_prompt;             ///< the turn that a course prompts for
  QTimer m_insteadTimer{this};  ///< ends what is said about a turn
  bool m_unasked = false;       ///< the close is not the user's
  bool m_unloaded = false;      ///< the profile is written, everything is closed
  std::string m_saveFailure;
  std::vector<PortEntry> m_named;  ///< where the ports of the profile's file led last
  SaveWatch m_save;
  SentAge m_sent;
  WatchNow m_watch;                   ///< what the watch said last
  std::string m_outputFailure;        ///< why the pilot's port is not open
  QString m_wind;                     ///< what the caption says of the wind; empty while nothing is known
  std::vector<std::string> m_advice;  ///< what the sources do not bring
};

}  // namespace veerwatch
