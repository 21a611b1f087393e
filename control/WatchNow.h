// What the watch says at one moment, as values: how old everything is, and which conditions stand. Texts,
// order of telling and sounds are made of it in alarms/.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "control/Freshness.h"
#include "control/PilotFollow.h"
#include "platform/Clock.h"
#include "settings/TrackMode.h"

namespace veerwatch {

/// How much a condition matters; the worst first.
enum class Level {
  Red,    ///< the boat is not steered as the user wants, or may be in danger: take the helm
  Amber,  ///< something is wrong that steering can do without for a while
  Note,   ///< to be known
};

/// What can be wrong. Of one level and moment the first comes first.
enum class Condition {
  NoWind,             ///< the tracked wind is stale or lost
  PilotLost,          ///< the pilot's port is not open, or nothing leaves although steps are made
  PilotNotFollowing,  ///< the boat does not come to the bearing that is sent
  GybeRisk,           ///< the true wind is too close to dead astern, or across the stern
  NoBoatSpeed,        ///< the boat speed of the held true wind is gone, or 0 while the boat moves
  WindNotChanging,    ///< the vane may be stuck
  OffCourse,          ///< the error is beyond the alarm limit
  Pinching,           ///< the boat is too close to the apparent wind
  WindShift,          ///< the true wind has shifted since the held angle was set
  NoHeading,
  TwoWinds,  ///< two talkers send winds that differ
  TwoHeadings,
  TwoBoatSpeeds,
  WindJumps,      ///< the wind's direction leaps away and back
  ManyWinds,      ///< more winds a second than method and bandwidth can do with
  PilotLineFull,  ///< more sentences than the pilot's line carries
  Simulation,
};
inline constexpr std::size_t kConditionCount = 17;

/// The two characters of a talker.
using Talker = std::array<char, 2>;

/// A condition that stands.
struct Standing {
  Condition What = Condition::NoWind;
  Level Rank = Level::Note;
  Moment Since;                           ///< when it was found
  Watched Value = Watched::WindApparent;  ///< the quantity that it is about, where it is about one
  /// What its text tells: NoWind [s], OffCourse the size of the error [deg], ManyWinds [a second],
  /// PilotLost the number of the port, WindShift how far [deg, positive to starboard]; else 0.
  double Figure = 0.0;
  std::array<Talker, 2> Talkers{};  ///< of TwoWinds, TwoHeadings, TwoBoatSpeeds
  bool Lift = false;                ///< of WindShift: the wind comes from further aft; else further ahead
  FollowVerdict Follow = FollowVerdict::Unknown;  ///< of PilotNotFollowing
};

struct WatchNow {
  Moment At;
  TrackMode Mode = TrackMode::Off;
  TrackSide Side = TrackSide::Apparent;  ///< the tracked side
  bool Act = false;                      ///< the watch holds back what is lost, and does not only tell
  bool Acts = false;                     ///< it does so at this moment
  FollowVerdict Follow = FollowVerdict::Unknown;  ///< what the pilot makes of the bearings
  std::optional<double> PilotOffset;              ///< PilotFollow::Offset
  std::array<ValueAge, kWatchedCount> Values{};
  std::array<Standing, kConditionCount> All{};
  std::size_t Count = 0;

  /// The conditions that stand: the worst first, of one level the newer first.
  std::span<const Standing> Conditions() const { return {All.data(), Count}; }
  const ValueAge& Of(Watched what) const { return Values[static_cast<std::size_t>(what)]; }
  /// The condition where it stands, else null.
  const Standing* Find(Condition what) const {
    for (const Standing& one : Conditions()) {
      if (one.What == what) {
        return &one;
      }
    }
    return nullptr;
  }
};

}  // namespace veerwatch
