#include "diagram/DiagramPlace.h"

#include <algorithm>
#include <cmath>

namespace veerwatch {

DiagramPlace DiagramShowNear(const DiagramAnchor& anchor, double width, double height, double screenRight,
                             double screenBottom) {
  const double x = anchor.ButtonLeft + anchor.ButtonWidth / 2.0 + anchor.WindowLeft +
                   (anchor.OuterWidth - anchor.InnerWidth);
  const double y =
      anchor.ButtonTop + anchor.ButtonHeight + anchor.WindowTop + (anchor.OuterHeight - anchor.InnerHeight);
  return {static_cast<int>(std::lround(std::min(x, screenRight - width))),
          static_cast<int>(std::lround(std::min(y, screenBottom - height)))};
}

}  // namespace veerwatch
