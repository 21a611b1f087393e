// The menu and the mode buttons of the main window.
#pragma once

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <map>

#include "app/ThemeQt.h"
#include "settings/TrackMode.h"
#include "settings/WindowLanguage.h"

namespace veerwatch {

/// The menu's commands.
struct frmMainMenu {
  QAction* mnuFileDefault;
  QAction* mnuFileRecord;
  QMenu* mnuFileProfiles;
  QAction* mnuFileExit;
  QAction* mnuViewDiagram;
  QAction* mnuViewHistory;
  QAction* mnuViewPolar;
  QAction* mnuViewAlarms;
  QAction* mnuViewMute;
  QAction* mnuViewNight;
  QAction* mnuViewSave;
  QActionGroup* mnuViewLanguage;  ///< its actions hold the WindowLanguage as their data
  QAction* mnuOptionsInput;
  QAction* mnuOptionsData;
  QAction* mnuOptionsOutput;
  QAction* mnuOptionsTrack;
  QAction* mnuOptionsSimulate;
  QAction* mnuOptionsWatch;
  QAction* mnuOptionsRecommended;
  QAction* mnuWindGuard;
  QAction* mnuWindShift;
  QAction* mnuWindSide;
  QAction* mnuWindPolar;
  QAction* mnuWindDodge;
  QAction* mnuWindLast;
  QAction* mnuWindLimits;
  QAction* mnuTurnTack;
  QAction* mnuTurnJibe;
  QAction* mnuTurnStop;
  QAction* mnuHelpHere;
  QAction* mnuHelpManual;
  QAction* mnuHelpConnect;
  QAction* mnuHelpDiagram;
  QAction* mnuHelpReport;
  QAction* mnuHelpAbout;

  /// Adds the menu to the menu bar of `window`.
  explicit frmMainMenu(QMainWindow& window);

  /// Ticks the language that is chosen for the next start.
  void TickLanguage(WindowLanguage language) const;

 private:
  void AddLanguage(QMainWindow& window, QMenu* view);
  void AddWind(QMainWindow& window, QMenu* options);
  void AddTurns(QMainWindow& window);
};

/// Size at which the window starts where the screen allows [px].
inline constexpr QSize kDesignSize(1160, 760);

/// How much larger than at its default size everything in a main window of this size is drawn.
double WindowScale(const QSize& window);

/// The bar of the four modes across the window: the one that is on is filled, to be read from a distance.
class frmMainModeBar final : public QToolBar {
 public:
  explicit frmMainModeBar(QMainWindow& window);

  /// The action that selects a mode, other than Switching.
  QAction* Button(TrackMode mode) const { return m_buttons.at(mode); }

  void Theme(const ThemeQt& theme);
  /// Fits buttons, text and icons to a window of that size [px].
  void Fit(const QSize& window);

 private:
  void Dress();
  int Margin() const;
  int Gap() const;

  std::map<TrackMode, QAction*> m_buttons;
  ThemeQt m_theme;
  int m_textHeight = 0;
};

}  // namespace veerwatch
