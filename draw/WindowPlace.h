// Whether a window can be used where it stood when the program ended. Pure arithmetic.
#pragma once

#include <vector>

#include "draw/Shapes.h"

namespace veerwatch {

/// The frame of a window brought to where it can be used: at least `leastWidth` by `leastHeight` and no
/// larger than the screen, and as near to its place as it can be with all of it on the screen that holds most
/// of it, when less of its title bar than can be grabbed is on any screen; else where it is. Without screens
/// it stays.
Box PlaceOnScreen(Box frame, const std::vector<Box>& screens, double leastWidth, double leastHeight);

/// Whether enough of a window is on one of the screens for its user to find it.
bool CanBeSeen(const Box& window, const std::vector<Box>& screens);

}  // namespace veerwatch
