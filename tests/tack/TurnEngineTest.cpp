// A turn that is followed to its end, on a boat that turns towards the bearing that has left for her pilot.

#include "tack/TurnEngine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "platform/Angles.h"

namespace veerwatch {
namespace {

/// A boat in a wind from `WindFrom`: by default on 100 with the wind at 45 and the pilot 12 degrees more.
class TurnEngineTest : public testing::Test {
 protected:
  double WindFrom = 145.0;
  double Heading = 100.0;
  double Offset = 12.0;
  double MostTurn = 8.0;  ///< [deg/s]
  bool Leaves = true;     ///< the sentences do
  bool Reached = true;    ///< the pilot follows them
  TurnSense Sense;
  TurnEngine Engine;
  TurnPlan Plan;
  std::vector<TurnStage> Stages;

  /// To `change` degrees on, through bow or stern as the wind lies.
  void Begin(double change, double overshoot, double limit = 60.0) {
    Plan.Wind = static_cast<double>(FoldRelative(WindFrom - Heading));
    Plan.Change = change;
    Plan.Overshoot = overshoot;
    Plan.Crossing = CrossingOf(Plan.Wind, change);
    Plan.Bearing = Heading + Offset;
    Look();
    Engine.Begin(Plan, Sense, limit);
    Stages = {Engine.Stage()};
  }

  void Look() {
    Sense.OutputOpen = true;
    Sense.Heading = FoldBearing(Heading);
    Sense.Wind = FoldRelative(WindFrom - Heading);
  }

  /// A second in which the boat turns and a step is made.
  TurnFate Second() {
    if (Leaves) {
      ++Sense.Sent;
      Sense.SentBearing = Engine.Bearing();
    }
    if (Reached) {
      const double missing =
          static_cast<double>(FoldRelative(static_cast<double>(Sense.SentBearing) - Offset - Heading));
      Heading += std::clamp(missing, -MostTurn, MostTurn);
    }
    Look();
    const TurnFate fate = Engine.Step(Sense, 1.0);
    if (Engine.Stage() != Stages.back()) {
      Stages.push_back(Engine.Stage());
    }
    return fate;
  }

  /// Seconds until she is there or it ends; how many.
  int Finish(TurnFate& fate) {
    int seconds = 0;
    do {
      fate = Second();
      ++seconds;
    } while (fate == TurnFate::GoesOn && Engine.Stage() != TurnStage::Done && seconds < 500);
    return seconds;
  }
};

TEST_F(TurnEngineTest, GoesThroughTheStagesAndEasesTheOvershootOut) {
  Begin(90.0, 5.0);
  double farthest = 0.0;
  int seconds = 0;
  while (Engine.Stage() != TurnStage::Done && seconds < 100) {
    ASSERT_EQ(Second(), TurnFate::GoesOn);
    farthest = std::max(farthest, Heading);
    ++seconds;
  }
  EXPECT_EQ(Stages,
            (std::vector{TurnStage::Turning, TurnStage::Through, TurnStage::Easing, TurnStage::Done}));
  EXPECT_NEAR(farthest, 195.0, 3.0);
  EXPECT_NEAR(Heading, 190.0, 1.0);
  EXPECT_NEAR(static_cast<double>(Engine.Bearing()), 202.0, 1.0) << "with the pilot's own offset";
  EXPECT_NEAR(Engine.Turned(), 90.0, 1.0);
  EXPECT_EQ(Engine.BearingSent(), Engine.Bearing());
}

TEST_F(TurnEngineTest, IsNotDoneBeforeASlowBoatIsThere) {
  MostTurn = 1.5;
  Begin(90.0, 0.0);
  for (int second = 0; second < 29; ++second) {
    EXPECT_EQ(Second(), TurnFate::GoesOn);
    EXPECT_EQ(Engine.Stage(), TurnStage::Turning) << second << ": the bow is not through";
  }
  TurnFate fate{};
  Finish(fate);
  EXPECT_EQ(fate, TurnFate::GoesOn);
  EXPECT_NEAR(Heading, 190.0, 2.5);
}

TEST_F(TurnEngineTest, MakesAStepOnlyWhenTheOneBeforeHasLeft) {
  Begin(90.0, 0.0);
  Second();
  const float one = Engine.Bearing();
  EXPECT_EQ(one, 122.0F);
  Leaves = false;
  for (int second = 0; second < 3; ++second) {
    EXPECT_EQ(Second(), TurnFate::GoesOn);
    EXPECT_EQ(Engine.Bearing(), one);
    EXPECT_EQ(Engine.BearingSent(), 112.0F);
  }
  Leaves = true;
  Second();
  EXPECT_EQ(Engine.Bearing(), 132.0F) << "by one step, whatever the pause";
  EXPECT_EQ(Engine.BearingSent(), one);
}

TEST_F(TurnEngineTest, ASentenceThatWasMadeBeforeTheStepDoesNotCount) {
  Begin(90.0, 0.0);
  Second();
  ++Sense.Sent;
  Sense.SentBearing = 112.0F;
  Engine.Step(Sense, 1.0);
  EXPECT_EQ(Engine.Bearing(), 122.0F);
  EXPECT_EQ(Engine.BearingSent(), 112.0F);
}

TEST_F(TurnEngineTest, AStepIsAsLongAsItsTimeButNoLongerThanTwoSeconds) {
  for (const auto& [seconds, step] : {std::pair{0.5, 5.0F}, {1.0, 10.0F}, {2.0, 20.0F}, {3600.0, 20.0F}}) {
    Begin(90.0, 0.0);
    EXPECT_EQ(Engine.Step(Sense, seconds), TurnFate::GoesOn) << seconds;
    EXPECT_EQ(Engine.Bearing(), 112.0F + step) << seconds;
  }
}

TEST_F(TurnEngineTest, TheBearingIsNeverMoreThanNinetyDegreesAheadSoNobodyTurnsTheOtherWay) {
  MostTurn = 2.0;
  WindFrom = 100.0 + 85.0;
  Plan.Rate = 60.0;
  Begin(170.0, 10.0);
  TurnFate fate{};
  double before = Heading;
  while (Engine.Stage() != TurnStage::Easing) {
    fate = Second();
    ASSERT_EQ(fate, TurnFate::GoesOn);
    EXPECT_GE(Heading, before);
    EXPECT_LE(static_cast<double>(FoldRelative(static_cast<double>(Engine.Bearing()) - Offset - Heading)),
              90.01);
    before = Heading;
  }
  Finish(fate);
  EXPECT_NEAR(Heading, 270.0, 3.0);
}

TEST_F(TurnEngineTest, ABoatThatDoesNotTurnEndsAfterTheLimitOfAStage) {
  Reached = false;
  Begin(90.0, 5.0, 20.0);
  TurnFate fate{};
  EXPECT_EQ(Finish(fate), 21);
  EXPECT_EQ(fate, TurnFate::Stuck);
  EXPECT_EQ(Engine.Stage(), TurnStage::Turning);
}

TEST_F(TurnEngineTest, ABoatThatHangsInTheWindDoesNotEndWell) {
  Begin(90.0, 5.0, 20.0);
  TurnFate fate = TurnFate::GoesOn;
  while (fate == TurnFate::GoesOn) {
    Reached = Heading < 135.0;
    fate = Second();
  }
  EXPECT_EQ(fate, TurnFate::Stuck);
  EXPECT_EQ(Engine.Stage(), TurnStage::Turning);
}

TEST_F(TurnEngineTest, ARateThatNeedsLongerThanTheLimitGetsTwiceItsTime) {
  Plan.Rate = 0.5;
  Begin(90.0, 0.0, 60.0);
  TurnFate fate{};
  Finish(fate);
  EXPECT_EQ(fate, TurnFate::GoesOn);
  EXPECT_EQ(Engine.Stage(), TurnStage::Done);
}

TEST_F(TurnEngineTest, EndsWithWhatIsLost) {
  Begin(90.0, 0.0);
  Second();
  Sense.Heading.reset();
  EXPECT_EQ(Engine.Step(Sense, 1.0), TurnFate::NoHeading);
  Look();
  Sense.OutputOpen = false;
  EXPECT_EQ(Engine.Step(Sense, 1.0), TurnFate::NoOutput);
  EXPECT_EQ(Engine.BearingSent(), 112.0F) << "not the step that never left";
}

TEST_F(TurnEngineTest, NothingThatLeavesForSixSecondsIsAnOutputThatIsLost) {
  Begin(90.0, 0.0);
  Second();
  Leaves = false;
  for (int second = 0; second < 5; ++second) {
    EXPECT_EQ(Second(), TurnFate::GoesOn) << second;
  }
  EXPECT_EQ(Second(), TurnFate::NoOutput);
}

TEST_F(TurnEngineTest, AWindGapInTheMiddleOnlyHoldsItUp) {
  Begin(90.0, 5.0);
  for (int second = 0; second < 5; ++second) {
    Second();
  }
  Leaves = false;
  for (int second = 0; second < 4; ++second) {
    Second();
    Sense.Wind.reset();
  }
  Leaves = true;
  TurnFate fate{};
  Finish(fate);
  EXPECT_EQ(fate, TurnFate::GoesOn);
  EXPECT_NEAR(Heading, 190.0, 2.5);
}

TEST_F(TurnEngineTest, FollowsAShiftUntilTheWindAngleIsTheWantedOne) {
  Begin(90.0, 0.0);
  for (int second = 0; second < 8; ++second) {
    Second();
  }
  WindFrom += 8.0;
  TurnFate fate{};
  Finish(fate);
  EXPECT_EQ(fate, TurnFate::GoesOn);
  EXPECT_NEAR(static_cast<double>(FoldRelative(WindFrom - Heading)), -45.0, 2.5);
}

TEST_F(TurnEngineTest, APilotThatComesShortIsTakenOn) {
  Begin(90.0, 0.0);
  Offset += 6.0;  // on the other tack it holds her so much lower
  TurnFate fate{};
  Finish(fate);
  EXPECT_EQ(fate, TurnFate::GoesOn);
  EXPECT_NEAR(Heading, 190.0, 2.5);
  EXPECT_NEAR(static_cast<double>(Engine.Bearing()), 208.0, 3.0);
}

TEST_F(TurnEngineTest, AJibeAndASteeringChangeHaveTheirStages) {
  WindFrom = 100.0 + 150.0;
  Begin(-60.0, 0.0);
  TurnFate fate{};
  Finish(fate);
  EXPECT_EQ(Stages,
            (std::vector{TurnStage::Turning, TurnStage::Through, TurnStage::Easing, TurnStage::Done}));
  EXPECT_NEAR(Heading, 40.0, 2.0);
  Begin(20.0, 0.0);
  Finish(fate);
  EXPECT_EQ(Stages, (std::vector{TurnStage::Turning, TurnStage::Easing, TurnStage::Done}));
  EXPECT_NEAR(Heading, 60.0, 2.5);
}

TEST_F(TurnEngineTest, TurnsThroughNorth) {
  Heading = 350.0;
  WindFrom = 35.0;
  Begin(90.0, 5.0);
  TurnFate fate{};
  Finish(fate);
  EXPECT_EQ(fate, TurnFate::GoesOn);
  EXPECT_NEAR(Heading, 440.0, 2.0);
  EXPECT_NEAR(Engine.Turned(), 90.0, 2.0);
}

TEST_F(TurnEngineTest, SaysItsStageWithItsDegrees) {
  Begin(90.0, 5.0);
  EXPECT_EQ(Engine.StageText(), "Turning: 0 of 45 degrees");
  for (int second = 0; second < 4; ++second) {
    Second();
  }
  EXPECT_EQ(Engine.StageText(), "Turning: 24 of 45 degrees");
  while (Engine.Stage() == TurnStage::Turning) {
    Second();
  }
  EXPECT_EQ(Engine.StageText(), "Through the wind: 48 of 95 degrees");
  while (Engine.Stage() == TurnStage::Through) {
    Second();
  }
  EXPECT_EQ(Engine.StageText(), "Easing: 5 degrees to go");
  TurnFate fate{};
  Finish(fate);
  EXPECT_EQ(Engine.StageText(), "Done: 90 degrees");
}

}  // namespace
}  // namespace veerwatch
