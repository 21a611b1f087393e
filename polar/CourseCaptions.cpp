#include "polar/CourseCaptions.h"

#include <cmath>

#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

TurnFace ToStarboard(std::string caption) { return {std::move(caption), TurnColor::Starboard}; }
TurnFace ToPort(std::string caption) { return {std::move(caption), TurnColor::Port}; }

TurnFace TackTurn(bool sideFlag, bool upwind) {
  if (upwind) {
    return sideFlag ? ToPort(Tr("<< Tack")) : ToStarboard(Tr("Tack >>"));
  }
  return sideFlag ? ToStarboard(Tr("Jibe >>")) : ToPort(Tr("<< Jibe"));
}

}  // namespace

TurnFace SteerFace(float newHeading, float heading) {
  const float change = FoldRelative(static_cast<double>(newHeading) - static_cast<double>(heading));
  const std::string number = FormatNumber(change, "0");
  if (number == "0") {
    return {Tr("Steer 0"), TurnColor::Own};
  }
  return change > 0.0F ? ToStarboard(Filled(Tr("Steer +%1 >"), {number}))
                       : ToPort(Filled(Tr("< Steer %1"), {number}));
}

TurnFace TackFace(bool sideFlag, bool upwind, bool possible) {
  TurnFace face = TackTurn(sideFlag, upwind);
  if (!possible) {
    face.Back = TurnColor::Own;
  }
  return face;
}

std::optional<double> HoursFor(float range, float speed) {
  if (!(range >= 0.0F && speed > 0.0F)) {
    return std::nullopt;
  }
  return static_cast<double>(range) / static_cast<double>(speed);
}

std::string FormatHours(std::optional<double> hours) {
  constexpr double kMost = 99.0;
  constexpr double kMinutes = 60.0;
  if (!hours || !(*hours >= 0.0 && *hours < kMost + 1.0)) {
    return "--:--";
  }
  double whole = std::trunc(*hours);
  double minutes = std::round((*hours - whole) * kMinutes);
  if (minutes == kMinutes) {
    whole += 1.0;
    minutes = 0.0;
  }
  if (whole > kMost) {
    return "--:--";
  }
  return FormatNumber(ToSingle(whole), "0") + ":" + FormatNumber(ToSingle(minutes), "00");
}

}  // namespace veerwatch
