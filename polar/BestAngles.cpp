#include "polar/BestAngles.h"

#include <cmath>

#include "instruments/MathLib.h"

namespace veerwatch {

BestAngles FindBestAngles(const PolarTable& table, float windSpeed) {
  constexpr int kTenths = 10;
  constexpr int kLast = 180 * kTenths;
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
                         static_cast<double>(table.PolarSpeed(0, angle, windSpeed));
    take(best.Upwind, angle, along);
    take(best.Downwind, angle, -along);
  }
  return best;
}

}  // namespace veerwatch
