#include "pilot/PilotPace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Says = PilotPace::Says;

class PilotPaceTest : public testing::Test {
 protected:
  /// Looks each `step` [ms] in [from, to) and keeps the moments at which `what` was said.
  std::vector<std::int64_t> Moments(Says what, bool good, std::int64_t from, std::int64_t to,
                                    std::int64_t step) {
    std::vector<std::int64_t> said;
    for (std::int64_t now = from; now < to; now += step) {
      if (Pace.Look(good, now) == what) {
        said.push_back(now);
      }
    }
    return said;
  }

  Settings Set;
  PilotPace Pace{Set};
};

TEST_F(PilotPaceTest, WithoutACadenceEveryStepIsSentAndNothingElse) {
  for (std::int64_t now = 0; now < 50; ++now) {
    EXPECT_EQ(Pace.Step(now), Says::Bearing);
  }
  EXPECT_THAT(Moments(Says::Bearing, true, 50, 10000, 50), IsEmpty());
  EXPECT_THAT(Moments(Says::Invalid, false, 10000, 20000, 50), IsEmpty());
}

TEST_F(PilotPaceTest, AFastVaneIsHeldBackToTheCadence) {
  Set.m_iPilotCadence = 2;
  int sent = 0;
  for (std::int64_t now = 0; now < 10000; now += 100) {
    sent += Pace.Step(now) == Says::Bearing ? 1 : 0;
  }
  EXPECT_EQ(sent, 20);
}

TEST_F(PilotPaceTest, BetweenTwoWindsTheBearingIsSentAgain) {
  for (const int cadence : {1, 2, 3, 4, 5}) {
    Set.m_iPilotCadence = static_cast<std::int16_t>(cadence);
    PilotPace pace(Set);
    EXPECT_EQ(pace.Step(0), Says::Bearing);
    std::int64_t last = 0;
    int sent = 1;
    for (std::int64_t now = 1; now < 10000; ++now) {
      if (pace.Look(true, now) == Says::Bearing) {
        EXPECT_GE(now - last, 1000 / cadence - 2);
        last = now;
        ++sent;
      }
    }
    EXPECT_NEAR(sent, 10 * cadence, 1);
  }
}

TEST_F(PilotPaceTest, AStepThatComesTooEarlyLeavesWithTheNextLook) {
  Set.m_iPilotCadence = 1;
  EXPECT_EQ(Pace.Step(0), Says::Bearing);
  EXPECT_EQ(Pace.Step(500), Says::Nothing);
  EXPECT_EQ(Pace.Look(true, 900), Says::Nothing);
  EXPECT_EQ(Pace.Look(true, 1000), Says::Bearing);
  EXPECT_EQ(Pace.Step(2001), Says::Bearing) << "and with a step that comes when it is due";
}

TEST_F(PilotPaceTest, AGapIsNotMadeUpFor) {
  Set.m_iPilotCadence = 5;
  EXPECT_EQ(Pace.Step(0), Says::Bearing);
  EXPECT_EQ(Pace.Look(true, 5000), Says::Bearing);
  EXPECT_THAT(Moments(Says::Bearing, true, 5001, 5198, 1), IsEmpty());
}

TEST_F(PilotPaceTest, NothingIsSentBeforeTheFirstStep) {
  Set.m_iPilotCadence = 5;
  Set.m_bPilotInvalidWhenLost = true;
  EXPECT_THAT(Moments(Says::Nothing, true, 0, 3000, 1000), ElementsAre(0, 1000, 2000));
  EXPECT_THAT(Moments(Says::Nothing, false, 3000, 6000, 1000), ElementsAre(3000, 4000, 5000));
  Pace.Step(6000);
  Pace.Forget();
  EXPECT_EQ(Pace.Look(true, 9000), Says::Nothing);
  EXPECT_EQ(Pace.Look(false, 9000), Says::Nothing);
}

TEST_F(PilotPaceTest, WhatIsLostIsCalledInvalidForAWhile) {
  Set.m_bPilotInvalidWhenLost = true;
  Pace.Step(0);
  EXPECT_THAT(Moments(Says::Invalid, false, 4000, 20000, 500), ElementsAre(4000, 5000, 6000, 7000, 8000));
  Pace.Step(20000);
  Set.m_iPilotCadence = 2;
  Set.m_fPilotInvalidSeconds = 1.5F;
  EXPECT_THAT(Moments(Says::Invalid, false, 24000, 40000, 100), ElementsAre(24000, 24500, 25000));
}

TEST_F(PilotPaceTest, ABearingThatIsGoodAgainIsSentAgain) {
  Set.m_iPilotCadence = 1;
  Set.m_bPilotInvalidWhenLost = true;
  Pace.Step(0);
  EXPECT_EQ(Pace.Look(false, 4000), Says::Invalid);
  EXPECT_EQ(Pace.Look(true, 5000), Says::Bearing);
  EXPECT_EQ(Pace.Look(false, 9000), Says::Invalid) << "the seconds begin anew";
  EXPECT_EQ(Pace.Look(false, 13000), Says::Invalid);
  EXPECT_EQ(Pace.Look(false, 14000), Says::Nothing);
}

TEST_F(PilotPaceTest, TheSpacingIsNeverShorterThanTheCadence) {
  EXPECT_FALSE(PilotPace::Spacing(Set));
  const int spacings[] = {1000, 500, 334, 250, 200};
  for (int cadence = 1; cadence <= 5; ++cadence) {
    Set.m_iPilotCadence = static_cast<std::int16_t>(cadence);
    EXPECT_EQ(PilotPace::Spacing(Set), spacings[cadence - 1]);
  }
}

}  // namespace
}  // namespace veerwatch
