#include "pilot/Vwr.h"

#include <cmath>

#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kMetresPerMile = 1852.0;
constexpr double kSecondsPerHour = 3600.0;
constexpr double kMetresPerKilometre = 1000.0;

std::string Tenths(double number) { return FormatNumber(static_cast<float>(number), "0.0"); }

}  // namespace

void AddVwr(std::string_view talker, const PilotValues::Apparent& wind, PilotBundle& bundle) {
  const auto knots = static_cast<double>(wind.Speed);
  bundle.Begin(talker, "VWR")
      .Fields(FormatNumber(std::fabs(wind.Angle), "000.0"), wind.Angle < 0.0F ? "L" : "R");
  bundle.Fields(Tenths(knots), "N", Tenths(knots * kMetresPerMile / kSecondsPerHour), "M",
                Tenths(knots * kMetresPerMile / kMetresPerKilometre), "K");
  bundle.End();
}

}  // namespace veerwatch
