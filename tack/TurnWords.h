// What a turn will do, in words.
#pragma once

#include <string>

#include "control/Manoeuvre.h"

namespace veerwatch {

/// Where the wind crosses the boat in a turn.
enum class WindCrossing { None, Bow, Stern };

/// The crossing in a turn by `change` [deg, [-180, 180], positive to starboard] from a wind at `wind` [deg
/// relative, (-180, 180]]. A wind that is on the bow or the stern at the start or at the end crosses nothing.
WindCrossing CrossingOf(double wind, double change);

/// "140 degrees to starboard" for a change of course [deg].
std::string TurnWay(double change);

/// "140 degrees to starboard, through the wind"; for the stern ", stern through the wind". "No turn" for less
/// than half a degree.
std::string TurnWords(double change, WindCrossing crossing);

/// Whether the wind crosses where neither the button that asked for the turn nor the kind of turn said so.
bool CrossesUnsaid(WindCrossing crossing, WindCrossing button, ManoeuvreKind kind);

/// The question about such a crossing; "" for none.
std::string CrossingQuestion(WindCrossing crossing);

}  // namespace veerwatch
