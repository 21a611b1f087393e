// Vector and averaging helpers, free functions without state; folding and narrowing come from
// platform/Angles. Every angle is in degrees; the averaging helpers keep their running value in a variable of
// the caller. Results are narrowed to single precision when stored.
#pragma once

#include "platform/Angles.h"

namespace veerwatch {

/// Pi as every conversion here uses it. Deliberate: fourteen decimals, not the nearest double.
inline constexpr double kPi = 3.14159265358979;

/// Angle of the vector (X, Y) [rad, [-pi, pi]]; the cosine component comes first.
/// Deliberate: X < 0 with Y exactly 0 returns -pi, not +pi.
double Atan2(double X, double Y);

/// One step of a first-order filter over unit vectors: the new sample weighs 1 / Count, the old average the
/// rest. Count 0: the average becomes the sample. Average in (-180, 180], or -180 by the rule of Atan2.
/// Deliberate: a Count between 0 and 1 weighs the sample above 1; which counts are let in says
/// IsAverageCount.
void AverageAngleRelative(float NewAngle, float Count, float& Average);

/// The same with the average in [0, 360).
void AverageAngleAbsolute(float NewAngle, float Count, float& Average);

/// The same for plain values.
void AverageValue(float NewValue, float Count, float& Average);

/// The Count that weighs a sample `seconds` [s, at least 0] after the one before as much as Count would weigh
/// them all if one came each second: a weight of 1 - (1 - 1/Count)^seconds. At one second, and for a Count of
/// up to 1, which has no memory to speak of, it is Count.
float AverageCountAfter(float Count, double seconds);

/// Adds the boat's motion to the true wind. Speeds [kn]; angles [deg relative, positive from starboard];
/// the boat moves along 0. ApparentAngle in (-180, 180], or -180 by the rule of Atan2.
void WindApparentFromTrue(float TrueSpeed, float TrueAngle, float BoatSpeed, float& ApparentSpeed,
                          float& ApparentAngle);

/// Removes the boat's motion from the apparent wind; the inverse of WindApparentFromTrue.
void WindTrueFromApparent(float ApparentSpeed, float ApparentAngle, float BoatSpeed, float& TrueSpeed,
                          float& TrueAngle);

/// The smaller, as single; A when equal.
float Min(double A, double B);
/// The larger, as single; A when equal.
float Max(double A, double B);

}  // namespace veerwatch
