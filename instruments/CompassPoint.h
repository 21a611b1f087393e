// Names of the sixteen compass points.
#pragma once

#include <string_view>

namespace veerwatch {

/// Name of the point that a direction [deg] lies in, after one fold into [0, 360): "N", "N-NE", "NE", ...
/// "??" for a direction that is not a number or stays out of range.
/// Deliberate: "S-SW" ends at 213.25, so it covers 22 degrees and "SW" 23.
std::string_view CompassPointName(float Direction);

}  // namespace veerwatch
