// The track loop and a boat that turns where it is told: the angle comes, and stays.

#include <cmath>
#include <cstddef>
#include <ostream>

#include "instruments/MathLib.h"
#include "tests/control/TrackLoopTester.h"

namespace veerwatch {
namespace {

/// A boat that turns a part of the way to the autopilot's bearing at every step, in a steady wind.
struct ToyBoat {
  double Heading = 0.0;
  double Response = 1.0;
  double WindFrom = 90.0;
  double WindSpeed = 12.0;
  double Speed = 6.0;

  void Sail(float bearing, InstrumentData& data) {
    Heading += Response * std::remainder(static_cast<double>(bearing) - Heading, 360.0);
    Heading = std::remainder(Heading, 360.0);
    data.BoatSpeed = static_cast<float>(Speed);
    data.WindSpeedTrue = static_cast<float>(WindSpeed);
    data.WindAngleTrue = static_cast<float>(std::remainder(WindFrom - Heading, 360.0));
    WindApparentFromTrue(data.WindSpeedTrue, data.WindAngleTrue, data.BoatSpeed, data.WindSpeedApparent,
                         data.WindAngleApparent);
  }
};

struct LoopCase {
  TrackSide Side;
  float Desired;
  double Response;
};

void PrintTo(const LoopCase& loop, std::ostream* out) {
  *out << (loop.Side == TrackSide::Apparent ? "apparent " : "true ") << loop.Desired << ", response "
       << loop.Response;
}

class ClosedLoop : public TrackLoopTester, public testing::WithParamInterface<LoopCase> {};

TEST_P(ClosedLoop, TheBoatComesToTheDesiredAngleAndStaysThereThroughAWindShift) {
  const LoopCase& loop = GetParam();
  ToyBoat boat;
  boat.Response = loop.Response;
  m_loop.Side(loop.Side);
  m_settings.DesiredAngle[static_cast<std::size_t>(loop.Side)] = loop.Desired;
  Track();
  const auto error = [&] {
    const float measured = loop.Side == TrackSide::Apparent ? m_data.WindAngleApparent : m_data.WindAngleTrue;
    return std::abs(std::remainder(static_cast<double>(measured - loop.Desired), 360.0));
  };
  // Long after the wind has shifted by 25 degrees, and again by 330, the angle is held.
  for (const double windFrom : {90.0, 115.0, 85.0}) {
    boat.WindFrom = windFrom;
    for (int second = 0; second < 3000; ++second) {
      boat.Sail(m_settings.m_fAutoPilot, m_data);
      m_loop.ControlStep(kOrigin.At);
      ASSERT_GE(m_settings.m_fAutoPilot, 0.0F);
      ASSERT_LT(m_settings.m_fAutoPilot, 360.0F);
      if (second > 2500) {
        ASSERT_LT(error(), 0.2) << "second " << second << " with the wind from " << windFrom;
      }
    }
  }
}

TEST_P(ClosedLoop, TheBoatFollowsASteeringChange) {
  const LoopCase& loop = GetParam();
  ToyBoat boat;
  boat.Response = loop.Response;
  m_loop.Side(loop.Side);
  m_settings.DesiredAngle[static_cast<std::size_t>(loop.Side)] = loop.Desired;
  Track();
  const auto sail = [&] {
    for (int second = 0; second < 3000; ++second) {
      boat.Sail(m_settings.m_fAutoPilot, m_data);
      m_loop.ControlStep(kOrigin.At);
    }
  };
  sail();
  const double before = boat.Heading;
  m_loop.TrackSteerTo(7.0F);
  sail();
  EXPECT_NEAR(std::remainder(boat.Heading - before, 360.0), 7.0, 0.3);
}

INSTANTIATE_TEST_SUITE_P(
    All, ClosedLoop,
    testing::Values(LoopCase{TrackSide::Apparent, 45.0F, 1.0}, LoopCase{TrackSide::Apparent, -40.0F, 0.5},
                    LoopCase{TrackSide::Apparent, 100.0F, 0.3}, LoopCase{TrackSide::True, 92.0F, 1.0},
                    LoopCase{TrackSide::True, -120.0F, 0.5}, LoopCase{TrackSide::True, 175.0F, 0.3}));

}  // namespace
}  // namespace veerwatch
