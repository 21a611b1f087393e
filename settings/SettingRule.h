// What numbers a setting can be: one rule for a profile and for an entry box, quoted by the profile's page.
#pragma once

#include <optional>

namespace veerwatch {

struct NumberRule {
  const char* Range;                           ///< in words
  std::optional<float> (*Take)(float number);  ///< what is kept of a number; nothing where it is refused

  bool operator==(const NumberRule&) const = default;
};

extern const NumberRule kAnyNumber;
extern const NumberRule kFromZero;
extern const NumberRule kAboveZero;
extern const NumberRule kAverageCount;   ///< by IsAverageCount
extern const NumberRule kLeastApparent;  ///< [deg] of the angle guard
extern const NumberRule kLargestTrue;    ///< [deg] of the angle guard
extern const NumberRule kShiftLimit;     ///< [deg]
extern const NumberRule kShiftTime;      ///< [s]
extern const NumberRule kSpeedFactor;    ///< of a log
extern const NumberRule kColour24;       ///< a colour of 24 bits as a whole number; each of them is a single
extern const NumberRule kBearing;        ///< any angle, folded into [0, 360)
extern const NumberRule kRelative;       ///< any angle, folded into (-180, 180]

inline constexpr float kLeastSpeedFactor = 0.5F;
inline constexpr float kLargestSpeedFactor = 2.0F;

/// Whether the averages of instruments/MathLib may work with a count: 0, or above 0.5. What is between them
/// weighs a new sample by 2 and more, and the average runs away.
bool IsAverageCount(float count);

}  // namespace veerwatch
