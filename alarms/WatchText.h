// What the watch says in words: a line that is read across the cabin, and for the list where it comes from,
// what the program does and what the sailor can do.
#pragma once

#include <string>
#include <string_view>

#include "control/WatchNow.h"

namespace veerwatch {

/// The line of a condition: "No Wind 7 s", "2 Wind Sources (WI, II)", "Pilot Lost - Output Port 2", ...
std::string WatchText(const Standing& standing);

/// "Follows", "Slow", "Does not follow", "Turns the wrong way" or "Unknown".
std::string FollowText(FollowVerdict verdict);

/// The verdict on the pilot; while the boat comes to the bearing, with the offset of its compass, rounded,
/// where that is known and not 0: "Pilot: Follows, offset +5".
std::string FollowLine(const WatchNow& watch);

/// "red", "amber" or "note".
std::string_view LevelText(Level level);

/// The name of a quantity: "Apparent Wind", "Boat Speed", ...
std::string WatchedText(Watched what);

/// Where a quantity came from and how old it is: "Apparent Wind from MWV (WI), 7 s old"; "Boat Speed:
/// waiting" while none has come, "Boat Speed: not fitted", "... simulated".
std::string ValueText(Watched what, const ValueAge& age);

/// What the program does about a condition now, and where it only tells, what it would do with Act.
std::string WatchDoes(const Standing& standing, const WatchNow& watch);

/// What the sailor can do.
std::string WatchRemedy(Condition what);

}  // namespace veerwatch
