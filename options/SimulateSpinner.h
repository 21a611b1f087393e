// The little scroll bars beside two boxes of the Simulate page, as up and down buttons.
#pragma once

#include <string>
#include <string_view>

namespace veerwatch {

/// Whether the bar steps coarsely or finely.
enum class SpinnerStep { Coarse = 0, Fine = 1 };

/// The time in `text` moved by 10 minutes or by 1 minute: up where `scroll` is negative, down where it is
/// positive. A text that is no time counts as 0.
std::string SimulateTimeStep(std::string_view text, SpinnerStep step, int scroll);

/// The same for an angle, by 10 degrees or by 1 degree, in whole degrees. Deliberate: it is not wrapped, so
/// 360 follows 359.
std::string SimulateAngleStep(std::string_view text, SpinnerStep step, int scroll);

}  // namespace veerwatch
