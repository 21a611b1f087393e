// Directions of the properties [deg].
#pragma once

#include <cmath>

namespace veerwatch {

/// How far apart two directions are.
inline double Off(double a, double b) { return std::fabs(std::remainder(a - b, 360.0)); }
inline double Off(float a, float b) { return Off(static_cast<double>(a), static_cast<double>(b)); }

/// A direction from 0 up to 360. Exact for eighths of a degree.
inline float OnCompass(float degrees) { return degrees - 360.0F * std::floor(degrees / 360.0F); }

}  // namespace veerwatch
