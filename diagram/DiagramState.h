// What the boxes of the block diagram say about the system, and the light that each one shows.
#pragma once

#include <string_view>

#include "settings/PortState.h"
#include "settings/TrackMode.h"

namespace veerwatch {

enum class DiagramLight {
  Off,      ///< does nothing
  Ready,    ///< set up, or a simulation
  ByHand,   ///< the user steers
  Good,     ///< works
  Trouble,  ///< should work and does not
};

struct DiagramBoxState {
  DiagramLight Light = DiagramLight::Off;
  std::string_view Text;  ///< English, for Tr

  bool operator==(const DiagramBoxState&) const = default;
};

struct DiagramState {
  DiagramBoxState Input;
  DiagramBoxState Control;
  DiagramBoxState Output;

  bool operator==(const DiagramState&) const = default;
};

/// What the helm is doing.
struct DiagramSystem {
  InputState Input = InputState::Stopped;
  bool InputOpen = false;  ///< the port of the instruments
  TrackMode Mode = TrackMode::Off;
  bool Simulate = false;
  bool OutputOpen = false;     ///< the port to the pilot
  bool Stale = false;          ///< something comes in, but no wind, no heading or no boat speed any more
  bool Turns = false;          ///< a turn has the pilot
  bool Sails = false;          ///< a course is sailed
  bool WindFunctions = false;  ///< one or more are chosen for Track
};

/// The state of the three boxes. A port that is closed in mode Off is not in trouble.
DiagramState DiagramStateOf(const DiagramSystem& system);

}  // namespace veerwatch
