// Tacks and jibes on the boat of the tests: tracking a wind angle in gusts and a sea, turning to that of the
// other tack, and tracking it for a minute.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "pilot/WireBoat.h"
#include "settings/TrackMode.h"
#include "tack/TurnPlan.h"
#include "tests/closedloop/Holding.h"

namespace veerwatch {

struct TurnCase {
  NamedMethod Method = NamedMethods().front();
  float Bandwidth = 60.0F;
  double WindRate = 1.0;  ///< wind sentences a second
  double Lag = 4.0;       ///< of the pilot [s]
  BoatSettings Boat = HardBoat(Sea::Flat);
  TrackSide Side = TrackSide::True;
  float Angle = 45.0F;  ///< held before [deg relative]; its size is up to 90 for a tack
  float Overshoot = 5.0F;
  float Rate = 10.0F;
  bool Turns = true;  ///< false: she holds the angle for another minute, for comparison
  std::uint64_t Seed = 1;
};

struct TurnResult {
  bool Done = false;  ///< it came to its end; not where it was refused
  TurnFate Fate = TurnFate::GoesOn;
  double Seconds = 0.0;  ///< that it took
  double Shown = 0.0;  ///< wind angle as the program shows it, mean of the minute after it, less the held one
  double Real = 0.0;   ///< the same of the boat's own
  double Jump = 0.0;   ///< of the bearing in the second of the hand-over [deg]
  double Back = 0.0;   ///< farthest that the boat was turned the other way [deg, at least 0]
  double Turned = 0.0;     ///< by the boat a minute after the end [deg, positive as planned]
  double Planned = 0.0;    ///< [deg, at least 0]
  double InTheWind = 0.0;  ///< within 20 degrees of head to wind after the end [s]
};

TurnResult SailTurn(const TurnCase& what);

/// The turns of `seeds` seeds at one rate of wind sentences, each with a lag of 1, 2, 4, 6 or 8 seconds, a
/// sea, a side and an angle of its own; `jibes` or tacks.
std::vector<TurnCase> TurnCases(const TurnCase& what, int seeds, bool jibes);

struct TurnSummary {
  int Count = 0;
  int Done = 0;
  int Within = 0;          ///< |Shown| up to 2 degrees
  int WithinReal = 0;      ///< |Real| up to 2 degrees
  int WrongWay = 0;        ///< turned back by more than 30 degrees, or ended more than 90 off the plan
  int InTheWind = 0;       ///< turns with any time there after the end
  double Median = 0.0;     ///< of |Shown| [deg]
  double NineOfTen = 0.0;  ///< |Shown| of nine in ten [deg]
  double Longest = 0.0;    ///< [s]
  double Jump = 0.0;       ///< the largest [deg]
};
TurnSummary SummaryOf(const std::vector<TurnResult>& results);

}  // namespace veerwatch
