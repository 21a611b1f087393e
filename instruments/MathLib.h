// Angle and vector helpers, free functions without state. Every angle is in degrees; the averaging helpers
// keep their running value in a variable of the caller. Results are narrowed to single precision when stored.
#pragma once

namespace veerwatch {

/// Pi as every conversion here uses it. Deliberate: fourteen decimals, not the nearest double.
inline constexpr double kPi = 3.14159265358979;

/// Angle of the vector (X, Y) [rad, [-pi, pi]]; the cosine component comes first.
/// Deliberate: X < 0 with Y exactly 0 gives -pi, not +pi.
double Atan2(double X, double Y);

/// Folds once into (-180, 180]; exact for inputs within 540 either way.
/// Deliberate: larger inputs are corrected once and stay out of range (600 gives 240).
double AngleRelative(double Angle);

/// Folds once into [0, 360); exact for inputs from -360 to below 720.
/// Deliberate: one correction only (-400 gives -40).
double AngleAbsolute(double Angle);

/// Folds any finite angle into [0, 360) and narrows it, so that the single too stays below 360.
float FoldBearing(double Angle);

/// Folds any finite angle into (-180, 180] and narrows it.
float FoldRelative(double Angle);

/// Narrows to single precision; what is beyond the range of a single becomes the largest single of its sign,
/// so that finite values stay finite.
float ToSingle(double value);

/// Whether the filters below may work with a count: 0, or above 0.5. What is between them weighs a new sample
/// by 2 and more, and the average runs away.
bool IsAverageCount(float Count);

/// One step of a first-order filter over unit vectors: the new sample weighs 1 / Count, the old average the
/// rest. Count 0: the average becomes the sample. Average in (-180, 180], or -180 by the rule of Atan2.
/// Deliberate: a Count between 0 and 1 weighs the sample above 1.
void AverageAngleRelative(float NewAngle, float Count, float& Average);

/// The same with the average in [0, 360).
void AverageAngleAbsolute(float NewAngle, float Count, float& Average);

/// The same for plain values.
void AverageValue(float NewValue, float Count, float& Average);

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
