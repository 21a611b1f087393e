// The manoeuvre dialog: takes the autopilot to a new heading by a timed turn, as a plain change of course, a
// tack or a jibe. Made by the main window on first use, afterwards shown and hidden; the main window stays
// usable beside it and ends the turn as soon as anybody else takes the pilot.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

#include "app/MainWindowApi.h"
#include "platform/Profile.h"
#include "platform/Timer.h"
#include "tack/Manoeuvre.h"
#include "tack/TackSettings.h"

namespace veerwatch {

/// What the dialog works with; everything outlives it.
struct TackParts {
  MainWindowApi& Main;
  Timer& TimerTack;  ///< ticks into TimerTack_Timer()
  Profile& Store;
};

class frmTack final : public QDialog {
 public:
  /// Makes the dialog, hidden, and reads its settings from the profile. `main` gets the keyboard back at the
  /// end of a turn.
  frmTack(const TackParts& parts, QWidget* main);

  /// Stops a turn that runs and shows the dialog for one from the present `heading` with the pilot at
  /// `autoPilot` to `newHeading` [deg magnetic], with the wind at `windAngle` [deg relative, positive to
  /// starboard]. Does nothing when one of them is not finite.
  void TackOpen(float newHeading, float heading, float autoPilot, float windAngle);

  /// One second of the turn; nothing while none runs.
  void TimerTack_Timer();

  /// Somebody else has taken the pilot: a turn that runs ends here, with the bearing as it is.
  void PilotTaken();

  /// Sets the keys of "Tack Data" in the profile, which somebody else commits.
  void Unload();

  /// Every way to close the dialog stops the turn.
  void done(int result) override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void MakeControls();
  void ShowKind();
  /// Keeps what does not answer legible in the desktop's present palette.
  void Dim();
  void Steering(bool steering);
  void ShowProgress();
  void cmdOk_Click();

  TackParts m_parts;
  TackSettings m_settings;
  Manoeuvre m_turn;
  float m_newHeading = 0.0F;  ///< the heading that was asked for at the opening

  QLabel* lblPrompt;
  QLineEdit* txtHeading;
  QLineEdit* txtOvershoot;
  QLineEdit* txtRate;
  QListWidget* lstTack;
  QProgressBar* ProgressBarTack;
  QPushButton* cmdOk;
  QPushButton* cmdCancel;
};

}  // namespace veerwatch
