// The window of the test of the pilot: asks, says what it does, how far it is, what came of it, and a button
// that takes the suggestion to the Tracking tab. It opens modal to the options, and the test ends with it;
// the main window stays usable.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <functional>
#include <string>

#include "options/PilotTestRun.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"

namespace veerwatch {

class PilotTestQt final : public QDialog {
 public:
  /// The lag that was measured, as the boxes show it.
  using TakeOver = std::function<void(const std::string& lag)>;

  /// What it works with. Main, time and asks outlive it.
  struct Parts {
    MainWindowApi& Main;
    const Clock& Time;
    WindowDialogs& Asks;  ///< those of Window
    QWidget& Window;      ///< in front of which it opens, and with which it is hidden
    /// Hears what came of it when it is over, or why there is no test; "" when the user wants none.
    std::function<void(const std::string& verdict)> Over{};
  };

  /// Says why the pilot cannot be tested now, or asks, and with Yes opens the window and begins. It deletes
  /// itself when it is closed.
  static void Ask(const Parts& parts, TakeOver takeOver);

  /// Every way to close it stops the test.
  void done(int result) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  PilotTestQt(const Parts& parts, TakeOver takeOver);

  void Show();
  void ShowResult();
  /// What came of the test, in words.
  std::string Verdict() const;

  MainWindowApi& m_main;
  TakeOver m_takeOver;
  std::function<void(const std::string&)> m_over;
  QLabel* lblPilotTest;
  QLabel* lblPilotTestAdvice;
  QProgressBar* ProgressBarPilotTest;
  QPushButton* cmdPilotTestTake;
  QPushButton* cmdPilotTestCancel;
  PilotTestRun m_run;
};

}  // namespace veerwatch
