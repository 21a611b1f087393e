// The windows beside the main window: makes each at its first use, shows it, passes on what the helm tells,
// and stores and hides them all at the close. What is told for a window that is not loaded does nothing, but
// the first value loads the history and the first sentence to the autopilot the options dialog.
#pragma once

#include <QApplication>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/ConnectShowQt.h"
#include "app/HelpKeyQt.h"
#include "app/HistoryMarks.h"
#include "app/MainWindowParts.h"
#include "app/SailDeskQt.h"
#include "app/TurnDeskQt.h"
#include "app/frmMainCommands.h"
#include "app/frmManual.h"
#include "diagram/DiagramObserver.h"
#include "diagram/frmAbout.h"
#include "diagram/frmDiagram.h"
#include "helm/Helm.h"
#include "helm/MainWindowApi.h"
#include "helm/SettingsProfile.h"
#include "helm/WindRecorder.h"
#include "history/frmHistory.h"
#include "options/Recommended.h"
#include "options/frmOptions.h"
#include "polar/BestAngles.h"
#include "polar/PolarObserver.h"
#include "polar/frmPolar.h"
#include "tack/frmTack.h"
#include "wind/PolarAngle.h"

namespace veerwatch {

class OtherWindowsQt final : private HelmObserver,
                             public RememberedWindows,
                             private PolarObserver,
                             private OptionsPorts,
                             private DiagramObserver {
 public:
  /// What turns that are followed to their end, and courses, need of the main window.
  struct ForTurns {
    Helm& Boat;
    TurnRun& Run;
    WindowDialogs& Asks;                             ///< of the main window
    std::function<void(const std::string&)> Say;     ///< shows one line in the status bar for a while
    std::function<void(const std::string&)> Notice;  ///< shows what the course prompts for in the banner
    std::function<void()> Sound;                     ///< of a course that prompts or ends by itself
  };

  /// Connects the commands of `menu` that show a window. `window` is the main window. All of them outlive
  /// this.
  OtherWindowsQt(const MainWindowParts& parts, const frmMainMenu& menu, MainWindowApi& main, QWidget* window,
                 const ForTurns& turns);

  /// Puts what the windows keep into the profile, which the caller commits.
  void Store();
  void Hide();

  /// Feeds the history's chart with a text of a number, a blank and the units.
  void HistorySample(std::string_view name, std::string_view text) {
    History().Chart().SampleAdd(name, text);
  }

  void TimerTack_Timer();

  /// The manoeuvre dialog is the window that the user works in.
  bool ManoeuvreInFront() const { return m_tack && QApplication::activeWindow() == m_tack.get(); }
  /// Opens the manoeuvre dialog in front of the main window.
  void TackOpen(float newHeading, float heading, float windAngleTrue);

  void HistoryShow() override;
  bool HistoryVisible() const override { return m_history && m_history->isVisible(); }
  void PolarShow() override;
  void OnManoeuvre(TurnButton button, float newHeading, float heading, float windAngleTrue) override;
  /// The best angle of the opened polar in a true wind of `windSpeed` [kn]; opens the polar of the profile
  /// where the window was not shown yet.
  std::optional<BestCourse> BestAngleOf(double windSpeed, bool upwind);
  bool PolarVisible() const override { return m_polar && m_polar->isVisible(); }

  /// Offers the assistant in `window`, where no profile lies; cancels it.
  void ConnectOffer(QMainWindow& window) { m_connect.Offer(window); }
  void ConnectHide() { m_connect.Hide(); }
  /// What the assistant only tries is not to be saved.
  void ConnectEndTrial() { m_connect.EndTrial(); }

  /// Shows the settings in the options dialog, where it is loaded.
  void OptionsReload();
  /// The options dialog, made where it is not there yet.
  frmOptions& Options();
  /// What is set now, to be compared with what is recommended, and sets what is ticked of it.
  RecommendedSeen RecommendedOf();
  void RecommendedSet(const RecommendedTicks& ticks);

 private:
  frmHistory& History();

  frmPolar& Polar();
  frmTack& Tack();
  std::optional<TurnAim> BestAim(bool upwind);
  TurnNow ManoeuvreNow() const;

  void DiagramShow();
  void DiagramLights();
  frmManual& Manual();
  void ManualInBrowser();
  /// The manual, where it tells of that window.
  void HelpShow(const QWidget& window);
  void AboutShow();
  void OnDiagramOptions(int tab, const DiagramAnchor& anchor) override;
  void OnDiagramPolar() override { PolarShow(); }
  void OnDiagramHistory() override;
  void OnDiagramVisible(bool visible) override { m_menu.mnuViewDiagram->setChecked(visible); }

  void OnPolarValue(std::string_view channel, std::string_view value) override {
    HistorySample(channel, value);
  }
  void OnPolarVisible(bool visible) override;
  void OnSailCourse(bool wanted) override { m_sails.Wanted(wanted); }
  void OnSailTurn() override { m_sails.Turn(); }

  void OnHeading(float heading) override;
  void OnBoatSpeed(float speed) override;
  void OnWindApparent(float angle, float speed) override;
  void OnWindTrue(float angle, float speed) override;
  void OnPilotDelta(float error) override;
  void OnPilotHeading(float bearing) override;
  void OnPolarUpdate(TrackMode mode, const InstrumentData& record) override;
  /// The options dialog lists every sentence from the first one on, so it is made now.
  void OnPilotData(std::string_view /*sentence*/) override { Options(); }
  void OnTrackMode(TrackMode /*mode*/) override { DiagramLights(); }
  void OnInputState(InputState /*state*/) override { DiagramLights(); }
  void OnOutputState(OutputState /*state*/) override { DiagramLights(); }
  void OnTick() override;
  void OnWatch(const WatchNow& watch) override;
  void FadePolar();
  PlotHold HoldNow(TrackMode mode) const;
  /// The turn that runs, is prompted for, or stands in the dialog.
  std::optional<PlotTurn> TurnToCome() const;

  bool NmeaPortOpen() const override { return m_parts.MSCommNmea.PortOpen(); }
  bool PilotPortOpen() const override;

  const MainWindowParts& m_parts;
  const frmMainMenu& m_menu;
  MainWindowApi& m_main;
  QWidget* m_window;
  const TurnRun& m_run;
  WindRecorder m_recorded;
  HelmObservers::Membership m_told;
  WatchNow m_watch;                       ///< what the watch said last
  std::unique_ptr<frmHistory> m_history;  ///< from the first value on
  std::unique_ptr<frmPolar> m_polar;      ///< null until it is shown for the first time
  BestAnglesMemory m_best;
  HistoryMarks m_marks;
  TurnDeskQt m_turns;
  SailDeskQt m_sails;
  std::unique_ptr<frmTack> m_tack;        ///< null until it is shown for the first time, or a key turns
  std::optional<TurnButton> m_asked;      ///< the button that the manoeuvre was asked for with
  std::unique_ptr<frmOptions> m_options;  ///< from its first use on, until its frame is closed
  std::unique_ptr<frmDiagram> m_diagram;  ///< null until it is shown for the first time
  std::unique_ptr<frmAbout> m_about;      ///< the same
  ConnectShowQt m_connect;
  std::unique_ptr<frmManual> m_manual;  ///< the same
  HelpKeyQt m_helpKey;
};

}  // namespace veerwatch
