#include "diagram/DiagramState.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(DiagramState, TheInputIsAliveSilentSimulatedOrStopped) {
  const auto input = [](InputState state, bool open) {
    return DiagramStateOf({state, open, TrackMode::Setup, false, true}).Input;
  };
  EXPECT_EQ(input(InputState::Running, true), (DiagramBoxState{DiagramLight::Good, "Running"}));
  EXPECT_EQ(input(InputState::Running, false), (DiagramBoxState{DiagramLight::Trouble, "Not Open"}));
  EXPECT_EQ(input(InputState::NoData, true), (DiagramBoxState{DiagramLight::Trouble, "No Input Data"}));
  EXPECT_EQ(input(InputState::Simulate, false), (DiagramBoxState{DiagramLight::Ready, "Simulate"}));
  EXPECT_EQ(input(InputState::Stopped, false), (DiagramBoxState{DiagramLight::Off, "Stopped"}));
}

TEST(DiagramState, AnInputWithoutAWindIsNotLit) {
  DiagramSystem system{InputState::Running, true};
  EXPECT_EQ(DiagramStateOf(system).Input, (DiagramBoxState{DiagramLight::Good, "Running"}));
  system.Stale = true;
  EXPECT_EQ(DiagramStateOf(system).Input, (DiagramBoxState{DiagramLight::Off, "Running"}));
  system.Input = InputState::NoData;
  EXPECT_EQ(DiagramStateOf(system).Input.Light, DiagramLight::Trouble);
}

TEST(DiagramState, TheControlLoopShowsTheMode) {
  const auto control = [](TrackMode mode) {
    return DiagramStateOf({InputState::Running, true, mode, false, true}).Control;
  };
  EXPECT_EQ(control(TrackMode::Off), (DiagramBoxState{DiagramLight::Off, "Off"}));
  EXPECT_EQ(control(TrackMode::Switching), (DiagramBoxState{DiagramLight::Off, "Off"}));
  EXPECT_EQ(control(TrackMode::Setup), (DiagramBoxState{DiagramLight::Ready, "Setup"}));
  EXPECT_EQ(control(TrackMode::Manual), (DiagramBoxState{DiagramLight::ByHand, "Manual"}));
  EXPECT_EQ(control(TrackMode::Track), (DiagramBoxState{DiagramLight::Good, "Track"}));
}

TEST(DiagramState, TheControlLoopShowsATurnTheWindFunctionsAndACourse) {
  DiagramSystem system{InputState::Running, true, TrackMode::Manual, false, true};
  system.Turns = true;
  EXPECT_EQ(DiagramStateOf(system).Control, (DiagramBoxState{DiagramLight::Good, "Turn"}));
  system.Mode = TrackMode::Track;
  system.Turns = false;
  system.WindFunctions = true;
  EXPECT_EQ(DiagramStateOf(system).Control, (DiagramBoxState{DiagramLight::Good, "Track, Wind"}));
  system.Sails = true;
  EXPECT_EQ(DiagramStateOf(system).Control, (DiagramBoxState{DiagramLight::Good, "Track, Course"}));
  system.Mode = TrackMode::Manual;
  EXPECT_EQ(DiagramStateOf(system).Control, (DiagramBoxState{DiagramLight::ByHand, "Manual"}));
}

TEST(DiagramState, TheOutputIsOpenOrNotOutsideOfOff) {
  const auto output = [](TrackMode mode, bool simulate, bool open) {
    return DiagramStateOf({InputState::Running, true, mode, simulate, open}).Output;
  };
  for (const TrackMode mode : {TrackMode::Setup, TrackMode::Manual, TrackMode::Track}) {
    EXPECT_EQ(output(mode, false, true), (DiagramBoxState{DiagramLight::Good, "Open"}));
    EXPECT_EQ(output(mode, false, false), (DiagramBoxState{DiagramLight::Trouble, "Not Open"}));
    EXPECT_EQ(output(mode, true, false), (DiagramBoxState{DiagramLight::Ready, "Simulate"}));
  }
  EXPECT_EQ(output(TrackMode::Off, false, false), (DiagramBoxState{DiagramLight::Off, "Stopped"}));
  EXPECT_EQ(output(TrackMode::Off, true, true), (DiagramBoxState{DiagramLight::Off, "Stopped"}));
}

}  // namespace
}  // namespace veerwatch
