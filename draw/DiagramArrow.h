// The arrows of the diagrams.
#pragma once

#include <string_view>
#include <vector>

#include "draw/Shapes.h"

namespace veerwatch {

/// A straight way with an arrow at one end.
struct DiagramArrow {
  Stroke Way;
  std::string_view Tag;  ///< "Right" points right at the way's second end, "Top" up at its first

  bool operator==(const DiagramArrow&) const = default;
};

/// The strokes of the arrowheads, two for each arrow, each ending in the tip. None for any other tag.
std::vector<Stroke> ArrowHeads(const std::vector<DiagramArrow>& arrows);

}  // namespace veerwatch
