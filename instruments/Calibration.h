// What makes good that a wind vane is not mounted straight, that a log runs fast or slow, and that a compass
// points beside the bow: three settings, and what they ought to be by what the boat does.
#pragma once

#include <optional>

#include "settings/Settings.h"

namespace veerwatch {

/// What comes in, as it counts: the wind's angle with m_fNmeaWindOffset [deg relative, any turn].
float CalibratedWindAngle(const Settings& settings, float angle);
/// The speed through the water with m_fNmeaBoatSpeedFactor [kn].
float CalibratedBoatSpeed(const Settings& settings, float speed);
/// The compass heading, magnetic or true, with m_fNmeaHeadingOffset [deg, any turn].
float CalibratedHeading(const Settings& settings, float heading);

/// The wind offset with which a mean angle of `angle` [deg relative], seen with `offset` while the boat
/// motors straight into the wind, is 0 [deg, (-180, 180]].
float WindOffsetFor(float angle, float offset);

/// The factor with which the log shows the speed over ground [0.5, 2]: `speed` [kn] is what it shows now,
/// with `factor`. Nothing below 2 knots of either, where a current and the log's own friction say more than
/// the log, and nothing beyond the range.
std::optional<float> BoatSpeedFactorFor(float speed, float overGround, float factor);

/// The heading offset with which the compass shows the course over ground: `heading` [deg magnetic] is what
/// it shows now, with `offset`, and `course` [deg magnetic] the course [deg, (-180, 180]].
float HeadingOffsetFor(float heading, float course, float offset);

}  // namespace veerwatch
