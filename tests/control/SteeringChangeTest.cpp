// What a steering change leaves of the loop's past.

#include <gtest/gtest.h>

#include "control/TrackLoop.h"

namespace veerwatch {
namespace {

class SteeringChange : public testing::Test {
 protected:
  SteeringChange() {
    m_settings.m_eTrackMode = TrackMode::Track;
    m_settings.DesiredAngle[1] = 45.0F;
    m_data.WindApparentValid = m_data.WindTrueValid = m_data.BoatSpeedValid = true;
    m_data.BoatSpeed = 6.0F;
    m_data.WindAngleApparent = 48.0F;
    m_data.WindSpeedApparent = 14.0F;
    m_data.WindAngleTrue = 75.0F;
    m_data.WindSpeedTrue = 10.0F;
    EXPECT_TRUE(m_loop.StartTracking());
    for (int step = 0; step < 10; ++step) {
      m_loop.ControlStep(Moment{});
    }
    EXPECT_GT(m_loop.TrackIntegral(), 0.05);
  }

  Settings m_settings;
  InstrumentData m_data;
  TrackLoop m_loop{m_settings, m_data};
};

TEST_F(SteeringChange, BeginsWithAnEmptyAccumulator) {
  m_loop.TrackSteerTo(5.0F);
  EXPECT_EQ(m_loop.TrackIntegral(), 0.0);
}

TEST_F(SteeringChange, WithoutBothWindsBeginsWithAnEmptyAccumulatorToo) {
  m_data.WindTrueValid = false;
  m_loop.TrackSteerTo(5.0F);
  EXPECT_EQ(m_loop.TrackIntegral(), 0.0);
}

TEST_F(SteeringChange, OutsideOfTrackLeavesTheAccumulator) {
  const double built = m_loop.TrackIntegral();
  m_settings.m_eTrackMode = TrackMode::Manual;
  m_loop.TrackSteerTo(5.0F);
  EXPECT_EQ(m_loop.TrackIntegral(), built);
}

}  // namespace
}  // namespace veerwatch
