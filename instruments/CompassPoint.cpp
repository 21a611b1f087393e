#include "instruments/CompassPoint.h"

#include <array>

#include "instruments/MathLib.h"
#include "platform/Language.h"

namespace veerwatch {

namespace {

struct Point {
  double Below;
  std::string_view Name;
};

constexpr std::array<Point, 17> kPoints{{{11.25, TrMark("N")},
                                         {33.75, TrMark("N-NE")},
                                         {56.25, TrMark("NE")},
                                         {78.75, TrMark("E-NE")},
                                         {101.25, TrMark("E")},
                                         {123.75, TrMark("E-SE")},
                                         {146.25, TrMark("SE")},
                                         {168.75, TrMark("S-SE")},
                                         {191.25, TrMark("S")},
                                         {213.25, TrMark("S-SW")},
                                         {236.25, TrMark("SW")},
                                         {258.75, TrMark("W-SW")},
                                         {281.25, TrMark("W")},
                                         {303.75, TrMark("W-NW")},
                                         {326.25, TrMark("NW")},
                                         {348.75, TrMark("N-NW")},
                                         {371.25, TrMark("N")}}};

}  // namespace

std::string_view CompassPointName(float Direction) {
  const double angle = AngleAbsolute(static_cast<double>(Direction));
  for (const Point& point : kPoints) {
    if (angle < point.Below) {
      return point.Name;
    }
  }
  return "??";
}

}  // namespace veerwatch
