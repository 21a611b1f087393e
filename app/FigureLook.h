// How a figure is shown, by the age of what it says. Used by the main window.
#pragma once

#include <string>

#include "control/WatchNow.h"

namespace veerwatch {

struct FigureLook {
  bool Half = false;   ///< in half tone: what it says is no more of now
  bool Blank = false;  ///< "--" in its place
  std::string Age;     ///< beneath it, as "7 s"; "" for none

  bool operator==(const FigureLook&) const = default;
};

/// How the figure of a value of that age is shown. In Off, and while nothing reads the instruments, each is
/// in half tone. `blankLost` is the setting "Blank Lost".
FigureLook LookOf(const ValueAge& age, TrackMode mode, bool blankLost);

/// An age in few characters: "7 s", "3 min", "2 h"; of a value that never came, 0 s.
std::string AgeText(const ValueAge& age);

}  // namespace veerwatch
