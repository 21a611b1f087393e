// The manoeuvre dialog: takes the autopilot to a new heading by a timed turn, as a plain change of course, a
// tack or a jibe. Made by app/OtherWindowsQt on first use, afterwards shown and hidden; the main window stays
// usable beside it. The helm ends the turn as soon as anybody else takes the pilot. A turn begins only while
// the wind's sentences can carry it, and waits while none of them leaves.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "control/Manoeuvre.h"
#include "control/TurnPace.h"
#include "helm/MainWindowApi.h"
#include "platform/Clock.h"
#include "platform/EntryLineQt.h"
#include "platform/Profile.h"
#include "platform/Timer.h"
#include "tack/TackSettings.h"
#include "tack/TurnGuard.h"
#include "tack/TurnWords.h"

namespace veerwatch {

/// What the dialog asks at each moment.
struct TurnNow {
  HelmNow Helm;
  std::optional<float> NewHeading;  ///< where the button that was pressed would lead now [deg magnetic]
};

/// What the dialog works with; everything outlives it.
struct TackParts {
  MainWindowApi& Main;
  Timer& TimerTack;  ///< ticks into TimerTack_Timer()
  Profile& Store;
  const Clock& Time;
  std::function<TurnNow()> Now;
};

class frmTack final : public QDialog, private HelmObserver {
 public:
  /// Makes the dialog, hidden, and reads its settings from the profile. `main` gets the keyboard back at the
  /// end of a turn.
  frmTack(const TackParts& parts, QWidget* main);

  /// Stops a turn that runs and shows the dialog, in front of `opener`, for one to `newHeading` [deg
  /// magnetic] from the present heading, bearing and wind. `said` is where the wind crosses by the button
  /// that asks. Does nothing when a number is not finite.
  void TackOpen(float newHeading, const TurnFrom& from, WindCrossing said, QWidget& opener);

  /// From now on the dialog is in front of `opener`, whatever is clicked.
  void StayInFrontOf(QWidget& opener);

  /// A step of the turn, as long as the time since the one before; nothing while none runs.
  void TimerTack_Timer();

  /// Sets the keys of "Tack Data" in the profile, which somebody else commits.
  void Unload();

  /// Every way to close the dialog stops the turn.
  void done(int result) override;

 protected:
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void OnTurnEnds(TurnFate why) override;
  void OnTick() override { HelmChanged(); }
  void OnTrackMode(TrackMode /*mode*/) override { HelmChanged(); }
  void OnInputState(InputState /*state*/) override { HelmChanged(); }
  void OnOutputState(OutputState /*state*/) override { HelmChanged(); }

  /// Something about the helm may be another: shows whether a turn can begin.
  void HelmChanged();
  void MakeControls();
  void MakePrompt();
  void MakeSteps();
  void MakeButtons();
  void LayOut();
  void ShowKind();
  /// What the turn of the present texts will do, and what is to be known before OK.
  void ShowWords();
  void ShowNotes(const TurnNow& now);
  WindCrossing Crossing() const;
  /// The heading that stands in its box; a text that is none leaves the one that was asked for.
  float TypedHeading() const;
  /// The turn as it would be asked for now. What the user has typed stays,
  /// overshoot and rate only for the same kind of turn.
  void FillAnew(const TurnNow& now, const TurnFrom& from);
  /// True when OK has to be pressed once more, for what the note then says.
  bool AsksOnceMore(const TurnNow& now);
  void Begin();
  /// Keeps what does not answer legible in the desktop's present palette.
  void Dim();
  void Steering(bool steering);
  void ShowProgress();
  void RestoreEmptied();
  void cmdOk_Click();

  TackParts m_parts;
  TackSettings m_settings;
  Manoeuvre m_turn;
  TurnPace m_pace;
  std::int64_t m_stepped = 0;  ///< when the turn began, or its latest step was made [ms of the steady clock]
  float m_newHeading = 0.0F;   ///< the heading that was asked for at the opening
  TurnFrom m_from;             ///< as at the opening, or when it was filled again
  WindCrossing m_said = WindCrossing::None;
  std::string m_question;  ///< why OK has to be pressed once more
  std::string m_asked;     ///< the words of the turn that the user was asked about
  HelmObservers::Membership m_told;

  QLabel* lblPrompt;
  QLabel* lblWords;
  QLabel* lblNote;
  EntryLineQt* txtHeading;
  EntryLineQt* txtOvershoot;
  EntryLineQt* txtRate;
  QListWidget* lstTack;
  QProgressBar* ProgressBarTack;
  QPushButton* cmdOk;
  QPushButton* cmdCancel;
};

}  // namespace veerwatch
