// A run dead before the wind, or nearly: how often the wind gets across the stern, with and without the angle
// guard; and how often a shift alarm is false.
#pragma once

#include <optional>

#include "tests/closedloop/Holding.h"

namespace veerwatch {

struct RunResult {
  int Gybes = 0;        ///< times that the apparent wind stood across the stern for two seconds
  double Across = 0.0;  ///< the time for which it was there [s]
  double Mean = 0.0;    ///< of what the boat's real true wind angle is off the held one [deg]
};

/// `hours` [h] of `what` at its angle, from when she has come to rest; the angle guard is on where `guarded`.
RunResult RunDownwind(const HoldCase& what, double hours, bool guarded);

/// How often the shift alarm begins in `hours` [h] of `what`.
int ShiftsTold(const HoldCase& what, double hours);

/// After how long a wind that shifts by `shift` [deg] at once, and stays so, is told [s]; nothing where it is
/// not within five minutes, or on the wrong side.
std::optional<double> ShiftFound(const HoldCase& what, double shift);

/// Gusts of 20 percent and shifts of 4 degrees.
void GustOften(BoatSettings& boat);

/// Shifts of ten degrees beside the gusts.
void ShiftTenDegrees(BoatSettings& boat);

}  // namespace veerwatch
