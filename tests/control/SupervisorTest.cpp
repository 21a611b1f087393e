#include "control/Supervisor.h"

#include <gtest/gtest.h>

#include <utility>

namespace veerwatch {
namespace {

constexpr TrackMode kModes[] = {TrackMode::Switching, TrackMode::Off, TrackMode::Setup, TrackMode::Manual,
                                TrackMode::Track};

void Pass(Supervisor& supervisor, int seconds) {
  for (int i = 0; i < seconds; ++i) {
    supervisor.Second();
  }
}

/// A supervisor that has lost both winds.
Supervisor WithoutWind() {
  Supervisor supervisor;
  Pass(supervisor, 5);
  return supervisor;
}

// --- What is lost
// ------------------------------------------------------------------------------------------------

TEST(LostWind, EitherWindIsLostAtTheFifthSecondWithoutIt) {
  for (const TrackSide coming : {TrackSide::Apparent, TrackSide::True}) {
    Supervisor supervisor;
    for (int second = 0; second < 20; ++second) {
      EXPECT_EQ(supervisor.WindLost(), second >= 5) << second;
      EXPECT_EQ(supervisor.Second(), second == 4) << second;
      supervisor.Came(coming);
    }
    supervisor.Came(coming == TrackSide::Apparent ? TrackSide::True : TrackSide::Apparent);
    EXPECT_TRUE(supervisor.WindLost()) << "until the second is over";
    EXPECT_TRUE(supervisor.Second());
    EXPECT_FALSE(supervisor.WindLost());
  }
}

TEST(LostWind, WindsThatComeEveryFourSecondsAreKept) {
  Supervisor supervisor;
  for (int second = 1; second < 40; ++second) {
    EXPECT_FALSE(supervisor.Second());
    EXPECT_FALSE(supervisor.WindLost());
    if (second % 4 == 0) {
      supervisor.Came(TrackSide::Apparent);
      supervisor.Came(TrackSide::True);
    }
  }
}

// --- Who has the pilot
// -------------------------------------------------------------------------------------------

TEST(PilotHand, FollowsFromTheMode) {
  const Supervisor supervisor;
  EXPECT_EQ(supervisor.Hand(TrackMode::Switching), PilotHand::Nobody);
  EXPECT_EQ(supervisor.Hand(TrackMode::Off), PilotHand::Nobody);
  EXPECT_EQ(supervisor.Hand(TrackMode::Setup), PilotHand::Nobody);
  EXPECT_EQ(supervisor.Hand(TrackMode::Manual), PilotHand::User);
  EXPECT_EQ(supervisor.Hand(TrackMode::Track), PilotHand::Loop);
}

TEST(PilotHand, IsTheTurnsInManualAloneUntilItIsOver) {
  Supervisor supervisor;
  supervisor.TurnBegins();
  for (const TrackMode mode : kModes) {
    const PilotHand other = mode == TrackMode::Track ? PilotHand::Loop : PilotHand::Nobody;
    EXPECT_EQ(supervisor.Hand(mode), mode == TrackMode::Manual ? PilotHand::Turn : other);
  }
  supervisor.TurnOver();
  EXPECT_EQ(supervisor.Hand(TrackMode::Manual), PilotHand::User);
}

// --- What becomes of a turn
// --------------------------------------------------------------------------------------

TEST(TurnFate, NothingHappensWithoutATurn) {
  Supervisor supervisor = WithoutWind();
  EXPECT_EQ(supervisor.UserTakes(), TurnFate::GoesOn);
  EXPECT_EQ(supervisor.Look(), TurnFate::GoesOn);
  for (const TrackMode mode : kModes) {
    EXPECT_EQ(supervisor.Entered(mode), TurnFate::GoesOn);
    for (const InputState state :
         {InputState::Stopped, InputState::Running, InputState::NoData, InputState::Simulate}) {
      EXPECT_EQ(supervisor.Input(state, mode), TurnFate::GoesOn);
    }
  }
}

TEST(TurnFate, NothingHappensAfterATurnIsOver) {
  Supervisor supervisor = WithoutWind();
  supervisor.TurnBegins();
  supervisor.TurnOver();
  EXPECT_EQ(supervisor.Look(), TurnFate::GoesOn);
  EXPECT_EQ(supervisor.UserTakes(), TurnFate::GoesOn);
}

TEST(TurnFate, TheUserTakesThePilotOnce) {
  Supervisor supervisor;
  supervisor.TurnBegins();
  EXPECT_EQ(supervisor.UserTakes(), TurnFate::Taken);
  EXPECT_EQ(supervisor.Hand(TrackMode::Manual), PilotHand::User);
  EXPECT_EQ(supervisor.UserTakes(), TurnFate::GoesOn);
}

TEST(TurnFate, EveryModeButManualTakesThePilotOnce) {
  for (const TrackMode mode : kModes) {
    Supervisor supervisor;
    supervisor.TurnBegins();
    const bool manual = mode == TrackMode::Manual;
    EXPECT_EQ(supervisor.Entered(mode), manual ? TurnFate::GoesOn : TurnFate::Taken);
    EXPECT_EQ(supervisor.Entered(mode), TurnFate::GoesOn);
    EXPECT_EQ(supervisor.Hand(TrackMode::Manual), manual ? PilotHand::Turn : PilotHand::User);
  }
}

TEST(TurnFate, AnInputThatIsLostEndsItOnce) {
  for (const TrackMode mode : {TrackMode::Off, TrackMode::Setup, TrackMode::Manual, TrackMode::Track}) {
    for (const auto& [state, fate] : {std::pair{InputState::Stopped, TurnFate::InputStopped},
                                      std::pair{InputState::NoData, TurnFate::NoInputData}}) {
      Supervisor supervisor;
      supervisor.TurnBegins();
      EXPECT_EQ(supervisor.Input(state, mode), fate);
      EXPECT_EQ(supervisor.Input(state, mode), TurnFate::GoesOn);
      EXPECT_EQ(supervisor.Hand(TrackMode::Manual), PilotHand::User);
    }
  }
}

TEST(TurnFate, AnInputThatTheUserStopsByAModeTakesThePilot) {
  for (const InputState state : {InputState::Stopped, InputState::NoData}) {
    Supervisor supervisor;
    supervisor.TurnBegins();
    EXPECT_EQ(supervisor.Input(state, TrackMode::Switching), TurnFate::Taken);
    EXPECT_EQ(supervisor.Input(state, TrackMode::Switching), TurnFate::GoesOn);
  }
}

TEST(TurnFate, AnInputThatRunsLetsItGoOn) {
  for (const TrackMode mode : kModes) {
    for (const InputState state : {InputState::Running, InputState::Simulate}) {
      Supervisor supervisor;
      supervisor.TurnBegins();
      EXPECT_EQ(supervisor.Input(state, mode), TurnFate::GoesOn);
      EXPECT_EQ(supervisor.Hand(TrackMode::Manual), PilotHand::Turn);
    }
  }
}

TEST(TurnFate, ALostWindEndsItOnceWhateverHappens) {
  using Event = TurnFate (*)(Supervisor&);
  for (const Event event : {
           Event{[](Supervisor& supervisor) { return supervisor.Look(); }},
           Event{[](Supervisor& supervisor) { return supervisor.Entered(TrackMode::Manual); }},
           Event{[](Supervisor& supervisor) {
             return supervisor.Input(InputState::Running, TrackMode::Manual);
           }},
           Event{[](Supervisor& supervisor) {
             return supervisor.Input(InputState::Simulate, TrackMode::Manual);
           }},
       }) {
    Supervisor supervisor = WithoutWind();
    supervisor.TurnBegins();
    EXPECT_EQ(event(supervisor), TurnFate::NoWind);
    EXPECT_EQ(event(supervisor), TurnFate::GoesOn);
    EXPECT_EQ(supervisor.Hand(TrackMode::Manual), PilotHand::User);
  }
}

TEST(TurnFate, ItGoesOnWhileTheWindsCome) {
  Supervisor supervisor;
  supervisor.TurnBegins();
  Pass(supervisor, 4);
  EXPECT_EQ(supervisor.Look(), TurnFate::GoesOn);
  Pass(supervisor, 1);
  EXPECT_EQ(supervisor.Look(), TurnFate::NoWind);
}

TEST(TurnFate, AnotherTurnTakesThePilotFromTheOneBefore) {
  Supervisor supervisor;
  EXPECT_EQ(supervisor.TurnBegins(), TurnFate::GoesOn);
  EXPECT_EQ(supervisor.TurnBegins(), TurnFate::Taken);
  EXPECT_EQ(supervisor.Hand(TrackMode::Manual), PilotHand::Turn);
}

TEST(TurnFate, ATurnThatCannotGoOnEndsOnceForItsReason) {
  Supervisor supervisor;
  EXPECT_EQ(supervisor.TurnEnds(TurnFate::Stuck), TurnFate::GoesOn) << "none runs";
  supervisor.TurnBegins();
  EXPECT_EQ(supervisor.TurnEnds(TurnFate::Stuck), TurnFate::Stuck);
  EXPECT_EQ(supervisor.TurnEnds(TurnFate::Stuck), TurnFate::GoesOn);
  EXPECT_EQ(supervisor.Hand(TrackMode::Manual), PilotHand::User);
}

TEST(TurnFateText, NamesWhatIsGone) {
  EXPECT_EQ(TurnFateText(TurnFate::InputStopped), "Input Stopped");
  EXPECT_EQ(TurnFateText(TurnFate::NoInputData), "No Input Data");
  EXPECT_EQ(TurnFateText(TurnFate::NoWind), "No Wind");
  EXPECT_EQ(TurnFateText(TurnFate::NoHeading), "No Heading");
  EXPECT_EQ(TurnFateText(TurnFate::NoOutput), "No Output");
  EXPECT_EQ(TurnFateText(TurnFate::Stuck), "Boat does not turn");
  EXPECT_EQ(TurnFateText(TurnFate::GoesOn), "");
  EXPECT_EQ(TurnFateText(TurnFate::Taken), "");
}

}  // namespace
}  // namespace veerwatch
