// The loop that steers and the preview of its response have one law.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "control/TrackLoop.h"
#include "options/TrackResponse.h"
#include "tests/support/FixedRandom.h"

namespace veerwatch {
namespace {

/// The bearings of a boat that follows at once, steered by the loop from `offset` with the true wind at 0.
std::vector<double> Steered(float bandwidth, float damping, float offset, std::size_t passes) {
  Settings settings;
  settings.m_fTrackBandwidth = bandwidth;
  settings.m_fTrackDamping = damping;
  settings.m_bTrackAlarm = false;
  settings.m_fAutoPilot = offset;
  settings.DesiredAngle[2] = 0.0F;
  InstrumentData data;
  TrackLoop loop(settings, data);
  loop.Side(TrackSide::True);
  EXPECT_TRUE(loop.StartTracking());
  settings.m_eTrackMode = TrackMode::Track;
  std::vector<double> bearings;
  for (std::size_t pass = 0; pass < passes; ++pass) {
    data.WindAngleTrue =
        static_cast<float>(-std::remainder(static_cast<double>(settings.m_fAutoPilot), 360.0));
    loop.ControlStep(Moment{static_cast<std::int64_t>(pass) * 1000, 0});
    bearings.push_back(std::remainder(static_cast<double>(settings.m_fAutoPilot), 360.0));
  }
  return bearings;
}

TEST(TrackLaw, LoopAndPreviewGiveTheSameSeries) {
  constexpr std::size_t kPasses = 61;
  for (const auto& [bandwidth, damping] : std::vector<std::pair<float, float>>{{20, 4}, {8, 0.5}, {60, 2}}) {
    TrackResponseInputs inputs;
    inputs.Bandwidth = static_cast<double>(bandwidth);
    inputs.Damping = static_cast<double>(damping);
    inputs.Offset = 10.0;
    inputs.Noise = 0.0;
    inputs.Time = static_cast<double>(kPasses - 1);
    FixedRandom random;
    const auto preview = TrackResponseSeries(inputs, random);
    ASSERT_TRUE(preview.has_value());
    const std::vector<double> steered = Steered(bandwidth, damping, 10.0F, kPasses);
    ASSERT_EQ(steered.size(), preview->size());
    for (std::size_t pass = 0; pass < kPasses; ++pass) {
      // The loop stores its bearing as a single.
      EXPECT_NEAR(steered[pass], (*preview)[pass], 1e-3) << bandwidth << " s, pass " << pass;
    }
  }
}

}  // namespace
}  // namespace veerwatch
