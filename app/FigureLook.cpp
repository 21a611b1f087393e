#include "app/FigureLook.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kSecond = 1000;  // [ms]
constexpr std::int64_t kMinute = 60 * kSecond;
constexpr std::int64_t kHour = 60 * kMinute;
/// Up to that many of a unit are told in it.
constexpr std::int64_t kMostOfUnit = 100;

}  // namespace

std::string AgeText(const ValueAge& age) {
  if (age.Age < kMostOfUnit * kSecond) {
    return std::to_string(age.Age / kSecond) + " s";
  }
  if (age.Age < kMostOfUnit * kMinute) {
    return std::to_string(age.Age / kMinute) + " min";
  }
  return std::to_string(age.Age / kHour) + " h";
}

FigureLook LookOf(const ValueAge& age, TrackMode mode, bool blankLost) {
  FigureLook look;
  look.Blank = blankLost && age.State == Freshness::Lost;
  look.Half = age.Gone() || mode == TrackMode::Off;
  if (age.Gone() && mode != TrackMode::Off) {
    look.Age = AgeText(age);
  }
  return look;
}

}  // namespace veerwatch
