#include "app/TurnAimOf.h"

#include "instruments/MathLib.h"
#include "polar/BestAngles.h"

namespace veerwatch {

std::optional<TurnAim> TurnAimOf(const PolarTable& table, float windSpeed, bool upwind) {
  PolarTable inTrueWind = table;
  inTrueWind.Type(PlotType::TrueWind);
  const BestAngles angles = FindBestAngles(inTrueWind, windSpeed);
  const std::optional<BestAngle>& best = upwind ? angles.Upwind : angles.Downwind;
  if (!best) {
    return std::nullopt;
  }
  TurnAim aim;
  aim.True = best->Angle;
  float speed = 0.0F;
  WindApparentFromTrue(windSpeed, aim.True, inTrueWind.PolarSpeed(0, aim.True, windSpeed), speed,
                       aim.Apparent);
  aim.AtEdge = IsLastAngle(inTrueWind, aim.True);
  return aim;
}

}  // namespace veerwatch
