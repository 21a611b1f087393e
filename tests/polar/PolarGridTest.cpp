#include "polar/PolarGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/support/PolarText.h"

namespace veerwatch {
namespace {

double Far(const Point& a, const Point& b) { return std::hypot(a.X - b.X, a.Y - b.Y); }

bool Inside(const Box& box, double width, double height) {
  constexpr double kSlack = 1e-6;
  return box.X >= -kSlack && box.Y >= -kSlack && box.X + box.Width <= width + kSlack &&
         box.Y + box.Height <= height + kSlack && box.Width >= 0.0 && box.Height >= 0.0;
}

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
        EXPECT_TRUE(Inside(grid.Labels[i].Place, size, size));
        for (std::size_t j = 0; j < i; ++j) {
          EXPECT_FALSE(grid.Labels[i].Place.Overlaps(grid.Labels[j].Place))
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
    const Point centre = label->Place.Middle();
    EXPECT_LT(Nearest(curve.Lines, centre), 1.0) << text;
  }
  const PolarGrid without = MakeGrid(geometry, {16.0, 13.0, false, true}, curves);
  EXPECT_TRUE(std::none_of(without.Labels.begin(), without.Labels.end(),
                           [](const PlotLabel& label) { return label.Kind == PlotLabelKind::Wind; }));
}

/// The place of `radius` px in the direction `angle` [deg] from (250, 250).
Point From250(double angle, double radius) {
  const double radians = angle * std::acos(-1.0) / 180.0;
  return {250.0 + radius * std::sin(radians), 250.0 - radius * std::cos(radians)};
}

Point CentreOf(const Box& box) { return {box.X + box.Width / 2.0, box.Y + box.Height / 2.0}; }

TEST(MakeGrid, PutsEachAngleLabelItsOwnExtentInsideOfTheRing) {
  // Texts of 10 px: boxes of 12 px by 16.6, 23.4 and 30.2 for one to three digits and the sign. Of half the
  // width as much as the sine of the angle and of half the height as much as the cosine, and 7 px, from the
  // ring at 250.
  const PolarGrid grid = MakeGrid(PlotGeometry(500.0, 500.0, 10.0), {10.0, 10.0, false, true}, {});
  struct Wanted {
    double Angle;
    std::string Text;
    double Width;
    double Radius;
  };
  const std::vector<Wanted> wanted{
      {0.0, "0\u00b0", 16.6, 237.0},           {180.0, "180\u00b0", 30.2, 237.0},
      {30.0, "30\u00b0", 23.4, 231.9538476},   {-30.0, "30\u00b0", 23.4, 231.9538476},
      {60.0, "60\u00b0", 23.4, 229.8675028},   {-60.0, "60\u00b0", 23.4, 229.8675028},
      {90.0, "90\u00b0", 23.4, 231.3},         {-90.0, "90\u00b0", 23.4, 231.3},
      {120.0, "120\u00b0", 30.2, 226.9230164}, {-120.0, "120\u00b0", 30.2, 226.9230164},
      {150.0, "150\u00b0", 30.2, 230.2538476}, {-150.0, "150\u00b0", 30.2, 230.2538476}};
  for (const Wanted& one : wanted) {
    const Point place = From250(one.Angle, one.Radius);
    EXPECT_TRUE(std::any_of(grid.Labels.begin(), grid.Labels.end(), [&](const PlotLabel& label) {
      return label.Kind == PlotLabelKind::Angle && label.Text == one.Text &&
             Far(CentreOf(label.Place), place) < 1e-6 && std::fabs(label.Place.Width - one.Width) < 1e-9 &&
             std::fabs(label.Place.Height - 12.0) < 1e-9;
    })) << one.Angle;
  }
  EXPECT_EQ(std::count_if(grid.Labels.begin(), grid.Labels.end(),
                          [](const PlotLabel& label) { return label.Kind == PlotLabelKind::Angle; }),
            12);
}

TEST(MakeGrid, StartsTheSpokesAbeamAndAheadAtTheCentreAndTheOthersWithinTheInnerRing) {
  // Rings at 2, 4, 6, 8 and 10 kn: the inner one at 50 px.
  const PolarGrid grid = MakeGrid(PlotGeometry(500.0, 500.0, 10.0), {10.0, 12.0, false, true}, {});
  ASSERT_EQ(grid.Spokes.size(), 12U);
  for (std::size_t i = 0; i < grid.Spokes.size(); ++i) {
    const double angle = 30.0 * static_cast<double>(i);
    EXPECT_LT(Far(grid.Spokes[i].From, From250(angle, i % 3 == 0 ? 0.0 : 25.0)), 1e-9) << angle;
    EXPECT_LT(Far(grid.Spokes[i].To, From250(angle, 250.0)), 1e-9) << angle;
  }
}

/// A curve of `wind` kn that has points only at these angles [deg], 150 px from (250, 250).
PolarCurve PointsAt(const std::vector<double>& angles, float wind = 8.0F) {
  Polyline line;
  line.reserve(angles.size());
  for (const double angle : angles) {
    line.push_back(From250(angle, 150.0));
  }
  return {wind, true, {line}};
}

/// Where the wind labels stand [deg], in the order in which they were placed.
std::vector<double> WindAngles(const std::vector<PolarCurve>& curves) {
  const PolarGrid grid = MakeGrid(PlotGeometry(500.0, 500.0, 10.0), {10.0, 10.0, true, true}, curves);
  std::vector<double> angles;
  for (const PlotLabel& label : grid.Labels) {
    if (label.Kind == PlotLabelKind::Wind) {
      const Point centre = CentreOf(label.Place);
      EXPECT_NEAR(Far(centre, {250.0, 250.0}), 150.0, 1e-9);
      angles.push_back(
          std::round(std::atan2(centre.X - 250.0, 250.0 - centre.Y) * 180.0 / std::acos(-1.0) * 100.0) /
          100.0);
    }
  }
  return angles;
}

TEST(MakeGrid, TriesOtherAnglesWhereAWindLabelWouldCoverAnother) {
  // All curves have their points at the same places, so each takes the next that is free.
  const std::vector<double> order{105.0, 95.0, 115.0, 85.0, 125.0, 75.0, 135.0, 65.0, 145.0, 55.0, 160.0};
  std::vector<PolarCurve> curves(order.size() + 1, PointsAt(order));
  EXPECT_EQ(WindAngles(curves), order) << "one each, and none for the last";
}

TEST(MakeGrid, TakesForAWindLabelOnlyAPointLessThanSixDegreesOff) {
  for (const double angle : {49.1, 110.9, 130.9, 150.9, 154.1, 165.9}) {
    EXPECT_EQ(WindAngles({PointsAt({angle})}), std::vector<double>{angle});
  }
  for (const double angle : {48.9, 166.1, 170.0, -105.0}) {
    EXPECT_TRUE(WindAngles({PointsAt({angle})}).empty()) << angle;
  }
  EXPECT_EQ(WindAngles({PointsAt({131.1, 75.0})}), std::vector<double>{75.0}) << "too far from 125 degrees";
  EXPECT_EQ(WindAngles({PointsAt({118.9, 75.0})}), std::vector<double>{118.9});
}

TEST(MakeGrid, LetsALabelTouchTheSquareButNotCrossIt) {
  // A text of 12.5 px: one digit takes 12.25 px, half of it 6.125.
  const auto winds = [](double x) {
    const PolarCurve curve{8.0F, true, {{{x, 271.0}}}};
    const PolarGrid grid = MakeGrid(PlotGeometry(500.0, 500.0, 10.0), {10.0, 12.5, true, true}, {curve});
    return std::count_if(grid.Labels.begin(), grid.Labels.end(),
                         [](const PlotLabel& label) { return label.Kind == PlotLabelKind::Wind; });
  };
  EXPECT_EQ(winds(493.875), 1);
  EXPECT_EQ(winds(493.876), 0);
}

}  // namespace
}  // namespace veerwatch
