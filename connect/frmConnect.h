// The assistant "Connect Your Boat...": five pages from the ports to the settings, with Back and Next. It
// listens, shows and proposes; nothing is written before "Save and go to Setup", and whoever cancels it, or
// hides it, finds everything as it was. It stays in front of the main window and blocks nothing.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "connect/AutopilotPageQt.h"
#include "connect/ConnectDesk.h"
#include "connect/ConnectPageQt.h"
#include "connect/InstrumentsPageQt.h"
#include "platform/Dialogs.h"
#include "platform/ProgramReader.h"

namespace veerwatch {

class frmConnect final : public QDialog {
 public:
  struct Parts {
    ConnectDesk::Parts Desk;
    Dialogs& Asks;
    ProgramReader* Browser;  ///< reads what announces itself; null for none
    bool NewProfile;         ///< none lies there: everything recommended is ticked
    /// The settings were changed as the user wanted, and are to be saved.
    std::function<void()> Saved;
    /// The user wants a simulated boat.
    std::function<void()> Simulate;
  };

  frmConnect(Parts parts, QWidget* main);

  /// Brings back what is only tried.
  void EndTrial() { m_desk.TrialEnd(); }
  /// Which page is open [0, 4].
  int PageIndex() const { return m_stack->currentIndex(); }
  /// Every way to close it gives the ports back.
  void done(int result) override;

 protected:
  /// Enter in the box of a place listens to it, and does not go on.
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void MakePages();
  void MakeButtons();
  void Search();
  void Turn(int page);
  void Refresh();
  void TestPilot();
  void Save();
  ConnectPageQt& Page() const { return *m_pages.at(static_cast<std::size_t>(m_stack->currentIndex())); }

  Parts m_parts;
  std::unique_ptr<WindowDialogs> m_asks;
  ConnectDesk m_desk;
  QLabel* lblConnectPage;
  QStackedWidget* m_stack;
  std::vector<ConnectPageQt*> m_pages;
  std::vector<QScrollArea*> m_areas;  ///< around each page
  InstrumentsPageQt* m_instruments = nullptr;
  AutopilotPageQt* m_autopilot = nullptr;
  QLabel* lblConnectHint;
  QPushButton* cmdConnectBack;
  QPushButton* cmdConnectNext;
  QPushButton* cmdConnectCancel;
  QTimer m_timer{this};
};

}  // namespace veerwatch
