// What a turn that is followed to its end shows while it runs: its words, the stage with its degrees, and a
// large "Stop". It takes no keyboard from the window that is worked in.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <functional>

#include "tack/StopButtonQt.h"
#include "tack/TurnRun.h"

namespace veerwatch {

class frmTurn final : public QDialog {
 public:
  /// Made hidden. `stop` is called by the button, and when the window is closed.
  frmTurn(QWidget* main, std::function<void()> stop);

  /// Shows where `run` stands, in front of `opener`; hides when it does not run.
  void Show(const TurnRun& run, QWidget& opener);

  /// Closing the window stops the turn.
  void done(int result) override;

 protected:
  bool event(QEvent* event) override;

 private:
  void ShowFirst(QWidget& opener);

  std::function<void()> m_stop;
  QLabel* lblTurn;
  QLabel* lblStage;
  QProgressBar* ProgressBarTurn;
  StopButtonQt* cmdStop;
};

}  // namespace veerwatch
