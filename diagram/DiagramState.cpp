#include "diagram/DiagramState.h"

#include "platform/Language.h"

namespace veerwatch {

namespace {

constexpr DiagramBoxState kSimulate{DiagramLight::Ready, TrMark("Simulate")};
constexpr DiagramBoxState kNotOpen{DiagramLight::Trouble, TrMark("Not Open")};

DiagramBoxState InputOf(const DiagramSystem& system) {
  switch (system.Input) {
    case InputState::Simulate:
      return kSimulate;
    case InputState::NoData:
      return {DiagramLight::Trouble, InputStateText(InputState::NoData)};
    case InputState::Stopped:
      return {DiagramLight::Off, InputStateText(InputState::Stopped)};
    case InputState::Running:
      break;
  }
  if (!system.InputOpen) {
    return kNotOpen;
  }
  return {system.Stale ? DiagramLight::Off : DiagramLight::Good, InputStateText(InputState::Running)};
}

DiagramBoxState TrackOf(const DiagramSystem& system) {
  if (system.Sails) {
    return {DiagramLight::Good, TrMark("Track, Course")};
  }
  return {DiagramLight::Good, system.WindFunctions ? TrMark("Track, Wind") : TrMark("Track")};
}

DiagramBoxState ControlOf(const DiagramSystem& system) {
  if (system.Turns) {
    return {DiagramLight::Good, TrMark("Turn")};
  }
  switch (system.Mode) {
    case TrackMode::Setup:
      return {DiagramLight::Ready, TrMark("Setup")};
    case TrackMode::Manual:
      return {DiagramLight::ByHand, TrMark("Manual")};
    case TrackMode::Track:
      return TrackOf(system);
    case TrackMode::Off:
    case TrackMode::Switching:
      break;
  }
  return {DiagramLight::Off, TrMark("Off")};
}

DiagramBoxState OutputOf(const DiagramSystem& system) {
  if (system.Mode == TrackMode::Off || system.Mode == TrackMode::Switching) {
    return {DiagramLight::Off, TrMark("Stopped")};
  }
  if (system.Simulate) {
    return kSimulate;
  }
  return system.OutputOpen ? DiagramBoxState{DiagramLight::Good, TrMark("Open")} : kNotOpen;
}

}  // namespace

DiagramState DiagramStateOf(const DiagramSystem& system) {
  return {InputOf(system), ControlOf(system), OutputOf(system)};
}

}  // namespace veerwatch
