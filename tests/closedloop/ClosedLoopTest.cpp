// The program steers the boat of the tests over bytes alone, with the default bandwidth and damping.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <tuple>

#include "tests/closedloop/Passage.h"
#include "tests/closedloop/Response.h"

namespace veerwatch {
namespace {

/// Tracking the present angle, in a steady wind abeam, with the turn of a middling boat.
class Settled : public testing::Test {
 protected:
  Settled() : m_passage(BoatSettings{}, 107.0, 1) {
    m_passage.Sail(60.0);
    m_passage.Track(TrackSide::True);
    m_passage.Sail(60.0);
  }

  Helm& TheHelm() { return m_passage.TheHelm(); }
  void Shift(double degrees) { m_passage.Boat.Set().WindFrom += degrees; }

  /// Sails on and gives the range of the error that the program sees.
  struct Range {
    double Least = 180.0;
    double Most = -180.0;
  };
  Range Sail(double seconds) {
    Range range;
    m_passage.Sail(seconds, [&] {
      range.Least = std::min(range.Least, m_passage.ShownError());
      range.Most = std::max(range.Most, m_passage.ShownError());
    });
    return range;
  }

  /// Shifts the wind and follows it for long enough to have something added up, which it gives.
  double BuildUp() {
    Shift(15.0);
    m_passage.Sail(20.0);
    const double built = TheHelm().Loop().TrackIntegral();
    EXPECT_GT(std::fabs(built), 0.05);
    return built;
  }
  /// In Track at the present angle, the loop has nothing to swing out.
  void ExpectTrackBeginsAtZero() {
    m_passage.Track(TrackSide::True);
    EXPECT_EQ(TheHelm().Loop().TrackIntegral(), 0.0);
    ExpectAtRest();
  }
  void ExpectAtRest() {
    const Range range = Sail(300.0);
    EXPECT_GT(range.Least, -0.3);
    EXPECT_LT(range.Most, 0.3);
  }

  Passage m_passage;
};

class BoatLags : public testing::TestWithParam<double> {};

TEST_P(BoatLags, SettlesOnEitherTackAndSide) {
  for (const TrackSide side : {TrackSide::Apparent, TrackSide::True}) {
    for (const double angle : {45.0, -90.0, 120.0, -160.0}) {
      for (const double shift : {10.0, -10.0}) {
        ShiftCase what;
        what.Loop.Boat.TurnLag = GetParam();
        what.Loop.Side = side;
        what.Loop.WindAngle = angle;
        what.Shift = shift;
        what.Seconds = 400.0;
        const ShiftResult result = AnswerToShift(what);
        EXPECT_TRUE(result.Settled) << "angle " << angle << " shift " << shift << " side "
                                    << static_cast<int>(side) << " after " << result.Settling;
        EXPECT_GT(result.Settling, 1.0) << "the shift was felt";
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(UpToEightSeconds, BoatLags, testing::Values(1.0, 2.0, 4.0, 6.0, 8.0));

TEST(ClosedLoop, SettlesWithTwoWindSentencesASecond) {
  ShiftCase what;
  what.Loop.Boat.WindPeriod = 0.5;
  what.Loop.Boat.TurnLag = 8.0;
  EXPECT_TRUE(AnswerToShift(what).Settled);
}

TEST(ClosedLoop, ATrueWindSensorBesideTheApparentWindDoublesThePasses) {
  ShiftCase what;
  what.Loop.Boat.TurnLag = 8.0;
  const double once = AnswerToShift(what).Overshoot;
  what.Loop.Boat.TrueWindSensor = true;
  const double twice = AnswerToShift(what).Overshoot;
  EXPECT_GT(twice, once + 0.1);
}

TEST(ClosedLoop, TheAdvisedBandwidthSettlesWithLessThanAThirdOfOvershoot) {
  for (const double rate : {0.5, 1.0, 2.0, 5.0, 10.0}) {
    for (const double lag : {1.0, 2.0, 4.0, 6.0, 8.0, 12.0}) {
      ShiftCase what;
      what.Loop.Boat.WindPeriod = 1.0 / rate;
      what.Loop.Boat.TurnLag = lag;
      what.Loop.Bandwidth = static_cast<float>(60.0 * rate);
      what.Seconds = 300.0;
      const ShiftResult result = AnswerToShift(what);
      EXPECT_TRUE(result.Settled) << "rate " << rate << " lag " << lag;
      EXPECT_LT(result.Overshoot, 1.0 / 3.0) << "rate " << rate << " lag " << lag;
    }
  }
}

/// A wind angle and a boat lag.
class GustyWind : public testing::TestWithParam<std::tuple<double, double>> {};

TEST_P(GustyWind, HoldsTheMeanAngleWithinOneDegree) {
  const auto [angle, lag] = GetParam();
  for (const TrackSide side : {TrackSide::Apparent, TrackSide::True}) {
    for (const std::uint64_t seed : {1U, 2U}) {
      LoopCase what;
      what.Boat = GustyBoat();
      what.Boat.TurnLag = lag;
      what.Side = side;
      what.WindAngle = angle;
      const GustResult result = HoldInGusts(what, seed);
      EXPECT_LT(std::fabs(result.Shown), 1.0) << "seed " << seed;
      if (side == TrackSide::Apparent || std::fabs(angle) >= 90.0) {
        // Upwind the true wind is worked out without the leeway, which no loop can see.
        EXPECT_LT(std::fabs(result.Real), 1.0) << "seed " << seed;
      }
      EXPECT_GT(result.Untracked, 2.0) << "gusts that can be felt";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AnglesAndLags, GustyWind,
                         testing::Combine(testing::Values(45.0, -90.0, 160.0), testing::Values(2.0, 8.0)));

TEST_F(Settled, DoesNotWindUpThroughManual) {
  const double built = BuildUp();
  TheHelm().Modes().TrackSetManual();
  TheHelm().Loop().SetAutoPilot(static_cast<double>(m_passage.Set.m_fAutoPilot) + 25.0);
  m_passage.Sail(300.0);
  EXPECT_EQ(TheHelm().Loop().TrackIntegral(), built) << "nothing adds up in Manual";
  ExpectTrackBeginsAtZero();
}

TEST_F(Settled, DoesNotWindUpThroughSetup) {
  const double built = BuildUp();
  TheHelm().Modes().TrackSetSetup();
  Shift(15.0);
  m_passage.Sail(300.0);
  EXPECT_EQ(TheHelm().Loop().TrackIntegral(), built) << "nothing adds up in Setup";
  ExpectTrackBeginsAtZero();
}

TEST_F(Settled, DoesNotWindUpThroughOff) {
  const double built = BuildUp();
  TheHelm().Modes().TrackSetOff();
  Shift(15.0);
  m_passage.Sail(300.0);
  EXPECT_EQ(TheHelm().Loop().TrackIntegral(), built) << "nothing adds up in Off";
  TheHelm().Modes().TrackSetSetup();
  m_passage.Sail(20.0);
  EXPECT_EQ(TheHelm().Loop().TrackIntegral(), built);
  ExpectTrackBeginsAtZero();
}

TEST_F(Settled, DoesNotWindUpThroughAnOutageOfTheInput) {
  Shift(15.0);
  const Range without = Sail(300.0);
  Shift(-15.0);
  m_passage.Sail(300.0);
  // The wind shifts while nothing comes through.
  m_passage.Input.Set().Cut = true;
  m_passage.Sail(1.0);
  const double integral = TheHelm().Loop().TrackIntegral();
  const float bearing = m_passage.Set.m_fAutoPilot;
  m_passage.Sail(300.0);
  Shift(15.0);
  m_passage.Sail(300.0);
  EXPECT_EQ(TheHelm().Loop().TrackIntegral(), integral);
  EXPECT_EQ(m_passage.Set.m_fAutoPilot, bearing);
  EXPECT_GT(m_passage.RealError(), 14.0);
  m_passage.Input.Set().Cut = false;
  const Range with = Sail(300.0);
  EXPECT_NEAR(with.Least, without.Least, 0.1) << "as much overshoot as without the outage";
  ExpectAtRest();
}

TEST_F(Settled, AnOutageInTheMiddleOfACorrectionHoldsIt) {
  Shift(15.0);
  const Range without = Sail(300.0);
  Shift(-15.0);
  m_passage.Sail(300.0);
  Shift(15.0);
  m_passage.Sail(5.0);
  m_passage.Input.Set().Cut = true;
  m_passage.Sail(1.0);
  const double integral = TheHelm().Loop().TrackIntegral();
  ASSERT_GT(std::fabs(integral), 0.05);
  const float bearing = m_passage.Set.m_fAutoPilot;
  m_passage.Sail(600.0);
  EXPECT_EQ(TheHelm().Loop().TrackIntegral(), integral);
  EXPECT_EQ(m_passage.Set.m_fAutoPilot, bearing);
  m_passage.Input.Set().Cut = false;
  const Range with = Sail(300.0);
  EXPECT_GT(with.Least, without.Least) << "less overshoot than without the outage";
  ExpectAtRest();
}

TEST(ClosedLoop, SettlesWithDroppedAndLateSentences) {
  ShiftCase what;
  what.Loop.Boat.TurnLag = 8.0;
  what.Loop.Wire = {1.0, 1.0, 0.3};
  EXPECT_TRUE(AnswerToShift(what).Settled);

  LoopCase gusts = what.Loop;
  gusts.Boat = GustyBoat();
  gusts.Boat.TurnLag = 8.0;
  const GustResult result = HoldInGusts(gusts, 4);
  EXPECT_LT(std::fabs(result.Shown), 1.0);
  EXPECT_LT(std::fabs(result.Real), 1.0);
}

}  // namespace
}  // namespace veerwatch
