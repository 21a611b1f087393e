#include "polar/PolarGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/support/PolarText.h"

namespace veerwatch {
namespace {

double Far(const PlotPoint& a, const PlotPoint& b) { return std::hypot(a.X - b.X, a.Y - b.Y); }

bool Overlap(const PlotBox& a, const PlotBox& b) {
  return a.X < b.X + b.Width && b.X < a.X + a.Width && a.Y < b.Y + b.Height && b.Y < a.Y + a.Height;
}

bool Inside(const PlotBox& box, double width, double height) {
  constexpr double kSlack = 1e-6;
  return box.X >= -kSlack && box.Y >= -kSlack && box.X + box.Width <= width + kSlack &&
         box.Y + box.Height <= height + kSlack && box.Width >= 0.0 && box.Height >= 0.0;
}

/// Distance from `point` to the nearest point of the lines.
double Nearest(const std::vector<PlotLine>& lines, const PlotPoint& point) {
  double nearest = 1e9;
  for (const PlotLine& line : lines) {
    for (const PlotPoint& other : line) {
      nearest = std::min(nearest, Far(point, other));
    }
  }
  return nearest;
}

TEST(RingStep, IsRound) {
  EXPECT_DOUBLE_EQ(RingStep(6.0), 1.0);
  EXPECT_DOUBLE_EQ(RingStep(8.0), 2.0);
  EXPECT_DOUBLE_EQ(RingStep(10.0), 2.0);
  EXPECT_DOUBLE_EQ(RingStep(12.0), 2.0);
  EXPECT_DOUBLE_EQ(RingStep(14.0), 5.0);
  EXPECT_DOUBLE_EQ(RingStep(28.0), 5.0);
  EXPECT_DOUBLE_EQ(RingStep(0.5), 0.1);
}

TEST(MakeGrid, HasARingPerStepAndTheRangeAtTheOuterOne) {
  const PolarGeometry geometry = PlotGeometry(500.0, 500.0, 12.5);
  const PolarGrid grid = MakeGrid(geometry, {12.5, 12.0, false, true}, {});
  ASSERT_EQ(grid.Rings.size(), 3U);
  EXPECT_NEAR(grid.Rings[0], 100.0, 1e-9);
  EXPECT_NEAR(grid.Rings[1], 200.0, 1e-9);
  EXPECT_NEAR(grid.Rings[2], 250.0, 1e-9);
  const auto text = [&](const std::string& wanted) {
    return std::any_of(grid.Labels.begin(), grid.Labels.end(),
                       [&](const PlotLabel& label) { return label.Text == wanted; });
  };
  EXPECT_TRUE(text("12.5"));
  EXPECT_TRUE(text("5"));
  EXPECT_TRUE(text("90\u00b0"));
  EXPECT_EQ(grid.Spokes.size(), 12U);
}

TEST(MakeGrid, KeepsLabelsApartAtEverySize) {
  const PolarTable table = TableOf(kSmallPolar);
  for (const double size : {40.0, 90.0, 160.0, 300.0, 555.0, 1200.0}) {
    for (const double range : {0.3, 6.0, 8.0, 10.0, 12.0, 17.0, 1234.0}) {
      const PolarGeometry geometry = PlotGeometry(size, size, range);
      const double text = std::clamp(size * 0.021, 9.0, 26.0);
      const PolarGrid grid = MakeGrid(geometry, {range, text, true, true}, PolarCurves(table, 0, geometry));
      for (std::size_t i = 0; i < grid.Labels.size(); ++i) {
        EXPECT_TRUE(Inside(grid.Labels[i].Box, size, size));
        for (std::size_t j = 0; j < i; ++j) {
          EXPECT_FALSE(Overlap(grid.Labels[i].Box, grid.Labels[j].Box))
              << size << " " << range << ": " << grid.Labels[i].Text << " on " << grid.Labels[j].Text;
        }
      }
    }
  }
}

TEST(MakeGrid, PutsAWindLabelOnEachCurve) {
  const PolarTable table = TableOf(kSmallPolar);
  const PolarGeometry geometry = PlotGeometry(600.0, 600.0, 16.0);
  const auto curves = PolarCurves(table, 0, geometry);
  const PolarGrid grid = MakeGrid(geometry, {16.0, 13.0, true, true}, curves);
  for (const PolarCurve& curve : curves) {
    const std::string text = std::to_string(static_cast<int>(curve.WindSpeed));
    const auto label = std::find_if(grid.Labels.begin(), grid.Labels.end(), [&](const PlotLabel& other) {
      return other.Kind == PlotLabelKind::Wind && other.Text == text;
    });
    ASSERT_NE(label, grid.Labels.end()) << text;
    const PlotPoint centre{label->Box.X + label->Box.Width / 2.0, label->Box.Y + label->Box.Height / 2.0};
    EXPECT_LT(Nearest(curve.Lines, centre), 1.0) << text;
  }
  const PolarGrid without = MakeGrid(geometry, {16.0, 13.0, false, true}, curves);
  EXPECT_TRUE(std::none_of(without.Labels.begin(), without.Labels.end(),
                           [](const PlotLabel& label) { return label.Kind == PlotLabelKind::Wind; }));
}

}  // namespace
}  // namespace veerwatch
