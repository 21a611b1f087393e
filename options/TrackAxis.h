// The numbers along an axis of the preview. Pure arithmetic, in the unit of the axis.
#pragma once

#include <string>
#include <vector>

namespace veerwatch {

struct TrackNumber {
  double Value = 0.0;
  std::string Text;  ///< in its shortest form
};

/// The numbers along an axis between `from` and `to`, of which either may be the larger: every whole
/// multiple, ascending, of the least step that is 1, 2 or 5 times a power of ten and not below `leastStep`.
/// None for a step that is not above 0 or fits more than 1000 times.
std::vector<TrackNumber> TrackNumbers(double from, double to, double leastStep);

}  // namespace veerwatch
