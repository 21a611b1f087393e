// From which heading the direction of the wind is worked out.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "instruments/InstrumentRecord.h"
#include "settings/Settings.h"
#include "tests/support/Origins.h"
#include "tests/support/RecordingView.h"

namespace veerwatch {
namespace {

TEST(WindIndicator, TakesTheHeadingOfThisMomentAndNotItsAverage) {
  Settings settings;
  settings.m_fNmeaTrueWindAverage = 4.0F;
  RecordingView view;
  InstrumentRecord record{settings, view};
  record.HeadingUpdate(100.0F, kOrigin);
  record.HeadingUpdate(140.0F, kOrigin);
  ASSERT_LT(record.Data().HeadingAverage, 120.0F);
  record.VariationUpdate(5.0F, kOrigin);
  record.WindTrueUpdate(30.0F, 10.0F, false, kOrigin);
  record.WindIndicatorUpdate();
  EXPECT_THAT(view.Only({"OnWindIndicator"}), testing::ElementsAre("OnWindIndicator 175 10"));
}

}  // namespace
}  // namespace veerwatch
