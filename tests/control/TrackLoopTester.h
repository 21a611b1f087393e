// A track loop on settings and instruments of its own, a steady wind from starboard.
#pragma once

#include <gtest/gtest.h>

#include "control/TrackLoop.h"
#include "tests/support/Origins.h"

namespace veerwatch {

class TrackLoopTester : public testing::Test {
 protected:
  TrackLoopTester() {
    m_data.WindApparentValid = true;
    m_data.WindTrueValid = true;
    m_data.BoatSpeedValid = true;
    m_data.BoatSpeed = 6.0F;
    m_data.WindAngleApparent = 45.0F;
    m_data.WindSpeedApparent = 14.0F;
    m_data.WindAngleTrue = 92.0F;
    m_data.WindSpeedTrue = 10.0F;
  }

  void Track() {
    ASSERT_TRUE(m_loop.StartTracking());
    m_settings.m_eTrackMode = TrackMode::Track;
  }
  float Apparent() const { return m_settings.DesiredAngle[1]; }
  float True() const { return m_settings.DesiredAngle[2]; }
  /// One pass with an error of `error` on the apparent side.
  LoopStep Step(float error) {
    m_data.WindAngleApparent = m_settings.DesiredAngle[1] + error;
    return m_loop.ControlStep(kOrigin.At);
  }

  Settings m_settings;
  InstrumentData m_data;
  TrackLoop m_loop{m_settings, m_data};
};

}  // namespace veerwatch
