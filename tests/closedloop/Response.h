// How the closed loop answers a shift of the wind, and how it holds an angle in gusts.
#pragma once

#include <cstdint>
#include <functional>

#include "pilot/WireBoat.h"
#include "settings/Settings.h"
#include "settings/TrackMode.h"
#include "tests/closedloop/Wire.h"

namespace veerwatch {

struct LoopCase {
  BoatSettings Boat;
  WireSettings Wire;
  TrackSide Side = TrackSide::True;
  double WindAngle = 90.0;                         ///< true wind angle at the start [deg relative]
  float Bandwidth = Settings{}.m_fTrackBandwidth;  ///< the program's default
  float Damping = Settings{}.m_fTrackDamping;      ///< the program's default
};

struct ShiftCase {
  LoopCase Loop;
  double Shift = 10.0;     ///< of the wind's direction [deg]
  double Seconds = 600.0;  ///< watched after the shift
  /// Given the time after the shift [s] and the error [deg], at every tick of the boat.
  std::function<void(double, double)> Each;
};

struct ShiftResult {
  double Settling = 0.0;   ///< time until the error stays within a tenth of the shift [s]
  double Overshoot = 0.0;  ///< largest error of the other sign, as a part of the shift
  double Ahead = 0.0;      ///< the most that the set bearing stood off the boat's heading [deg]
  bool Settled = false;  ///< the error stayed within a tenth of the shift over the last quarter of the watch
};

/// A steady wind, the boat on its angle, then the shift. The error is the boat's real one, less what it was
/// before the shift.
ShiftResult AnswerToShift(const ShiftCase& what);

struct GustResult {
  double Shown = 0.0;      ///< mean error of the wind angle that the program works with [deg]
  double Real = 0.0;       ///< mean error of the boat's real wind angle [deg]
  double Deviation = 0.0;  ///< standard deviation of the real wind angle [deg]
  double Untracked = 0.0;  ///< the same with the bearing left alone [deg]
};

/// Half an hour in the boat's own gusts, five minutes after the start of tracking.
GustResult HoldInGusts(const LoopCase& what, std::uint64_t seed);

struct StandbyResult {
  double Ahead = 0.0;  ///< how far the set bearing has gone from the heading meanwhile, turns included [deg]
  double Error = 0.0;  ///< largest error of the real wind angle once the pilot steers again [deg]
};

/// The pilot goes to standby in Track; for `seconds` somebody at the wheel keeps `off` [deg] from the
/// heading.
StandbyResult StandbyInTrack(const LoopCase& what, double off, double seconds);

}  // namespace veerwatch
