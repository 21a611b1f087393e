// The menus of the polar window: their items, names, captions and separators. frmPolar connects and ticks
// them.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <array>
#include <utility>

#include "polar/PolarModel.h"

namespace veerwatch {

struct PolarMenuQt {
  /// Adds the menus to the menu bar of `window`.
  explicit PolarMenuQt(QMainWindow& window);

  /// Sets the ticks and the captions with present values.
  void Refresh(const PolarModel& model) const;

  QAction* mnuWindApparent;
  QAction* mnuWindTrue;
  QAction* mnuPlotLabelWindSpeed;
  std::array<std::pair<float, QAction*>, kMenuRanges.size()> mnuRange;  ///< by range [kn]
  QAction* mnuRangeFit;
  QAction* mnuRangeCustom;
  QAction* mnuOverlayFile1;
  QAction* mnuSaveAs;
  QAction* mnuOverlayColor;
  QAction* mnuOverlayScale;
  QAction* mnuOverlaySmooth;
  QAction* mnuOverlayFile2;
  std::array<std::pair<float, QAction*>, 6> mnuAverage;  ///< by averaging time [s]
  std::array<QAction*, 3> mnuCourseWaypoint;
  QAction* mnuCourseTargetBearing;
  QAction* mnuCourseScale;
  QAction* mnuCourseSail;
  QAction* mnuCourseTack;
  QAction* mnuCourseLedger;
  QMenu* mnuLedger;  ///< pops up on the ledger
  QAction* mnuLedgerHide;
  std::array<QAction*, 2> mnuBoatType;
  QAction* mnuBoatMotorSpeed;
};

}  // namespace veerwatch
