#include "instruments/Calibration.h"

#include "platform/Angles.h"
#include "settings/SettingRule.h"

namespace veerwatch {

namespace {

constexpr float kLeastSpeed = 2.0F;  // [kn]

float TurnedBy(float angle, float offset) {
  return offset == 0.0F ? angle : ToSingle(static_cast<double>(angle) + static_cast<double>(offset));
}

}  // namespace

float CalibratedWindAngle(const Settings& settings, float angle) {
  return TurnedBy(angle, settings.m_fNmeaWindOffset);
}

float CalibratedBoatSpeed(const Settings& settings, float speed) {
  return ToSingle(static_cast<double>(speed) * static_cast<double>(settings.m_fNmeaBoatSpeedFactor));
}

float CalibratedHeading(const Settings& settings, float heading) {
  return TurnedBy(heading, settings.m_fNmeaHeadingOffset);
}

float WindOffsetFor(float angle, float offset) {
  return FoldRelative(static_cast<double>(offset) - static_cast<double>(angle));
}

std::optional<float> BoatSpeedFactorFor(float speed, float overGround, float factor) {
  if (!(speed >= kLeastSpeed) || !(overGround >= kLeastSpeed)) {
    return std::nullopt;
  }
  const float proposed = factor * overGround / speed;
  return proposed >= kLeastSpeedFactor && proposed <= kLargestSpeedFactor ? std::optional(proposed)
                                                                          : std::nullopt;
}

float HeadingOffsetFor(float heading, float course, float offset) {
  return FoldRelative(static_cast<double>(offset) + static_cast<double>(course) -
                      static_cast<double>(heading));
}

}  // namespace veerwatch
