#include "polar/PolarCurves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "tests/support/PolarText.h"

namespace veerwatch {
namespace {

double Far(const Point& a, const Point& b) { return std::hypot(a.X - b.X, a.Y - b.Y); }

/// Distance from `point` to the nearest point of the lines.
double Nearest(const std::vector<Polyline>& lines, const Point& point) {
  double nearest = 1e9;
  for (const Polyline& line : lines) {
    for (const Point& other : line) {
      nearest = std::min(nearest, Far(point, other));
    }
  }
  return nearest;
}

TEST(SmoothLine, GoesThroughEveryKnotInSmallSteps) {
  const std::vector<Point> knots{{10.0, 0.0}, {60.0, 30.0}, {80.0, 90.0}, {40.0, 150.0}};
  const Polyline line = SmoothLine(knots, 0.0);
  for (const Point& knot : knots) {
    EXPECT_LT(Nearest({line}, knot), 1e-9);
  }
  for (std::size_t i = 1; i < line.size(); ++i) {
    EXPECT_LT(Far(line[i - 1], line[i]), 12.0);
  }
}

TEST(SmoothLine, HasAPointForEverySevenPixels) {
  EXPECT_EQ(SmoothLine({{10.0, 0.0}, {10.0, 7.0}}, 0.0).size(), 2U);
  EXPECT_EQ(SmoothLine({{10.0, 0.0}, {10.0, 14.5}}, 0.0).size(), 4U);
  EXPECT_EQ(SmoothLine({{10.0, 0.0}, {10.0, 1000.0}}, 0.0).size(), 25U) << "but not more between two knots";
}

TEST(SmoothLine, HasNoCorners) {
  const Polyline line =
      SmoothLine({{10.0, 0.0}, {60.0, 30.0}, {80.0, 90.0}, {40.0, 150.0}, {0.0, 170.0}}, 0.0);
  for (std::size_t i = 1; i + 1 < line.size(); ++i) {
    const double before = std::atan2(line[i].Y - line[i - 1].Y, line[i].X - line[i - 1].X);
    const double after = std::atan2(line[i + 1].Y - line[i].Y, line[i + 1].X - line[i].X);
    EXPECT_LT(std::fabs(std::remainder(after - before, 2.0 * std::acos(-1.0))), 0.35) << i;
  }
}

TEST(SmoothLine, LeavesTheAxisAtARightAngle) {
  const Polyline line = SmoothLine({{80.0, 20.0}, {60.0, 80.0}, {0.0, 100.0}}, 0.0);
  const Point& last = line.back();
  const Point& before = line[line.size() - 2];
  EXPECT_NEAR(last.X, 0.0, 1e-9);
  EXPECT_LT(std::fabs(last.Y - before.Y), 0.15 * std::fabs(last.X - before.X));
}

TEST(SmoothLine, RunsStraightOnFromAnEndAThousandthOfAPixelBesideTheAxis) {
  const auto slope = [](double x) {
    const Polyline line = SmoothLine({{x, 0.0}, {x + 14.0, 14.0}}, 0.0);
    return (line[1].Y - line[0].Y) / (line[1].X - line[0].X);
  };
  EXPECT_NEAR(slope(0.001), 1.0, 1e-9);
  EXPECT_LT(slope(0.0009), 0.8) << "on the axis it is mirrored";
}

TEST(SmoothLine, SurvivesKnotsAtOnePlaceAndFarAway) {
  EXPECT_TRUE(SmoothLine({}, 0.0).empty());
  EXPECT_EQ(SmoothLine({{1.0, 1.0}, {1.0, 1.0}}, 0.0).size(), 1U);
  for (const Point& point : SmoothLine({{0.0, 0.0}, {0.0, 0.0}, {1e40, -1e40}, {3.0, 4.0}}, 0.0)) {
    EXPECT_TRUE(std::isfinite(point.X) && std::isfinite(point.Y));
  }
}

TEST(ClipToDisc, CutsWhereTheLineCrosses) {
  const auto parts = ClipToDisc({{-20.0, 0.0}, {0.0, 0.0}, {20.0, 0.0}, {0.0, 5.0}}, 0.0, 0.0, 10.0);
  ASSERT_EQ(parts.size(), 2U);
  EXPECT_NEAR(parts[0].front().X, -10.0, 1e-9);
  EXPECT_NEAR(parts[0].back().X, 10.0, 1e-9);
  EXPECT_NEAR(Far(parts[1].front(), {0.0, 0.0}), 10.0, 1e-9);
  EXPECT_NEAR(Far(parts[1].back(), {0.0, 5.0}), 0.0, 1e-9);
}

TEST(ClipToDisc, CutsALineThatOnlyPassesThrough) {
  const auto parts = ClipToDisc({{-20.0, 6.0}, {20.0, 6.0}}, 0.0, 0.0, 10.0);
  ASSERT_EQ(parts.size(), 1U);
  EXPECT_NEAR(parts[0].front().X, -8.0, 1e-9);
  EXPECT_NEAR(parts[0].back().X, 8.0, 1e-9);
  EXPECT_TRUE(ClipToDisc({{-20.0, 11.0}, {20.0, 11.0}}, 0.0, 0.0, 10.0).empty());
}

TEST(ClipToDisc, LeavesEveryPointInsideExactlyWhereItIs) {
  Polyline line;
  for (int i = 0; i < 100; ++i) {
    line.push_back({0.1 * i, 0.07 * (i % 3)});
  }
  const auto parts = ClipToDisc(line, 0.0, 0.0, 50.0);
  ASSERT_EQ(parts.size(), 1U);
  ASSERT_EQ(parts[0].size(), line.size());
  for (std::size_t i = 0; i < line.size(); ++i) {
    EXPECT_EQ(parts[0][i].X, line[i].X) << i;
    EXPECT_EQ(parts[0][i].Y, line[i].Y) << i;
  }
}

TEST(ClipToDisc, TakesThePointItselfWhereTheWayToItRounds) {
  // 10 + (0.1 - 10) is 0.0999999999999996 in the arithmetic of a computer.
  const auto parts = ClipToDisc({{10.0, 0.0}, {0.1, 0.0}}, 0.0, 0.0, 50.0);
  ASSERT_EQ(parts.size(), 1U);
  EXPECT_EQ(parts[0].back().X, 0.1);
}

TEST(PolarCurves, GoThroughTheirCellsOnBothSides) {
  const PolarTable table = TableOf(kSmallPolar);
  const PolarGeometry geometry = PlotGeometry(500.0, 500.0, 16.0);
  const auto curves = PolarCurves(table, 0, geometry);
  ASSERT_EQ(curves.size(), 4U);
  for (int column = 1; column <= 4; ++column) {
    const PolarCurve& curve = curves[static_cast<std::size_t>(column - 1)];
    EXPECT_EQ(curve.WindSpeed, table.Value(0, 0, column));
    EXPECT_TRUE(curve.Major);
    for (int row = 1; row <= 4; ++row) {
      for (const double side : {1.0, -1.0}) {
        const Point cell = PointAt(geometry, side * static_cast<double>(table.Value(0, row, 0)),
                                   static_cast<double>(table.Value(0, row, column)));
        EXPECT_LT(Nearest(curve.Lines, cell), 1e-6) << row << "," << column;
      }
    }
  }
}

TEST(PolarCurves, StayWithinTheOuterRing) {
  const PolarTable table =
      TableOf("TWA\t6\t10\n30\t1\t300000000000000000000000000000000000000\n90\t9\t40\n150\t20\t2\n");
  const PolarGeometry geometry = PlotGeometry(300.0, 300.0, 10.0);
  for (const PolarCurve& curve : PolarCurves(table, 0, geometry)) {
    for (const Polyline& line : curve.Lines) {
      for (const Point& point : line) {
        EXPECT_LE(Far(point, {150.0, 150.0}), 150.0 + 1e-3);
      }
    }
  }
}

/// How many of the curves of a table with so many winds are major.
std::ptrdiff_t MajorOf(std::int16_t columns) {
  PolarTable table;
  table.PolarColumns(0) = columns;
  table.PolarRows(0) = 2;
  for (int column = 1; column <= columns; ++column) {
    table.Value(0, 0, column) = static_cast<float>(column);
  }
  const auto curves = PolarCurves(table, 0, PlotGeometry(100.0, 100.0, 10.0));
  EXPECT_EQ(curves.size(), static_cast<std::size_t>(columns));
  return std::count_if(curves.begin(), curves.end(), [](const PolarCurve& curve) { return curve.Major; });
}

TEST(PolarCurves, AreThinnedInADenseTable) {
  EXPECT_EQ(MajorOf(50), 10);
  EXPECT_EQ(MajorOf(12), 12) << "not dense yet";
  EXPECT_EQ(MajorOf(13), 7) << "every second";
  EXPECT_EQ(MajorOf(31), 8) << "every fourth";
}

TEST(WindCurve, LiesBetweenItsNeighbours) {
  const PolarTable table = TableOf(kSmallPolar);
  const PolarGeometry geometry = PlotGeometry(500.0, 500.0, 16.0);
  const PolarCurve curve = WindCurve(table, 0, 12.0F, geometry);
  EXPECT_EQ(curve.WindSpeed, 12.0F);
  EXPECT_TRUE(curve.Major);
  EXPECT_LT(Nearest(curve.Lines, PointAt(geometry, 80.0, 8.5)), 1e-4);
  EXPECT_LT(Nearest(curve.Lines, PointAt(geometry, -120.0, 8.75)), 1e-4);
}

TEST(WindCurve, IsTheHighestColumnAboveAllAndNothingBelowTheLowest) {
  const PolarTable table = TableOf(kSmallPolar);
  const PolarGeometry geometry = PlotGeometry(500.0, 500.0, 16.0);
  EXPECT_LT(Nearest(WindCurve(table, 0, 35.0F, geometry).Lines, PointAt(geometry, 120.0, 14.0)), 1e-4);
  EXPECT_LT(Nearest(WindCurve(table, 0, 6.0F, geometry).Lines, PointAt(geometry, 120.0, 4.5)), 1e-4);
  EXPECT_TRUE(WindCurve(table, 0, 5.9F, geometry).Lines.empty());
  EXPECT_TRUE(WindCurve(PolarTable(), 0, 10.0F, geometry).Lines.empty());
}

}  // namespace
}  // namespace veerwatch
