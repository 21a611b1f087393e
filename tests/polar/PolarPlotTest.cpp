#include "polar/PolarPlot.h"

#include <gtest/gtest.h>

#include <cmath>

namespace veerwatch {
namespace {

double Far(const Point& a, const Point& b) { return std::hypot(a.X - b.X, a.Y - b.Y); }

TEST(PlotGeometry, PutsTheRangeAtTheEdgeOfTheSquareAtTheUpperLeft) {
  const PolarGeometry wide = PlotGeometry(900.0, 600.0, 12.0);
  EXPECT_EQ(wide.CentreX, 300.0);
  EXPECT_EQ(wide.CentreY, 300.0);
  EXPECT_EQ(wide.ScaleX, 25.0);
  EXPECT_EQ(wide.ScaleY, 25.0);
  EXPECT_EQ(OuterRadius(wide), 300.0);
  EXPECT_EQ(PlotGeometry(400.0, 700.0, 10.0).CentreY, 200.0);
}

TEST(PointAt, HasTheBowUpAndStarboardToTheRight) {
  const PolarGeometry geometry = PlotGeometry(200.0, 200.0, 10.0);
  EXPECT_NEAR(Far(PointAt(geometry, 0.0, 5.0), {100.0, 50.0}), 0.0, 1e-9);
  EXPECT_NEAR(Far(PointAt(geometry, 90.0, 5.0), {150.0, 100.0}), 0.0, 1e-9);
  EXPECT_NEAR(Far(PointAt(geometry, -90.0, 10.0), {0.0, 100.0}), 0.0, 1e-9);
  EXPECT_NEAR(Far(PointAt(geometry, 180.0, 5.0), {100.0, 150.0}), 0.0, 1e-9);
}

}  // namespace
}  // namespace veerwatch
