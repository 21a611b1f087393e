// What the helm does at one moment, for whoever comes later than it was told.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "control/Supervisor.h"
#include "control/TrackLoop.h"
#include "control/WatchNow.h"
#include "helm/Why.h"
#include "nmea/PortStatus.h"
#include "pilot/PilotSentences.h"
#include "settings/TrackMode.h"

namespace veerwatch {

struct HelmNow {
  TrackMode Mode = TrackMode::Off;
  PilotHand Hand = PilotHand::Nobody;
  std::optional<TrackTuning> InUse;  ///< what the loop tracks with, in Track
  bool InputStarted = false;         ///< the instruments, or the simulator, are read
  int InputPort = 0;                 ///< number of the instrument port
  bool InputOpen = false;            ///< it is open, or not needed
  InputState Input = InputState::Stopped;
  std::string InputFailure;         ///< why the instrument port is not open; "" when it is, or is not wanted
  std::vector<std::string> Advice;  ///< what the chosen sources do not bring, a line each
  int OutputPort = 0;               ///< number of the pilot port
  bool OutputOpen = false;          ///< it is open, or not needed
  OutputState Output = OutputState::None;
  std::string OutputFailure;             ///< the same of the pilot port
  PilotRefusal Refused;                  ///< what does not leave though it was chosen
  std::optional<int> PilotBaud;          ///< what the pilot's line carries, where anything bounds it
  std::size_t PilotBytes = 0;            ///< characters of the latest bundle for the pilot
  bool WindLost = false;                 ///< an apparent or a true wind has not come for too long
  std::uint64_t Sent = 0;                ///< sentences that have left for the pilot
  float AutoPilot = 0.0F;                ///< its bearing [deg magnetic, [0, 360)]
  std::optional<float> Heading;          ///< at present, not averaged [deg magnetic, [0, 360)]
  bool BoatSpeedKnown = false;           ///< one has come since the input started
  std::optional<double> WindsASecond;    ///< wind sentences, as far as it was measured [1/s]
  std::optional<float> WindAngleTrue;    ///< averaged [deg relative, positive to starboard]
  TrackSide Side = TrackSide::Apparent;  ///< that is tracked, or would be
  bool CanTrack = false;                 ///< the settings give usable gains
  bool TakesBearing = true;              ///< the pilot does; one that holds the wind by itself takes none
  std::array<float, 3> Desired{};        ///< the wanted angles by side [deg relative]
  std::array<std::optional<float>, 3>
      WindMean;    ///< the angles of the last ten seconds by side [deg relative]
  WatchNow Watch;  ///< what the watch said last
  Why Sentence;    ///< why the last sentence says what it says
};

}  // namespace veerwatch
