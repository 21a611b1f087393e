#include "control/TrackDirection.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "platform/Angles.h"

namespace veerwatch {
namespace {

constexpr BearingLimits kLimits{30.0, 3.0};

/// A boat on the desk in a steady wind: her heading is what the test sets, or follows the bearing at once.
class TrackDirectionTest : public testing::Test {
 protected:
  /// A wind a second for so long; gives the latest answer.
  std::optional<TrackDirection::Answer> Sail(int seconds, double rate = 1.0) {
    std::optional<TrackDirection::Answer> latest;
    for (int pass = 0; pass < static_cast<int>(seconds * rate); ++pass) {
      Law.Feed({Wind - Heading, 12.0, 6.0, SendsHeading ? std::optional(Heading) : std::nullopt, Bearing},
               1.0 / rate, 20.0);
      if (const auto answer = Law.Step(Aim, Bearing, kLimits, 1.0 / rate)) {
        latest = answer;
        Bearing = answer->Steer.Bearing;
        Heading = Follows ? Bearing - PilotOffset : Heading;
      }
    }
    return latest;
  }
  double WindAngle() const { return static_cast<double>(FoldRelative(Wind - Heading)); }

  TrackDirection Law;
  TrackDirection::Aim Aim{TrackSide::True, 45.0, std::nullopt};
  double Wind = 90.0;  ///< where it comes from [deg magnetic]
  double Heading = 45.0;
  double Bearing = 45.0;
  double PilotOffset = 0.0;
  bool Follows = true;
  bool SendsHeading = true;
};

TEST_F(TrackDirectionTest, KnowsNothingBeforeTheFirstWind) {
  EXPECT_FALSE(Law.Step(Aim, 45.0, kLimits, 1.0).has_value());
}

TEST_F(TrackDirectionTest, AnswersOnceASecondAtEveryRate) {
  for (const double rate : {1.0, 2.0, 5.0, 10.0}) {
    Law.Clear();
    Follows = false;
    int answers = 0;
    for (int pass = 0; pass < static_cast<int>(20 * rate); ++pass) {
      Law.Feed({Wind - Heading, 12.0, 6.0, Heading, Bearing}, 1.0 / rate, 20.0);
      answers += Law.Step(Aim, Bearing, kLimits, 1.0 / rate) ? 1 : 0;
    }
    EXPECT_NEAR(answers, 20, 1) << rate;
  }
}

TEST_F(TrackDirectionTest, FollowsAShiftOfTheWind) {
  Sail(30);
  EXPECT_NEAR(WindAngle(), 45.0, 0.5);
  for (const double wind : {100.0, 60.0, 5.0, 355.0, 340.0}) {
    Wind = wind;
    Sail(120);
    EXPECT_NEAR(WindAngle(), 45.0, 0.5) << wind;
  }
}

TEST_F(TrackDirectionTest, HoldsTheAngleAtEveryHeadingAndOnBothSides) {
  for (double target = -175.0; target <= 175.0; target += 25.0) {
    for (double wind = 0.0; wind < 360.0; wind += 45.0) {
      Law.Clear();
      Wind = wind;
      Heading = Bearing = wind - target + 10.0;
      Aim.Target = target;
      Sail(120);
      EXPECT_NEAR(FoldRelative(WindAngle() - target), 0.0F, 0.6F) << target << " " << wind;
    }
  }
}

TEST_F(TrackDirectionTest, LearnsThePilotsOwnOffsetAndKeepsTheOneOfTheStart) {
  PilotOffset = 5.0;
  Bearing = 50.0;
  Sail(5);
  Law.Start(Bearing);
  Sail(10);
  EXPECT_NEAR(WindAngle(), 45.0, 0.5) << "the offset of the start stays";
  PilotOffset = -4.0;
  Sail(400);
  EXPECT_NEAR(WindAngle(), 45.0, 0.6);
}

TEST_F(TrackDirectionTest, NeverRunsFartherAheadThanItMay) {
  Follows = false;
  Heading = 80.0;  // 35 degrees off
  Bearing = 80.0;
  for (int second = 0; second < 300; ++second) {
    Sail(1);
    EXPECT_LE(std::fabs(FoldRelative(Bearing - Heading)), 30.001F);
  }
}

TEST_F(TrackDirectionTest, LeavesOutAWindFromElsewhereUntilItLasts) {
  Sail(60);
  Wind += 120.0;
  Sail(3);
  EXPECT_NEAR(Heading, 45.0, 0.6);
  Sail(4);
  Wind -= 120.0;
  Sail(3);
  Follows = true;
  Wind += 120.0;
  Sail(200);
  EXPECT_NEAR(WindAngle(), 45.0, 0.6);
}

TEST_F(TrackDirectionTest, GoesOnWithoutAHeading) {
  Sail(30);
  SendsHeading = false;
  Wind = 110.0;
  Sail(300);
  EXPECT_NEAR(WindAngle(), 45.0, 3.0);
}

TEST_F(TrackDirectionTest, AnApparentAngleIsHeldThroughTheTrueOne) {
  // 12 knots of true wind at 60 degrees and 6 knots: the apparent wind stands at atan(12 sin 60 / (12 cos 60
  // + 6)).
  Aim = {TrackSide::Apparent,
         std::atan2(12.0 * std::sin(std::numbers::pi / 3), 12.0) * 180.0 / std::numbers::pi, std::nullopt};
  Sail(120);
  EXPECT_NEAR(WindAngle(), 60.0, 0.6);
}

TEST_F(TrackDirectionTest, TheApparentTargetYieldsToWhatIsMeasured) {
  Aim = {TrackSide::Apparent, 40.0, 43.0};
  Sail(60);
  const double before = WindAngle();
  Sail(100);
  EXPECT_LT(WindAngle(), before - 0.8) << "the mean is too wide, so the boat heads up";
}

TEST_F(TrackDirectionTest, CalmsGiveFiniteBearings) {
  for (const TrackSide side : {TrackSide::True, TrackSide::Apparent}) {
    Law.Clear();
    Aim.Side = side;
    for (const double windSpeed : {0.0, 0.1, 3.0}) {
      for (const double boatSpeed : {0.0, 8.0}) {
        Law.Feed({30.0, windSpeed, boatSpeed, 100.0, 100.0}, 1.0, 20.0);
        const auto answer = Law.Step(Aim, 100.0, kLimits, 1.0);
        ASSERT_TRUE(answer.has_value());
        EXPECT_TRUE(std::isfinite(answer->Steer.Bearing));
        EXPECT_TRUE(std::isfinite(answer->Error));
      }
    }
  }
}

/// Feeds 15 knots of true wind at `angle` as a vane shows it on a masthead that goes to either side with 6.
void FeedSwinging(TrackDirection& law, double angle, int seconds) {
  const double ahead = 15.0 * std::cos(angle * std::numbers::pi / 180.0);
  const double right = 15.0 * std::sin(angle * std::numbers::pi / 180.0);
  for (int second = 0; second < seconds; ++second) {
    const double swung = right + (second % 2 == 0 ? 6.0 : -6.0);
    law.Feed(
        {std::atan2(swung, ahead) * 180.0 / std::numbers::pi, std::hypot(swung, ahead), 6.0, 100.0, 100.0},
        1.0, 400.0);
  }
}

TEST_F(TrackDirectionTest, ASwingingMastheadDoesNotTurnTheDirection) {
  for (const double angle : {-150.0, 150.0}) {
    Law.Clear();
    FeedSwinging(Law, angle, 2000);
    Aim.Target = angle;
    const auto answer = Law.Step(Aim, 100.0, kLimits, 1.0);
    ASSERT_TRUE(answer.has_value());
    EXPECT_NEAR(answer->Error, 0.0, 0.3) << angle;
  }
}

TEST_F(TrackDirectionTest, OneGustDoesNotOutweighTheRest) {
  Sail(60);
  Follows = false;
  Law.Feed({Wind - Heading + 40.0, 500.0, 6.0, Heading, Bearing}, 1.0, 20.0);
  const auto answer = Law.Step(Aim, Bearing, kLimits, 1.0);
  ASSERT_TRUE(answer.has_value());
  EXPECT_LT(std::fabs(answer->Error), 14.0);
}

TEST_F(TrackDirectionTest, AnHourOfCalmKeepsTheDirection) {
  Sail(60);
  Follows = false;
  for (int second = 0; second < 3600; ++second) {
    Law.Feed({Wind - Heading, 0.0, 0.0, Heading, Bearing}, 1.0, 5.0);
  }
  const auto answer = Law.Step(Aim, Bearing, kLimits, 1.0);
  ASSERT_TRUE(answer.has_value());
  EXPECT_NEAR(answer->Error, 0.0, 0.6);
}

TEST_F(TrackDirectionTest, StandsStillInASteadyWind) {
  Sail(60);
  const double before = Bearing;
  int moves = 0;
  for (int second = 0; second < 60; ++second) {
    const double last = Bearing;
    Sail(1);
    moves += Bearing != last ? 1 : 0;
  }
  EXPECT_LT(moves, 3);
  EXPECT_NEAR(Bearing, before, 0.3);
}

}  // namespace
}  // namespace veerwatch
