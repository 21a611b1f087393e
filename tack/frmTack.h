// The manoeuvre dialog: takes the autopilot to a new heading by a timed turn, as a plain change of course, a
// tack or a jibe. Made by app/OtherWindowsQt on first use, afterwards shown and hidden; the main window stays
// usable beside it. The helm ends the turn as soon as anybody else takes the pilot. A turn begins only while
// the wind's sentences can carry it, and waits while none of them leaves.
#pragma once

#include <QDialog>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "control/Manoeuvre.h"
#include "control/TurnPace.h"
#include "helm/MainWindowApi.h"
#include "platform/Clock.h"
#include "platform/Profile.h"
#include "platform/Timer.h"
#include "tack/TackControlsQt.h"
#include "tack/TackSettings.h"
#include "tack/TurnGuard.h"
#include "tack/TurnPlan.h"
#include "tack/TurnWords.h"

namespace veerwatch {

/// What the dialog asks at each moment.
struct TurnNow {
  HelmNow Helm;
  std::optional<float> NewHeading;  ///< where the button that was pressed would lead now [deg magnetic]
};

/// Who makes the turns that are followed to their end; everything about them but the dialog is there.
class FollowedTurns {
 public:
  virtual ~FollowedTurns() = default;
  /// The turn as it would begin now, to the angle that is chosen; with what of it `ask` leaves open.
  virtual TurnPlan Plan(const TurnAsk& ask, TackAngle angle, const HelmNow& now) = 0;
  /// Begins a plan of this moment that is not refused.
  virtual void Begin(const TurnPlan& plan) = 0;
};

/// What the dialog works with; everything outlives it.
struct TackParts {
  MainWindowApi& Main;
  Timer& TimerTack;  ///< ticks into TimerTack_Timer()
  Profile& Store;
  const Clock& Time;
  std::function<TurnNow()> Now;
  FollowedTurns& Followed;
};

class frmTack final : public QDialog, private TackControlsQt, private HelmObserver {
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

  /// What the user has set for each kind of turn.
  const TackSettings& Kept() const { return m_settings; }
  /// A turn of the dialog's own runs.
  bool Turning() const { return m_turning; }
  /// The turn as OK would begin it now; nothing while the dialog does not show, turns, or has none.
  std::optional<TurnPlan> Ahead() const;

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
  /// What is asked for is another.
  void AskedAnew();
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
  /// Takes the texts and choices for the next time.
  void Keep();
  bool Follows() const { return chkThenTrack->isChecked(); }
  TackAngle Angle() const { return static_cast<TackAngle>(cboAngle->currentIndex()); }
  TurnPlan Plan(const HelmNow& now) const;
  /// Words and heading of the turn as it would begin now.
  void ShowFollowed(const HelmNow& now);
  void BeginFollowed();
  void ShowEnabled();
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
  bool m_turning = false;      ///< a turn of the dialog's own runs
  std::int64_t m_stepped = 0;  ///< when the turn began, or its latest step was made [ms of the steady clock]
  float m_newHeading = 0.0F;   ///< the heading that was asked for at the opening
  TurnFrom m_from;             ///< as at the opening, or when it was filled again
  WindCrossing m_said = WindCrossing::None;
  std::string m_question;  ///< why OK has to be pressed once more
  std::string m_asked;     ///< the words of the turn that the user was asked about
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
