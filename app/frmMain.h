// The main window: shows the instruments, the modes and the status of the ports, takes the bearing and the
// angles to hold, and keeps the settings for the session. It owns the helm; ports, timers, dialogs and the
// profile are handed to it, real ones by main, scripted ones by tests.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "app/Helm.h"
#include "app/InstrumentPanelQt.h"
#include "app/MainWindowApi.h"
#include "app/SettingsProfile.h"
#include "app/frmMainCommands.h"
#include "history/frmHistory.h"
#include "platform/Dialogs.h"
#include "platform/Profile.h"
#include "platform/Random.h"
#include "platform/SerialPort.h"
#include "platform/SystemClock.h"
#include "platform/Timer.h"
#include "polar/PolarListener.h"
#include "polar/frmPolar.h"

namespace veerwatch {

/// What the main window works with; everything outlives it.
struct MainWindowParts {
  SerialPort& MSCommNmea;   ///< the instrument port
  SerialPort& MSCommPilot;  ///< the pilot port
  Timer& tmrNmea;           ///< ticks into tmrNmea_Timer()
  Timer& tmrUnload;         ///< ticks into tmrUnload_Timer()
  RandomSource& Random;
  Dialogs& Asks;
  Profile& Store;
  std::string ProfileFile;  ///< path of the profile
  PolarFolders Polars{};    ///< where polar files lie
};

class frmMain final : public QMainWindow,
                      public MainWindowApi,
                      private HelmView,
                      private RememberedWindows,
                      private PolarListener {
 public:
  /// Makes the window and touches no port.
  explicit frmMain(const MainWindowParts& parts);

  /// Reads the profile and goes to Setup, or to Manual when simulating. Once, before the window is shown.
  void Form_Load();

  /// Closes in order without asking anything, even while a question is open: for the end of the session.
  void CloseUnasked();

  void tmrNmea_Timer() { m_helm.Tick(); }
  void tmrUnload_Timer();

  bool NmeaStart() override { return m_helm.Receiver().NmeaStart(); }
  void NmeaStop() override { m_helm.Receiver().NmeaStop(); }
  void PilotStart() override { m_helm.Pilot().PilotStart(); }
  void PilotStop() override { m_helm.Pilot().PilotStop(); }
  void ProfileRecall(bool recall) override;
  void SimulateTime(float time, float& timeWaypointBearing, float& timeWaypointRange) override {
    m_helm.Boat().SimulateTime(time, timeWaypointBearing, timeWaypointRange);
  }
  void TrackSteerTo(float change) override { m_helm.Loop().TrackSteerTo(change); }
  void TrackSetOff() override { m_helm.Modes().TrackSetOff(); }
  void TrackSetSetup() override { m_helm.Modes().TrackSetSetup(); }
  void TrackSetManual() override { m_helm.Modes().TrackSetManual(); }
  void TrackSetTrack() override { m_helm.Modes().TrackSetTrack(); }

  /// Feeds the history's chart with a text of a number, a blank and the units.
  void HistorySample(std::string_view name, std::string_view text) {
    History().Chart().SampleAdd(name, text);
  }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // The panels of the status bar.
  static constexpr int kPilotPanel = 1;
  static constexpr int kInputPanel = 2;
  static constexpr int kOutputPanel = 3;

  /// Asks; true when the close may go on.
  bool StopTracking();
  void MakeStatusBar();
  void ConnectControls();
  void ConnectKeys();
  void ApplyTheme();
  void Panel(int index, const QString& text);
  void ShowControls();
  void ShowModeText();

  void tbrTrack_ButtonClick(TrackMode mode);
  void optControl_Click(int index);
  void txtAutoPilot_Taken();
  void txtDesired_Taken(int index);
  void cmdAutoPilot_Click(int index);
  void cmdDesired_Click(int index);
  void NudgeKey(int index);

  void HistoryShow() override;
  bool HistoryVisible() const override { return m_history && m_history->isVisible(); }
  frmHistory& History();
  void mnuViewHistory_Click();

  void OnHeading(float heading) override;
  void OnBoatSpeed(float speed) override;
  void OnWaypoint(float range, float bearing) override;
  void OnWindApparent(float angle, float speed) override;
  void OnWindTrue(float angle, float speed) override;
  void OnWindIndicator(float direction, float speed) override;
  void OnValuesBlanked() override;
  void OnInputStatus(std::string_view text) override;
  void OnOutputStatus(std::string_view text) override;
  void OnDesired(float apparent, float trueWind) override;
  void OnDelta(float apparent, float trueWind) override;
  void OnAutoPilot(float bearing) override;
  void OnPilotDelta(float error) override;
  void OnPilotHeading(float bearing) override;
  void OnAlarm(TrackSide side, float error) override;
  void OnAlarmOver() override;
  void OnTrackMode(TrackMode mode) override;
  void OnTrackRefused(std::string_view reason) override;
  void OnPolarUpdate(TrackMode mode, const InstrumentData& record) override;

  void PolarShow() override;
  bool PolarVisible() const override;
  void OnPolarValue(std::string_view channel, std::string_view value) override {
    HistorySample(channel, value);
  }
  void OnPolarVisible(bool visible) override;

  MainWindowParts m_parts;
  frmMainMenu m_menu;
  frmMainModeBar* m_tbrTrack;
  InstrumentPanelQt* m_panel;
  std::array<QLabel*, 3> m_status{};
  SystemClock m_clock;
  std::unique_ptr<frmHistory> m_history;  ///< from the first value on
  Helm m_helm;
  std::unique_ptr<frmPolar> m_polar;  ///< null until it is shown for the first time
  bool m_ask = true;                  ///< a close still has to ask
  bool m_asking = false;              ///< the question of the close is open
  bool m_unloaded = false;            ///< the profile is written, everything is closed
};

}  // namespace veerwatch
