// How well a wind angle is held over a passage of twenty minutes by a boat with a rudder, in gusts and a sea;
// and the set of such passages over which methods of tracking are compared.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "pilot/WireBoat.h"
#include "settings/Settings.h"
#include "settings/TrackMode.h"

namespace veerwatch {

/// A method of tracking: what it sets.
struct NamedMethod {
  std::string_view Name;
  void (*Use)(Settings&);
};

/// Every method that there is.
const std::vector<NamedMethod>& NamedMethods();

struct HoldCase {
  NamedMethod Method = NamedMethods().front();
  float Bandwidth = Settings{}.m_fTrackBandwidth;
  float Damping = Settings{}.m_fTrackDamping;
  bool Constant = false;  ///< the pilot keeps the mean course, and nothing is tracked

  double WindRate = 1.0;      ///< wind sentences a second
  double HeadingRate = 10.0;  ///< compass sentences a second
  double Lag = 4.0;           ///< of the pilot [s]
  Sea TheSea = Sea::Flat;
  TrackSide Side = TrackSide::True;
  double Angle = 100.0;  ///< to hold [deg relative]
  std::uint64_t Seed = 1;
  void (*Alter)(BoatSettings&) = nullptr;  ///< what else is to be different on the boat
};

struct HoldResult {
  double Mean = 0.0;     ///< of what the boat's real wind angle is off the held one [deg]
  double Rms = 0.0;      ///< of the same, against its mean [deg]
  double Most = 0.0;     ///< of the same, to either side [deg]
  double Rudder = 0.0;   ///< how far the rudder moves [deg a minute]
  double Changes = 0.0;  ///< new bearings for the pilot [a minute]

  /// The angle is not held: it is off by more than 20 degrees, taken as the root of the mean square.
  bool Lost() const { return Mean * Mean + Rms * Rms > 20.0 * 20.0; }
};

/// Five minutes to come to rest, then twenty that count.
HoldResult Hold(const HoldCase& what);

class Passage;
/// Once she has come to rest, hands her on.
void HoldAnd(const HoldCase& what, const std::function<void(Passage&)>& then);

struct UpsetResult {
  double Back = 0.0;    ///< afterwards, until the mean error of ten seconds is within 5 degrees [s, [0, 120]]
  double Stays = 0.0;   ///< the same, until it stays so [s, [0, 120]]
  double Most = 0.0;    ///< greatest error afterwards, to either side [deg]
  double Before = 0.0;  ///< the same of the last half minute in standby [deg]
  double Ahead = 0.0;   ///< the most that the bearing stood off the heading meanwhile and afterwards [deg]
};

/// The pilot is in standby for 60 seconds, somebody at the wheel keeps `off` [deg] from the heading, and the
/// pilot is engaged again; watched for two minutes from then on.
UpsetResult StandbyUpset(const HoldCase& what, double off);

struct BurstResult {
  double Moved = 0.0;  ///< the bearing by the burst and the two seconds after it [deg, at least 0]
  double Most = 0.0;   ///< greatest error from then on for two minutes [deg]
};

/// Nothing comes from the instruments for 30 seconds, then all of it at once.
BurstResult LateBurst(const HoldCase& what);

/// What is held on a passage: a wind angle [deg relative] of a side.
constexpr std::array<std::pair<TrackSide, double>, 6> kHeldAngles{{{TrackSide::True, 45.0},
                                                                   {TrackSide::True, 100.0},
                                                                   {TrackSide::True, 150.0},
                                                                   {TrackSide::Apparent, 35.0},
                                                                   {TrackSide::Apparent, 90.0},
                                                                   {TrackSide::Apparent, 140.0}}};

/// The passages of `what`, 30 for each lag of the pilot [s]: in each sea at each angle, with a seed of its
/// own.
std::vector<HoldCase> Passages(const HoldCase& what, const std::vector<double>& lags = {1.0, 4.0, 8.0});

struct HoldSummary {
  int Lost = 0;
  int Count = 0;
  double Rms = 0.0;  ///< the median, as the following ones
  double Rudder = 0.0;
  double Changes = 0.0;
};

HoldSummary SummaryOf(const std::vector<HoldResult>& results);

}  // namespace veerwatch
