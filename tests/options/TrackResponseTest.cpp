#include "options/TrackResponse.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "platform/NumberText.h"
#include "tests/support/FixedRandom.h"

namespace veerwatch {
namespace {

using testing::DoubleNear;
using testing::Pointwise;

TEST(TrackResponse, TakesTheAccumulatorOfBeforeThePass) {
  FixedRandom still;
  const auto bearings = TrackResponseSeries({40.0, 1.0, 10.0, 0.0, 5.0}, still);
  ASSERT_TRUE(bearings);
  EXPECT_THAT(*bearings, Pointwise(testing::DoubleNear(1e-12),
                                   {9.2, 8.448, 7.74144, 7.077888, 6.455033856, 5.87068342272}));
}

TEST(TrackResponse, AddsNoiseToEitherSideOfTheError) {
  FixedRandom random({0.75, 0.0});
  const auto bearings = TrackResponseSeries({20.0, 0.5, -8.0, 1.0, 4.9}, random);
  ASSERT_TRUE(bearings);
  EXPECT_THAT(*bearings, Pointwise(testing::DoubleNear(1e-12), {-7.15, -6.45, -5.6085, -4.93165, -4.1264}));
  EXPECT_EQ(random.Draws, 5U);
}

TEST(TrackResponse, IsNotReducedToATurn) {
  FixedRandom still;
  const auto bearings = TrackResponseSeries({40.0, 1.0, 1000.0, 0.0, 1.0}, still);
  ASSERT_TRUE(bearings);
  EXPECT_NEAR(bearings->front(), 920.0, 1e-9);
}

TEST(TrackResponse, GivesNothingWhereItLeavesTheFiniteRange) {
  FixedRandom still;
  EXPECT_FALSE(TrackResponseSeries({0.001, 1.0, 10.0, 0.0, 120.0}, still));
  EXPECT_FALSE(TrackResponseSeries({0.0, 1.0, 10.0, 0.0, 120.0}, still));
  EXPECT_FALSE(TrackResponseSeries({40.0, 1.0, 10.0, 0.0, 1e9}, still));
}

TEST(TrackResponse, LongestRunIsComputed) {
  FixedRandom still;
  const auto bearings = TrackResponseSeries({40.0, 1.0, 10.0, 0.0, kMostTrackTime}, still);
  ASSERT_TRUE(bearings);
  EXPECT_EQ(bearings->size(), 1000001U);
}

TEST(TrackResponse, HasAPassForEachSentence) {
  FixedRandom still;
  TrackResponseInputs inputs{40.0, 1.0, 10.0, 0.0, 2.0};
  inputs.Rate = 2.5;
  const auto bearings = TrackResponseSeries(inputs, still);
  ASSERT_TRUE(bearings);
  // One correction a pass, whatever the time between them.
  EXPECT_THAT(*bearings, Pointwise(testing::DoubleNear(1e-12),
                                   {9.2, 8.448, 7.74144, 7.077888, 6.455033856, 5.87068342272}));
}

TEST(TrackResponse, ClockCorrectsAlikeASecondWhateverTheRate) {
  for (const double rate : {1.0, 5.0, 10.0}) {
    FixedRandom still;
    TrackResponseInputs inputs{40.0, 4.0, 10.0, 0.0, 20.0};
    inputs.Method = TrackMethod::Clock;
    inputs.Rate = rate;
    const auto bearings = TrackResponseSeries(inputs, still);
    ASSERT_TRUE(bearings);
    EXPECT_NEAR(bearings->back(), 10.0 * std::exp(-2.0), 0.3) << rate;
  }
}

TEST(TrackResponse, DirectionNeedsNoDampingAndABandwidthAboveZero) {
  FixedRandom still;
  TrackResponseInputs inputs{1e-310, 4.0, 10.0, 0.0, 30.0};
  EXPECT_FALSE(TrackResponseSeries(inputs, still));
  inputs.Method = TrackMethod::Direction;
  EXPECT_TRUE(TrackResponseSeries(inputs, still));
  inputs.Bandwidth = -20.0;
  EXPECT_EQ(TrackResponseTrouble(inputs), "Bandwidth must be above 0");
  inputs.Bandwidth = 0.0;
  EXPECT_EQ(TrackResponseTrouble(inputs), "Bandwidth must not be 0");
}

TEST(TrackResponse, TellsARateAndATimeThatItDoesNotTake) {
  TrackResponseInputs inputs{20.0, 4.0, 10.0, 0.0, 120.0};
  for (const double rate : {0.0, -1.0, 0.09, 101.0}) {
    inputs.Rate = rate;
    EXPECT_EQ(TrackResponseTrouble(inputs), "Rate must be from 0.1 to 100 wind sentences a second") << rate;
  }
  inputs.Rate = 5.0;
  inputs.Time = 200001.0;
  EXPECT_EQ(TrackResponseTrouble(inputs), "Time must be at most 200000 seconds");
  inputs.Time = 200000.0;
  EXPECT_EQ(TrackResponseTrouble(inputs), "");
}

TEST(TrackResponse, StepsAtTheRateThatIsTold) {
  EXPECT_EQ(TrackRateFor(std::nullopt), 1.0);
  EXPECT_EQ(TrackRateFor(1.02), 1.0);
  EXPECT_EQ(TrackRateFor(4.97), 5.0);
  EXPECT_EQ(TrackRateFor(0.01), 0.1);
  EXPECT_EQ(TrackRateFor(400.0), 100.0);
}

TEST(TrackFigures, SettlingTimeIsInSecondsAtEveryRate) {
  const std::vector<double> bearings{4.0, 0.5, -1.5, -1.0, 1.0, 0.0};
  EXPECT_EQ(TrackFiguresOf(5.0, bearings, 2.0).SettlingTime, 1.5);
  EXPECT_EQ(TrackFigureTexts(TrackFiguresOf(5.0, bearings, 2.0), ShortestText)[1], "settling time 1.5 s");
  EXPECT_EQ(TrackFigureTexts(TrackFiguresOf(5.0, bearings, 7.0), ShortestText)[1], "settling time 0.4 s");
}

TEST(TrackFigures, OvershootLiesBeyondZeroFromTheOffset) {
  EXPECT_EQ(TrackFiguresOf(10.0, {5.0, -2.0, 1.0, 12.0}).Overshoot, 2.0);
  EXPECT_EQ(TrackFiguresOf(10.0, {5.0, 2.0, 0.5}).Overshoot, 0.0);
  EXPECT_EQ(TrackFiguresOf(-10.0, {-12.0, 3.0, -1.0}).Overshoot, 3.0);
  EXPECT_EQ(TrackFiguresOf(-10.0, {-5.0, -1.0}).Overshoot, 0.0);
}

TEST(TrackFigures, OvershootWithoutAnOffsetIsTheLargestToEitherSide) {
  EXPECT_EQ(TrackFiguresOf(0.0, {1.0, -2.0}).Overshoot, 2.0);
  EXPECT_EQ(TrackFiguresOf(0.0, {3.0, -2.0}).Overshoot, 3.0);
  EXPECT_EQ(TrackFiguresOf(0.0, {0.0, 0.0}).Overshoot, 0.0);
}

TEST(TrackFigures, SettlesAtTheSecondFromWhichItStaysWithinOneDegree) {
  EXPECT_EQ(TrackFiguresOf(5.0, {4.0, 0.5, -1.5, -1.0, 1.0, 0.0}).SettlingTime, 3.0);
  EXPECT_EQ(TrackFiguresOf(5.0, {0.5, 0.5}).SettlingTime, 0.0);
  EXPECT_EQ(TrackFiguresOf(5.0, {0.5, 0.5, 1.01}).SettlingTime, std::nullopt);
}

TEST(TrackFigures, SteadyStateIsTheRunFromHalfOfItsLastSecondOn) {
  EXPECT_DOUBLE_EQ(TrackFiguresOf(9.0, {9.0, 9.0, 3.0, -4.0, 0.0}).SteadyRootMeanSquare,
                   std::sqrt(25.0 / 3.0));
  EXPECT_DOUBLE_EQ(TrackFiguresOf(9.0, {9.0, 9.0, 3.0, 3.0}).SteadyRootMeanSquare, 3.0);
  EXPECT_EQ(TrackFiguresOf(9.0, {-7.0}).SteadyRootMeanSquare, 7.0);
  EXPECT_EQ(TrackFiguresOf(9.0, {9.0, 0.0}).SteadyRootMeanSquare, 0.0);
}

TEST(TrackFigures, AreTheSameWordsWithEachWayToWriteNumbers) {
  const TrackFigures figures = TrackFiguresOf(9.0, {9.0, -1.25, 0.5, 0.5});
  const auto rough = [](float value) { return FormatNumber(value, "0.0"); };
  EXPECT_THAT(TrackFigureTexts(figures, rough),
              testing::ElementsAre("overshoot 1.3 deg", "settling time 2 s", "steady state 0.5 deg rms"));
  EXPECT_THAT(TrackFigureTexts(TrackFiguresOf(9.0, {9.0, -1.25}), ShortestText),
              testing::ElementsAre("overshoot 1.25 deg", "not settled", "steady state 1.25 deg rms"));
}

TEST(TrackFigures, StayFiniteForTheLargestBearings) {
  const double most = std::numeric_limits<double>::max();
  EXPECT_DOUBLE_EQ(TrackFiguresOf(1.0, {most, -most, most, -most}).SteadyRootMeanSquare, most);
}

}  // namespace
}  // namespace veerwatch
