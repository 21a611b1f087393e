#include "polar/PolarPlot.h"

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

TEST(SmoothLine, GoesThroughEveryKnotInSmallSteps) {
  const std::vector<PlotPoint> knots{{10.0, 0.0}, {60.0, 30.0}, {80.0, 90.0}, {40.0, 150.0}};
  const PlotLine line = SmoothLine(knots, 0.0);
  for (const PlotPoint& knot : knots) {
    EXPECT_LT(Nearest({line}, knot), 1e-9);
  }
  for (std::size_t i = 1; i < line.size(); ++i) {
    EXPECT_LT(Far(line[i - 1], line[i]), 12.0);
  }
}

TEST(SmoothLine, HasNoCorners) {
  const PlotLine line =
      SmoothLine({{10.0, 0.0}, {60.0, 30.0}, {80.0, 90.0}, {40.0, 150.0}, {0.0, 170.0}}, 0.0);
  for (std::size_t i = 1; i + 1 < line.size(); ++i) {
    const double before = std::atan2(line[i].Y - line[i - 1].Y, line[i].X - line[i - 1].X);
    const double behind = std::atan2(line[i + 1].Y - line[i].Y, line[i + 1].X - line[i].X);
    EXPECT_LT(std::fabs(std::remainder(behind - before, 2.0 * std::acos(-1.0))), 0.35) << i;
  }
}

TEST(SmoothLine, LeavesTheAxisAtARightAngle) {
  const PlotLine line = SmoothLine({{80.0, 20.0}, {60.0, 80.0}, {0.0, 100.0}}, 0.0);
  const PlotPoint& last = line.back();
  const PlotPoint& before = line[line.size() - 2];
  EXPECT_NEAR(last.X, 0.0, 1e-9);
  EXPECT_LT(std::fabs(last.Y - before.Y), 0.15 * std::fabs(last.X - before.X));
}

TEST(SmoothLine, SurvivesKnotsAtOnePlaceAndFarAway) {
  EXPECT_TRUE(SmoothLine({}, 0.0).empty());
  EXPECT_EQ(SmoothLine({{1.0, 1.0}, {1.0, 1.0}}, 0.0).size(), 1U);
  for (const PlotPoint& point : SmoothLine({{0.0, 0.0}, {0.0, 0.0}, {1e40, -1e40}, {3.0, 4.0}}, 0.0)) {
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
        const PlotPoint cell = PointAt(geometry, side * static_cast<double>(table.Value(0, row, 0)),
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
    for (const PlotLine& line : curve.Lines) {
      for (const PlotPoint& point : line) {
        EXPECT_LE(Far(point, {150.0, 150.0}), 150.0 + 1e-3);
      }
    }
  }
}

TEST(PolarCurves, AreThinnedInADenseTable) {
  PolarTable table;
  table.PolarColumns(0) = 50;
  table.PolarRows(0) = 2;
  for (int column = 1; column <= 50; ++column) {
    table.Value(0, 0, column) = static_cast<float>(column);
  }
  const auto curves = PolarCurves(table, 0, PlotGeometry(100.0, 100.0, 10.0));
  EXPECT_EQ(curves.size(), 50U);
  EXPECT_EQ(std::count_if(curves.begin(), curves.end(), [](const PolarCurve& curve) { return curve.Major; }),
            10);
}

TEST(WindCurve, LiesBetweenItsNeighbours) {
  const PolarTable table = TableOf(kSmallPolar);
  const PolarGeometry geometry = PlotGeometry(500.0, 500.0, 16.0);
  const PolarCurve curve = WindCurve(table, 0, 12.0F, geometry);
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

TEST(WindArrow, PointsFromTheWindToTheCentre) {
  const PolarGeometry geometry = PlotGeometry(400.0, 400.0, 10.0);
  const PlotPoint centre{200.0, 200.0};
  for (const double angle : {0.0, 45.0, -120.0, 180.0}) {
    const WindArrow arrow = MakeWindArrow(geometry, angle, 12.0);
    EXPECT_LT(Far(arrow.Shaft.To, centre), Far(arrow.Shaft.From, centre));
    const double radians = angle * std::acos(-1.0) / 180.0;
    const double out = Far(arrow.Shaft.From, centre);
    EXPECT_NEAR(arrow.Shaft.From.X, 200.0 + out * std::sin(radians), 1e-6);
    EXPECT_NEAR(arrow.Shaft.From.Y, 200.0 - out * std::cos(radians), 1e-6);
    EXPECT_NEAR(Far(arrow.HeadLeft, arrow.Shaft.To), Far(arrow.HeadRight, arrow.Shaft.To), 1e-6);
  }
}

TEST(BoatPoint, IsHeldOnTheOuterRing) {
  const PolarGeometry geometry = PlotGeometry(400.0, 400.0, 10.0);
  const BoatPoint inside = MakeBoatPoint(geometry, 90.0, 5.0);
  EXPECT_FALSE(inside.Beyond);
  EXPECT_NEAR(inside.Point.X, 300.0, 1e-9);
  const BoatPoint beyond = MakeBoatPoint(geometry, -90.0, 25.0);
  EXPECT_TRUE(beyond.Beyond);
  EXPECT_NEAR(beyond.Point.X, 0.0, 1e-9);
  EXPECT_NEAR(beyond.Point.Y, 200.0, 1e-9);
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
