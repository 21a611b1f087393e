// What the loop does by the clock and by the direction of the wind.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "control/TrackClock.h"
#include "control/TrackGains.h"
#include "control/TrackLoop.h"

namespace veerwatch {
namespace {

class TrackMethods : public testing::TestWithParam<TrackMethod> {
 protected:
  TrackMethods() {
    m_settings.m_eTrackMethod = GetParam();
    m_settings.m_eTrackMode = TrackMode::Manual;
    m_settings.m_fAutoPilot = 100.0F;
    m_data.HeadingValid = m_data.BoatSpeedValid = m_data.WindApparentValid = m_data.WindTrueValid = true;
    m_data.Heading = 95.0F;
    m_data.BoatSpeed = 6.0F;
    m_data.WindAngleApparent = 40.0F;
    m_data.WindSpeedApparent = 16.0F;
    m_data.WindAngleTrue = 60.0F;
    m_data.WindSpeedTrue = 12.0F;
  }

  /// A pass `milliseconds` after the one before.
  LoopStep Pass(std::int64_t milliseconds, bool apparent = true, bool trueWind = true) {
    m_now.Steady += milliseconds;
    LoopInput input(m_now);
    input.BringsApparent = apparent;
    input.BringsTrue = trueWind;
    return m_loop.ControlStep(input);
  }
  void Passes(int count) {
    for (int i = 0; i < count; ++i) {
      Pass(1000);
    }
  }
  void Track(TrackSide side) {
    m_loop.Side(side);
    ASSERT_TRUE(m_loop.StartTracking());
    m_settings.m_eTrackMode = TrackMode::Track;
  }
  float Held(TrackSide side) const { return m_settings.DesiredAngle[static_cast<std::size_t>(side)]; }
  float Bearing() const { return m_settings.m_fAutoPilot; }

  Settings m_settings;
  InstrumentData m_data;
  Moment m_now{100000, 0};
  TrackLoop m_loop{m_settings, m_data};
};

using ByTheClock = TrackMethods;

INSTANTIATE_TEST_SUITE_P(Methods, ByTheClock, testing::Values(TrackMethod::Clock, TrackMethod::Direction),
                         [](const auto& method) {
                           return method.param == TrackMethod::Clock ? "Clock" : "Direction";
                         });

TEST_P(ByTheClock, NeedsAHeading) {
  m_data.HeadingValid = false;
  EXPECT_TRUE(m_loop.LacksHeading());
  m_data.HeadingValid = true;
  EXPECT_FALSE(m_loop.LacksHeading());
  m_data.HeadingValid = false;
  m_settings.m_eTrackMethod = TrackMethod::Sentence;
  EXPECT_FALSE(m_loop.LacksHeading());
}

TEST_P(ByTheClock, BeginsAtTheHeadingWhenTheBearingIsFarOff) {
  Passes(3);
  m_settings.m_fAutoPilot = 111.0F;
  Track(TrackSide::True);
  EXPECT_EQ(Bearing(), 95.0F);
}

TEST_P(ByTheClock, BeginsAtTheHeadingOnEitherSide) {
  Passes(3);
  m_settings.m_fAutoPilot = 79.0F;
  Track(TrackSide::True);
  EXPECT_EQ(Bearing(), 95.0F);
}

TEST_P(ByTheClock, KeepsABearingThatIsNear) {
  Passes(3);
  m_settings.m_fAutoPilot = 109.0F;
  Track(TrackSide::True);
  EXPECT_EQ(Bearing(), 109.0F);
}

TEST_P(ByTheClock, HoldsTheMeanOfTheLastTenSecondsAndNotTheLatestGust) {
  for (int second = 0; second < 11; ++second) {
    m_data.WindAngleApparent = second < 10 ? 40.0F : 62.0F;
    m_data.WindAngleTrue = second < 10 ? 60.0F : 82.0F;
    Pass(1000);
  }
  EXPECT_EQ(Held(TrackSide::True), 82.0F) << "in Manual it follows";
  Track(TrackSide::True);
  EXPECT_NEAR(Held(TrackSide::Apparent), 41.9F, 0.2F);
  EXPECT_NEAR(Held(TrackSide::True), 61.9F, 0.2F);
}

TEST_P(ByTheClock, AnotherSideIsHeldAtItsMeanOfTheLastSeconds) {
  Passes(11);
  Track(TrackSide::Apparent);
  m_data.WindAngleTrue = 75.0F;
  Passes(11);
  EXPECT_NEAR(Held(TrackSide::True), 60.0F, 0.01F);
  EXPECT_TRUE(m_loop.Side(TrackSide::True));
  EXPECT_NEAR(Held(TrackSide::True), 75.0F, 0.01F);
  EXPECT_FALSE(m_loop.Side(TrackSide::True)) << "it is the tracked one already";
}

TEST_P(ByTheClock, TrackAgainWhileTrackingNeitherJumpsNorHoldsAnythingElse) {
  Passes(11);
  Track(TrackSide::True);
  m_data.WindAngleTrue = 66.0F;
  Passes(5);
  const float bearing = Bearing();
  const float held = Held(TrackSide::True);
  for (const TrackMethod method : {TrackMethod::Sentence, TrackMethod::Direction, TrackMethod::Clock}) {
    m_settings.m_eTrackMethod = method;
    ASSERT_TRUE(m_loop.StartTracking());
    EXPECT_EQ(Bearing(), bearing);
    EXPECT_EQ(Held(TrackSide::True), held);
  }
}

TEST_P(ByTheClock, ABurstOfOldWindsMovesNothing) {
  Passes(11);
  Track(TrackSide::True);
  Passes(3);
  const float before = Bearing();
  m_data.WindAngleTrue = 85.0F;
  Pass(2000);
  for (int i = 0; i < 300; ++i) {
    Pass(0);
  }
  EXPECT_LE(std::fabs(Bearing() - before), 6.001F) << "two seconds at the largest rate";
}

TEST_P(ByTheClock, TheBearingKeepsWithinItsLimits) {
  Passes(11);
  m_settings.m_fTrackMaxAhead = 20.0F;
  m_settings.m_fTrackMaxRate = 2.0F;
  m_settings.m_fTrackBandwidth = 4.0F;
  Track(TrackSide::True);
  m_data.WindAngleTrue = 140.0F;
  for (int second = 0; second < 100; ++second) {
    const float before = Bearing();
    Pass(1000);
    EXPECT_LE(std::fabs(Bearing() - before), 2.001F);
    EXPECT_LE(std::fabs(Bearing() - m_data.Heading), 20.001F);
  }
  EXPECT_NEAR(Bearing(), 115.0F, 0.01F) << "it went as far as it may";
}

TEST_P(ByTheClock, RefusesWhatGivesNoFiniteAnswer) {
  for (float Settings::*member :
       {&Settings::m_fTrackBandwidth, &Settings::m_fTrackMaxAhead, &Settings::m_fTrackMaxRate}) {
    for (const float bad :
         {0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
      const float good = m_settings.*member;
      m_settings.*member = bad;
      EXPECT_FALSE(m_loop.StartTracking()) << bad;
      m_settings.*member = good;
    }
  }
  EXPECT_TRUE(m_loop.StartTracking());
}

class ClockMethod : public TrackMethods {};
INSTANTIATE_TEST_SUITE_P(Methods, ClockMethod, testing::Values(TrackMethod::Clock),
                         [](const auto& /*method*/) { return "Clock"; });

TEST_P(ClockMethod, CountsTheTimeOfTheTrackedWindAlone) {
  // Apparent and true wind take turns, two of each a second; beside it the true wind alone.
  Passes(11);
  Track(TrackSide::True);
  m_data.WindAngleTrue = 64.0F;
  TrackClock alone;
  alone.Start(*TrackGainsFor(20.0, 4.0));
  double bearing = 100.0;
  for (int pass = 0; pass < 20; ++pass) {
    Pass(250, true, false);
    Pass(250, false, true);
    bearing = alone.Step(4.0, pass == 0 ? 0.0 : 0.5, bearing, 95.0, {30.0, 3.0}).Bearing;
  }
  EXPECT_NEAR(Bearing(), bearing, 1e-3);
}

TEST_P(ClockMethod, TheFirstWindAfterEachStartHasNoTime) {
  Passes(11);
  Track(TrackSide::True);
  m_data.WindAngleTrue = 64.0F;
  Pass(1000);
  EXPECT_EQ(Bearing(), 100.0F);
  Pass(1000);
  const float before = Bearing();
  EXPECT_NE(before, 100.0F);
  ASSERT_TRUE(m_loop.StartTracking());
  Pass(1000);
  EXPECT_EQ(Bearing(), before) << "Track again";
  m_loop.Side(TrackSide::Apparent);
  m_data.WindAngleApparent = 47.0F;
  Pass(1000);
  EXPECT_EQ(Bearing(), before) << "another side";
}

TEST_P(ClockMethod, AnotherSideAndANudgeBeginWithAnEmptyAccumulator) {
  // What the accumulator holds is part of the first correction that has a time.
  const auto corrected = [this] {
    const float before = Bearing();
    Pass(1000);
    return Bearing() - before;
  };
  m_settings.m_fTrackBandwidth = 8.0F;
  m_settings.m_fTrackDamping = 0.5F;
  Passes(11);
  Track(TrackSide::True);
  m_data.WindAngleTrue = 62.0F;
  Passes(4);
  m_data.WindAngleTrue = 60.0F;
  EXPECT_GT(corrected(), 0.2F) << "it has added up";
  m_loop.Side(TrackSide::Apparent);
  Pass(1000);
  EXPECT_NEAR(corrected(), 0.0F, 1e-4F);
  m_data.WindAngleApparent = 42.0F;
  Passes(4);
  m_loop.TrackSteerTo(0.0F);
  m_data.WindAngleApparent = Held(TrackSide::Apparent);
  EXPECT_NEAR(corrected(), 0.0F, 1e-4F);
}

TEST_P(ClockMethod, WhatIsNotTrackedMovesNothingAndIsSentAllTheSame) {
  Passes(11);
  Track(TrackSide::True);
  Pass(1000);
  m_data.WindAngleTrue = 70.0F;
  const float before = Bearing();
  const LoopStep step = Pass(1000, true, false);
  EXPECT_EQ(Bearing(), before);
  EXPECT_TRUE(step.Sends);
}

class DirectionMethod : public TrackMethods {};
INSTANTIATE_TEST_SUITE_P(Methods, DirectionMethod, testing::Values(TrackMethod::Direction),
                         [](const auto& /*method*/) { return "Direction"; });

TEST_P(DirectionMethod, SmoothsByTheBandwidthOfTheSettingsBeforeTrackingBegins) {
  // A shift of 20 degrees, six seconds before Track. A time constant of 50 s has taken up 2 of them; what is
  // held is the mean of ten seconds, 71 degrees.
  m_settings.m_fTrackBandwidth = 200.0F;
  Passes(30);
  m_data.WindAngleTrue = 80.0F;
  Passes(6);
  Track(TrackSide::True);
  ASSERT_NEAR(Held(TrackSide::True), 71.0F, 0.5F);
  EXPECT_NEAR(Pass(1000).Error, -8.4F, 1.0F);
}

TEST_P(DirectionMethod, KeepsTheBandwidthThatTrackingBeganWith) {
  m_settings.m_fTrackBandwidth = 200.0F;
  Passes(30);
  Track(TrackSide::True);
  m_settings.m_fTrackBandwidth = 4.0F;
  m_data.WindAngleTrue = 80.0F;
  Passes(5);
  EXPECT_NEAR(Pass(1000).Error, 2.3F, 1.0F);
}

TEST_P(ByTheClock, TellsHowManyWindsComeASecond) {
  EXPECT_FALSE(m_loop.WindsASecond().has_value());
  for (int pass = 0; pass < 100; ++pass) {
    Pass(200, pass % 2 == 0, pass % 2 == 1);
  }
  EXPECT_NEAR(m_loop.WindsASecond().value_or(0.0), 5.0, 0.01) << "those of both sides";
}

TEST_P(DirectionMethod, ABoatSpeedThatIsNotThereCountsAsNone) {
  // The target of the apparent wind is then that of the true one.
  m_data.BoatSpeedValid = false;
  m_settings.m_eTrackMode = TrackMode::Manual;
  m_data.WindAngleApparent = 60.0F;
  Passes(11);
  Track(TrackSide::Apparent);
  EXPECT_NEAR(Pass(1000).Error, 0.0F, 0.01F);
}

using AlarmAverage = TrackMethods;
INSTANTIATE_TEST_SUITE_P(Methods, AlarmAverage,
                         testing::Values(TrackMethod::Sentence, TrackMethod::Clock, TrackMethod::Direction),
                         [](const auto& method) {
                           return std::string(method.param == TrackMethod::Sentence ? "Sentence"
                                              : method.param == TrackMethod::Clock  ? "Clock"
                                                                                    : "Direction");
                         });

TEST_P(AlarmAverage, ASingleGustRaisesNoneAndALastingErrorDoes) {
  m_settings.m_fTrackAlarmAverage = 5.0F;
  Passes(11);
  Track(TrackSide::True);
  Passes(5);
  m_data.WindAngleTrue = 75.0F;  // the limit is 5 degrees
  EXPECT_EQ(Pass(1000).Rings, LoopStep::Alarm::AsBefore);
  m_data.WindAngleTrue = 60.0F;
  for (int second = 0; second < 10; ++second) {
    EXPECT_EQ(Pass(1000).Rings, LoopStep::Alarm::AsBefore);
  }
  m_data.WindAngleTrue = 75.0F;
  int raised = 0;
  for (int second = 0; second < 10; ++second) {
    raised += Pass(1000).Rings == LoopStep::Alarm::Raised ? 1 : 0;
  }
  EXPECT_GE(raised, 6);
  EXPECT_LE(raised, 9);
}

TEST_P(AlarmAverage, WithoutOneEverySampleCounts) {
  Passes(11);
  Track(TrackSide::True);
  m_data.WindAngleTrue = 75.0F;
  EXPECT_EQ(Pass(1000).Rings, LoopStep::Alarm::Raised);
}

}  // namespace
}  // namespace veerwatch
