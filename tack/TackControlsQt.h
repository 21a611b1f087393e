// The controls of the manoeuvre dialog, made and laid out; what they do is frmTack's.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

#include "control/Manoeuvre.h"
#include "platform/EntryLineQt.h"
#include "tack/StopButtonQt.h"

namespace veerwatch {

struct TackControlsQt {
  /// Makes the controls of `dialog`, which owns them.
  explicit TackControlsQt(QDialog& dialog);

  /// The texts of a kind of turn: the dialog's caption, the prompt and the steps.
  void ShowKind(ManoeuvreKind kind, bool overshoots);
  /// Whether a turn of the dialog runs: then "Stop" takes most of the note's room, which stays the same.
  void ShowStop(bool turning) const;
  /// Leaves out what can be done without where the screen has less than `height` [px] for the dialog.
  void Fit(int height);

  QDialog& m_dialog;
  QLabel* lblPrompt;
  QLabel* lblWords;
  QLabel* lblNote;
  EntryLineQt* txtHeading;
  EntryLineQt* txtOvershoot;
  EntryLineQt* txtRate;
  QListWidget* lstTack;
  QProgressBar* ProgressBarTack;
  StopButtonQt* cmdStop;
  QCheckBox* chkThenTrack;
  QComboBox* cboAngle;
  QPushButton* cmdOk;
  QPushButton* cmdCancel;

 private:
  void MakePrompt();
  void MakeSteps();
  void MakeThenTrack();
  void MakeButtons();
  void LayOut();

  int m_noteLines;
};

}  // namespace veerwatch
