// Every scene, turned or seen in a mirror, through the whole way from bytes to the autopilot.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

#include "platform/Random.h"
#include "tests/properties/Bearings.h"
#include "tests/properties/Scene.h"
#include "tests/support/RecordFault.h"

namespace veerwatch {
namespace {

constexpr std::uint64_t kScenes = 300;
constexpr int kSteps = 120;

/// Directions are singles that went through a few sums.
constexpr double kNear = 0.002;
/// The same for speeds.
constexpr double kNearAmount = 1e-4;
/// An autopilot sentence has one decimal.
constexpr double kDecimal = 0.1 + kNear;

/// So close to the bow or the stern the walking wind may change its side.
constexpr double kNearLine = 10.0;

/// How much a whole run of scenes has tried.
struct Tried {
  int Controlled = 0;  ///< steps in which the loop turned the bearing
  int Sent = 0;
  int Alarms = 0;
  int Waypoints = 0;
  int TrueWinds = 0;
  int Relatives = 0;
  int Ahead = 0;   ///< steps with the wind near the bow
  int Astern = 0;  ///< and near the stern
  void Add(const SceneAnswer& answer) {
    Controlled += answer.Turned != 0.0 ? 1 : 0;
    Sent += static_cast<int>(answer.ApbBearings.size());
    Alarms += answer.Alarms > 0 ? 1 : 0;
    Waypoints += answer.Record.WaypointValid ? 1 : 0;
    TrueWinds += answer.Record.WindTrueValid ? 1 : 0;
    Relatives += static_cast<int>(answer.Relatives.size());
    const double wind = std::fabs(static_cast<double>(answer.Record.WindAngleApparent));
    Ahead += answer.Record.WindApparentValid && wind < kNearLine ? 1 : 0;
    Astern += answer.Record.WindApparentValid && wind > 180.0 - kNearLine ? 1 : 0;
  }
  /// The scenes were worth playing.
  void ExpectEnough() const {
    EXPECT_GT(Controlled, 1000);
    EXPECT_GT(Sent, 3000);
    EXPECT_GT(Alarms, 1000);
    EXPECT_GT(Waypoints, 1000);
    EXPECT_GT(TrueWinds, 1000);
    EXPECT_GT(Relatives, 10000);
  }
};

void ExpectSameValidity(const InstrumentData& a, const InstrumentData& b) {
  EXPECT_EQ(a.HeadingValid, b.HeadingValid);
  EXPECT_EQ(a.BoatSpeedValid, b.BoatSpeedValid);
  EXPECT_EQ(a.VariationValid, b.VariationValid);
  EXPECT_EQ(a.WaypointValid, b.WaypointValid);
  EXPECT_EQ(a.WindApparentValid, b.WindApparentValid);
  EXPECT_EQ(a.WindTrueValid, b.WindTrueValid);
  EXPECT_EQ(a.WindIndicatorValid, b.WindIndicatorValid);
}

void ExpectSameSpeeds(const InstrumentData& a, const InstrumentData& b, double tolerance) {
  EXPECT_EQ(a.BoatSpeed, b.BoatSpeed);
  EXPECT_EQ(a.BoatSpeedAverage, b.BoatSpeedAverage);
  EXPECT_EQ(a.WaypointRange, b.WaypointRange);
  EXPECT_EQ(a.WindSpeedApparent, b.WindSpeedApparent);
  EXPECT_EQ(a.WindSpeedApparentAverage, b.WindSpeedApparentAverage);
  EXPECT_NEAR(a.WindSpeedTrue, b.WindSpeedTrue, tolerance);
  EXPECT_NEAR(a.WindSpeedAverage, b.WindSpeedAverage, tolerance);
}

/// Each direction of `b` is where `where` puts that of `a`.
template <class Where>
void ExpectDirections(const SceneAnswer& a, const SceneAnswer& b, Where where) {
  const auto expectNear = [&](double before, double after, double tolerance) {
    EXPECT_LT(Off(after, where(before)), tolerance) << before << " became " << after;
  };
  const auto expectField = [&](bool valid, float before, float after) {
    if (valid) {
      expectNear(static_cast<double>(before), static_cast<double>(after), kNear);
    }
  };
  expectField(a.Record.HeadingValid, a.Record.Heading, b.Record.Heading);
  expectField(a.Record.HeadingValid, a.Record.HeadingAverage, b.Record.HeadingAverage);
  expectField(a.Record.WaypointValid, a.Record.WaypointBearing, b.Record.WaypointBearing);
  expectField(a.Record.WindIndicatorValid, a.Record.WindDirectionAverage, b.Record.WindDirectionAverage);
  expectField(true, a.AutoPilot, b.AutoPilot);
  EXPECT_GE(b.AutoPilot, 0.0F);
  EXPECT_LT(b.AutoPilot, 360.0F);
  ASSERT_EQ(a.Directions.size(), b.Directions.size());
  for (std::size_t i = 0; i < a.Directions.size(); ++i) {
    expectNear(a.Directions[i], b.Directions[i], kNear);
  }
  ASSERT_EQ(a.ApbBearings.size(), b.ApbBearings.size());
  for (std::size_t i = 0; i < a.ApbBearings.size(); ++i) {
    expectNear(a.ApbBearings[i], b.ApbBearings[i], kDecimal);
    EXPECT_GE(b.ApbBearings[i], 0.0);
    EXPECT_LE(b.ApbBearings[i], 360.0) << "what rounds up to a whole turn is sent as one";
  }
}

/// Every angle shown has changed its side, every speed and range is what it was.
void ExpectMirroredLabels(const SceneAnswer& a, const SceneAnswer& b) {
  ASSERT_EQ(a.Relatives.size(), b.Relatives.size());
  for (std::size_t i = 0; i < a.Relatives.size(); ++i) {
    EXPECT_LT(Off(a.Relatives[i], -b.Relatives[i]), kNear) << "angle " << i;
  }
  ASSERT_EQ(a.Amounts.size(), b.Amounts.size());
  for (std::size_t i = 0; i < a.Amounts.size(); ++i) {
    EXPECT_NEAR(a.Amounts[i], b.Amounts[i], kNearAmount) << "amount " << i;
  }
}

TEST(AnyScene, TurnedByAnyAngleTurnsEveryDirectionAndLeavesTheRest) {
  SeededRandom random(2026);
  Tried tried;
  for (std::uint64_t seed = 0; seed < kScenes && !HasFailure(); ++seed) {
    const Scene scene = RandomScene(seed, kSteps, SceneWind::AllRound);
    const int turn = 1 + static_cast<int>(random.Next() * 3599.0);
    const auto plain = Play(scene, {});
    const auto turned = Play(scene, {false, turn});
    for (std::size_t i = 0; i < plain.size() && !HasFailure(); ++i) {
      SCOPED_TRACE(testing::Message() << "scene " << seed << " step " << i << " turned by " << turn);
      const SceneAnswer& a = plain[i];
      const SceneAnswer& b = turned[i];
      tried.Add(a);
      EXPECT_EQ(RecordFault(b.Record), "");
      ExpectSameValidity(a.Record, b.Record);
      ExpectSameSpeeds(a.Record, b.Record, 0.0);
      ExpectDirections(a, b, [turn](double before) { return before + turn / 10.0; });
      EXPECT_EQ(a.Record.Variation, b.Record.Variation);
      EXPECT_EQ(a.Record.WindAngleApparent, b.Record.WindAngleApparent);
      EXPECT_EQ(a.Record.WindAngleApparentAverage, b.Record.WindAngleApparentAverage);
      EXPECT_EQ(a.Record.WindAngleTrue, b.Record.WindAngleTrue);
      for (const int side : {0, 1}) {
        EXPECT_EQ(a.Desired[side], b.Desired[side]);
        EXPECT_EQ(a.Delta[side], b.Delta[side]);
      }
      EXPECT_EQ(a.Integral, b.Integral);
      EXPECT_NEAR(a.Turned, b.Turned, kNear);
      EXPECT_EQ(a.Alarms, b.Alarms);
      EXPECT_EQ(a.Relatives, b.Relatives);
      EXPECT_EQ(a.Amounts, b.Amounts);
    }
  }
  tried.ExpectEnough();
  EXPECT_GT(tried.Ahead, 1000);
  EXPECT_GT(tried.Astern, 1000);
}

TEST(AnyScene, InAMirrorGivesTheMirroredAnswers) {
  Tried tried;
  for (std::uint64_t seed = 1000; seed < 1000 + kScenes && !HasFailure(); ++seed) {
    const Scene scene = RandomScene(seed, kSteps, SceneWind::OneSide);
    const auto plain = Play(scene, {});
    const auto mirrored = Play(scene, {true, 0});
    for (std::size_t i = 0; i < plain.size() && !HasFailure(); ++i) {
      SCOPED_TRACE(testing::Message() << "scene " << seed << " step " << i);
      const SceneAnswer& a = plain[i];
      const SceneAnswer& b = mirrored[i];
      tried.Add(a);
      EXPECT_EQ(RecordFault(b.Record), "");
      ExpectSameValidity(a.Record, b.Record);
      ExpectSameSpeeds(a.Record, b.Record, kNearAmount);
      ExpectDirections(a, b, [](double before) { return -before; });
      EXPECT_EQ(a.Record.Variation, -b.Record.Variation);
      EXPECT_LT(Off(a.Record.WindAngleApparent, -b.Record.WindAngleApparent), kNear);
      EXPECT_LT(Off(a.Record.WindAngleApparentAverage, -b.Record.WindAngleApparentAverage), kNear);
      EXPECT_LT(Off(a.Record.WindAngleTrue, -b.Record.WindAngleTrue), kNear);
      for (const int side : {0, 1}) {
        EXPECT_LT(Off(a.Desired[side], -b.Desired[side]), kNear);
        EXPECT_LT(Off(a.Delta[side], -b.Delta[side]), kNear);
      }
      EXPECT_NEAR(a.Integral, -b.Integral, kNear);
      EXPECT_NEAR(a.Turned, -b.Turned, kNear) << "the bearing turns to the other side";
      EXPECT_EQ(a.Alarms, b.Alarms);
      ExpectMirroredLabels(a, b);
    }
  }
  tried.ExpectEnough();
}

}  // namespace
}  // namespace veerwatch
