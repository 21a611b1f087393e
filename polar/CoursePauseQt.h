// Pauses in a long search for a course, in which the window lives on.
#pragma once

#include <QPointer>
#include <QWidget>

#include "polar/CourseTargets.h"

namespace veerwatch {

/// Lets timers and repaints run whenever `after` [ms] have passed since the start or the last pause. What the
/// user does and what ports receive waits, so that neither a question nor a lost sentence can come of it.
/// Ends the search when `window` was closed meanwhile.
CourseYield CoursePause(QWidget* window, int after);

}  // namespace veerwatch
