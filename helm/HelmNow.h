// What the helm does at one moment, as a turn of the autopilot asks it. Standard library only: every folder
// may include it.
#pragma once

#include <cstdint>
#include <optional>

#include "settings/TrackMode.h"

namespace veerwatch {

struct HelmNow {
  TrackMode Mode = TrackMode::Off;
  bool InputStarted = false;           ///< the instruments, or the simulator, are read
  int InputPort = 0;                   ///< number of the instrument port
  bool InputOpen = false;              ///< it is open, or not needed
  int OutputPort = 0;                  ///< number of the pilot port
  bool OutputOpen = false;             ///< it is open, or not needed
  bool WindLost = false;               ///< an apparent or a true wind has not come for too long
  std::uint64_t Sent = 0;              ///< sentences that have left for the pilot
  float AutoPilot = 0.0F;              ///< its bearing [deg magnetic, [0, 360)]
  std::optional<float> Heading;        ///< at present, not averaged [deg magnetic, [0, 360)]
  std::optional<float> WindAngleTrue;  ///< averaged [deg relative, positive to starboard]
};

}  // namespace veerwatch
