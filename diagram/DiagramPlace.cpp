#include "diagram/DiagramPlace.h"

#include <algorithm>
#include <cmath>

namespace veerwatch {

Point DiagramShowNear(const DiagramAnchor& anchor, double width, double height, double screenRight,
                      double screenBottom) {
  const double x = anchor.Button.Middle().X + anchor.Frame.X + (anchor.Frame.Width - anchor.InnerWidth);
  const double y = anchor.Button.Bottom() + anchor.Frame.Y + (anchor.Frame.Height - anchor.InnerHeight);
  return {std::round(std::min(x, screenRight - width)), std::round(std::min(y, screenBottom - height))};
}

}  // namespace veerwatch
