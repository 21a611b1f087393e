#include "diagram/DiagramState.h"

namespace veerwatch {

namespace {

constexpr DiagramBoxState kSimulate{DiagramLight::Ready, "Simulate"};
constexpr DiagramBoxState kNotOpen{DiagramLight::Trouble, "Not Open"};

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
    return {DiagramLight::Good, "Track, Course"};
  }
  return {DiagramLight::Good, system.WindFunctions ? "Track, Wind" : "Track"};
}

DiagramBoxState ControlOf(const DiagramSystem& system) {
  if (system.Turns) {
    return {DiagramLight::Good, "Turn"};
  }
  switch (system.Mode) {
    case TrackMode::Setup:
      return {DiagramLight::Ready, "Setup"};
    case TrackMode::Manual:
      return {DiagramLight::ByHand, "Manual"};
    case TrackMode::Track:
      return TrackOf(system);
    case TrackMode::Off:
    case TrackMode::Switching:
      break;
  }
  return {DiagramLight::Off, "Off"};
}

DiagramBoxState OutputOf(const DiagramSystem& system) {
  if (system.Mode == TrackMode::Off || system.Mode == TrackMode::Switching) {
    return {DiagramLight::Off, "Stopped"};
  }
  if (system.Simulate) {
    return kSimulate;
  }
  return system.OutputOpen ? DiagramBoxState{DiagramLight::Good, "Open"} : kNotOpen;
}

}  // namespace

DiagramState DiagramStateOf(const DiagramSystem& system) {
  return {InputOf(system), ControlOf(system), OutputOf(system)};
}

}  // namespace veerwatch
