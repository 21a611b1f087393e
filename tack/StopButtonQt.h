// The large button that ends a turn, in the colours of a red alarm.
#pragma once

#include <QPushButton>

namespace veerwatch {

class StopButtonQt final : public QPushButton {
 public:
  /// "Stop", in letters of `pixels`. No key presses it by chance: Escape ends a turn, wherever the keyboard
  /// is.
  StopButtonQt(int pixels, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace veerwatch
