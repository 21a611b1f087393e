// The history window: a strip chart of the instrument and autopilot values of one day. It is loaded
// and fed by app/OtherWindowsQt, from the first value on. Deliberate: closing it only hides it; it records
// until the program ends. Its place and the chart's choices are kept in the profile.
#pragma once

#include <QFrame>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <string_view>

#include "draw/WindowPlaceQt.h"
#include "history/HistoryPlace.h"
#include "history/StripChartQt.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Profile.h"

namespace veerwatch {

class frmHistory final : public QWidget {
 public:
  /// What the window works with; everything outlives it.
  struct Parts {
    const Clock& Time;
    Dialogs& Asks;
    Profile& Store;
  };

  /// Sets the chart up and takes place and choices from the profile. The window is not shown.
  explicit frmHistory(const Parts& parts);

  /// Feeds a value with one decimal. An unknown name is ignored.
  void SetValue(std::string_view name, float value, std::string_view units);

  /// Opens the chart's configuration pop-up.
  void ConfigurePopup();

  /// Puts place and choices into the profile, which the caller commits.
  void Unload();

  StripChart& Chart() { return *m_chart; }

  /// Whom to tell when the window comes or goes.
  void VisibleChanged(std::function<void(bool visible)> handler) { m_visibleChanged = std::move(handler); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  std::uint32_t WindowColour() const;
  void LoadPlace();
  /// Keeps the frame that shows; not that of a window that fills the screen or is minimised.
  void NotePlace();

  Parts m_parts;
  std::unique_ptr<WindowDialogs> m_asks;
  StripChart* m_chart;
  QFrame* m_line;  ///< across the top
  HistoryPlace m_place;
  /// Runs from the latest move on: the desktop may tell only afterwards that it was no move by hand.
  QTimer m_placeTimer{this};
  FrameRestoreQt m_frame{*this};
  std::function<void(bool)> m_visibleChanged;
};

}  // namespace veerwatch
