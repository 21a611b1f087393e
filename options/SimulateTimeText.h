// The simulated time as text, hours and minutes ("1:30"), and back.
#pragma once

#include <string>
#include <string_view>

#include "options/OptionNumber.h"

namespace veerwatch {

/// The hours [h] in a text: the number in front of the first colon and a sixtieth of the number after it. A
/// part that is no number is a fault. Deliberate: without a colon, or with one at the beginning, the result
/// is 0, so "1.5" is no time.
Converted<float> SimulateTimeParse(std::string_view text);

/// Whole hours towards zero, a colon, and the minutes with two digits; halves of a minute go to the even
/// one. Both parts of a negative time carry a sign. Deliberate: just under a whole hour the minutes can
/// be 60.
std::string SimulateTimeFormat(float hours);

}  // namespace veerwatch
