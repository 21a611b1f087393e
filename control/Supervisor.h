// What is lost, and who has the pilot. The helm tells it what happens and asks what follows; it knows no
// window.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "nmea/PortStatus.h"
#include "settings/TrackMode.h"

namespace veerwatch {

/// Who says where the pilot steers.
enum class PilotHand {
  Nobody,  ///< nothing is sent
  User,    ///< the bearing that the user sets
  Loop,    ///< the control loop, by the wind
  Turn,    ///< a timed turn
};

/// What becomes of a timed turn.
enum class TurnFate {
  GoesOn,  ///< also where none runs
  Taken,   ///< somebody else has taken the pilot: it ends with the bearing as it is
  // It ends with the bearing that was sent last, because this is gone:
  InputStopped,
  NoInputData,
  NoWind,
  NoHeading,
  NoOutput,  ///< the port is not open, or nothing leaves although winds come
  Stuck,     ///< the boat does not turn
};

/// Why a turn ends by itself: "Input Stopped", "No Input Data", "No Wind", "No Heading", "No Output" or "Boat
/// does not turn"; "" for the other two.
std::string_view TurnFateText(TurnFate fate);

class Supervisor {
 public:
  /// A wind has come.
  void Came(TrackSide side) { m_age[side == TrackSide::True ? 1 : 0] = 0; }

  /// A second has passed, in any mode. True when WindLost() is now another than before.
  bool Second();

  /// At the latest second an apparent, or a true wind had not come for four of them.
  bool WindLost() const { return m_lost; }

  PilotHand Hand(TrackMode mode) const;

  /// A turn takes the pilot. What becomes of the one that had it before.
  TurnFate TurnBegins() { return std::exchange(m_turning, true) ? TurnFate::Taken : TurnFate::GoesOn; }
  void TurnOver() { m_turning = false; }

  // Each says what becomes of a turn, which is over unless it goes on.

  /// The turn itself cannot go on, for `why`.
  TurnFate TurnEnds(TurnFate why) { return End(why); }
  /// The user sets a bearing, or the program ends.
  TurnFate UserTakes() { return End(TurnFate::Taken); }
  /// The mode is now `mode`: every one but Manual takes the pilot.
  TurnFate Entered(TrackMode mode) { return mode == TrackMode::Manual ? Look() : End(TurnFate::Taken); }
  /// The input is in `state`, in `mode`. The user stops it by a mode.
  TurnFate Input(InputState state, TrackMode mode);
  /// Something may have changed.
  TurnFate Look() { return m_lost ? End(TurnFate::NoWind) : TurnFate::GoesOn; }

 private:
  static constexpr int kLost = 5;  // [s]; the first second may come at once

  TurnFate End(TurnFate fate) { return std::exchange(m_turning, false) ? fate : TurnFate::GoesOn; }

  std::array<int, 2> m_age{};  // seconds since each wind has come
  bool m_lost = false;
  bool m_turning = false;
};

}  // namespace veerwatch
