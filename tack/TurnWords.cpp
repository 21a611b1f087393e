#include "tack/TurnWords.h"

#include <cmath>

#include "instruments/MathLib.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kHalfCircle = 180.0;

WindCrossing SaidBy(ManoeuvreKind kind) {
  switch (kind) {
    case ManoeuvreKind::Tack:
      return WindCrossing::Bow;
    case ManoeuvreKind::Jibe:
      return WindCrossing::Stern;
    case ManoeuvreKind::Steer:
      break;
  }
  return WindCrossing::None;
}

}  // namespace

WindCrossing CrossingOf(double wind, double change) {
  const double after = wind - change;
  if ((wind > 0.0 && after < 0.0) || (wind < 0.0 && after > 0.0)) {
    return WindCrossing::Bow;
  }
  return std::fabs(wind) < kHalfCircle && std::fabs(after) > kHalfCircle ? WindCrossing::Stern
                                                                         : WindCrossing::None;
}

std::string TurnWay(double change) {
  const std::string degrees = FormatNumber(ToSingle(std::fabs(change)), "0");
  if (degrees == "1") {
    return change < 0.0 ? Tr("1 degree to port") : Tr("1 degree to starboard");
  }
  return Filled(change < 0.0 ? Tr("%1 degrees to port") : Tr("%1 degrees to starboard"), {degrees});
}

std::string TurnWords(double change, WindCrossing crossing) {
  if (FormatNumber(ToSingle(std::fabs(change)), "0") == "0") {
    return Tr("No turn");
  }
  const std::string way = TurnWay(change);
  if (crossing == WindCrossing::Bow) {
    return Filled(Tr("%1, through the wind"), {way});
  }
  return crossing == WindCrossing::Stern ? Filled(Tr("%1, stern through the wind"), {way}) : way;
}

bool CrossesUnsaid(WindCrossing crossing, WindCrossing button, ManoeuvreKind kind) {
  return crossing != WindCrossing::None && crossing != button && crossing != SaidBy(kind);
}

std::string CrossingQuestion(WindCrossing crossing) {
  if (crossing == WindCrossing::None) {
    return {};
  }
  return crossing == WindCrossing::Bow ? Tr("The bow goes through the wind: OK once more?")
                                       : Tr("The stern goes through the wind: OK once more?");
}

}  // namespace veerwatch
