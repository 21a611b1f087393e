#include "history/ChartScale.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veerwatch {
namespace {

std::string Labels(const ValueScale& scale) {
  std::string all;
  for (const ValueTick& tick : Ticks(scale)) {
    all += (all.empty() ? "" : " ") + tick.Text;
  }
  return all;
}

#define DEG "\xC2\xB0"

TEST(ChartScale, ASpeedScaleBeginsAtZero) {
  const ValueScale scale = AutomaticScale(ScaleKind::Linear, {{4.2, 8.7}}, 5);
  EXPECT_EQ(scale.Low, 0.0);
  EXPECT_EQ(scale.High, 10.0);
  EXPECT_EQ(Labels(scale), "0 2 4 6 8 10");
}

TEST(ChartScale, ASpeedScaleFarFromZeroShowsWhatHappens) {
  const ValueScale scale = AutomaticScale(ScaleKind::Linear, {{12.2, 14.7}}, 4);
  EXPECT_EQ(scale.Low, 12.0);
  EXPECT_EQ(scale.High, 15.0);
  EXPECT_EQ(Labels(scale), "12 13 14 15");
}

TEST(ChartScale, AConstantSpeedIsNotSpreadOut) {
  const ValueScale scale = AutomaticScale(ScaleKind::Linear, {{6.0, 6.0}}, 4);
  EXPECT_LE(scale.Low, 5.0);
  EXPECT_GE(scale.High, 7.0);
  const ValueScale still = AutomaticScale(ScaleKind::Linear, {{0.0, 0.0}}, 4);
  EXPECT_EQ(still.Low, 0.0);
  EXPECT_EQ(still.High, 2.0);
}

TEST(ChartScale, WithoutValuesThereIsAScaleToo) {
  EXPECT_EQ(Labels(AutomaticScale(ScaleKind::Linear, {}, 2)), "0 5 10");
  EXPECT_EQ(Labels(AutomaticScale(ScaleKind::Relative, {}, 4)),
            "-180" DEG " -90" DEG " 0" DEG " 90" DEG " 180" DEG);
  EXPECT_EQ(Labels(AutomaticScale(ScaleKind::Compass, {}, 4)),
            "0" DEG " 90" DEG " 180" DEG " 270" DEG " 360" DEG);
}

TEST(ChartScale, AWindAngleScaleIsTheArcThatIsUsed) {
  const ValueScale scale = AutomaticScale(ScaleKind::Relative, {{-48.0, -44.0}, {41.0, 47.0}}, 6);
  EXPECT_EQ(scale.Low, -60.0);
  EXPECT_EQ(scale.High, 60.0);
  EXPECT_EQ(Labels(scale), "-60" DEG " -40" DEG " -20" DEG " 0" DEG " 20" DEG " 40" DEG " 60" DEG);
}

TEST(ChartScale, AHeadingAroundNorthHasNoSeamInItsMiddle) {
  const ValueScale scale = AutomaticScale(ScaleKind::Compass, {{352.0, 359.0}, {0.0, 8.0}}, 4);
  EXPECT_EQ(scale.High - scale.Low, 20.0);
  EXPECT_EQ(Labels(scale), "350" DEG " 355" DEG " 0" DEG " 5" DEG " 10" DEG);
}

TEST(ChartScale, AWindAroundTheSternHasNoSeamInItsMiddle) {
  const ValueScale scale = AutomaticScale(ScaleKind::Relative, {{170.0, 179.0}, {-179.0, -171.0}}, 4);
  EXPECT_EQ(Labels(scale), "170" DEG " 175" DEG " 180" DEG " -175" DEG " -170" DEG);
}

TEST(ChartScale, AnIntervalThatPassesTheSeamCountsWhole) {
  const ValueScale scale = AutomaticScale(ScaleKind::Compass, {{-10.0, 12.0}}, 5);
  EXPECT_LE(scale.High - scale.Low, 40.0);
  EXPECT_LE(OnTurnAbove(350.0, scale.Low), scale.High);
  EXPECT_LE(OnTurnAbove(12.0, scale.Low), scale.High);
}

TEST(ChartScale, AnglesAllRoundShowTheFullCircle) {
  std::vector<ValueInterval> all;
  for (double angle = 0.0; angle < 360.0; angle += 10.0) {
    all.push_back({angle, angle});
  }
  const ValueScale compass = AutomaticScale(ScaleKind::Compass, all, 4);
  EXPECT_EQ(compass.Low, 0.0);
  EXPECT_EQ(compass.High, 360.0);
  const ValueScale relative = AutomaticScale(ScaleKind::Relative, {{-180.0, 180.0}}, 4);
  EXPECT_EQ(relative.Low, -180.0);
  EXPECT_EQ(relative.High, 180.0);
}

/// Every arc of every place and width is inside of its scale, which is never more than the circle.
TEST(ChartScale, EveryArcIsInsideOfItsScale) {
  for (const ScaleKind kind : {ScaleKind::Relative, ScaleKind::Compass}) {
    for (int begin = 0; begin < 360; begin += 7) {
      for (int width = 0; width < 360; width += 13) {
        std::vector<ValueInterval> shown;
        for (int angle = begin; angle <= begin + width; ++angle) {
          shown.push_back({static_cast<double>(angle), static_cast<double>(angle)});
        }
        for (const int ticks : {2, 5, 9}) {
          const ValueScale scale = AutomaticScale(kind, shown, ticks);
          ASSERT_LE(scale.High - scale.Low, 360.0);
          ASSERT_GE(scale.High - scale.Low, 20.0);
          ASSERT_GT(scale.Step, 0.0);
          for (const ValueInterval& interval : shown) {
            ASSERT_LE(OnTurnAbove(interval.Low, scale.Low), scale.High + 1e-9)
                << begin << " " << width << " " << ticks;
          }
        }
      }
    }
  }
}

TEST(ChartScale, EverySpeedRangeIsInsideOfItsScaleWithFewTicks) {
  for (const double low : {0.0, 0.3, 5.1, 12.0, 99.0, -3.0}) {
    for (const double range : {0.0, 0.1, 1.0, 3.3, 17.0, 250.0}) {
      const ValueScale scale = AutomaticScale(ScaleKind::Linear, {{low, low + range}}, 5);
      EXPECT_LE(scale.Low, low);
      EXPECT_GE(scale.High, low + range);
      EXPECT_LE(Ticks(scale).size(), 8U);
      EXPECT_GE(Ticks(scale).size(), 3U);
    }
  }
}

TEST(ChartScale, MonstrousValuesDoNotStretchIt) {
  const ValueScale scale = AutomaticScale(ScaleKind::Linear, {{-3e38, 3e38}}, 5);
  EXPECT_GE(scale.Low, -1e6);
  EXPECT_LE(scale.High, 1e6);
}

TEST(ChartScale, AFixedScaleHasTheEdgesThatWereChosen) {
  const ValueScale scale = FixedScale(ScaleKind::Linear, 3.0, 11.0, 4);
  EXPECT_EQ(scale.Low, 3.0);
  EXPECT_EQ(scale.High, 11.0);
  EXPECT_EQ(Labels(scale), "4 6 8 10");
  EXPECT_EQ(FixedScale(ScaleKind::Compass, 0.0, 720.0, 4).High, 360.0);
}

TEST(ChartScale, SmallStepsHaveDecimals) {
  EXPECT_EQ(Labels(FixedScale(ScaleKind::Linear, 5.0, 6.0, 5)), "5.0 5.2 5.4 5.6 5.8 6.0");
  EXPECT_EQ(Labels(FixedScale(ScaleKind::Linear, 5.0, 5.1, 5)), "5.00 5.02 5.04 5.06 5.08 5.10");
}

TEST(ChartScale, OnTurnAboveIsWithinATurn) {
  EXPECT_EQ(OnTurnAbove(-10.0, 0.0), 350.0);
  EXPECT_EQ(OnTurnAbove(370.0, 0.0), 10.0);
  EXPECT_EQ(OnTurnAbove(180.0, -180.0), -180.0);
  EXPECT_EQ(OnTurnAbove(5.0, 350.0), 365.0);
  EXPECT_LT(OnTurnAbove(-1e-20, 0.0), 360.0);
}

TEST(ChartScale, TimeStepsAreThoseOfClocks) {
  EXPECT_EQ(TimeStep(1.0), 10);
  EXPECT_EQ(TimeStep(61.0), 120);
  EXPECT_EQ(TimeStep(300.0), 300);
  EXPECT_EQ(TimeStep(4000.0), 7200);
  EXPECT_EQ(TimeStep(1e9), 86400);
}

}  // namespace
}  // namespace veerwatch
