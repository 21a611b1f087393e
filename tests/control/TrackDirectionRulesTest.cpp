// The figures of the method Direction, one by one.

#include <gtest/gtest.h>

#include <cmath>

#include "control/TrackDirection.h"
#include "platform/Angles.h"

namespace veerwatch {
namespace {

/// A boat that lies at `Heading` whatever the bearing, in a wind from `Wind` that her vane shows at once.
class DirectionRules : public testing::Test {
 protected:
  /// A second: the latest answer.
  TrackDirection::Answer Second() {
    Law.Feed(
        {Wind - Heading, WindSpeed, BoatSpeed, SendsHeading ? std::optional(Heading) : std::nullopt, Bearing},
        1.0, Bandwidth);
    const auto answer = Law.Step(Aim, Bearing, Limits, 1.0);
    EXPECT_TRUE(answer.has_value());
    Bearing = answer->Steer.Bearing;
    return *answer;
  }
  TrackDirection::Answer Seconds(int count) {
    for (int i = 1; i < count; ++i) {
      Second();
    }
    return Second();
  }
  /// What the boat is off, to be asked for `degrees` more.
  void Turn(double degrees) { Wind += degrees; }

  TrackDirection Law;
  TrackDirection::Aim Aim{TrackSide::True, 45.0, std::nullopt};
  BearingLimits Limits{30.0, 3.0};
  double Bandwidth = 0.4;  // follows at once
  double Wind = 145.0;
  double WindSpeed = 12.0;
  double BoatSpeed = 6.0;
  double Heading = 100.0;
  double Bearing = 100.0;
  bool SendsHeading = true;
};

TEST_F(DirectionRules, TakesTheHeadingAsLateAsTheVane) {
  // The boat turns by 20 degrees; a vane that is 1.2 seconds late shows it, and the wind stays where it is.
  double late = Heading;
  Bandwidth = 4.0;
  for (int tenth = 0; tenth < 100; ++tenth) {
    const double heading = tenth < 20 ? 100.0 : 120.0;
    late += (heading - late) * (1.0 - std::exp(-0.1 / 1.2));
    Law.Feed({145.0 - late, 12.0, 6.0, heading, 100.0}, 0.1, Bandwidth);
    if (const auto answer = Law.Step(Aim, 100.0, Limits, 0.1)) {
      EXPECT_NEAR(answer->Error + heading, 100.0, 0.01) << tenth;
    }
  }
}

TEST_F(DirectionRules, AShiftBelowSixtyDegreesIsFollowedAndOneAboveIsLeftOut) {
  Bandwidth = 8.0;
  Seconds(20);
  Wind += 55.0;
  EXPECT_GT(Seconds(3).Error, 35.0);
  Wind -= 55.0;
  Seconds(60);
  const double before = Second().Error;
  Wind += 65.0;
  EXPECT_NEAR(Seconds(3).Error, before, 0.01);
}

TEST_F(DirectionRules, AWindFromElsewhereThatLastsBeginsAnew) {
  Bandwidth = 200.0;
  Seconds(20);
  Wind += 120.0;
  EXPECT_NEAR(Seconds(3).Error, 0.0, 0.1);
  EXPECT_NEAR(Second().Error, 120.0, 1.0) << "after four seconds, whatever the bandwidth";
}

TEST_F(DirectionRules, WindsFromElsewhereThatDoNotLastAddNothingUp) {
  Bandwidth = 200.0;
  Seconds(20);
  for (int round = 0; round < 5; ++round) {
    Wind += 120.0;
    EXPECT_NEAR(Seconds(3).Error, 0.0, 0.1) << round;
    Wind -= 120.0;
    Seconds(1);
  }
}

TEST_F(DirectionRules, WithoutAHeadingThePilotAnswersInFourSeconds) {
  SendsHeading = false;
  Bandwidth = 1e9;  // the wind stays where it was
  Seconds(2);
  Limits.MaxRate = 1e-6;
  Bearing = 120.0;
  EXPECT_NEAR(-Seconds(4).Error, 20.0 * (1.0 - std::exp(-1.0)), 0.01);
}

TEST_F(DirectionRules, TrimsASixtiethASecond) {
  Second();
  Turn(11.0);
  Seconds(31);
  // The fastest change bites for three seconds; then come 27 trims of 11 / 60.
  EXPECT_NEAR(Bearing, 111.0 + 4.95, 0.31);
}

TEST_F(DirectionRules, TrimsOnlyWithinTwelveDegrees) {
  Second();
  Turn(12.5);
  Seconds(100);
  EXPECT_NEAR(Bearing, 112.5, 0.31);
  Turn(-1.0);
  Seconds(100);
  EXPECT_GT(Bearing, 120.0);
}

TEST_F(DirectionRules, TrimsFifteenDegreesAtMostEitherWay) {
  for (const double way : {1.0, -1.0}) {
    Law.Clear();
    Wind = 145.0;
    Bearing = 100.0;
    Second();
    Turn(11.0 * way);
    Seconds(300);
    EXPECT_NEAR(Bearing, 100.0 + 26.0 * way, 0.31);
  }
}

TEST_F(DirectionRules, DoesNotTrimWhileALimitBites) {
  Limits.MaxAhead = 8.0;
  Second();
  Turn(11.0);
  Seconds(200);
  EXPECT_NEAR(Bearing, 108.0, 1e-3);
  Turn(-11.0);
  Seconds(4);
  EXPECT_NEAR(Bearing, 100.0, 0.35);
}

TEST_F(DirectionRules, TheApparentTargetYieldsATwoHundredthASecondAndTenDegreesAtMost) {
  Aim = {TrackSide::Apparent, 45.0, 49.0};
  BoatSpeed = 0.0;  // the apparent wind is the true one
  const auto off = [this] { return Second().Error; };
  Second();
  Seconds(100);
  EXPECT_NEAR(off(), 2.0, 0.06) << "100 seconds of four degrees";
  // Near enough for all that is to come.
  Aim.ApparentMean = 85.0;
  Heading = 104.0;
  Wind = 145.0;
  Seconds(600);
  EXPECT_NEAR(off() + Heading, 110.0, 0.01);
}

TEST_F(DirectionRules, ResetForgetsWhatTheApparentTargetYielded) {
  Aim = {TrackSide::Apparent, 45.0, 49.0};
  BoatSpeed = 0.0;
  Seconds(101);
  Law.Reset();
  Aim.ApparentMean.reset();
  EXPECT_NEAR(Second().Error, 0.0, 0.01);
}

TEST_F(DirectionRules, SmoothsBothSpeedsOverTwentySeconds) {
  Aim = {TrackSide::Apparent, 90.0, std::nullopt};
  WindSpeed = 12.0;
  BoatSpeed = 3.0;
  Second();
  BoatSpeed = 9.0;
  const double boat = 9.0 - 6.0 * std::exp(-1.0);
  EXPECT_NEAR(Seconds(20).Error, 45.0 - 90.0 - std::asin(boat / 12.0) * 180.0 / 3.14159265, 0.01);
  Law.Clear();
  BoatSpeed = 6.0;
  Second();
  WindSpeed = 24.0;
  const double wind = 24.0 - 12.0 * std::exp(-1.0);
  EXPECT_NEAR(Seconds(20).Error, 45.0 - 90.0 - std::asin(6.0 / wind) * 180.0 / 3.14159265, 0.01);
}

TEST_F(DirectionRules, MovesWhenItIsOffByMoreThanThreeTenths) {
  Seconds(5);
  Turn(0.35);
  Second();
  EXPECT_NEAR(Bearing, 100.35, 0.02);
}

TEST_F(DirectionRules, WaitsForASmallErrorUntilItHasAddedUp) {
  Seconds(5);
  Turn(0.25);
  // 1.8 degree seconds are more than seven times 0.25.
  Seconds(6);
  EXPECT_EQ(Bearing, 100.0);
  Seconds(2);
  EXPECT_NEAR(Bearing, 100.25, 0.05);
}

TEST_F(DirectionRules, TheOffsetOfTheStartStaysOnlyWhereTheBoatGoesStraight) {
  Heading = 96.0;
  Wind = 141.0;
  Seconds(10);
  Bearing = 100.0;
  Law.Start(Bearing);
  Seconds(5);
  EXPECT_NEAR(Bearing, 100.0, 0.3) << "the pilot shows four degrees more";

  Law.Clear();
  Seconds(2);
  Heading = 91.0;
  Wind = 136.0;
  Law.Feed({45.0, 12.0, 6.0, Heading, Bearing}, 0.1, Bandwidth);
  Bearing = 95.0;
  Law.Start(Bearing);
  Aim.Target = 45.0;
  Seconds(10);
  EXPECT_NEAR(Bearing, 91.0, 0.5) << "she turns: what the bearing is ahead is no offset";
}

TEST_F(DirectionRules, AfterATurnThePilotsOffsetIsThatOfTheLastSeconds) {
  Bearing = 104.0;
  Seconds(100);
  // A turn has brought her here, with the pilot 10 degrees ahead of her.
  Heading = 190.0;
  Bearing = 200.0;
  Aim.Target = -45.0;
  for (int second = 0; second < 60; ++second) {
    Law.Feed({Wind - Heading, WindSpeed, BoatSpeed, Heading, Bearing}, 1.0, Bandwidth);
  }
  Law.Resume(Bearing);
  EXPECT_NEAR(Second().Steer.Bearing, 200.0, 0.5);
}

TEST_F(DirectionRules, AfterATurnItLearnsThePilotsOffsetFasterForAMinuteAndAHalf) {
  const auto learned = [this](bool turned) {
    Law.Clear();
    Heading = Bearing = 100.0;
    Second();
    if (turned) {
      Law.Resume(Bearing);
    } else {
      Law.Start(Bearing);
    }
    Wind = 145.0 + 4.0;  // and the boat, which is held, does not come to it
    const double bearing = Seconds(20).Steer.Bearing;
    Wind = 145.0;
    return bearing - 104.0;
  };
  const double slowly = learned(false);
  const double quickly = learned(true);
  EXPECT_GT(slowly, 0.5);
  EXPECT_GT(quickly, 3.0 * slowly);
}

TEST_F(DirectionRules, WhatTheApparentWindHasTaughtHoldsMirroredOnTheOtherTack) {
  const double there = 40.0;
  Aim = {TrackSide::Apparent, there, there - 6.0};  // it shows 6 degrees less than it should
  BoatSpeed = 0.0;
  Wind = Heading + there;
  Seconds(100);
  const double right = Second().Error;
  EXPECT_NE(right, 0.0);
  Law.Resume(Bearing);
  Wind = Heading - there;
  Aim = {TrackSide::Apparent, -there, std::nullopt};
  EXPECT_NEAR(Seconds(30).Error, -right, 0.3);
}

}  // namespace
}  // namespace veerwatch
