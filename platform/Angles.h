// Folding of angles and narrowing to single precision: the two steps before an angle is stored. Every angle
// is in degrees.
#pragma once

namespace veerwatch {

/// Folds once into (-180, 180]; exact for inputs within 540 either way.
/// Deliberate: larger inputs are corrected once and stay out of range (600 returns 240).
double AngleRelative(double Angle);

/// Folds once into [0, 360); exact for inputs from -360 to below 720.
/// Deliberate: one correction only (-400 returns -40).
double AngleAbsolute(double Angle);

/// Folds any finite angle into [0, 360) and narrows it, so that the single too stays below 360.
float FoldBearing(double Angle);

/// Folds any finite angle into (-180, 180] and narrows it.
float FoldRelative(double Angle);

/// Narrows to single precision; what is beyond the range of a single becomes the largest single of its sign,
/// so that finite values stay finite.
float ToSingle(double value);

}  // namespace veerwatch
