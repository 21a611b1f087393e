// What stands on the steer and tack controls and in which colour, and times as text.
#pragma once

#include <optional>
#include <string>

#include "polar/CourseTargets.h"

namespace veerwatch {

/// The back colour of a control. Deliberate: green for a turn to starboard, red for one to port.
enum class TurnColor {
  Own,        ///< the window's own
  Starboard,  ///< red 128, green 255, blue 128
  Port        ///< red 255, green 128, blue 128
};

struct TurnFace {
  std::string Caption;
  TurnColor Back = TurnColor::Own;
  bool operator==(const TurnFace&) const = default;
};

/// The turn from `heading` to `newHeading` [deg magnetic], in whole degrees: "Steer 0", "Steer +12 >" or
/// "< Steer -12".
TurnFace SteerFace(float newHeading, float heading);

/// The turn to the other leg: a tack up to a true wind angle of 90 degrees, beyond a jibe. With the wind from
/// port "<< Tack" or "Jibe >>", else "Tack >>" or "<< Jibe". Deliberate: the arrows are opposite for the same
/// wind, as a tack turns the bow through the wind and a jibe the stern. `possible` is whether there is
/// another leg; without one the colour is the window's own.
TurnFace TackFace(bool sideFlag, bool upwind, bool possible);

/// Time for `range` [nm] at `speed` [kn]; nothing when it is never reached.
std::optional<double> HoursFor(float range, float speed);

/// "h:mm" with the minutes rounded; "--:--" for nothing, for more than 99 hours, and for what is no time.
std::string FormatHours(std::optional<double> hours);

}  // namespace veerwatch
