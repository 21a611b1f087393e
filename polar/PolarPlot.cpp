#include "polar/PolarPlot.h"

#include <cmath>

#include "instruments/MathLib.h"

namespace veerwatch {

namespace {

constexpr double kRadiansPerDegree = kPi / 180.0;

}  // namespace

PolarGeometry PlotGeometry(double width, double height, double speedRange) {
  const double half = static_cast<double>(Min(width, height)) / 2.0;
  const double scale = half / speedRange;
  return {half, half, scale, scale};
}

double OuterRadius(const PolarGeometry& geometry) { return geometry.CentreX; }

Point PointAt(const PolarGeometry& geometry, double angle, double speed) {
  const double radians = angle * kRadiansPerDegree;
  return {geometry.CentreX + speed * geometry.ScaleX * std::sin(radians),
          geometry.CentreY - speed * geometry.ScaleY * std::cos(radians)};
}

Point AtRadius(const PolarGeometry& geometry, double angle, double radius) {
  const double radians = angle * kRadiansPerDegree;
  return {geometry.CentreX + radius * std::sin(radians), geometry.CentreY - radius * std::cos(radians)};
}

}  // namespace veerwatch
