// The arrowheads of the diagrams. A diagram is drawn in twips.
#pragma once

#include <string_view>
#include <vector>

#include "draw/Twips.h"

namespace veerwatch {

/// A straight line [twips, downwards and to the right].
struct DiagramLine {
  double X1 = 0.0;
  double Y1 = 0.0;
  double X2 = 0.0;
  double Y2 = 0.0;
  std::string_view Tag;  ///< where its arrow points, "Right" or "Top"; anything else is a line without one

  bool operator==(const DiagramLine&) const = default;
};

/// The two strokes of the arrowhead of `line`, each ending in the tip: with "Right" at the line's second end,
/// pointing right, with "Top" at its first end, pointing up. None for any other tag.
std::vector<DiagramLine> ArrowHead(const DiagramLine& line);

}  // namespace veerwatch
