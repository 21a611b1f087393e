#include "instruments/Simulator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

#include "tests/support/FixedRandom.h"
#include "tests/support/Origins.h"
#include "tests/support/RecordChanges.h"
#include "tests/support/RecordFault.h"

namespace veerwatch {
namespace {

constexpr double kDegree = std::numbers::pi / 180.0;

class SimulatorTest : public testing::Test {
 protected:
  SimulatorTest() {
    m_settings.m_bSimulate = true;
    m_settings.m_fSimulateNoiseAngle = 0.0F;
    m_settings.m_fSimulateNoiseSpeed = 0.0F;
    m_settings.m_fSimulateCompassOffset = 0.0F;
  }

  const InstrumentData& Data() { return m_record.Data(); }

  struct Waypoint {
    float Bearing = -1.0F;
    float Range = -1.0F;
  };
  Waypoint At(float time) {
    Waypoint waypoint;
    m_simulator.SimulateTime(time, waypoint.Bearing, waypoint.Range);
    return waypoint;
  }

  Settings m_settings;
  InstrumentRecord m_record{m_settings};
  FixedRandom m_random{{0.75, 0.0, 0.25, 0.875}};
  Simulator m_simulator{m_settings, m_record, m_random};
};

TEST_F(SimulatorTest, TheBoatHoldsTheAutopilotBearing) {
  m_settings.m_fAutoPilot = 350.0F;
  m_simulator.Tick(kOrigin.At);
  EXPECT_EQ(Data().Heading, 350.0F);
}

TEST_F(SimulatorTest, TheCompassOffsetIsAddedAndFolded) {
  m_settings.m_fAutoPilot = 350.0F;
  m_settings.m_fSimulateCompassOffset = 20.0F;
  m_simulator.Tick(kOrigin.At);
  EXPECT_EQ(Data().Heading, 10.0F);
}

TEST_F(SimulatorTest, ATickUpdatesEveryValueOfTheRecord) {
  for (int i = 0; i < 2; ++i) {
    m_simulator.Tick(kOrigin.At);
    EXPECT_EQ(TakeChanges(m_record),
              "Heading BoatSpeed Variation Waypoint WindApparent WindTrue WindIndicator");
  }
}

TEST_F(SimulatorTest, MakesAllOfTheRecordValid) {
  m_simulator.Tick(kOrigin.At);
  EXPECT_TRUE(Data().HeadingValid);
  EXPECT_TRUE(Data().BoatSpeedValid);
  EXPECT_TRUE(Data().VariationValid);
  EXPECT_TRUE(Data().WaypointValid);
  EXPECT_TRUE(Data().WindApparentValid);
  EXPECT_TRUE(Data().WindTrueValid);
  EXPECT_TRUE(Data().WindIndicatorValid);
  EXPECT_EQ(Data().Variation, 11.0F);
  EXPECT_EQ(Data().BoatSpeed, 8.0F);
}

TEST_F(SimulatorTest, WithoutNoiseTheApparentWindIsTheVectorSumOfTrueWindAndBoatSpeed) {
  m_settings.m_fSimulateTrueWindAngle = 90.0F;
  for (int bearing = 0; bearing < 360; bearing += 5) {
    m_settings.m_fAutoPilot = static_cast<float>(bearing);
    m_simulator.Tick(kOrigin.At);
    // From 90 true, with 11 degrees of variation: 79 magnetic, and relative to the bow.
    const double relative = std::remainder(90.0 - 11.0 - bearing, 360.0);
    const std::complex<double> apparent = std::polar(12.0, relative * kDegree) + 8.0;
    ASSERT_NEAR(std::remainder(static_cast<double>(Data().WindAngleTrue) - relative, 360.0), 0.0, 1e-4)
        << bearing;
    ASSERT_NEAR(Data().WindSpeedTrue, 12.0, 1e-5) << bearing;
    ASSERT_NEAR(Data().WindAngleApparent, std::arg(apparent) / kDegree, 1e-4) << bearing;
    ASSERT_NEAR(Data().WindSpeedApparent, std::abs(apparent), 1e-5) << bearing;
    ASSERT_EQ(RecordFault(Data()), "");
  }
}

TEST_F(SimulatorTest, WithoutNoiseEveryTickGivesTheSameValues) {
  m_simulator.Tick(kOrigin.At);
  const InstrumentData first = Data();
  for (int i = 0; i < 5; ++i) {
    m_simulator.Tick(kOrigin.At);
    using D = InstrumentData;
    for (float D::*value : {&D::Heading, &D::BoatSpeed, &D::WindAngleApparent, &D::WindSpeedApparent,
                            &D::WaypointRange, &D::WaypointBearing}) {
      EXPECT_EQ(Data().*value, first.*value);
    }
    // The true wind passes through the average of two equal values, which rounds in the last digits.
    EXPECT_NEAR(Data().WindAngleTrue, -51.0F, 1e-4);  // 0 - 11 - 40
    EXPECT_NEAR(Data().WindSpeedTrue, 12.0F, 1e-5);
  }
}

TEST_F(SimulatorTest, DrawsFourNumbersATick) {
  m_simulator.Tick(kOrigin.At);
  EXPECT_EQ(m_random.Draws, 4U);
  m_simulator.Tick(kOrigin.At);
  EXPECT_EQ(m_random.Draws, 8U);
}

TEST_F(SimulatorTest, NoiseIsCentredOnZeroAndDrawnForAngleAndSpeedOfTheApparentThenTheTrueWind) {
  m_settings.m_fSimulateNoiseAngle = 4.0F;
  m_settings.m_fSimulateNoiseSpeed = 2.0F;
  m_settings.m_fAutoPilot = 349.0F;  // the wind, from 349 magnetic, is dead ahead
  m_simulator.Tick(kOrigin.At);
  EXPECT_NEAR(Data().WindAngleApparent, (0.75 - 0.5) * 4.0, 1e-5);
  EXPECT_NEAR(Data().WindSpeedApparent, 20.0 + (0.0 - 0.5) * 2.0, 1e-5);
  EXPECT_NEAR(Data().WindAngleTrue, (0.25 - 0.5) * 4.0, 1e-5);
  EXPECT_NEAR(Data().WindSpeedTrue, 12.0 + (0.875 - 0.5) * 2.0, 1e-5);
}

TEST_F(SimulatorTest, HeadingAndBoatSpeedGetNoNoise) {
  m_settings.m_fSimulateNoiseAngle = 90.0F;
  m_settings.m_fSimulateNoiseSpeed = 9.0F;
  m_simulator.Tick(kOrigin.At);
  EXPECT_EQ(Data().Heading, 40.0F);
  EXPECT_EQ(Data().BoatSpeed, 8.0F);
}

TEST_F(SimulatorTest, ANoisyAngleIsFolded) {
  m_settings.m_fSimulateNoiseAngle =
      40.0F;  // 10 to starboard on the apparent wind, 10 to port on the true one
  m_settings.m_fSimulateBoatSpeed = 0.0F;
  m_settings.m_fAutoPilot = 174.0F;  // the wind, from 349, is 175 to starboard
  m_simulator.Tick(kOrigin.At);
  EXPECT_NEAR(Data().WindAngleApparent, -175.0F, 1e-4);
  EXPECT_NEAR(Data().WindAngleTrue, 165.0F, 1e-4);
  m_settings.m_fAutoPilot = 164.0F;  // 175 to port
  m_simulator.Tick(kOrigin.At);
  EXPECT_NEAR(Data().WindAngleApparent, -165.0F, 1e-4);
  EXPECT_NEAR(Data().WindAngleTrue, 175.0F, 1e-4);
}

TEST_F(SimulatorTest, TheApparentWindIsSmoothedAndTheTrueWindEndsAsTheNoisyValueOfItsTick) {
  m_settings.m_fNmeaTrueWindAverage = 4.0F;
  m_settings.m_fSimulateNoiseSpeed = 4.0F;
  m_settings.m_fAutoPilot = 349.0F;
  FixedRandom random({0.5, 0.5, 0.5, 0.5, 0.5, 0.75, 0.5, 0.75});
  Simulator simulator(m_settings, m_record, random);
  simulator.Tick(kOrigin.At);
  simulator.Tick(kOrigin.At);
  EXPECT_NEAR(Data().WindSpeedApparent, 21.0F, 1e-5);
  EXPECT_NEAR(Data().WindSpeedApparentAverage, 20.25F, 1e-5);
  // Written straight into the record before the update averages it with itself.
  EXPECT_NEAR(Data().WindSpeedTrue, 13.0F, 1e-5);
}

TEST_F(SimulatorTest, TheVariationIsThereBeforeTheWindIndicator) {
  m_settings.m_fSimulateTrueWindAngle = 77.0F;
  m_simulator.Tick(kOrigin.At);
  EXPECT_NEAR(Data().WindDirectionAverage, 77.0F, 1e-4);
}

TEST_F(SimulatorTest, TheWaypointDoesNotMoveFromTickToTick) {
  m_settings.m_fAutoPilot = 5.0F;
  At(0.0F);
  At(0.5F);
  for (int i = 0; i < 3; ++i) {
    m_simulator.Tick(kOrigin.At);
    EXPECT_NEAR(Data().WaypointRange, 6.0F, 1e-5);
    EXPECT_NEAR(Data().WaypointBearing, 5.0F, 1e-4);
  }
}

TEST_F(SimulatorTest, AtTimeZeroEveryTickShowsTheWaypointOfTheSettings) {
  m_simulator.Tick(kOrigin.At);
  EXPECT_EQ(Data().WaypointBearing, 5.0F);
  EXPECT_EQ(Data().WaypointRange, 10.0F);
  m_settings.m_fSimulateWaypointBearing = 77.0F;
  m_settings.m_fSimulateWaypointRange = 3.0F;
  m_simulator.Tick(kOrigin.At);
  EXPECT_EQ(Data().WaypointBearing, 77.0F);
  EXPECT_EQ(Data().WaypointRange, 3.0F);
}

TEST_F(SimulatorTest, SettingsAtTheEndsOfASingleNeverBringAValueThatIsNotFiniteIntoTheRecord) {
  constexpr float kLargest = std::numeric_limits<float>::max();
  for (const float value : {kLargest, -kLargest}) {
    for (float Settings::*setting : {&Settings::m_fSimulateBoatSpeed, &Settings::m_fSimulateCompassOffset,
                                     &Settings::m_fSimulateNoiseAngle, &Settings::m_fSimulateNoiseSpeed,
                                     &Settings::m_fSimulateTrueWindAngle, &Settings::m_fSimulateTrueWindSpeed,
                                     &Settings::m_fSimulateVariation, &Settings::m_fSimulateWaypointBearing,
                                     &Settings::m_fSimulateWaypointRange}) {
      const Settings before = m_settings;
      m_settings.*setting = value;
      m_settings.m_fSimulateTrueWindSpeed = value;
      for (int i = 0; i < 8; ++i) {
        m_simulator.Tick(kOrigin.At);
        for (const float field : {Data().Heading, Data().BoatSpeed, Data().Variation, Data().WaypointBearing,
                                  Data().WaypointRange, Data().WindAngleApparent, Data().WindSpeedApparent,
                                  Data().WindAngleTrue, Data().WindSpeedTrue, Data().WindDirectionAverage,
                                  Data().WindSpeedAverage, Data().WindSpeedApparentAverage}) {
          ASSERT_TRUE(std::isfinite(field));
        }
      }
      m_settings = before;
    }
  }
}

// --- SimulateTime
// ------------------------------------------------------------------------------------------------

TEST_F(SimulatorTest, TimeZeroPutsTheBoatBack) {
  At(0.0F);
  At(1.0F);
  const Waypoint waypoint = At(0.0F);
  EXPECT_EQ(waypoint.Bearing, 5.0F);
  EXPECT_EQ(waypoint.Range, 10.0F);
  EXPECT_EQ(m_settings.m_fSimulateTime, 0.0F);
}

TEST_F(SimulatorTest, AnHourTowardsTheWaypointAtSixKnotsShortensTheRangeBySixMiles) {
  m_settings.m_fSimulateBoatSpeed = 6.0F;
  m_settings.m_fAutoPilot = 5.0F;
  At(0.0F);
  const Waypoint waypoint = At(1.0F);
  EXPECT_NEAR(waypoint.Range, 4.0F, 1e-5);
  EXPECT_NEAR(waypoint.Bearing, 5.0F, 1e-4);
  EXPECT_EQ(m_settings.m_fSimulateTime, 1.0F);
}

TEST_F(SimulatorTest, AWaypointThatIsPassedComesOutBehind) {
  m_settings.m_fSimulateBoatSpeed = 6.0F;
  m_settings.m_fAutoPilot = 5.0F;
  At(0.0F);
  const Waypoint waypoint = At(2.0F);
  EXPECT_NEAR(waypoint.Range, 2.0F, 1e-5);
  EXPECT_NEAR(waypoint.Bearing, -175.0F, 1e-4);
}

TEST_F(SimulatorTest, TheSameNonZeroTimeAgainChangesNothing) {
  m_settings.m_fAutoPilot = 60.0F;
  At(0.0F);
  const Waypoint first = At(1.25F);
  m_settings.m_fSimulateBoatSpeed = 20.0F;
  m_settings.m_fSimulateWaypointRange = 99.0F;
  const Waypoint second = At(1.25F);
  EXPECT_EQ(second.Bearing, first.Bearing);
  EXPECT_EQ(second.Range, first.Range);
}

TEST_F(SimulatorTest, AnEarlierTimeRunsTheBoatBackwards) {
  m_settings.m_fAutoPilot = 60.0F;
  At(0.0F);
  const Waypoint first = At(1.0F);
  At(2.0F);
  const Waypoint back = At(1.0F);
  EXPECT_NEAR(back.Bearing, first.Bearing, 1e-4);
  EXPECT_NEAR(back.Range, first.Range, 1e-5);
}

TEST_F(SimulatorTest, SailingAcrossTurnsTheBearing) {
  m_settings.m_fSimulateBoatSpeed = 10.0F;
  m_settings.m_fSimulateWaypointBearing = 0.0F;
  m_settings.m_fAutoPilot = 90.0F;
  At(0.0F);
  const Waypoint waypoint = At(1.0F);
  EXPECT_NEAR(waypoint.Range, 14.1421356F, 1e-5);
  EXPECT_NEAR(waypoint.Bearing, -45.0F, 1e-4);
}

TEST_F(SimulatorTest, AMovedBearingIsRelativeAndNotFoldedTo360) {
  m_settings.m_fSimulateBoatSpeed = 6.0F;
  m_settings.m_fSimulateWaypointBearing = 270.0F;
  m_settings.m_fAutoPilot = 270.0F;
  EXPECT_EQ(At(0.0F).Bearing, 270.0F);
  EXPECT_NEAR(At(1.0F).Bearing, -90.0F, 1e-4);
}

TEST_F(SimulatorTest, SteppingThroughTheTimeLeadsWhereOneStepLeads) {
  m_settings.m_fAutoPilot = 100.0F;
  At(0.0F);
  const Waypoint inOne = At(2.0F);
  At(0.0F);
  Waypoint inSteps;
  for (int i = 1; i <= 8; ++i) {
    inSteps = At(static_cast<float>(i) * 0.25F);
  }
  EXPECT_NEAR(inSteps.Bearing, inOne.Bearing, 1e-3);
  EXPECT_NEAR(inSteps.Range, inOne.Range, 1e-4);
}

TEST_F(SimulatorTest, ATimeThatIsNotFiniteChangesNothing) {
  m_settings.m_fAutoPilot = 60.0F;
  At(0.0F);
  const Waypoint first = At(1.0F);
  for (const float time : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                           -std::numeric_limits<float>::infinity()}) {
    At(time);
    EXPECT_EQ(m_settings.m_fSimulateTime, 1.0F);
    const Waypoint still = At(1.0F);
    EXPECT_EQ(still.Bearing, first.Bearing);
    EXPECT_EQ(still.Range, first.Range);
  }
}

TEST_F(SimulatorTest, ATimeThatLeadsBeyondEveryNumberStaysFinite) {
  m_settings.m_fSimulateBoatSpeed = 3e38F;
  At(0.0F);
  const Waypoint waypoint = At(3e38F);
  EXPECT_TRUE(std::isfinite(waypoint.Range));
  EXPECT_TRUE(std::isfinite(waypoint.Bearing));
}

}  // namespace
}  // namespace veerwatch
