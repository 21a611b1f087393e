#include "wind/PolarAngle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>

namespace veerwatch {
namespace {

constexpr double kLargest = 165.0;

std::optional<BestCourse> Best(double windSpeed, bool upwind) {
  return BestCourse{upwind ? 50.0 - windSpeed : 140.0 + windSpeed, windSpeed > 15.0};
}

PolarAngle::Sample True(double held) { return {10.0, 6.0, TrackSide::True, held}; }

TEST(PolarAngle, MovesADegreeInFiveSeconds) {
  PolarAngle polar;
  polar.Begin(50.0);
  double held = 50.0;
  for (int i = 0; i < 5; ++i) {
    held = polar.Step(Best, kLargest, True(held), 1.0)->Held;
  }
  EXPECT_NEAR(held, 49.0, 1e-9);
  for (int i = 0; i < 100; ++i) {
    held = polar.Step(Best, kLargest, True(held), 1.0)->Held;
  }
  EXPECT_NEAR(held, 40.0, 1e-9);
}

TEST(PolarAngle, GoesToLeewardFromAftOfTheBeamAndKeepsItsSide) {
  PolarAngle polar;
  polar.Begin(-120.0);
  double held = -120.0;
  for (int i = 0; i < 200; ++i) {
    held = polar.Step(Best, kLargest, True(held), 1.0)->Held;
  }
  EXPECT_FALSE(polar.Upwind());
  EXPECT_NEAR(held, -150.0, 1e-9);
}

TEST(PolarAngle, AsksForTheSmoothedWindSpeed) {
  PolarAngle polar;
  polar.Begin(40.0);
  polar.Step(Best, kLargest, {10.0, 6.0, TrackSide::True, 40.0}, 1.0);
  EXPECT_EQ(polar.WindSpeed(), 10.0);
  for (int i = 0; i < 30; ++i) {
    polar.Step(Best, kLargest, {20.0, 6.0, TrackSide::True, 40.0}, 1.0);
  }
  EXPECT_NEAR(polar.WindSpeed(), 20.0 - 10.0 / std::exp(1.0), 1e-6);
}

TEST(PolarAngle, HoldsTheApparentAngleOfTheBestTrueOne) {
  PolarAngle polar;
  polar.Begin(40.0);
  double held = -20.0;
  for (int i = 0; i < 200; ++i) {
    held = polar.Step(Best, kLargest, {10.0, 6.0, TrackSide::Apparent, held}, 1.0)->Held;
  }
  // Of a true wind of 10 knots at 40 degrees and a boat of 6 knots.
  EXPECT_NEAR(held, -25.199, 0.01);
}

TEST(PolarAngle, GoesNoFurtherFromTheWindThanIsAllowed) {
  PolarAngle polar;
  polar.Begin(160.0);
  const auto astern = [](double, bool) { return std::optional(BestCourse{180.0, false}); };
  double held = 160.0;
  for (int i = 0; i < 100; ++i) {
    held = polar.Step(astern, kLargest, True(held), 1.0)->Held;
  }
  EXPECT_EQ(held, 165.0);
}

TEST(PolarAngle, SaysWhereTheTableEnds) {
  PolarAngle polar;
  polar.Begin(40.0);
  EXPECT_FALSE(polar.Step(Best, kLargest, True(40.0), 1.0)->AtEdge);
  PolarAngle strong;
  strong.Begin(40.0);
  EXPECT_TRUE(strong.Step(Best, kLargest, {16.0, 6.0, TrackSide::True, 40.0}, 1.0)->AtEdge);
}

TEST(PolarAngle, HasNoAnswerWithoutABestAngle) {
  PolarAngle polar;
  polar.Begin(40.0);
  EXPECT_FALSE(polar.Step(nullptr, kLargest, True(40.0), 1.0));
  EXPECT_FALSE(
      polar.Step([](double, bool) { return std::optional<BestCourse>(); }, kLargest, True(40.0), 1.0));
  const auto broken = [](double, bool) {
    return std::optional(BestCourse{std::numeric_limits<double>::quiet_NaN(), false});
  };
  EXPECT_FALSE(polar.Step(broken, kLargest, True(40.0), 1.0));
}

}  // namespace
}  // namespace veerwatch
