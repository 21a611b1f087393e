#include "polar/PolarLegend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace veerwatch {
namespace {

bool Inside(const Box& box, double width, double height) {
  constexpr double kSlack = 1e-6;
  return box.X >= -kSlack && box.Y >= -kSlack && box.X + box.Width <= width + kSlack &&
         box.Y + box.Height <= height + kSlack && box.Width >= 0.0 && box.Height >= 0.0;
}

TEST(PolarLegend, KeepsClearOfTheRingAndOfItselfAtEverySize) {
  for (const double width : {160.0, 400.0, 700.0, 1000.0, 1900.0}) {
    for (const double height : {120.0, 400.0, 720.0, 1100.0}) {
      for (const int keys : {1, 2}) {
        const PolarLegend legend = LayLegend(width, height, keys);
        std::vector<Box> boxes = legend.Keys;
        for (const LegendCell* cell :
             {&legend.Reference, &legend.Boat, &legend.WindSpeed, &legend.WindAngle}) {
          boxes.push_back(cell->Caption);
          boxes.push_back(cell->Value);
        }
        const double radius = std::min(width, height) / 2.0;
        for (std::size_t i = 0; i < boxes.size(); ++i) {
          const Box& box = boxes[i];
          EXPECT_TRUE(Inside(box, width, height)) << width << "x" << height << " " << i;
          const double nearX = std::clamp(radius, box.X, box.X + box.Width);
          const double nearY = std::clamp(radius, box.Y, box.Y + box.Height);
          EXPECT_GE(std::hypot(nearX - radius, nearY - radius), radius - 1e-6)
              << width << "x" << height << " " << i;
          for (std::size_t j = 0; j < i; ++j) {
            // Boxes may touch.
            Box smaller = boxes[j];
            smaller.X += 1e-6;
            smaller.Y += 1e-6;
            smaller.Width -= 2e-6;
            smaller.Height -= 2e-6;
            EXPECT_FALSE(box.Overlaps(smaller)) << width << "x" << height << " " << i << " " << j;
          }
        }
        EXPECT_GT(legend.ValueText, legend.CaptionText);
      }
    }
  }
}

TEST(PolarLegend, LeavesTheRoomThatIsTakenAtTheLowerRight) {
  const auto clear = [](double width, double height) {
    const PlotRoom taken{300.0, 280.0};
    const PolarLegend legend = LayLegend(width, height, 1, taken);
    const Box room{width - taken.Width, height - taken.Height, taken.Width, taken.Height};
    EXPECT_FALSE(legend.Corners);
    std::vector<Box> boxes = legend.Keys;
    for (const LegendCell* cell : {&legend.Reference, &legend.Boat, &legend.WindSpeed, &legend.WindAngle}) {
      boxes.insert(boxes.end(), {cell->Caption, cell->Value});
    }
    return std::none_of(boxes.begin(), boxes.end(), [&room](const Box& box) { return box.Overlaps(room); });
  };
  EXPECT_TRUE(clear(1000.0, 720.0)) << "beside the plot";
  EXPECT_TRUE(clear(600.0, 1000.0)) << "below it, at the left";
  EXPECT_TRUE(clear(320.0, 1000.0)) << "below it, above";
}

void ExpectBox(const Box& box, const Box& wanted) {
  constexpr double kSlack = 1e-6;
  EXPECT_NEAR(box.X, wanted.X, kSlack);
  EXPECT_NEAR(box.Y, wanted.Y, kSlack);
  EXPECT_NEAR(box.Width, wanted.Width, kSlack);
  EXPECT_NEAR(box.Height, wanted.Height, kSlack);
}

TEST(PolarLegend, StandsBesideThePlotInAColumn) {
  // A plot of 500 px: margins of 12.5, a column of 0.6 plots; names of 14.25 px in lines of 19.95 at its
  // foot, above them 475 - 64.125 px for four values.
  const PolarLegend legend = LayLegend(1000.0, 500.0, 2);
  EXPECT_FALSE(legend.Corners);
  ExpectBox(legend.Boat.Caption, {512.5, 12.5, 300.0, 27.7340625});
  ExpectBox(legend.Boat.Value, {512.5, 40.2340625, 300.0, 64.7128125});
  ExpectBox(legend.Reference.Caption, {512.5, 115.21875, 300.0, 27.7340625});
  ExpectBox(legend.WindSpeed.Caption, {512.5, 217.9375, 300.0, 27.7340625});
  ExpectBox(legend.WindAngle.Caption, {512.5, 320.65625, 300.0, 27.7340625});
  ASSERT_EQ(legend.Keys.size(), 2U);
  ExpectBox(legend.Keys[0], {512.5, 447.6, 300.0, 19.95});
  ExpectBox(legend.Keys[1], {512.5, 467.55, 300.0, 19.95});
  EXPECT_NEAR(legend.ValueText, 59.5357875, 1e-6);
  EXPECT_NEAR(legend.CaptionText, 17.19511875, 1e-6);
  const PolarLegend one = LayLegend(1000.0, 500.0, 1);
  ASSERT_EQ(one.Keys.size(), 1U);
  ExpectBox(one.Keys[0], {512.5, 467.55, 300.0, 19.95});
}

TEST(PolarLegend, StandsBelowThePlotInOneRowWhereItIsLow) {
  // A plot of 400 px: margins of 10, a box of 380 by 100 with a name of 15.4 px at its foot; values of 95 px
  // by 0.56 of that.
  const PolarLegend legend = LayLegend(400.0, 520.0, 1);
  EXPECT_FALSE(legend.Corners);
  ExpectBox(legend.Boat.Caption, {10.0, 410.0, 91.2, 14.6832});
  ExpectBox(legend.Boat.Value, {10.0, 424.6832, 91.2, 34.2608});
  ExpectBox(legend.Reference.Caption, {105.0, 410.0, 91.2, 14.6832});
  ExpectBox(legend.WindSpeed.Caption, {200.0, 410.0, 91.2, 14.6832});
  ExpectBox(legend.WindAngle.Caption, {295.0, 410.0, 91.2, 14.6832});
  ASSERT_EQ(legend.Keys.size(), 1U);
  ExpectBox(legend.Keys[0], {10.0, 494.6, 380.0, 15.4});
  EXPECT_NEAR(legend.ValueText, 18.6122449, 1e-6);
  EXPECT_NEAR(legend.CaptionText, 9.103584, 1e-6);
}

TEST(PolarLegend, StandsBelowThePlotInTwoRowsWhereItIsHigh) {
  // A box of 380 px square with a name of 25.2 px at its foot; values of 190 px by 0.56 of that.
  const PolarLegend legend = LayLegend(400.0, 800.0, 1);
  ExpectBox(legend.Boat.Caption, {10.0, 410.0, 182.4, 29.3664});
  ExpectBox(legend.Reference.Caption, {200.0, 410.0, 182.4, 29.3664});
  ExpectBox(legend.WindSpeed.Caption, {10.0, 516.4, 182.4, 29.3664});
  ExpectBox(legend.WindAngle.Caption, {200.0, 516.4, 182.4, 29.3664});
  ASSERT_EQ(legend.Keys.size(), 1U);
  ExpectBox(legend.Keys[0], {10.0, 764.8, 380.0, 25.2});
}

TEST(PolarLegend, StandsInTheCornersOutsideOfTheRing) {
  // A plot of 200 px, 20 px more beside it: margins of 2.4, captions and names of 7.2, values of 13.2. At
  // `up` px above the centre the ring leaves 100 - sqrt(100 * 100 - up * up).
  const PolarLegend legend = LayLegend(220.0, 200.0, 2);
  EXPECT_TRUE(legend.Corners);
  const double at904 = 100.0 - std::sqrt(10000.0 - 90.4 * 90.4);
  const double at772 = 100.0 - std::sqrt(10000.0 - 77.2 * 77.2);
  ExpectBox(legend.WindSpeed.Caption, {2.4, 2.4, at904 - 2.4, 7.2});
  ExpectBox(legend.WindSpeed.Value, {2.4, 9.6, at772 - 2.4, 13.2});
  ExpectBox(legend.Boat.Value, {200.0 - at772, 177.2, at772 + 17.6, 13.2});
  EXPECT_TRUE(legend.Boat.Right);
  EXPECT_FALSE(legend.WindSpeed.Right);
  ASSERT_EQ(legend.Keys.size(), 2U);
  ExpectBox(legend.Keys[0], {2.4, 190.4, at904 - 2.4, 7.2});
  ExpectBox(legend.Keys[1], {200.0 - at904, 190.4, at904 + 17.6, 7.2});
  // As large as in the corner at the left, which has no room beside the plot.
  EXPECT_NEAR(legend.ValueText, (at772 - 2.4) / 4.9, 1e-6);
  EXPECT_NEAR(legend.CaptionText, 5.184, 1e-6);
}

TEST(PolarLegend, LeavesTheCornersForMoreThanItsShareOfRoom) {
  EXPECT_TRUE(LayLegend(124.0, 100.0, 1).Corners);
  EXPECT_FALSE(LayLegend(124.1, 100.0, 1).Corners);
  EXPECT_TRUE(LayLegend(100.0, 124.0, 1).Corners);
  EXPECT_FALSE(LayLegend(100.0, 124.1, 1).Corners);
}

}  // namespace
}  // namespace veerwatch
