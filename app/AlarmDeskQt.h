// Everything that the main window does about alarms: keeps the list, shows its worst in the banner and all of
// it in a window, and takes what the user answers.
#pragma once

#include <memory>
#include <string>

#include "alarms/AlarmCentre.h"
#include "alarms/frmAlarms.h"
#include "app/BannerQt.h"
#include "app/MainWindowParts.h"
#include "helm/MainWindowApi.h"

namespace veerwatch {

class AlarmDeskQt final : private HelmObserver {
 public:
  /// `window` is the main window. All of them outlive this.
  AlarmDeskQt(const MainWindowParts& parts, MainWindowApi& main, BannerQt& banner, QWidget& window);

  /// What `kind` has to say now; "" when nothing more.
  void NoticeSet(AlarmKind kind, const std::string& text);
  /// The user has taken note of all that stands.
  void Acknowledge();
  void Mute(bool mute);
  void ListShow();
  /// Hides the list, at the close.
  void Hide();

 private:
  void OnWatch(const WatchNow& watch) override;
  void ShowBanner();
  void ShowList();

  const MainWindowParts& m_parts;
  MainWindowApi& m_main;
  BannerQt& m_banner;
  QWidget& m_window;
  AlarmCentre m_centre;
  std::unique_ptr<frmAlarms> m_list;  ///< null until it is shown for the first time
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
