#include "control/TrackClock.h"

#include <gtest/gtest.h>

#include <array>

#include "control/TrackController.h"

namespace veerwatch {
namespace {

constexpr BearingLimits kNone{180.0, 1000.0};
constexpr TrackGains kGains{0.003, 0.2};
constexpr std::array<double, 5> kErrors{4.0, -1.5, 0.0, 7.25, -3.0};

TEST(TrackClock, IsTheLawBySentencesAtOneASecond) {
  TrackController sentences;
  TrackClock clock;
  sentences.Start(kGains);
  clock.Start(kGains);
  double bySentences = 100.0;
  double byClock = 100.0;
  for (int round = 0; round < 20; ++round) {
    for (const double error : kErrors) {
      bySentences += sentences.Step(error, 1.0);
      byClock = clock.Step(error, 1.0, byClock, {}, kNone).Bearing;
      EXPECT_NEAR(byClock, bySentences, 1e-4);
      EXPECT_NEAR(clock.Integral(), sentences.Integral(), 1e-12);
    }
  }
}

TEST(TrackClock, CorrectsAsMuchASecondAtEveryRate) {
  for (const int rate : {1, 2, 5, 10}) {
    TrackClock clock;
    clock.Start({0.0, 0.2});
    double bearing = 100.0;
    for (int pass = 0; pass < rate * 10; ++pass) {
      bearing = clock.Step(2.0, 1.0 / rate, bearing, {}, kNone).Bearing;
    }
    EXPECT_NEAR(bearing, 104.0, 1e-3) << rate;
  }
}

TEST(TrackClock, TheAccumulatorStandsStillWhileALimitBites) {
  TrackClock clock;
  clock.Start(kGains);
  clock.Step(5.0, 1.0, 100.0, 100.0, {30.0, 3.0});
  const double before = clock.Integral();
  EXPECT_GT(before, 0.0);
  EXPECT_TRUE(clock.Step(5.0, 1.0, 130.0, 100.0, {30.0, 3.0}).Bites);
  EXPECT_TRUE(clock.Step(60.0, 1.0, 100.0, 100.0, {30.0, 3.0}).Bites);
  EXPECT_EQ(clock.Integral(), before);
}

TEST(TrackClock, NothingMovesWhenNoTimePasses) {
  TrackClock clock;
  clock.Start(kGains);
  EXPECT_EQ(clock.Step(20.0, 0.0, 100.0, 100.0, {30.0, 3.0}).Bearing, 100.0);
  EXPECT_EQ(clock.Integral(), 0.0);
}

TEST(TrackClock, StartAndResetEmptyTheAccumulator) {
  TrackClock clock;
  clock.Start(kGains);
  clock.Step(5.0, 1.0, 100.0, {}, kNone);
  clock.Reset();
  EXPECT_EQ(clock.Integral(), 0.0);
  clock.Step(5.0, 1.0, 100.0, {}, kNone);
  clock.Start(kGains);
  EXPECT_EQ(clock.Integral(), 0.0);
}

}  // namespace
}  // namespace veerwatch
