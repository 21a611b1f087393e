// Where a window stands, as the profile keeps it. Pure arithmetic.
#pragma once

#include <vector>

#include "draw/Twips.h"

namespace veerwatch {

/// A rectangle [px].
struct PlaceBox {
  double X = 0.0;
  double Y = 0.0;
  double Width = 0.0;
  double Height = 0.0;
};

/// The frame of a window brought to where it can be used: at least `leastWidth` by `leastHeight` and no
/// larger than the screen, and as near to its place as it can be with all of it on the screen that holds most
/// of it, when less of its title bar than can be grabbed is on any screen; else where it is. Without screens
/// it stays.
PlaceBox PlaceOnScreen(PlaceBox frame, const std::vector<PlaceBox>& screens, double leastWidth,
                       double leastHeight);

}  // namespace veerwatch
