#include "tack/TurnWords.h"

#include <cmath>

#include "instruments/MathLib.h"
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

std::string TurnWords(double change, WindCrossing crossing) {
  const std::string degrees = FormatNumber(ToSingle(std::fabs(change)), "0");
  if (degrees == "0") {
    return "No turn";
  }
  std::string words = degrees + (degrees == "1" ? " degree" : " degrees");
  words += change > 0.0 ? " to starboard" : " to port";
  if (crossing == WindCrossing::Bow) {
    words += ", through the wind";
  } else if (crossing == WindCrossing::Stern) {
    words += ", stern through the wind";
  }
  return words;
}

bool CrossesUnsaid(WindCrossing crossing, WindCrossing button, ManoeuvreKind kind) {
  return crossing != WindCrossing::None && crossing != button && crossing != SaidBy(kind);
}

std::string CrossingQuestion(WindCrossing crossing) {
  if (crossing == WindCrossing::None) {
    return {};
  }
  return std::string("The ") + (crossing == WindCrossing::Bow ? "bow" : "stern") +
         " goes through the wind: OK once more?";
}

}  // namespace veerwatch
