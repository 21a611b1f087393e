#include "platform/Angles.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace veerwatch {

double AngleRelative(double Angle) {
  if (Angle > 180.0) {
    return Angle - 360.0;
  }
  return Angle <= -180.0 ? Angle + 360.0 : Angle;
}

double AngleAbsolute(double Angle) {
  if (Angle < 0.0) {
    return Angle + 360.0;
  }
  return Angle >= 360.0 ? Angle - 360.0 : Angle;
}

namespace {

/// The rest of `angle` after whole turns. Most angles hold none, and the division takes longer than the rest.
double WithinATurn(double angle) { return std::fabs(angle) < 360.0 ? angle : std::fmod(angle, 360.0); }

}  // namespace

float FoldBearing(double Angle) {
  const float bearing = ToSingle(AngleAbsolute(WithinATurn(Angle)));
  // An angle just below 0 lands so close to 360 that the single is 360; adding 0 turns -0 into 0.
  return bearing >= 360.0F ? 0.0F : bearing + 0.0F;
}

float FoldRelative(double Angle) {
  return ToSingle(AngleRelative(static_cast<double>(ToSingle(AngleRelative(WithinATurn(Angle)))))) + 0.0F;
}

float ToSingle(double value) {
  constexpr double kLargest = static_cast<double>(std::numeric_limits<float>::max());
  return static_cast<float>(std::clamp(value, -kLargest, kLargest));
}

}  // namespace veerwatch
