#include "draw/DiagramArrow.h"

namespace veerwatch {

std::vector<DiagramLine> ArrowHead(const DiagramLine& line) {
  constexpr double kAlong = 60.0;
  constexpr double kAside = 45.0;
  if (line.Tag == "Right") {
    return {{line.X2 - kAlong, line.Y2 + kAside, line.X2, line.Y2, {}},
            {line.X2 - kAlong, line.Y2 - kAside, line.X2, line.Y2, {}}};
  }
  if (line.Tag == "Top") {
    return {{line.X1 + kAlong, line.Y1 + kAside, line.X1, line.Y1, {}},
            {line.X1 - kAlong, line.Y1 + kAside, line.X1, line.Y1, {}}};
  }
  return {};
}

}  // namespace veerwatch
