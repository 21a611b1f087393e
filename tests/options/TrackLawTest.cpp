// The loop that steers and the preview of its response have one law.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "control/TrackLoop.h"
#include "options/TrackResponse.h"
#include "options/TrackWindRun.h"
#include "tests/support/FixedRandom.h"

namespace veerwatch {
namespace {

/// The bearings of a boat that follows at once, steered by the loop with the true wind at 0.
std::vector<double> Steered(const TrackResponseInputs& inputs, std::size_t passes) {
  Settings settings;
  settings.m_fTrackBandwidth = static_cast<float>(inputs.Bandwidth);
  settings.m_fTrackDamping = static_cast<float>(inputs.Damping);
  settings.m_eTrackMethod = inputs.Method;
  settings.m_bTrackAlarm = false;
  settings.m_fAutoPilot = static_cast<float>(inputs.Offset);
  settings.DesiredAngle[2] = 0.0F;
  InstrumentData data;
  data.HeadingValid = true;
  data.Heading = settings.m_fAutoPilot;
  TrackLoop loop(settings, data);
  loop.Side(TrackSide::True);
  EXPECT_TRUE(loop.StartTracking());
  settings.m_eTrackMode = TrackMode::Track;
  std::vector<double> bearings;
  for (std::size_t pass = 0; pass < passes; ++pass) {
    data.Heading = settings.m_fAutoPilot;
    data.WindAngleTrue =
        static_cast<float>(-std::remainder(static_cast<double>(settings.m_fAutoPilot), 360.0));
    const double moment = static_cast<double>(pass) * 1000.0 / inputs.Rate;
    loop.ControlStep(Moment{std::llround(moment), 0});
    bearings.push_back(std::remainder(static_cast<double>(settings.m_fAutoPilot), 360.0));
  }
  return bearings;
}

class TrackLaw : public testing::TestWithParam<TrackMethod> {};

INSTANTIATE_TEST_SUITE_P(Methods, TrackLaw,
                         testing::Values(TrackMethod::Sentence, TrackMethod::Clock, TrackMethod::Direction),
                         [](const auto& method) { return std::string(TrackMethodName(method.param)); });

TEST_P(TrackLaw, LoopAndPreviewGiveTheSameSeries) {
  for (const double rate : {1.0, 2.0, 3.0, 10.0}) {
    for (const auto& [bandwidth, damping] :
         std::vector<std::pair<double, double>>{{20.0, 4.0}, {8.0, 0.5}, {60.0, 2.0}}) {
      TrackResponseInputs inputs;
      // Ten times the gain a second would leave every range.
      inputs.Bandwidth = GetParam() == TrackMethod::Sentence ? bandwidth * rate : bandwidth;
      inputs.Damping = damping;
      inputs.Noise = 0.0;
      inputs.Time = 60.0;
      inputs.Method = GetParam();
      inputs.Rate = rate;
      FixedRandom random;
      const auto preview = TrackResponseSeries(inputs, random);
      ASSERT_TRUE(preview.has_value());
      EXPECT_EQ(preview->size(), static_cast<std::size_t>(60.0 * rate) + 1);
      const std::vector<double> steered = Steered(inputs, preview->size());
      for (std::size_t pass = 0; pass < preview->size(); ++pass) {
        // The loop stores its bearing as a single.
        ASSERT_NEAR(steered[pass], (*preview)[pass], 2e-3)
            << bandwidth << " s, " << rate << " a second, pass " << pass;
      }
      EXPECT_LT(std::fabs(preview->back()), 9.0) << "it steers";
    }
  }
}

}  // namespace
}  // namespace veerwatch
