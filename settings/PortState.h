// The states of input and output.
#pragma once

#include <string_view>

#include "platform/Language.h"

namespace veerwatch {

enum class InputState {
  Stopped,
  Running,
  NoData,    ///< started, and silent for too long
  Simulate,  ///< the simulator takes its place
};

/// "Stopped", "Running", "No Input Data" or "Simulate"; for Tr.
constexpr std::string_view InputStateText(InputState state) {
  switch (state) {
    case InputState::Running:
      return TrMark("Running");
    case InputState::NoData:
      return TrMark("No Input Data");
    case InputState::Simulate:
      return TrMark("Simulate");
    case InputState::Stopped:
      break;
  }
  return TrMark("Stopped");
}

enum class OutputState {
  None,  ///< not started yet
  Running,
  Simulate,
};

/// "", "Running" or "Simulate"; for Tr.
constexpr std::string_view OutputStateText(OutputState state) {
  switch (state) {
    case OutputState::Running:
      return TrMark("Running");
    case OutputState::Simulate:
      return TrMark("Simulate");
    case OutputState::None:
      break;
  }
  return {};
}

}  // namespace veerwatch
