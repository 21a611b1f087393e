#include "instruments/CompassPoint.h"

#include <array>

#include "instruments/MathLib.h"

namespace veerwatch {

namespace {

struct Point {
  double Below;
  std::string_view Name;
};

constexpr std::array<Point, 17> kPoints{{{11.25, "N"},
                                         {33.75, "N-NE"},
                                         {56.25, "NE"},
                                         {78.75, "E-NE"},
                                         {101.25, "E"},
                                         {123.75, "E-SE"},
                                         {146.25, "SE"},
                                         {168.75, "S-SE"},
                                         {191.25, "S"},
                                         {213.25, "S-SW"},
                                         {236.25, "SW"},
                                         {258.75, "W-SW"},
                                         {281.25, "W"},
                                         {303.75, "W-NW"},
                                         {326.25, "NW"},
                                         {348.75, "N-NW"},
                                         {371.25, "N"}}};

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
