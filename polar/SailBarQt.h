// The bar at the lower edge of the polar window while a course is sailed: what is held and how far the mark
// is, and the turn that is prompted for as a large button.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QToolBar>
#include <functional>
#include <string>

#include "polar/TurnButtonQt.h"

namespace veerwatch {

/// A course that is sailed.
struct SailView {
  bool Sails = false;
  std::string Line;  ///< what is held, or why the course is over; "" hides the bar
  TurnFace Prompt;   ///< the turn to make; no caption while there is none
};

class SailBarQt final : public QToolBar {
 public:
  /// Made hidden, at the lower edge of `window`.
  explicit SailBarQt(QMainWindow& window);

  void Show(const SailView& sails);

  std::function<void()> Turn;  ///< the button was pressed

 private:
  QLabel* lblSail;
  TurnButtonQt* cmdSail;
};

}  // namespace veerwatch
