// Everything that the main window does about alarms: keeps the list, shows its worst in the banner and all of
// it in a window, and takes what the user answers.
#pragma once

#include <memory>
#include <string>

#include <QShortcut>

#include "alarms/AlarmCentre.h"
#include "alarms/TonePattern.h"
#include "alarms/frmAlarms.h"
#include "app/BannerQt.h"
#include "app/MainWindowParts.h"
#include "app/frmMainCommands.h"
#include "helm/MainWindowApi.h"

namespace veerwatch {

class AlarmDeskQt final : private HelmObserver {
 public:
  /// `window` is the main window. All of them outlive this.
  AlarmDeskQt(const MainWindowParts& parts, const frmMainMenu& menu, MainWindowApi& main, BannerQt& banner,
              QWidget& window);

  /// What `kind` has to say now; "" when nothing more.
  void NoticeSet(AlarmKind kind, const std::string& text);
  /// The user has taken note of all that stands.
  void Acknowledge();
  void Mute(bool mute);
  void ListShow();
  /// The loop's alarm is on at this step: with Beep it beeps; a tone goes on by itself.
  void StepSounds();
  /// A turn has ended by itself.
  void TurnSounds();
  /// Lets a red alarm be heard once, muted or not.
  void Test(AlarmSound sound);
  /// Hides the list, at the close.
  void Hide();

 private:
  void OnWatch(const WatchNow& watch) override;
  bool Muted() const { return m_centre.Muted(m_parts.Time.Now()); }
  /// Lets the pattern be heard, or where there is no loudspeaker the beep.
  void Play(const TonePattern& pattern);
  /// Lets be heard what is due.
  void Sound();
  void ShowBanner();
  void ShowList();

  const MainWindowParts& m_parts;
  const frmMainMenu& m_menu;
  MainWindowApi& m_main;
  BannerQt& m_banner;
  QWidget& m_window;
  AlarmCentre m_centre;
  ToneSchedule m_schedule;
  QShortcut m_space;                  ///< acknowledges, while something is to be answered
  std::unique_ptr<frmAlarms> m_list;  ///< null until it is shown for the first time
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
