// The polar window: the boat's polar as a plot, with the boat's present speed and wind against it. Made by
// app/OtherWindowsQt on first use, afterwards shown and hidden. Closing it hides it and stores its settings.
#pragma once

#include <QMainWindow>
#include <memory>
#include <optional>

#include "platform/Dialogs.h"
#include "platform/Profile.h"
#include "polar/CourseControlsQt.h"
#include "polar/CourseTargets.h"
#include "polar/MouseReadoutQt.h"
#include "polar/PacedQt.h"
#include "polar/PolarCanvasQt.h"
#include "polar/PolarMenuQt.h"
#include "polar/PolarModel.h"
#include "polar/PolarObserver.h"
#include "polar/PolarQuestions.h"
#include "polar/PolarScene.h"
#include "polar/SailBarQt.h"
#include "settings/TrackMode.h"

namespace veerwatch {

/// What the polar window works with; everything outlives it.
struct PolarParts {
  Profile& Store;
  Dialogs& Asks;
  PolarObserver& Tells;
  PolarFolders Folders;
  int Rest = 180;  ///< least time from one set of values that is shown to the next [ms]
};

class frmPolar final : public QMainWindow {
 public:
  /// Makes the window, hidden, and calls PolarInit(true).
  explicit frmPolar(const PolarParts& parts);

  /// Sets the defaults, recalls the settings when `recall`, refreshes the menus and loads the own polar.
  void PolarInit(bool recall);

  /// Takes one set of instrument values, as they stand in the record: angles [deg, wind angles negative to
  /// port], speeds [kn], range [nm]. Averages them and tells the polar speed at once; what is seen, with the
  /// search for the course, follows when the event loop comes round, a few times a second at most.
  void PolarUpdate(TrackMode mode, bool headingValid, float heading, float boatSpeed, float windAngleApparent,
                   float windSpeedApparent, float windAngleTrue, float windSpeedTrue, bool waypointValid,
                   float waypointBearing, float waypointRange);

  /// What the loop holds now, shown with the next values.
  void PolarHold(const PlotHold& hold) { m_model.Hold(hold); }

  /// Shows the course that is sailed, or that none is.
  void SailShow(const SailView& sails);

  /// The values have grown stale, or come again: what is made of them is in half tone.
  void PolarFade(bool fade);

  void PolarRecall();
  /// Sets the keys of "Polar Window" and "Polar Data" in the profile, which somebody else commits.
  void PolarStore();
  void PolarMenus();
  /// Draws anew; the mouse readout follows.
  void PolarDraw();

  const PolarModel& Model() const { return m_model; }
  /// Chooses whether the speed goes evenly from one wind of the table to the next.
  void SmoothWinds(bool smooth);

  /// Where the turn of `button` leads now [deg magnetic, [0, 360)], by all that has come; nothing while no
  /// course shows.
  std::optional<float> TurnHeading(TurnButton button);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void ConnectMenus();
  void ConnectCourse();
  /// Shows what the model made of the updates.
  void ShowUpdate();
  /// Shows the course to where the model says, or hides it.
  void CourseUpdate();
  /// Searches the best course to `targetBearing` and shows its ledger, its legs and the turns.
  void CourseLedger(float heading, float targetBearing, float windAngleTrue, float windSpeedTrue,
                    float boatSpeed, float polarSpeed);
  /// Hides what belongs to a course.
  void CourseHide();
  /// A command that changes the model: menus and plot follow.
  void Follow();
  /// Runs `command` and refreshes menus and plot when an item is chosen.
  template <class Command>
  void OnItem(QAction* item, Command command);

  PolarParts m_parts;
  std::unique_ptr<WindowDialogs> m_asks;
  PolarModel m_model;
  PolarQuestions m_questions;
  PolarScene m_scene;
  PolarMenuQt m_menu;
  PolarCanvasQt* m_canvas;
  MouseReadoutQt* lblMouse;
  CourseControlsQt m_course;
  SailBarQt* tbrSail;
  CourseMemory m_memory;
  std::optional<LedgerContent> m_ledger;  ///< of the present course
  PacedQt m_show;
};

}  // namespace veerwatch
