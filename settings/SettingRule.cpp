#include "settings/SettingRule.h"

#include "platform/Angles.h"
#include "platform/Language.h"

namespace veerwatch {

namespace {

constexpr float kLastColour = 16777215.0F;

std::optional<float> If(bool allowed, float number) { return allowed ? std::optional(number) : std::nullopt; }

std::optional<float> Any(float number) { return number; }
std::optional<float> FromZero(float number) { return If(number >= 0.0F, number); }
std::optional<float> AboveZero(float number) { return If(number > 0.0F, number); }
std::optional<float> AverageCount(float number) { return If(IsAverageCount(number), number); }
template <int Least, int Most>
std::optional<float> Between(float number) {
  return If(number >= static_cast<float>(Least) && number <= static_cast<float>(Most), number);
}
std::optional<float> SpeedFactor(float number) {
  return If(number >= kLeastSpeedFactor && number <= kLargestSpeedFactor, number);
}
std::optional<float> Colour24(float number) { return If(number >= 0.0F && number <= kLastColour, number); }
std::optional<float> Bearing(float number) { return FoldBearing(static_cast<double>(number)); }
std::optional<float> Relative(float number) { return FoldRelative(static_cast<double>(number)); }

}  // namespace

constinit const NumberRule kAnyNumber{TrMark("any number"), Any};
constinit const NumberRule kFromZero{TrMark("0 and above"), FromZero};
constinit const NumberRule kAboveZero{TrMark("above 0"), AboveZero};
constinit const NumberRule kAverageCount{TrMark("0, or above 0.5"), AverageCount};
constinit const NumberRule kLeastApparent{"10 to 60", Between<10, 60>};
constinit const NumberRule kLargestTrue{"120 to 179", Between<120, 179>};
constinit const NumberRule kShiftLimit{"5 to 90", Between<5, 90>};
constinit const NumberRule kShiftTime{"5 to 600", Between<5, 600>};
constinit const NumberRule kSpeedFactor{TrMark("0.5 to 2"), SpeedFactor};
constinit const NumberRule kColour24{"0 to 16777215", Colour24};
constinit const NumberRule kBearing{"any, folded into [0, 360)", Bearing};
constinit const NumberRule kRelative{TrMark("any, folded into (-180, 180]"), Relative};

bool IsAverageCount(float count) { return count == 0.0F || count > 0.5F; }

}  // namespace veerwatch
