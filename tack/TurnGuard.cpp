#include "tack/TurnGuard.h"

#include <cmath>

#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr float kMostMoved = 5.0F;   // [deg]
constexpr float kMostApart = 10.0F;  // [deg]

/// How far two angles are apart [deg, [0, 180]].
float Apart(float a, float b) {
  return std::fabs(FoldRelative(static_cast<double>(a) - static_cast<double>(b)));
}

}  // namespace

std::string TurnHindrance(const HelmNow& now) {
  if (now.Mode == TrackMode::Off) {
    return Tr("No turn in Off: press Setup first");
  }
  if (!now.InputStarted) {
    return Tr("No turn: Input Stopped, press Setup first");
  }
  if (!now.InputOpen) {
    return Filled(Tr("No turn: Input Port %1 Not Open"), {std::to_string(now.InputPort)});
  }
  if (!now.OutputOpen) {
    return Filled(Tr("No turn: Output Port %1 Not Open"), {std::to_string(now.OutputPort)});
  }
  return now.WindLost ? Tr("No turn: No Wind") : std::string();
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
  return Filled(Tr("Bearing and heading are %1 degrees apart: wait until she is steady"),
                {FormatNumber(apart, "0")});
}

}  // namespace veerwatch
