// What a course reckons: the angle to hold, and when the mark bears on the other leg's heading.

#include "tack/CourseSail.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "platform/Angles.h"

namespace veerwatch {
namespace {

double Fold(double angle) { return static_cast<double>(FoldRelative(angle)); }

/// A boat that is best at 45 to windward and at 150 to leeward.
std::optional<MarkLegs> Legs(const MarkAsk& ask) {
  const double straight = Fold(ask.WindFrom - ask.Bearing);
  const double best = std::fabs(straight) < 45.0 ? 45.0 : 150.0;
  if (std::fabs(straight) >= 45.0 && std::fabs(straight) <= 150.0) {
    return MarkLegs{false, straight, straight};
  }
  return MarkLegs{true, std::copysign(best, ask.Wind), -std::copysign(best, ask.Wind)};
}

/// In a wind from 0, on starboard tack on 315 at 6 knots, with a mark that bears `bearing`.
CourseSail::Sense On(double bearing, std::optional<double> range = 2.0) {
  CourseSail::Sense sense;
  sense.Heading = 315.0;
  sense.Wind = 45.0;
  sense.WindSpeed = 12.0;
  sense.Speed = 6.0;
  sense.Bearing = bearing;
  sense.Range = range;
  return sense;
}

TEST(SecondsToLine, IsTheTimeAlongTheCourseToWhereTheMarkBearsOnTheLine) {
  // A mile to windward, with legs at 45 degrees to either side: 0.7071 miles at 6 knots.
  EXPECT_NEAR(*SecondsToLine(1.0, 0.0, 315.0, 45.0, 6.0), 424.3, 0.1);
  EXPECT_NEAR(*SecondsToLine(1.0, 0.0, 45.0, 315.0, 6.0), 424.3, 0.1);
  EXPECT_NEAR(*SecondsToLine(1.0, 180.0, 150.0, 210.0, 6.0), 346.4, 0.1);
}

TEST(SecondsToLine, IsNoneOnTheLineAndBeyond) {
  EXPECT_EQ(SecondsToLine(1.0, 45.0, 315.0, 45.0, 6.0), 0.0);
  EXPECT_EQ(SecondsToLine(1.0, 60.0, 315.0, 45.0, 6.0), 0.0);
}

TEST(SecondsToLine, SaysNothingWhereSheNeverComesThere) {
  EXPECT_FALSE(SecondsToLine(1.0, 0.0, 315.0, 45.0, 0.0));
  EXPECT_FALSE(SecondsToLine(1.0, 315.0, 315.0, 45.0, 6.0)) << "it bears on her course";
  EXPECT_FALSE(SecondsToLine(1.0, 300.0, 315.0, 45.0, 6.0)) << "she leaves it behind";
  EXPECT_FALSE(SecondsToLine(1.0, 0.0, 315.0, 45.0, std::numeric_limits<double>::quiet_NaN()));
}

TEST(CourseSail, HoldsTheLegOfThePresentTackAndCountsToTheLine) {
  CourseSail sail;
  const auto answer = sail.Step(Legs, On(0.0), 1.0);
  ASSERT_TRUE(answer.has_value());
  EXPECT_FALSE(answer->Straight);
  EXPECT_EQ(answer->Hold, 45.0);
  EXPECT_EQ(answer->Aim, -45.0);
  EXPECT_EQ(answer->Turn, ManoeuvreKind::Tack);
  EXPECT_FALSE(answer->Due);
  EXPECT_NEAR(*answer->ToLine, 2.0 * 424.3, 0.2);
}

TEST(CourseSail, IsDueWhereTheMarkBearsOnTheOtherLegsHeading) {
  CourseSail sail;
  EXPECT_FALSE(sail.Step(Legs, On(44.0), 1.0)->Due);
  const auto on = sail.Step(Legs, On(45.0), 1.0);
  EXPECT_TRUE(on->Due);
  EXPECT_NEAR(on->Past, 0.0, 1e-9);
  EXPECT_EQ(on->Hold, 45.0) << "she goes on until she turns";
  EXPECT_EQ(on->Aim, -45.0);
  const auto past = sail.Step(Legs, On(57.0), 1.0);
  EXPECT_TRUE(past->Due);
  EXPECT_NEAR(past->Past, 12.0, 0.01);
  EXPECT_NEAR(*past->Aim, -57.0, 0.01) << "straight to the mark";
}

TEST(CourseSail, DoesNotWaverOnTheLine) {
  CourseSail sail;
  EXPECT_FALSE(sail.Step(Legs, On(43.0), 1.0)->Due);
  EXPECT_TRUE(sail.Step(Legs, On(45.5), 1.0)->Due);
  EXPECT_TRUE(sail.Step(Legs, On(43.0), 1.0)->Due);
  EXPECT_FALSE(sail.Step(Legs, On(41.0), 1.0)->Due);
}

TEST(CourseSail, GoesOnToTheLineWhereTheStraightWayHasBecomeNearlyAsGood) {
  const auto nearly = [](const MarkAsk& ask) {
    const double straight = Fold(ask.WindFrom - ask.Bearing);
    return std::fabs(straight) > 40.0 ? MarkLegs{false, straight, straight} : *Legs(ask);
  };
  CourseSail sail;
  sail.Step(nearly, On(30.0), 1.0);
  const auto answer = sail.Step(nearly, On(42.0), 1.0);
  EXPECT_FALSE(answer->Due);
  EXPECT_EQ(answer->Hold, 45.0);
  EXPECT_TRUE(sail.Step(nearly, On(45.0), 1.0)->Due);
}

TEST(CourseSail, IsDueAtOnceWhenItBeginsBeyondTheLineAndHoldsWhatIsHeld) {
  CourseSail sail;
  const auto answer = sail.Step(Legs, On(60.0), 1.0);
  EXPECT_TRUE(answer->Due);
  EXPECT_FALSE(answer->Hold.has_value());
  EXPECT_NEAR(*answer->Aim, -60.0, 0.01);
  EXPECT_EQ(answer->Turn, ManoeuvreKind::Tack);
}

TEST(CourseSail, SailsStraightWithoutATurnWhereOneLegLeadsThere) {
  CourseSail sail;
  const auto answer = sail.Step(Legs, On(300.0), 1.0);
  EXPECT_TRUE(answer->Straight);
  EXPECT_NEAR(*answer->Hold, 60.0, 0.01);
  EXPECT_FALSE(answer->Aim.has_value());
  EXPECT_FALSE(answer->Due);
}

TEST(CourseSail, JibesToLeeward) {
  CourseSail::Sense sense = On(180.0, 1.0);
  sense.Heading = 210.0;
  sense.Wind = 150.0;
  CourseSail sail;
  const auto answer = sail.Step(Legs, sense, 1.0);
  EXPECT_EQ(answer->Hold, 150.0);
  EXPECT_EQ(answer->Aim, -150.0);
  EXPECT_EQ(answer->Turn, ManoeuvreKind::Jibe);
  EXPECT_NEAR(*answer->ToLine, 346.4, 0.2);
}

TEST(CourseSail, AMarkDeadAsternOfTheWindIsOfEitherTack) {
  const auto straight = [](const MarkAsk& ask) {
    const double angle = Fold(ask.WindFrom - ask.Bearing);
    return MarkLegs{false, angle, angle};
  };
  for (const bool port : {false, true}) {
    for (const double bearing : {172.0, 180.0, 188.0}) {
      CourseSail::Sense sense = On(bearing);
      sense.Heading = 180.0;
      sense.Wind = 180.0;
      sense.Port = port;
      CourseSail sail;
      const auto answer = sail.Step(straight, sense, 1.0);
      EXPECT_FALSE(answer->Due);
      EXPECT_FALSE(answer->Aim.has_value());
      EXPECT_EQ(*answer->Hold < 0.0, port) << bearing;
      EXPECT_LE(std::fabs(*answer->Hold), 175.0);
    }
  }
}

TEST(CourseSail, CountsNothingWithoutARangeOrASpeed) {
  CourseSail sail;
  EXPECT_FALSE(sail.Step(Legs, On(0.0, std::nullopt), 1.0)->ToLine.has_value());
  CourseSail::Sense sense = On(0.0);
  sense.Speed.reset();
  EXPECT_FALSE(sail.Step(Legs, sense, 1.0)->ToLine.has_value());
  EXPECT_TRUE(sail.Step(Legs, On(46.0, std::nullopt), 1.0)->Due) << "the bearing alone tells it";
}

TEST(CourseSail, FollowsAShiftWithinHalfAMinuteAndNoGust) {
  CourseSail sail;
  sail.Step(Legs, On(0.0), 1.0);
  CourseSail::Sense shifted = On(0.0);
  shifted.Wind = 65.0;
  sail.Step(Legs, shifted, 1.0);
  EXPECT_NEAR(Fold(sail.WindFrom()), 0.7, 0.2);
  for (int second = 0; second < 90; ++second) {
    sail.Step(Legs, shifted, 1.0);
  }
  EXPECT_NEAR(Fold(sail.WindFrom()), 20.0, 1.5);
}

TEST(CourseSail, TakesNoWindWhileTheBoatComesOutOfATurn) {
  CourseSail sail;
  sail.Step(Legs, On(0.0), 1.0);
  sail.Turned();
  CourseSail::Sense swings = On(0.0);
  swings.Wind = -10.0;
  for (int second = 0; second < 14; ++second) {
    sail.Step(Legs, swings, 1.0);
  }
  EXPECT_NEAR(Fold(sail.WindFrom()), 0.0, 0.01);
  sail.Step(Legs, swings, 1.0);
  EXPECT_LT(Fold(sail.WindFrom()), -0.5);
}

TEST(CourseSail, HasNoAnswerWithoutAPolar) {
  CourseSail sail;
  EXPECT_FALSE(sail.Step({}, On(0.0), 1.0));
  EXPECT_FALSE(sail.Step([](const MarkAsk&) { return std::optional<MarkLegs>(); }, On(0.0), 1.0));
}

}  // namespace
}  // namespace veerwatch
