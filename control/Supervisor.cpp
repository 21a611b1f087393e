#include "control/Supervisor.h"

#include "platform/Language.h"

namespace veerwatch {

std::string_view TurnFateText(TurnFate fate) {
  switch (fate) {
    case TurnFate::InputStopped:
      return TrMark("Input Stopped");
    case TurnFate::NoInputData:
      return TrMark("No Input Data");
    case TurnFate::NoWind:
      return TrMark("No Wind");
    case TurnFate::NoHeading:
      return TrMark("No Heading");
    case TurnFate::NoOutput:
      return TrMark("No Output");
    case TurnFate::Stuck:
      return TrMark("Boat does not turn");
    case TurnFate::GoesOn:
    case TurnFate::Taken:
      break;
  }
  return {};
}

bool Supervisor::Second() {
  for (int& age : m_age) {
    age = std::min(age + 1, kLost);
  }
  const bool lost = std::max(m_age[0], m_age[1]) == kLost;
  return std::exchange(m_lost, lost) != lost;
}

PilotHand Supervisor::Hand(TrackMode mode) const {
  switch (mode) {
    case TrackMode::Track:
      return PilotHand::Loop;
    case TrackMode::Manual:
      return m_turning ? PilotHand::Turn : PilotHand::User;
    case TrackMode::Off:
    case TrackMode::Setup:
    case TrackMode::Switching:
      break;
  }
  return PilotHand::Nobody;
}

TurnFate Supervisor::Input(InputState state, TrackMode mode) {
  if (state == InputState::Running || state == InputState::Simulate) {
    return Look();
  }
  if (mode == TrackMode::Switching) {
    return End(TurnFate::Taken);
  }
  return End(state == InputState::Stopped ? TurnFate::InputStopped : TurnFate::NoInputData);
}

}  // namespace veerwatch
