// From which heading the direction of the wind is worked out.

#include <gtest/gtest.h>

#include "instruments/InstrumentRecord.h"
#include "settings/Settings.h"
#include "tests/support/Origins.h"

namespace veerwatch {
namespace {

TEST(WindIndicator, TakesTheHeadingOfThisMomentAndNotItsAverage) {
  Settings settings;
  settings.m_fNmeaTrueWindAverage = 4.0F;
  InstrumentRecord record{settings};
  record.HeadingUpdate(100.0F, kOrigin);
  record.HeadingUpdate(140.0F, kOrigin);
  ASSERT_LT(record.Data().HeadingAverage, 120.0F);
  record.VariationUpdate(5.0F, kOrigin);
  record.WindTrueUpdate(30.0F, 10.0F, false, kOrigin);
  record.WindIndicatorUpdate();
  EXPECT_TRUE(record.Changed(RecordValue::WindIndicator));
  EXPECT_EQ(record.Data().WindDirectionAverage, 175.0F);
  EXPECT_EQ(record.Data().WindSpeedAverage, 10.0F);
}

}  // namespace
}  // namespace veerwatch
