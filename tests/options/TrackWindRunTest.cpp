#include "options/TrackWindRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "options/TrackWindPicture.h"
#include "platform/Random.h"

namespace veerwatch {
namespace {

constexpr std::array<TrackMethod, 3> kMethods{TrackMethod::Sentence, TrackMethod::Clock,
                                              TrackMethod::Direction};

/// Winds at `rate` a second for so long; their direction by the time [s].
template <class Direction>
std::vector<WindSample> Blow(double seconds, double rate, const Direction& direction) {
  std::vector<WindSample> winds;
  for (int i = 0; i <= static_cast<int>(seconds * rate); ++i) {
    WindSample wind;
    const double time = i / rate;
    wind.Moment = 70000 + std::llround(time * 1000.0);
    wind.Direction = static_cast<float>(direction(time));
    wind.Speed = 12.0F;
    winds.push_back(wind);
  }
  return winds;
}

double Steady(double /*time*/) { return 200.0; }
double Shifted(double time) { return time < 60.0 ? 355.0 : 5.0; }

TEST(TrackWindRun, HoldsASteadyWindWithoutMoving) {
  const auto winds = Blow(300.0, 1.0, Steady);
  for (const TrackMethod method : kMethods) {
    const auto run = TrackWindRunOf(Settings(), method, 4.0, winds);
    ASSERT_TRUE(run.has_value());
    EXPECT_EQ(run->Method, method);
    EXPECT_EQ(run->Errors.size(), winds.size());
    EXPECT_NEAR(run->Mean, 0.0, 1e-3);
    EXPECT_NEAR(run->RootMeanSquare, 0.0, 1e-3);
    EXPECT_NEAR(run->Rudder, 0.0, 0.01);
  }
}

TEST(TrackWindRun, FollowsAShiftAcrossNorth) {
  const auto winds = Blow(300.0, 1.0, Shifted);
  for (const TrackMethod method : kMethods) {
    const auto run = TrackWindRunOf(Settings(), method, 4.0, winds);
    ASSERT_TRUE(run.has_value());
    EXPECT_NEAR(run->Errors[59], 0.0, 0.01);
    EXPECT_NEAR(run->Errors[60], 10.0, 0.01) << "the boat's own wind angle is off by all of it";
    EXPECT_NEAR(run->Errors.back(), 0.0, 0.7);
    // The bearing goes through ten degrees at least, in five minutes.
    EXPECT_GE(run->Rudder, 1.9);
  }
}

TEST(TrackWindRun, FiguresAreThoseOfTheErrors) {
  const auto winds = Blow(300.0, 1.0, Shifted);
  const auto run = TrackWindRunOf(Settings(), TrackMethod::Clock, 4.0, winds);
  ASSERT_TRUE(run.has_value());
  double sum = 0.0;
  double squares = 0.0;
  for (const double error : run->Errors) {
    sum += error;
    squares += error * error;
  }
  EXPECT_DOUBLE_EQ(run->Mean, sum / 301.0);
  EXPECT_DOUBLE_EQ(run->RootMeanSquare, std::sqrt(squares / 301.0));
  TrackWindRun told;
  told.Method = TrackMethod::Direction;
  told.Mean = -0.04;
  told.RootMeanSquare = 5.25;
  told.Rudder = 68.4;
  EXPECT_EQ(told.Text(), "Direction: mean 0.0, rms 5.3 deg, rudder 68 deg/min");
}

TEST(TrackWindRun, TheBoatAnswersWithItsLag) {
  const auto winds = Blow(300.0, 1.0, Shifted);
  double before = 0.0;
  for (const double lag : {0.0, 4.0, 12.0}) {
    const auto run = TrackWindRunOf(Settings(), TrackMethod::Direction, lag, winds);
    ASSERT_TRUE(run.has_value());
    EXPECT_GT(run->RootMeanSquare, before) << lag;
    before = run->RootMeanSquare;
  }
}

TEST(TrackWindRun, SentenceLosesTheBoatWhereManyWindsComeAndTheOthersDoNot) {
  const auto winds = Blow(300.0, 10.0, Shifted);
  EXPECT_GT(TrackWindRunOf(Settings(), TrackMethod::Sentence, 6.0, winds)->RootMeanSquare, 15.0);
  EXPECT_LT(TrackWindRunOf(Settings(), TrackMethod::Clock, 6.0, winds)->RootMeanSquare, 8.0);
  EXPECT_LT(TrackWindRunOf(Settings(), TrackMethod::Direction, 6.0, winds)->RootMeanSquare, 5.0);
}

TEST(TrackWindRun, IsTheSameEachTime) {
  SeededRandom random(3);
  const auto winds =
      Blow(300.0, 2.0, [&random](double time) { return 100.0 + 5.0 * std::sin(time) + random.Next(); });
  for (const TrackMethod method : kMethods) {
    EXPECT_EQ(TrackWindRunOf(Settings(), method, 4.0, winds)->Errors,
              TrackWindRunOf(Settings(), method, 4.0, winds)->Errors);
  }
}

TEST(TrackWindRun, TakesItsTuningFromTheSettings) {
  const auto winds = Blow(300.0, 1.0, Shifted);
  Settings slow;
  slow.m_fTrackBandwidth = 100.0F;
  for (const TrackMethod method : kMethods) {
    EXPECT_GT(TrackWindRunOf(slow, method, 4.0, winds)->RootMeanSquare,
              TrackWindRunOf(Settings(), method, 4.0, winds)->RootMeanSquare);
  }
  slow.m_fTrackBandwidth = 0.0F;
  EXPECT_FALSE(TrackWindRunOf(slow, TrackMethod::Direction, 4.0, winds).has_value());
}

TEST(TrackWindRun, NeedsTwoMinutesAndALagThatABoatHas) {
  EXPECT_EQ(TrackWindTrouble({}, 4.0), "Two minutes of wind and heading are needed; 0 seconds are recorded");
  EXPECT_EQ(TrackWindTrouble(Blow(119.0, 1.0, Steady), 4.0),
            "Two minutes of wind and heading are needed; 119 seconds are recorded");
  const auto enough = Blow(120.0, 1.0, Steady);
  EXPECT_EQ(TrackWindTrouble(enough, 0.0), "");
  EXPECT_EQ(TrackWindTrouble(enough, 60.0), "");
  for (const double lag : {-0.1, 60.1, std::nan("")}) {
    EXPECT_EQ(TrackWindTrouble(enough, lag), "Boat lag must be from 0 to 60 seconds");
    EXPECT_FALSE(TrackWindRunOf(Settings(), TrackMethod::Clock, lag, enough).has_value());
  }
}

TEST(TrackWindPicture, HasACurveForEachMethodBeneathTheLegend) {
  const TrackPreview picture =
      TrackWindDraw({Settings(), "20", "4", "4", Blow(600.0, 1.0, Shifted)}, 601, 301, 60);
  EXPECT_EQ(picture.Trouble, "");
  EXPECT_FALSE(picture.Empty());
  ASSERT_EQ(picture.Curves.size(), 3U);
  EXPECT_EQ(picture.LegendHeight, 60);
  for (const TrackCurve& curve : picture.Curves) {
    EXPECT_TRUE(curve.Text.starts_with(TrackMethodName(curve.Method)));
    // The means of 61 slots of ten seconds, the last with one sample.
    ASSERT_EQ(curve.Line.size(), 61U);
    EXPECT_NEAR(curve.Line.front().X, 5.0, 1e-9);
    for (const Point& point : curve.Line) {
      EXPECT_GE(point.Y, 60.0);
      EXPECT_LE(point.Y, 300.0);
    }
  }
}

TEST(TrackWindPicture, TheScaleTakesInTheLargestMean) {
  const auto shift = [](double by) {
    return TrackWindDraw(
        {Settings(), "20", "4", "4", Blow(600.0, 1.0, [by](double time) { return time < 300.0 ? 0.0 : by; })},
        601, 241, 0);
  };
  EXPECT_EQ(shift(2.0).Scale.BearingMax, 5.0);
  EXPECT_EQ(shift(40.0).Scale.BearingMin, -60.0);
  const TrackPreview picture = shift(2.0);
  EXPECT_EQ(picture.References[1].Row, 120);
  EXPECT_EQ(picture.Columns.size(), 7U) << "every 100 seconds";
  EXPECT_EQ(picture.Rows, (std::vector<int>{240, 120, 0}));
  EXPECT_EQ(picture.ReadOut(0.0, 120.0), "time=0, error=0");
}

TEST(TrackWindPicture, AMethodThatIsLostLeavesTheOthersTheirScale) {
  const auto winds = Blow(600.0, 10.0, Shifted);
  const TrackPreview picture = TrackWindDraw({Settings(), "20", "4", "6", winds}, 601, 301, 60);
  EXPECT_EQ(picture.Scale.BearingMax, 10.0);
  const auto beyond = [&picture](const Point& point) {
    return picture.Scale.BearingOrigin + 2.0 * 10.0 * picture.Scale.BearingScale > point.Y ||
           point.Y > picture.Scale.BearingOrigin;
  };
  const auto leaves = [&beyond](const TrackCurve& curve) {
    return std::any_of(curve.Line.begin(), curve.Line.end(), beyond);
  };
  EXPECT_TRUE(leaves(picture.Curves[0]));
  EXPECT_FALSE(leaves(picture.Curves[1]));
  EXPECT_FALSE(leaves(picture.Curves[2]));
}

TEST(TrackWindPicture, SaysWhyThereIsNone) {
  const TrackPreview early =
      TrackWindDraw({Settings(), "20", "4", "4", Blow(30.0, 1.0, Steady)}, 601, 301, 60);
  EXPECT_EQ(early.Trouble, "Two minutes of wind and heading are needed; 30 seconds are recorded");
  EXPECT_TRUE(early.Empty());
  const TrackPreview none =
      TrackWindDraw({Settings(), "0", "4", "4", Blow(300.0, 1.0, Steady)}, 601, 301, 60);
  for (const auto& [bandwidth, damping, lag, name] :
       {std::array{"x", "4", "4", "Bandwidth"}, std::array{"20", "", "4", "Damping"},
        std::array{"20", "4", "four", "Boat lag"}}) {
    const TrackPreview wrong =
        TrackWindDraw({Settings(), bandwidth, damping, lag, Blow(300.0, 1.0, Steady)}, 601, 301, 60);
    EXPECT_EQ(wrong.Trouble, std::string(name) + " is not a number");
  }
  EXPECT_EQ(none.Trouble, "Bandwidth or damping allow no tracking");
  EXPECT_TRUE(none.Empty());
  EXPECT_TRUE(TrackWindDraw({Settings(), "20", "4", "4", Blow(300.0, 1.0, Steady)}, 601, 60, 60).Empty());
}

}  // namespace
}  // namespace veerwatch
