#include "draw/DiagramArrow.h"

namespace veerwatch {

std::vector<Stroke> ArrowHeads(const std::vector<DiagramArrow>& arrows) {
  constexpr double kAlong = 4.0;
  constexpr double kAside = 3.0;
  std::vector<Stroke> strokes;
  for (const DiagramArrow& arrow : arrows) {
    if (arrow.Tag == "Right") {
      const Point tip = arrow.Way.To;
      strokes.push_back({{tip.X - kAlong, tip.Y + kAside}, tip});
      strokes.push_back({{tip.X - kAlong, tip.Y - kAside}, tip});
    } else if (arrow.Tag == "Top") {
      const Point tip = arrow.Way.From;
      strokes.push_back({{tip.X + kAlong, tip.Y + kAside}, tip});
      strokes.push_back({{tip.X - kAlong, tip.Y + kAside}, tip});
    }
  }
  return strokes;
}

}  // namespace veerwatch
