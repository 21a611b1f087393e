// Whether the watch is right about a pilot: bearings typed in Manual for a boat whose pilot follows, or does
// not.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "control/PilotFollow.h"
#include "pilot/WireBoat.h"

namespace veerwatch {

/// What is the matter with a pilot.
struct PilotFault {
  std::string_view Name;
  FollowVerdict Right;  ///< what has to be said of it
  /// `course`: that the boat was told [deg magnetic]. Null for nothing.
  void (*Begin)(WireBoat& boat, double course);
};

inline constexpr std::size_t kPilotFaultCount = 4;
extern const std::array<PilotFault, kPilotFaultCount> kPilotFaults;

struct FollowCase {
  PilotFault Fault = kPilotFaults.front();
  bool Rudder = true;   ///< the boat has one, and her pilot a compass of its own
  double Lag = 4.0;     ///< of the pilot, or without a rudder of the boat's turn [s]
  double Offset = 5.0;  ///< what the pilot's compass shows more [deg]
  Sea TheSea = Sea::Slight;
  int Changes = 3;  ///< of the bearing, one a minute, before the fault
  std::uint64_t Seed = 1;
};

struct FollowResult {
  bool Right = false;
  std::optional<double> Told;    ///< the first time that it was right, after the bearing was changed [s]
  std::string Wrong;             ///< what was said instead, and when
  std::optional<double> Offset;  ///< that was learned before [deg]
};

/// Follows a bearing a minute, of 5 degrees and more, then the fault begins with a change of 25 degrees or
/// more and lasts for a minute. A pilot that follows is told to follow all the time. Any other is to be told
/// rightly from the thirtieth second on, and as nothing worse than slow before.
FollowResult Follow(const FollowCase& what);

/// Case `index` of many of one kind: each sea, lags from 1 to 8 s, offsets of 5 degrees to either side.
FollowCase FollowCaseOf(const PilotFault& fault, bool rudder, std::uint64_t index);

}  // namespace veerwatch
