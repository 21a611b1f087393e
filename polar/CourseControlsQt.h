// What the course puts on the plot beside its legs: the ledger's panel and the steer label. They show
// together while there is a course and nobody has hidden the ledger.
#pragma once

#include "polar/LedgerPanelQt.h"
#include "polar/PolarScene.h"

namespace veerwatch {

class CourseControlsQt {
 public:
  /// Makes them, hidden, on `plot`, which owns them.
  explicit CourseControlsQt(QWidget* plot);

  LedgerPanelQt& Ledger() { return *frmLedger; }

  /// There is a course, with this ledger.
  void Show(const LedgerContent& content);
  /// What shows is in half tone: it is no more of now.
  void Fade(bool fade);
  /// There is none.
  void Hide();
  /// The user wants to see the ledger, or not.
  void Want(bool wanted);

  /// Fits the panel to the plot's size, and returns the room that it needs beside the plot [px]; none while
  /// it is hidden or has been dragged away.
  PlotRoom Room();
  /// Puts both where they belong on a plot that is drawn again.
  void Place(const PolarStill& still);

 private:
  void Follow();

  LedgerPanelQt* frmLedger;
  TurnLabelQt* lblSteer;
  bool m_course = false;
  bool m_wanted = true;
};

}  // namespace veerwatch
