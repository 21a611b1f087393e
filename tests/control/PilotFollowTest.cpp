#include "control/PilotFollow.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

namespace veerwatch {
namespace {

/// A boat whose heading is `Course` of the second [deg magnetic], looked at each second.
class Sailed {
 public:
  explicit Sailed(std::function<double(int)> course) : Course(std::move(course)) {}

  void Bearing(double bearing) { Follow.Sent(static_cast<float>(bearing)); }
  void Sail(int seconds) {
    for (const int end = m_second + seconds; m_second < end; ++m_second) {
      Follow.Heading(static_cast<float>(std::fmod(Course(m_second) + 720.0, 360.0)));
      Follow.Look(1000 * m_second);
    }
  }
  /// Sails on until the verdict is `verdict`; returns the seconds, at most 100.
  int Until(FollowVerdict verdict) {
    int seconds = 0;
    while (Follow.Verdict() != verdict && seconds < 100) {
      Sail(1);
      ++seconds;
    }
    return seconds;
  }

  std::function<double(int)> Course;
  PilotFollow Follow;

 private:
  int m_second = 0;
};

double Steady(int /*second*/) { return 0.0; }

TEST(PilotFollow, IsUnknownWithoutABearingOrAHeading) {
  Sailed silent(Steady);
  silent.Sail(100);
  EXPECT_EQ(silent.Follow.Verdict(), FollowVerdict::Unknown);
  PilotFollow blind;
  blind.Sent(90.0F);
  for (int i = 0; i < 100; ++i) {
    blind.Look(1000 * i);
  }
  EXPECT_EQ(blind.Verdict(), FollowVerdict::Unknown);
}

TEST(PilotFollow, ABoatNearTheBearingFollows) {
  Sailed boat(Steady);
  boat.Bearing(15.0);
  boat.Sail(100);
  EXPECT_EQ(boat.Follow.Verdict(), FollowVerdict::Follows);
  EXPECT_FALSE(boat.Follow.Fails());
}

TEST(PilotFollow, ABoatThatStaysBeyondFifteenDegreesDoesNotFollowAfterTenSeconds) {
  for (const double bearing : {15.1, -15.1, 90.0, -179.0}) {
    Sailed boat(Steady);
    boat.Bearing(bearing);
    boat.Sail(10);
    EXPECT_EQ(boat.Follow.Verdict(), FollowVerdict::Follows) << bearing;
    boat.Sail(1);
    EXPECT_EQ(boat.Follow.Verdict(), FollowVerdict::DoesNotFollow) << bearing;
    EXPECT_TRUE(boat.Follow.Fails());
  }
}

TEST(PilotFollow, WavesAreGivenFiveSecondsMoreAndNoMore) {
  for (const double period : {4.0, 5.5, 7.0, 8.5}) {
    Sailed boat([period](int second) { return 10.0 * std::sin(2.0 * std::numbers::pi * second / period); });
    boat.Bearing(30.0);
    const int told = boat.Until(FollowVerdict::DoesNotFollow);
    EXPECT_GT(told, 11) << period;
    EXPECT_LE(told, 20) << period;
  }
}

TEST(PilotFollow, ABoatThatComesASeventhPartCloserInTimeFollows) {
  // 60 degrees off, of which she makes 1 degree a second and then nothing.
  Sailed boat([](int second) { return std::min(second, 35) * 1.0; });
  boat.Bearing(60.0);
  boat.Sail(36);
  EXPECT_FALSE(boat.Follow.Fails());
  EXPECT_LE(boat.Until(FollowVerdict::DoesNotFollow), 15);
  Sailed lazy([](int second) { return 0.2 * second; });
  lazy.Bearing(60.0);
  EXPECT_LE(lazy.Until(FollowVerdict::DoesNotFollow), 13) << "2 degrees in ten seconds";
}

TEST(PilotFollow, OnlyTheBoatsOwnTurnCounts) {
  Sailed boat(Steady);
  for (int i = 0; i < 11; ++i) {
    boat.Bearing(60.0 - 4.0 * i);
    boat.Sail(1);
  }
  EXPECT_EQ(boat.Follow.Verdict(), FollowVerdict::DoesNotFollow) << "the bearing came to her";
  Sailed chased([](int second) { return 3.0 * second; });
  for (int i = 0; i < 30; ++i) {
    chased.Bearing(20.0 + 5.0 * i);
    chased.Sail(1);
  }
  EXPECT_FALSE(chased.Follow.Fails()) << "it ran away from her";
}

TEST(PilotFollow, ABoatThatTakesLongIsSlowUntilSheIsThere) {
  // 40 degrees off: 35 s would do.
  Sailed boat([](int second) { return std::min(0.7 * second, 40.0); });
  boat.Bearing(40.0);
  boat.Sail(34);
  EXPECT_EQ(boat.Follow.Verdict(), FollowVerdict::Follows);
  Sailed slow([](int second) { return 40.0 * (1.0 - std::exp(-second / 45.0)); });
  slow.Bearing(40.0);
  EXPECT_NEAR(slow.Until(FollowVerdict::Slow), 37, 2);
  EXPECT_FALSE(slow.Follow.Fails());
  EXPECT_LT(slow.Until(FollowVerdict::Follows), 60);
}

TEST(PilotFollow, APilotThatTurnsTheWrongWayIsToldSo) {
  for (const double side : {1.0, -1.0}) {
    Sailed boat([side](int second) { return -side * std::min(std::exp(second / 4.0), 150.0); });
    boat.Bearing(side * 20.0);
    EXPECT_LE(boat.Until(FollowVerdict::TurnsAway), 16);
    boat.Sail(60);
    EXPECT_EQ(boat.Follow.Verdict(), FollowVerdict::TurnsAway)
        << "where she comes to rest, half a circle off";
  }
}

TEST(PilotFollow, AHelmsmanWhoTurnsAwayAndStopsIsNoPilot) {
  Sailed boat([](int second) { return -20.0 * (1.0 - std::exp(-second / 4.0)); });
  boat.Bearing(0.0);
  EXPECT_LE(boat.Until(FollowVerdict::DoesNotFollow), 22);
  Sailed far([](int second) { return second < 8 ? 0.0 : -std::min(6.0 * (second - 8), 100.0); });
  far.Bearing(20.0);
  far.Until(FollowVerdict::TurnsAway);
  EXPECT_LE(far.Until(FollowVerdict::DoesNotFollow), 40);
}

TEST(PilotFollow, IsOverAfterThreeSecondsWithinTenDegrees) {
  Sailed boat(Steady);
  boat.Bearing(30.0);
  boat.Sail(20);
  ASSERT_TRUE(boat.Follow.Fails());
  boat.Bearing(10.1);
  boat.Sail(20);
  EXPECT_TRUE(boat.Follow.Fails());
  boat.Bearing(-10.0);
  boat.Sail(3);
  EXPECT_TRUE(boat.Follow.Fails());
  boat.Sail(1);
  EXPECT_EQ(boat.Follow.Verdict(), FollowVerdict::Follows);
}

TEST(PilotFollow, ALostHeadingMakesItUnknownAndBeginsAnew) {
  Sailed boat(Steady);
  boat.Bearing(30.0);
  boat.Sail(20);
  ASSERT_TRUE(boat.Follow.Fails());
  boat.Follow.Pause();
  EXPECT_EQ(boat.Follow.Verdict(), FollowVerdict::Unknown);
  EXPECT_FALSE(boat.Follow.Fails());
  boat.Bearing(30.0);
  EXPECT_EQ(boat.Until(FollowVerdict::DoesNotFollow), 11);
}

TEST(PilotFollow, LearnsThePilotsOffsetInMinutesAndTakesItOff) {
  for (const double offset : {5.0, -5.0}) {
    Sailed boat(Steady);
    boat.Bearing(offset);
    boat.Sail(100);
    EXPECT_FALSE(boat.Follow.Offset());
    boat.Sail(800);
    ASSERT_TRUE(boat.Follow.Offset());
    EXPECT_NEAR(*boat.Follow.Offset(), offset, 0.1);
    boat.Bearing(offset + 14.0);
    boat.Sail(60);
    EXPECT_FALSE(boat.Follow.Fails());
    boat.Bearing(offset - 14.0);
    boat.Sail(60);
    EXPECT_FALSE(boat.Follow.Fails()) << "19 degrees off by the boat's compass on one of them";
    boat.Bearing(offset - 16.0);
    EXPECT_EQ(boat.Until(FollowVerdict::DoesNotFollow), 11);
    boat.Follow.Pause();
    EXPECT_NEAR(*boat.Follow.Offset(), offset, 0.1) << "kept";
  }
}

TEST(PilotFollow, AnOffsetIsNoMoreThanTenDegrees) {
  Sailed boat(Steady);
  boat.Bearing(7.0);
  boat.Sail(1200);
  boat.Bearing(14.0);
  boat.Sail(1200);
  EXPECT_NEAR(*boat.Follow.Offset(), 10.0, 0.01);
}

TEST(PilotFollow, ABoatThatStaysBehindTheBearingTeachesNothing) {
  Sailed far(Steady);
  far.Bearing(9.0);
  far.Sail(600);
  EXPECT_FALSE(far.Follow.Offset()) << "the pilot may be in standby";
  Sailed turning([](int second) { return second - 4.0; });
  for (int i = 0; i < 600; ++i) {
    turning.Bearing(std::fmod(i, 360.0));
    turning.Sail(1);
  }
  EXPECT_FALSE(turning.Follow.Offset());
}

TEST(PilotFollow, NorthIsNoCorner) {
  Sailed boat([](int second) { return second % 2 == 0 ? 359.0 : 1.0; });
  boat.Bearing(359.5);
  boat.Sail(300);
  EXPECT_EQ(boat.Follow.Verdict(), FollowVerdict::Follows);
  EXPECT_NEAR(*boat.Follow.Offset(), -0.5, 0.5);
}

}  // namespace
}  // namespace veerwatch
