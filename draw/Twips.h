// The unit in which some places and drawings are given.
#pragma once

namespace veerwatch {

/// Twips in a pixel at a scale of 100 %.
inline constexpr double kTwipsPerPixel = 15.0;

}  // namespace veerwatch
