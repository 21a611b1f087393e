#include "tests/closedloop/Downwind.h"

#include <cmath>

#include "tests/closedloop/Passage.h"

namespace veerwatch {

namespace {

constexpr double kSecondsPerHour = 3600.0;
constexpr double kAcrossFor = 2.0;  // [s] and the boom has come over
constexpr double kAft = 90.0;       // [deg]

}  // namespace

void ShiftTenDegrees(BoatSettings& boat) {
  boat.SwingDeviation = 10.0;
  boat.SwingTime = 60.0;
}

RunResult RunDownwind(const HoldCase& what, double hours, bool guarded) {
  RunResult result;
  HoldAnd(what, [&](Passage& passage) {
    passage.Set.m_bWindGuard = guarded;
    double across = 0.0;
    double sum = 0.0;
    long count = 0;
    passage.Sail(hours * kSecondsPerHour, [&] {
      const double wind = passage.Boat.State().ApparentAngle;
      const bool wrong = std::fabs(wind) > kAft && (wind < 0.0) != (what.Angle < 0.0);
      const bool was = across >= kAcrossFor;
      across = wrong ? across + BoatModel::kTick : 0.0;
      result.Across += wrong ? BoatModel::kTick : 0.0;
      result.Gybes += !was && across >= kAcrossFor ? 1 : 0;
      sum += passage.RealError();
      ++count;
    });
    result.Mean = sum / static_cast<double>(count);
  });
  return result;
}

int ShiftsTold(const HoldCase& what, double hours) {
  int told = 0;
  HoldAnd(what, [&](Passage& passage) {
    passage.Set.m_bWindShift = true;
    bool stood = false;
    passage.Sail(hours * kSecondsPerHour, [&] {
      const bool stands = passage.TheHelm().Functions().Shift().has_value();
      told += stands && !stood ? 1 : 0;
      stood = stands;
    });
  });
  return told;
}

std::optional<double> ShiftFound(const HoldCase& what, double shift) {
  constexpr double kWatched = 300.0;  // [s]
  std::optional<double> found;
  HoldAnd(what, [&](Passage& passage) {
    passage.Set.m_bWindShift = true;
    passage.Sail(kWatched);
    passage.Boat.Set().WindFrom += shift;
    double since = 0.0;
    passage.Sail(kWatched, [&] {
      since += BoatModel::kTick;
      const auto told = passage.TheHelm().Functions().Shift();
      if (!found && told && (*told < 0.0) == (shift < 0.0)) {
        found = since;
      }
    });
  });
  return found;
}

void GustOften(BoatSettings& boat) {
  const BoatSettings gusty = GustyBoat();
  boat.GustDeviation = gusty.GustDeviation;
  boat.GustTime = gusty.GustTime;
  boat.ShiftDeviation = gusty.ShiftDeviation;
  boat.ShiftTime = gusty.ShiftTime;
  boat.SwingDeviation = 0.0;
}

}  // namespace veerwatch
