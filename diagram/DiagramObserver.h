// What the block diagram asks for when one of its buttons is pressed; the main window's side does it.
#pragma once

#include "diagram/DiagramPlace.h"

namespace veerwatch {

class DiagramObserver {
 public:
  virtual ~DiagramObserver() = default;
  /// The options dialog on `tab` [0, 5], at the place for `anchor` [px of the desktop].
  /// Deliberate: the control loop opens tab 1, where the source of the true wind is chosen.
  virtual void OnDiagramOptions(int tab, const DiagramAnchor& anchor) = 0;
  virtual void OnDiagramPolar() = 0;
  /// The history, or its settings when it is visible already.
  virtual void OnDiagramHistory() = 0;
  /// The diagram was shown or hidden.
  virtual void OnDiagramVisible(bool visible) = 0;
};

}  // namespace veerwatch
