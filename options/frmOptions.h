// The options dialog: every setting of the main window on seven tabs, with live lists of what comes in and
// goes out. It copies the settings into its controls when it is loaded and after each Apply, and back on
// Apply and OK. It is hidden by OK and Cancel, with what was typed still in it, and destroyed when it is
// closed by its frame. It is an observer of the helm; nothing is listed while it is not visible.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QTabWidget>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "control/TrackLoop.h"
#include "helm/MainWindowApi.h"
#include "options/DataPageQt.h"
#include "options/OptionsStore.h"
#include "options/PilotFrameQt.h"
#include "options/PortPageQt.h"
#include "options/SentenceListQt.h"
#include "options/SimulatePageQt.h"
#include "options/TrackPageQt.h"
#include "options/WatchPageQt.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/PortFinder.h"
#include "platform/Profile.h"
#include "platform/Random.h"

namespace veerwatch {

class frmOptions final : public QDialog, private HelmObserver {
 public:
  /// What the dialog works with; everything outlives it.
  struct Parts {
    MainWindowApi& Main;
    const OptionsPorts& Ports;
    Dialogs& Asks;
    RandomSource& Random;
    const WindRecorder& Recorded;
    Profile& Store;
    const PortFinder* Finder;  ///< null for none
    const Clock& Time;
  };

  enum Tab { Input = 0, Data = 1, Output = 2, Tracking = 3, Simulate = 4, Diagram = 5, Watch = 6 };

  /// Loads the settings. The dialog is not shown.
  explicit frmOptions(const Parts& parts);

  /// Selects a tab [0, 6].
  void TabSelect(int index) { SSTab->setCurrentIndex(index); }
  int Tab() const { return SSTab->currentIndex(); }
  /// Shows the settings as they are in place of whatever was typed, as after each Apply.
  void OptionsReload();
  /// Shows the dialog in the middle of its screen.
  void ShowCenter();
  /// Shows the dialog with the upper left corner of its frame there [px of the desktop].
  void ShowAt(QPoint topLeft);

  /// Whom to tell when the dialog was closed by its frame, to destroy it.
  void Closed(std::function<void()> handler) { m_closed = std::move(handler); }

  /// Cancels.
  void reject() override { cmdCancel_Click(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeTabs();
  void MakeButtons();
  void ConnectMarks();
  void LargerText();
  QSize LeastSize() const;
  void Fit();
  void LayOut();
  QPoint Centre() const;

  /// Lists a line, highlighted when `checked`, where the display of the input is on.
  void NmeaList(std::string_view line, bool checked);

  void OnInputStarts() override { m_input->List->Clear(); }
  /// Lists lines with "Raw NMEA", faults with "Decoded Error".
  void OnNmeaLine(std::string_view line, LineFault fault, bool used) override;
  void OnPilotData(std::string_view sentence) override;
  void OnInputState(InputState state) override;
  void OnOutputState(OutputState state) override;
  void OnInputFailure(const std::string& reason) override { m_input->Explain(reason); }
  void OnOutputFailure(const std::string& reason) override { m_output->Explain(reason); }
  void OnSourceAdvice(const std::vector<std::string>& lines) override { m_data->Advise(lines); }
  void OnTrackMode(TrackMode mode) override;
  void OnTick() override;

  /// Shows what was told before the dialog was there.
  void ShowHelm();

  /// The number of a port as it is typed; 0 for none.
  static int NumberIn(const PortPageQt& page);
  /// Says on both pages where the ports lead, with what was chosen and not applied.
  void ShowDevices() const;
  /// Asks for the device of the port of a page.
  void ChooseDevice(PortPageQt& page);

  OptionsForm Form() const;
  bool OptionsApply();
  void SimulateWaypointShow();
  /// Shows what would leave for the pilot by what is chosen, where it can be seen.
  void PilotPreviewShow();

  void cmdOk_Click();
  void cmdCancel_Click();
  void cmdApply_Click();
  void Suggested(const TrackSuggestion& suggestion);
  void cmdPilotTest_Click();
  void SSTab_Click(int index);
  void vscSimulate_Changed();

  /// Leaves something to apply, when `control` has the keyboard.
  void Mark(const QWidget* control);
  void ApplyBold(bool bold);

  Parts m_parts;
  std::unique_ptr<WindowDialogs> m_asks;
  OptionsStore m_store;
  QTabWidget* SSTab;
  PortPageQt* m_input;
  DataPageQt* m_data;
  PortPageQt* m_output;
  PilotFrameQt* m_pilot;
  TrackPageQt* m_track;
  SimulatePageQt* m_simulate;
  WatchPageQt* m_watch;
  SentenceListQt* lstNmeaSentence;
  QPushButton* cmdOk;
  QPushButton* cmdCancel;
  QPushButton* cmdApply;
  std::map<int, std::string> m_devices;  ///< chosen for a port's number, and not applied
  std::function<void()> m_closed;
  std::string m_line;  ///< as it is listed
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
