// Asks for the limits of the wind functions. It opens modal to its window, which goes on meanwhile, and calls
// back.
#pragma once

#include <QDialog>
#include <QDoubleSpinBox>
#include <functional>

namespace veerwatch {

struct WindLimits {
  float LeastApparent = 25.0F;  ///< [deg, [10, 60]]
  float LargestTrue = 165.0F;   ///< [deg, [120, 179]]
  float ShiftLimit = 15.0F;     ///< [deg, [5, 90]]
  float ShiftTime = 30.0F;      ///< [s, [5, 600]]
};

class WindLimitsQt final : public QDialog {
 public:
  using Answer = std::function<void(const WindLimits& limits)>;

  /// Opens the dialog on `window`. `answer` is called with limits within their ranges; not when the user
  /// cancels.
  static void Open(const WindLimits& present, QWidget& window, Answer answer);

 private:
  WindLimitsQt(const WindLimits& present, QWidget& window);
  QDoubleSpinBox* Box(const char* name, float value, double least, double most, const char* unit);
  WindLimits Typed() const;

  QDoubleSpinBox* txtLeastApparent;
  QDoubleSpinBox* txtLargestTrue;
  QDoubleSpinBox* txtShiftLimit;
  QDoubleSpinBox* txtShiftTime;
};

}  // namespace veerwatch
