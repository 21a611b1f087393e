#include "polar/BestAngles.h"

#include <algorithm>
#include <cmath>

#include "instruments/MathLib.h"

namespace veerwatch {

BestAngles FindBestAngles(const PolarTable& table, float windSpeed) {
  constexpr int kTenths = 10;
  constexpr int kLast = 180 * kTenths;
  PolarTable inTrueWind = table;
  inTrueWind.Type(PlotType::TrueWind);
  BestAngles best;
  const auto take = [](std::optional<BestAngle>& found, float angle, double madeGood) {
    const float speed = ToSingle(madeGood);
    if (speed > (found ? found->MadeGood : 0.0F)) {
      found = BestAngle{angle, speed};
    }
  };
  for (int tenth = 0; tenth <= kLast; ++tenth) {
    const float angle = ToSingle(static_cast<double>(tenth) / kTenths);
    const double along = std::cos(static_cast<double>(tenth) / kTenths * kPi / 180.0) *
                         static_cast<double>(inTrueWind.PolarSpeed(0, angle, windSpeed));
    take(best.Upwind, angle, along);
    take(best.Downwind, angle, -along);
  }
  return best;
}

bool IsLastAngle(const PolarTable& table, float angle) {
  constexpr float kStern = 180.0F;
  constexpr float kHalfATenth = 0.051F;
  const int rows = table.PolarRows(0);
  if (rows < 1) {
    return false;
  }
  const float first = table.Value(0, 1, 0);
  const float last = table.Value(0, rows, 0);
  const auto isAt = [angle](float end) { return std::fabs(angle - end) < kHalfATenth; };
  return (first > 0.0F && isAt(first)) || (last < kStern && isAt(last));
}

const BestAngles& BestAnglesMemory::Of(const PolarTable& table, std::uint64_t version, float windSpeed) {
  constexpr double kTenths = 10.0;
  const long wind = std::lround(std::clamp(static_cast<double>(windSpeed), 0.0, 1000.0) * kTenths);
  if (m_wind != wind || m_version != version) {
    m_best = FindBestAngles(table, ToSingle(static_cast<double>(wind) / kTenths));
    m_wind = wind;
    m_version = version;
  }
  return m_best;
}

}  // namespace veerwatch
