#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <utility>
#include <vector>

#include "tests/control/TrackLoopTester.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using Alarm = LoopStep::Alarm;

class TrackLoopTest : public TrackLoopTester {};

// Gains

TEST_F(TrackLoopTest, TheDefaultsGiveGainsOfOneAndOf64In65PartsOfAFifth) {
  ASSERT_TRUE(m_loop.StartTracking());
  const double w = static_cast<double>(0.2F);
  EXPECT_NEAR(m_loop.TrackGainIntegral(), w / 65.0, 1e-9);
  EXPECT_NEAR(m_loop.TrackGainProportional(), w * 64.0 / 65.0, 1e-8);
  EXPECT_EQ(m_loop.TrackIntegral(), 0.0);
}

TEST_F(TrackLoopTest, WithoutDampingTheIntegralGainIsAllAndTheProportionalGainNone) {
  m_settings.m_fTrackDamping = 0.0F;
  ASSERT_TRUE(m_loop.StartTracking());
  EXPECT_NEAR(m_loop.TrackGainIntegral(), 0.2, 1e-8);
  EXPECT_EQ(m_loop.TrackGainProportional(), 0.0);
}

TEST_F(TrackLoopTest, TheGainsFollowBandwidthAndDamping) {
  m_settings.m_fTrackBandwidth = 8.0F;
  m_settings.m_fTrackDamping = 0.5F;
  ASSERT_TRUE(m_loop.StartTracking());
  EXPECT_EQ(m_loop.TrackGainIntegral(), 0.25);  // w = 0.5, shared by 4 * 0.25 + 1 = 2
  EXPECT_EQ(m_loop.TrackGainProportional(), 0.25);
}

TEST_F(TrackLoopTest, WorksWithTheTuningOfItsStartWhateverIsSetMeanwhile) {
  m_settings.m_fTrackBandwidth = 8.0F;
  m_settings.m_fTrackDamping = 0.5F;
  ASSERT_TRUE(m_loop.StartTracking());
  m_settings.m_fTrackBandwidth = 30.0F;
  m_settings.m_fTrackDamping = 2.0F;
  EXPECT_EQ(m_loop.Tuning().Bandwidth, 8.0F);
  EXPECT_EQ(m_loop.Tuning().Damping, 0.5F);
  m_settings.m_fTrackBandwidth = 0.0F;
  ASSERT_FALSE(m_loop.StartTracking());
  EXPECT_EQ(m_loop.Tuning().Bandwidth, 8.0F);
}

TEST_F(TrackLoopTest, StartingZeroesTheAccumulator) {
  Track();
  Step(10.0F);
  ASSERT_GT(m_loop.TrackIntegral(), 0.0);
  ASSERT_TRUE(m_loop.StartTracking());
  EXPECT_EQ(m_loop.TrackIntegral(), 0.0);
}

TEST_F(TrackLoopTest, IsRefusedWithNothingChangedWhileThereAreNoUsableGains) {
  Track();
  Step(10.0F);
  const double integral = m_loop.TrackIntegral();
  const double gain = m_loop.TrackGainIntegral();
  constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
  for (const auto& [bandwidth, damping] :
       std::vector<std::pair<float, float>>{{0.0F, 4.0F}, {-20.0F, 4.0F}, {kNan, 4.0F}, {20.0F, kNan}}) {
    m_settings.m_fTrackBandwidth = bandwidth;
    m_settings.m_fTrackDamping = damping;
    EXPECT_FALSE(m_loop.StartTracking()) << bandwidth << " " << damping;
    EXPECT_EQ(m_loop.TrackIntegral(), integral);
    EXPECT_EQ(m_loop.TrackGainIntegral(), gain);
  }
}

TEST_F(TrackLoopTest, AnErrorThatIsNoNumberEmptiesTheAccumulator) {
  Track();
  Step(10.0F);
  ASSERT_GT(m_loop.TrackIntegral(), 0.0);
  Step(std::numeric_limits<float>::quiet_NaN());
  EXPECT_EQ(m_loop.TrackIntegral(), 0.0);
}

// Off, Setup, Manual

TEST_F(TrackLoopTest, NothingHappensInOffOrWhileSwitching) {
  for (const TrackMode mode : {TrackMode::Off, TrackMode::Switching}) {
    m_settings.m_eTrackMode = mode;
    m_settings.m_fAutoPilot = 123.0F;
    const LoopStep step = Step(90.0F);
    EXPECT_FALSE(step.Ran);
    EXPECT_FALSE(step.Followed);
    EXPECT_FALSE(step.Tracked);
    EXPECT_FALSE(step.Sends);
    EXPECT_EQ(step.Rings, Alarm::AsBefore);
    EXPECT_EQ(Apparent(), 45.0F);
    EXPECT_EQ(m_settings.m_fAutoPilot, 123.0F);
    EXPECT_EQ(m_loop.PreviousAutoPilot(), 0.0F);
  }
}

TEST_F(TrackLoopTest, InSetupTheDesiredAnglesFollowAndNothingIsSent) {
  m_settings.m_eTrackMode = TrackMode::Setup;
  m_data.WindAngleApparent = -30.0F;
  m_data.WindAngleTrue = -50.0F;
  const LoopStep step = m_loop.ControlStep(kOrigin.At);
  EXPECT_EQ(Apparent(), -30.0F);
  EXPECT_EQ(True(), -50.0F);
  EXPECT_TRUE(step.Ran);
  EXPECT_TRUE(step.Followed);
  EXPECT_EQ(step.DeltaApparent, 0.0F);
  EXPECT_EQ(step.DeltaTrue, 0.0F);
  EXPECT_FALSE(step.Tracked);
  EXPECT_FALSE(step.Sends);
  EXPECT_EQ(m_loop.PreviousAutoPilot(), 40.0F);
}

TEST_F(TrackLoopTest, InManualTheDesiredAnglesFollowAndTheTypedBearingIsSentUnchangedAtEveryPass) {
  m_settings.m_eTrackMode = TrackMode::Manual;
  m_loop.SetAutoPilot(123.5);
  for (int i = 0; i < 3; ++i) {
    m_data.WindAngleApparent = static_cast<float>(10 * i);
    const LoopStep step = m_loop.ControlStep(kOrigin.At);
    EXPECT_EQ(Apparent(), static_cast<float>(10 * i));
    EXPECT_EQ(m_settings.m_fAutoPilot, 123.5F);
    EXPECT_TRUE(step.Ran);
    EXPECT_TRUE(step.Followed);
    EXPECT_TRUE(step.Sends);
    EXPECT_FALSE(step.Tracked);
  }
}

// The controller

TEST_F(TrackLoopTest, APassInTrackCorrectsTheBearingForThePilot) {
  Track();
  m_settings.m_fAutoPilot = 100.0F;
  const LoopStep step = Step(10.0F);
  EXPECT_TRUE(step.Ran);
  EXPECT_FALSE(step.Followed);
  EXPECT_EQ(step.DeltaApparent, 10.0F);
  EXPECT_EQ(step.DeltaTrue, 0.0F);
  EXPECT_TRUE(step.Tracked);
  EXPECT_EQ(step.Error, 10.0F);
  EXPECT_TRUE(step.Sends);
  EXPECT_EQ(step.Rings, Alarm::Raised);
  EXPECT_GT(m_settings.m_fAutoPilot, 100.0F);
  EXPECT_EQ(m_loop.PreviousAutoPilot(), m_settings.m_fAutoPilot);
}

TEST_F(TrackLoopTest, UsesTheAccumulatorOfBeforeThePass) {
  m_settings.m_fTrackBandwidth = 8.0F;
  m_settings.m_fTrackDamping = 0.5F;  // both gains 0.25
  m_settings.m_fAutoPilot = 100.0F;
  Track();
  Step(8.0F);
  EXPECT_EQ(m_settings.m_fAutoPilot, 102.0F);  // (8 + 0) / 4
  EXPECT_EQ(m_loop.TrackIntegral(), 2.0);
  Step(8.0F);
  EXPECT_EQ(m_settings.m_fAutoPilot, 104.5F);  // (8 + 2) / 4
  EXPECT_EQ(m_loop.TrackIntegral(), 4.0);
  Step(-4.0F);
  EXPECT_EQ(m_settings.m_fAutoPilot, 104.5F);  // (-4 + 4) / 4
  EXPECT_EQ(m_loop.TrackIntegral(), 3.0);
}

TEST_F(TrackLoopTest, LimitsNoCorrection) {
  m_settings.m_fTrackBandwidth = 2.0F;  // w = 2
  m_settings.m_fTrackMaxSteerTo = 1.0F;
  m_settings.m_fAutoPilot = 100.0F;
  Track();
  Step(65.0F);
  EXPECT_NEAR(m_settings.m_fAutoPilot, 228.0F, 1e-4);  // 65 * 2 * 64 / 65
}

TEST_F(TrackLoopTest, TheBearingWrapsAroundNorth) {
  m_settings.m_fTrackBandwidth = 8.0F;
  m_settings.m_fTrackDamping = 0.5F;
  Track();
  m_settings.m_fAutoPilot = 359.5F;
  Step(4.0F);
  EXPECT_EQ(m_settings.m_fAutoPilot, 0.5F);
  ASSERT_TRUE(m_loop.StartTracking());
  Step(-4.0F);
  EXPECT_EQ(m_settings.m_fAutoPilot, 359.5F);
}

TEST_F(TrackLoopTest, TheDeltasAreFolded) {
  Track();
  m_settings.DesiredAngle = {0.0F, 170.0F, -170.0F};
  m_data.WindAngleApparent = -170.0F;
  m_data.WindAngleTrue = 170.0F;
  const LoopStep step = m_loop.ControlStep(kOrigin.At);
  EXPECT_EQ(step.DeltaApparent, 20.0F);
  EXPECT_EQ(step.DeltaTrue, -20.0F);
}

TEST_F(TrackLoopTest, TracksTheChosenSide) {
  m_settings.m_fTrackBandwidth = 8.0F;
  m_settings.m_fTrackDamping = 0.5F;
  m_loop.Side(TrackSide::True);
  EXPECT_EQ(m_loop.Side(), TrackSide::True);
  Track();
  m_settings.m_fAutoPilot = 100.0F;
  m_data.WindAngleApparent = 55.0F;
  m_data.WindAngleTrue = 88.0F;
  EXPECT_EQ(m_loop.ControlStep(kOrigin.At).Error, -4.0F);
  EXPECT_EQ(m_settings.m_fAutoPilot, 99.0F);
}

TEST_F(TrackLoopTest, StartsOnTheApparentSide) { EXPECT_EQ(m_loop.Side(), TrackSide::Apparent); }

TEST_F(TrackLoopTest, InTrackTheDesiredAnglesStay) {
  Track();
  EXPECT_FALSE(Step(10.0F).Followed);
  EXPECT_EQ(Apparent(), 45.0F);
  EXPECT_EQ(True(), 92.0F);
}

// The alarm

TEST_F(TrackLoopTest, AnErrorEqualToTheLimitRaisesNoAlarmAndAnyLargerOneDoes) {
  Track();
  EXPECT_EQ(Step(5.0F).Rings, Alarm::AsBefore);
  EXPECT_EQ(Step(-5.0F).Rings, Alarm::AsBefore);
  const LoopStep beyond = Step(5.0078125F);
  EXPECT_EQ(beyond.Rings, Alarm::Raised);
  EXPECT_EQ(beyond.Error, 5.0078125F);
}

TEST_F(TrackLoopTest, TheAlarmIsRaisedAtEveryPassBeyondTheLimitAndWithdrawnOnce) {
  Track();
  std::vector<Alarm> rings;
  for (const float error : {10.0F, -12.0F, 7.0F, 1.0F, 1.0F, 8.0F}) {
    const LoopStep step = Step(error);
    EXPECT_EQ(step.Error, error);
    rings.push_back(step.Rings);
  }
  EXPECT_THAT(rings, ElementsAre(Alarm::Raised, Alarm::Raised, Alarm::Raised, Alarm::Over, Alarm::AsBefore,
                                 Alarm::Raised));
}

TEST_F(TrackLoopTest, TheAlarmHearsTheChosenSideAndIgnoresTheOther) {
  m_loop.Side(TrackSide::True);
  Track();
  m_data.WindAngleApparent = 145.0F;
  m_data.WindAngleTrue = 100.0F;
  const LoopStep off = m_loop.ControlStep(kOrigin.At);
  EXPECT_EQ(off.Rings, Alarm::Raised);
  EXPECT_EQ(off.Error, 8.0F);
  m_data.WindAngleTrue = 92.0F;
  EXPECT_EQ(m_loop.ControlStep(kOrigin.At).Rings, Alarm::Over);
}

TEST_F(TrackLoopTest, AnAlarmThatIsSwitchedOffWhileItRingsIsWithdrawn) {
  Track();
  EXPECT_EQ(Step(10.0F).Rings, Alarm::Raised);
  m_settings.m_bTrackAlarm = false;
  EXPECT_EQ(Step(10.0F).Rings, Alarm::Over);
  EXPECT_EQ(Step(10.0F).Rings, Alarm::AsBefore);
}

TEST_F(TrackLoopTest, ASwitchedOffAlarmIsNotRaised) {
  m_settings.m_bTrackAlarm = false;
  Track();
  EXPECT_EQ(Step(90.0F).Rings, Alarm::AsBefore);
}

TEST_F(TrackLoopTest, SetupAndManualRaiseNoAlarm) {
  for (const TrackMode mode : {TrackMode::Setup, TrackMode::Manual}) {
    m_settings.m_eTrackMode = mode;
    EXPECT_EQ(Step(90.0F).Rings, Alarm::AsBefore);
  }
}

TEST_F(TrackLoopTest, WithdrawingEndsAnAlarmThatRingsOnce) {
  EXPECT_FALSE(m_loop.WithdrawAlarm());
  Track();
  Step(10.0F);
  EXPECT_TRUE(m_loop.WithdrawAlarm());
  EXPECT_FALSE(m_loop.WithdrawAlarm());
  EXPECT_EQ(Step(1.0F).Rings, Alarm::AsBefore);
}

// Steering

TEST_F(TrackLoopTest, SteeringOnTheTrueSideMovesTheAngleOneWayAndTheBearingTheOther) {
  m_loop.Side(TrackSide::True);
  Track();
  Step(3.0F);
  m_settings.m_fAutoPilot = 355.0F;
  EXPECT_TRUE(m_loop.TrackSteerTo(10.0F));
  EXPECT_EQ(True(), 82.0F);
  EXPECT_EQ(m_settings.m_fAutoPilot, 5.0F);
  EXPECT_EQ(m_loop.TrackIntegral(), 0.0);
  // 10 knots from 82 degrees at 6 knots: 10 cos 82 + 6 = 7.39173 ahead, 10 sin 82 = 9.90268 abeam.
  EXPECT_NEAR(Apparent(), 53.2610F, 1e-3);
}

TEST_F(TrackLoopTest, SteeringOnTheTrueSideFoldsTheAngle) {
  m_loop.Side(TrackSide::True);
  Track();
  m_settings.DesiredAngle[2] = -175.0F;
  m_loop.TrackSteerTo(10.0F);
  EXPECT_EQ(True(), 175.0F);
  EXPECT_GT(Apparent(), 0.0F);
}

TEST_F(TrackLoopTest, SteeringOnTheApparentSideGoesThroughTheTrueWind) {
  Track();
  // The true equivalent of 45 degrees at 14 knots and 6 knots of boat: 14 cos 45 - 6 = 3.899495 ahead and
  // 9.899495 abeam, which is 68.5001 degrees. Ten less are 58.5001, from where 10 knots of true wind make
  // 11.22497 ahead and 8.52641 abeam: 37.2201 degrees.
  m_loop.TrackSteerTo(10.0F);
  EXPECT_NEAR(True(), 58.5001F, 1e-3);
  EXPECT_NEAR(Apparent(), 37.2201F, 1e-3);
  EXPECT_EQ(m_settings.m_fAutoPilot, 50.0F);
  EXPECT_EQ(m_loop.TrackIntegral(), 0.0);
}

TEST_F(TrackLoopTest, SteeringWithoutBothWindsMovesTheTrackedSideAlone) {
  for (const bool apparentValid : {false, true}) {
    m_data.WindApparentValid = apparentValid;
    m_data.WindTrueValid = false;
    for (const TrackSide side : {TrackSide::Apparent, TrackSide::True}) {
      m_settings.DesiredAngle = {0.0F, 45.0F, 92.0F};
      m_settings.m_fAutoPilot = 100.0F;
      m_loop.Side(side);
      Track();
      m_loop.TrackSteerTo(5.0F);
      EXPECT_EQ(Apparent(), side == TrackSide::Apparent ? 40.0F : 45.0F);
      EXPECT_EQ(True(), side == TrackSide::True ? 87.0F : 92.0F);
      EXPECT_EQ(m_settings.m_fAutoPilot, 105.0F);
    }
  }
}

TEST_F(TrackLoopTest, SteeringToPortTurnsTheBearingToPort) {
  Track();
  m_settings.m_fAutoPilot = 0.5F;
  m_loop.TrackSteerTo(-1.0F);
  EXPECT_EQ(m_settings.m_fAutoPilot, 359.5F);
  EXPECT_GT(True(), 68.4F);
}

TEST_F(TrackLoopTest, SteeringDoesNothingOutsideOfTrack) {
  for (const TrackMode mode : {TrackMode::Switching, TrackMode::Off, TrackMode::Setup, TrackMode::Manual}) {
    m_settings.m_eTrackMode = mode;
    EXPECT_FALSE(m_loop.TrackSteerTo(10.0F));
    EXPECT_EQ(m_settings.m_fAutoPilot, 40.0F);
    EXPECT_EQ(Apparent(), 45.0F);
    EXPECT_EQ(True(), 92.0F);
  }
}

TEST_F(TrackLoopTest, SteeringByWhatIsNotFiniteDoesNothing) {
  Track();
  for (const float change :
       {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
    EXPECT_FALSE(m_loop.TrackSteerTo(change));
  }
  EXPECT_EQ(m_settings.m_fAutoPilot, 40.0F);
  EXPECT_EQ(Apparent(), 45.0F);
}

TEST_F(TrackLoopTest, SteeringByAnyAmountKeepsEveryAngleInRange) {
  for (const TrackSide side : {TrackSide::Apparent, TrackSide::True}) {
    m_loop.Side(side);
    Track();
    for (const float change :
         {1.0F, -1.0F, 90.0F, 179.0F, 180.0F, -180.0F, 359.0F, 720.0F, -1000.0F, 1e20F, 3e38F}) {
      m_loop.TrackSteerTo(change);
      ASSERT_GE(m_settings.m_fAutoPilot, 0.0F) << change;
      ASSERT_LT(m_settings.m_fAutoPilot, 360.0F) << change;
      ASSERT_GT(True(), -180.0F) << change;
      ASSERT_LE(True(), 180.0F) << change;
      ASSERT_GE(Apparent(), -180.0F) << change;
      ASSERT_LE(Apparent(), 180.0F) << change;
    }
  }
}

// Typed values

TEST_F(TrackLoopTest, ATypedBearingIsFoldedFully) {
  for (const auto& [typed, bearing] : std::vector<std::pair<double, float>>{
           {245.0, 245.0F}, {360.0, 0.0F}, {-90.0, 270.0F}, {1085.5, 5.5F}, {-1e-12, 0.0F}}) {
    m_loop.SetAutoPilot(typed);
    EXPECT_EQ(m_settings.m_fAutoPilot, bearing) << typed;
  }
}

TEST_F(TrackLoopTest, ATypedWindAngleIsFoldedFully) {
  m_loop.SetDesired(TrackSide::Apparent, 190.0);
  m_loop.SetDesired(TrackSide::True, -900.0);
  EXPECT_EQ(Apparent(), -170.0F);
  EXPECT_EQ(True(), 180.0F);
}

TEST_F(TrackLoopTest, AValueThatIsNotFiniteIsNotTaken) {
  for (const double value :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    m_loop.SetAutoPilot(value);
    m_loop.SetDesired(TrackSide::Apparent, value);
    m_loop.SetDesired(TrackSide::True, value);
  }
  EXPECT_EQ(m_settings.m_fAutoPilot, 40.0F);
  EXPECT_EQ(Apparent(), 45.0F);
  EXPECT_EQ(True(), 92.0F);
}

}  // namespace
}  // namespace veerwatch
