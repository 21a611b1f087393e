// The states of input and output. Standard library only.
#pragma once

#include <string_view>

namespace veerwatch {

enum class InputState {
  Stopped,
  Running,
  NoData,    ///< started, and silent for too long
  Simulate,  ///< the simulator takes its place
};

/// "Stopped", "Running", "No Input Data" or "Simulate".
constexpr std::string_view InputStateText(InputState state) {
  switch (state) {
    case InputState::Running:
      return "Running";
    case InputState::NoData:
      return "No Input Data";
    case InputState::Simulate:
      return "Simulate";
    case InputState::Stopped:
      break;
  }
  return "Stopped";
}

enum class OutputState {
  None,  ///< not started yet
  Running,
  Simulate,
};

/// "", "Running" or "Simulate".
constexpr std::string_view OutputStateText(OutputState state) {
  switch (state) {
    case OutputState::Running:
      return "Running";
    case OutputState::Simulate:
      return "Simulate";
    case OutputState::None:
      break;
  }
  return {};
}

}  // namespace veerwatch
