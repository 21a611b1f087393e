#include "polar/PolarLegend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace veerwatch {
namespace {

bool Overlap(const PlotBox& a, const PlotBox& b) {
  return a.X < b.X + b.Width && b.X < a.X + a.Width && a.Y < b.Y + b.Height && b.Y < a.Y + a.Height;
}

bool Inside(const PlotBox& box, double width, double height) {
  constexpr double kSlack = 1e-6;
  return box.X >= -kSlack && box.Y >= -kSlack && box.X + box.Width <= width + kSlack &&
         box.Y + box.Height <= height + kSlack && box.Width >= 0.0 && box.Height >= 0.0;
}

TEST(PolarLegend, KeepsClearOfTheRingAndOfItselfAtEverySize) {
  for (const double width : {160.0, 400.0, 700.0, 1000.0, 1900.0}) {
    for (const double height : {120.0, 400.0, 720.0, 1100.0}) {
      for (const int keys : {1, 2}) {
        const PolarLegend legend = LayLegend(width, height, keys);
        std::vector<PlotBox> boxes = legend.Keys;
        for (const LegendCell* cell :
             {&legend.Reference, &legend.Boat, &legend.WindSpeed, &legend.WindAngle}) {
          boxes.push_back(cell->Caption);
          boxes.push_back(cell->Value);
        }
        const double radius = std::min(width, height) / 2.0;
        for (std::size_t i = 0; i < boxes.size(); ++i) {
          const PlotBox& box = boxes[i];
          EXPECT_TRUE(Inside(box, width, height)) << width << "x" << height << " " << i;
          const double nearX = std::clamp(radius, box.X, box.X + box.Width);
          const double nearY = std::clamp(radius, box.Y, box.Y + box.Height);
          EXPECT_GE(std::hypot(nearX - radius, nearY - radius), radius - 1e-6)
              << width << "x" << height << " " << i;
          for (std::size_t j = 0; j < i; ++j) {
            // Boxes may touch.
            PlotBox smaller = boxes[j];
            smaller.X += 1e-6;
            smaller.Y += 1e-6;
            smaller.Width -= 2e-6;
            smaller.Height -= 2e-6;
            EXPECT_FALSE(Overlap(box, smaller)) << width << "x" << height << " " << i << " " << j;
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
    const PlotBox room{width - taken.Width, height - taken.Height, taken.Width, taken.Height};
    EXPECT_FALSE(legend.Corners);
    std::vector<PlotBox> boxes = legend.Keys;
    for (const LegendCell* cell : {&legend.Reference, &legend.Boat, &legend.WindSpeed, &legend.WindAngle}) {
      boxes.insert(boxes.end(), {cell->Caption, cell->Value});
    }
    return std::none_of(boxes.begin(), boxes.end(),
                        [&room](const PlotBox& box) { return Overlap(box, room); });
  };
  EXPECT_TRUE(clear(1000.0, 720.0)) << "beside the plot";
  EXPECT_TRUE(clear(600.0, 1000.0)) << "below it, at the left";
  EXPECT_TRUE(clear(320.0, 1000.0)) << "below it, above";
}

}  // namespace
}  // namespace veerwatch
