#include "polar/CoursePauseQt.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace veerwatch {

CourseYield CoursePause(QWidget* window, int after) {
  // The clock is read once for so many steps.
  constexpr unsigned kSteps = 64;
  QElapsedTimer timer;
  timer.start();
  return [alive = QPointer<QWidget>(window), timer, after, steps = 0U]() mutable {
    if (++steps % kSteps != 0 || timer.elapsed() < after) {
      return true;
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    timer.start();
    return alive && alive->isVisible();
  };
}

}  // namespace veerwatch
