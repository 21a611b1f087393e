#include "control/PilotTest.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

namespace veerwatch {
namespace {

constexpr double kStep = 0.25;  // [s]

/// A boat that takes up a heading with a lag, on a bearing of 358 degrees.
class Tested {
 public:
  double Lag = 4.0;     ///< [s]
  double Gain = 1.0;    ///< what she makes of a turn; below 0 the wrong way
  double Offset = 0.0;  ///< what the pilot's compass shows more [deg]
  std::function<double(double)> Wave = [](double) { return 0.0; };
  PilotTest Test;
  float Farthest = 0.0F;  ///< bearing that was sent

  PilotTestResult Result() {
    Test.Begin(358.0F, 0);
    double turned = 0.0;  // off the heading of before
    for (double now = 0.0; Test.Runs() && now < 200.0; now += kStep) {
      const double wanted = std::remainder(static_cast<double>(Test.Bearing()) - 358.0, 360.0) * Gain;
      if (Gain >= 0.0) {
        turned += (wanted - turned) * (1.0 - std::exp(-kStep / Lag));
      } else if (wanted != 0.0) {
        turned -= 2.0 * kStep;
      }
      const double heading = std::fmod(358.0 - Offset + turned + Wave(now) + 720.0, 360.0);
      const auto moment = static_cast<std::int64_t>(now * 1000.0);
      Test.Heading(static_cast<float>(heading), moment);
      Test.Tick(moment);
      Farthest = Test.Bearing() != 358.0F ? Test.Bearing() : Farthest;
      m_end = moment;
    }
    return Test.Result();
  }
  std::int64_t Took() const { return m_end; }

 private:
  std::int64_t m_end = 0;
};

TEST(PilotTest, MeasuresLagRateAndOffset) {
  for (const double lag : {1.0, 4.0, 8.0}) {
    Tested boat;
    boat.Lag = lag;
    boat.Offset = 5.0;
    const PilotTestResult result = boat.Result();
    EXPECT_EQ(result.Verdict, FollowVerdict::Follows) << lag;
    ASSERT_TRUE(result.Lag);
    EXPECT_NEAR(*result.Lag, lag, 0.5) << lag;
    EXPECT_NEAR(result.Made, 10.0, 0.5);
    EXPECT_NEAR(result.Rate, 10.0 * (1.0 - std::exp(-3.0 / lag)) / 3.0, 0.2) << lag;
    EXPECT_NEAR(result.Offset, 5.0, 0.3);
    EXPECT_EQ(boat.Farthest, 8.0F) << "over north";
    EXPECT_EQ(boat.Took(), PilotTest::kMost);
    EXPECT_EQ(boat.Test.Bearing(), 358.0F);
  }
}

TEST(PilotTest, WavesHardlyMatter) {
  Tested boat;
  boat.Wave = [](double now) { return 6.0 * std::sin(2.0 * std::numbers::pi * now / 6.3); };
  const PilotTestResult result = boat.Result();
  EXPECT_EQ(result.Verdict, FollowVerdict::Follows);
  EXPECT_NEAR(*result.Lag, 4.0, 1.5);
}

TEST(PilotTest, ALagOfMoreThanEighteenSecondsIsSlow) {
  Tested boat;
  boat.Lag = 20.0;
  const PilotTestResult result = boat.Result();
  EXPECT_EQ(result.Verdict, FollowVerdict::Slow);
  EXPECT_NEAR(*result.Lag, 20.0, 2.0);
  Tested half;
  half.Gain = 0.5;
  EXPECT_EQ(half.Result().Verdict, FollowVerdict::Slow) << "not all the way";
}

TEST(PilotTest, ABoatThatDoesNotTurnIsToldWithoutTheWayBack) {
  Tested boat;
  boat.Gain = 0.0;
  boat.Offset = -7.0;
  const PilotTestResult result = boat.Result();
  EXPECT_EQ(result.Verdict, FollowVerdict::DoesNotFollow);
  EXPECT_FALSE(result.Lag);
  EXPECT_NEAR(result.Offset, -7.0, 0.1);
  EXPECT_EQ(boat.Took(), PilotTest::kListens + PilotTest::kLeg);
  EXPECT_EQ(boat.Test.Bearing(), 358.0F);
}

TEST(PilotTest, ABoatThatTurnsTheWrongWayEndsItAtFifteenDegrees) {
  Tested boat;
  boat.Gain = -1.0;
  const PilotTestResult result = boat.Result();
  EXPECT_EQ(result.Verdict, FollowVerdict::TurnsAway);
  EXPECT_FALSE(result.Lag);
  EXPECT_LT(boat.Took(), 22000);
  EXPECT_EQ(boat.Test.Bearing(), 358.0F);
}

TEST(PilotTest, ABoatThatTurnsByItselfEndsItAtOnce) {
  for (const double side : {1.0, -1.0}) {
    Tested boat;
    boat.Wave = [side](double now) { return side * 3.0 * now; };
    EXPECT_EQ(boat.Result().Verdict, FollowVerdict::TurnsAway);
    EXPECT_LE(boat.Took(), PilotTest::kListens);
    EXPECT_EQ(boat.Farthest, 0.0F) << "nothing was sent";
  }
}

TEST(PilotTest, WithoutAHeadingNothingIsKnown) {
  PilotTest test;
  test.Begin(90.0F, 0);
  for (int second = 0; second <= 100; ++second) {
    test.Tick(1000 * second);
  }
  EXPECT_EQ(test.At(), PilotTest::Stage::Done);
  EXPECT_EQ(test.Result().Verdict, FollowVerdict::Unknown);
}

TEST(PilotTest, StopsAtAnyMoment) {
  PilotTest test;
  test.Begin(90.0F, 0);
  test.Tick(PilotTest::kListens);
  EXPECT_EQ(test.At(), PilotTest::Stage::Out);
  EXPECT_EQ(test.Bearing(), 100.0F);
  EXPECT_NEAR(test.Progress(45000), 0.5, 0.01);
  test.Stop();
  EXPECT_FALSE(test.Runs());
  EXPECT_EQ(test.Bearing(), 90.0F);
  test.Heading(90.0F, 12000);
  test.Tick(100000);
  EXPECT_EQ(test.At(), PilotTest::Stage::Idle);
}

}  // namespace
}  // namespace veerwatch
