// What stands on the history's chart beside its traces: a mark for each turn, and one for each angle that
// Track holds from then on.
#pragma once

#include <optional>
#include <string>

#include "control/Manoeuvre.h"
#include "control/Supervisor.h"
#include "settings/TrackMode.h"

namespace veerwatch {

class HistoryMarks {
 public:
  /// The helm at one second.
  struct Sense {
    TrackMode Mode = TrackMode::Off;
    PilotHand Hand = PilotHand::Nobody;
    std::optional<ManoeuvreKind> Turn;     ///< of the turn that has the pilot, where it is known
    TrackSide Side = TrackSide::Apparent;  ///< that is tracked
    float Held = 0.0F;                     ///< the held angle of that side [deg relative]
  };

  /// Marks from this distance of the held angle from the one marked last [deg].
  static constexpr float kHeldFrom = 3.0F;

  /// The mark to set now, asked every second: "Tack", "Jibe", "Steer" or "Turn" as one begins; "AWA 35" or
  /// "TWA -45" when Track holds a new angle for the second second. Nothing else.
  std::optional<std::string> Look(const Sense& sense);

 private:
  bool m_turned = false;
  std::optional<std::string> m_side;  ///< of the angle that is marked
  float m_marked = 0.0F;
  float m_before = 0.0F;  ///< a second ago
};

}  // namespace veerwatch
