#include "tack/TurnGuard.h"

#include <cmath>

#include "instruments/MathLib.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr float kMostMoved = 5.0F;   // [deg]
constexpr float kMostApart = 10.0F;  // [deg]
constexpr const char* kInputStopped = "Input Stopped";
constexpr const char* kNoWind = "No Wind";

/// How far two angles are apart [deg, [0, 180]].
float Apart(float a, float b) {
  return std::fabs(FoldRelative(static_cast<double>(a) - static_cast<double>(b)));
}

std::string NotOpen(const char* port, int number) {
  return std::string(port) + " Port " + std::to_string(number) + " Not Open";
}

}  // namespace

std::string TurnHindrance(const HelmNow& now) {
  if (now.Mode == TrackMode::Off) {
    return "No turn in Off: press Setup first";
  }
  if (!now.InputStarted) {
    return std::string("No turn: ") + kInputStopped + ", press Setup first";
  }
  if (!now.InputOpen) {
    return "No turn: " + NotOpen("Input", now.InputPort);
  }
  if (!now.OutputOpen) {
    return "No turn: " + NotOpen("Output", now.OutputPort);
  }
  return now.WindLost ? std::string("No turn: ") + kNoWind : std::string();
}

TurnFrom TurnFromNow(const HelmNow& now, const TurnFrom& before) {
  return {now.Heading.value_or(before.Heading), now.AutoPilot, now.WindAngleTrue.value_or(before.WindAngle)};
}

bool TurnHasMoved(const TurnFrom& before, const TurnFrom& now) {
  return Apart(before.Heading, now.Heading) > kMostMoved ||
         Apart(before.AutoPilot, now.AutoPilot) > kMostMoved ||
         Apart(before.WindAngle, now.WindAngle) > kMostMoved;
}

std::string ApartText(const TurnFrom& from) {
  const float apart = Apart(from.AutoPilot, from.Heading);
  if (!(apart > kMostApart)) {
    return {};
  }
  return "Bearing and heading are " + FormatNumber(apart, "0") + " degrees apart: wait until she is steady";
}

}  // namespace veerwatch
