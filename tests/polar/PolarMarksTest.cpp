#include "polar/PolarMarks.h"

#include <gtest/gtest.h>

#include <array>

#include <cmath>

namespace veerwatch {
namespace {

double Far(const Point& a, const Point& b) { return std::hypot(a.X - b.X, a.Y - b.Y); }

TEST(WindArrow, PointsFromTheWindToTheCentre) {
  const PolarGeometry geometry = PlotGeometry(400.0, 400.0, 10.0);
  const Point centre{200.0, 200.0};
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

TEST(WindArrow, HasItsPlacesInSharesOfTheOuterRadius) {
  // From starboard on a radius of 200 px: the line from three and a fifth texts inside of the ring.
  const WindArrow arrow = MakeWindArrow(PlotGeometry(400.0, 400.0, 10.0), 90.0, 12.0);
  const auto at = [](const Point& point, double x, double y) { return Far(point, {x, y}) < 1e-9; };
  EXPECT_TRUE(at(arrow.Line.From, 361.6, 200.0));
  EXPECT_TRUE(at(arrow.Line.To, 272.0, 200.0));
  EXPECT_TRUE(at(arrow.Shaft.From, 272.0, 200.0));
  EXPECT_TRUE(at(arrow.Shaft.To, 212.0, 200.0));
  EXPECT_TRUE(at(arrow.HeadLeft, 236.0, 190.0));
  EXPECT_TRUE(at(arrow.HeadRight, 236.0, 210.0));
  // A line that would start inside of the arrow is none.
  const WindArrow large = MakeWindArrow(PlotGeometry(400.0, 400.0, 10.0), 90.0, 60.0);
  EXPECT_TRUE(at(large.Line.From, 272.0, 200.0));
}

TEST(BoatPoint, IsHeldOnTheOuterRing) {
  const PolarGeometry geometry = PlotGeometry(400.0, 400.0, 10.0);
  const BoatPoint inside = MakeBoatPoint(geometry, 90.0, 5.0);
  EXPECT_FALSE(inside.Beyond);
  EXPECT_NEAR(inside.At.X, 300.0, 1e-9);
  const BoatPoint beyond = MakeBoatPoint(geometry, -90.0, 25.0);
  EXPECT_TRUE(beyond.Beyond);
  EXPECT_NEAR(beyond.At.X, 0.0, 1e-9);
  EXPECT_NEAR(beyond.At.Y, 200.0, 1e-9);
}

TEST(MakeLegArrow, EndsAtTheSpeedPointWithStrokesThirtyDegreesOffTheLine) {
  const PolarGeometry geometry = PlotGeometry(400.0, 400.0, 10.0);
  // Ahead: the strokes run backwards, 30 degrees to either side of straight down; 0.07 of 200 px are 14.
  const LegArrow ahead = MakeLegArrow(geometry, 0.0, 5.0);
  EXPECT_NEAR(ahead.Line.From.X, 200.0, 1e-9);
  EXPECT_NEAR(ahead.Line.From.Y, 200.0, 1e-9);
  EXPECT_NEAR(ahead.Line.To.X, 200.0, 1e-9);
  EXPECT_NEAR(ahead.Line.To.Y, 100.0, 1e-9);
  EXPECT_NEAR(ahead.HeadLeft.To.X, 200.0 - 7.0, 1e-6);
  EXPECT_NEAR(ahead.HeadRight.To.X, 200.0 + 7.0, 1e-6);
  EXPECT_NEAR(ahead.HeadLeft.To.Y, 100.0 + 14.0 * 0.8660254, 1e-6);
  EXPECT_NEAR(ahead.HeadRight.To.Y, 100.0 + 14.0 * 0.8660254, 1e-6);
  const LegArrow abeam = MakeLegArrow(geometry, -90.0, 5.0);
  EXPECT_NEAR(abeam.Line.To.X, 100.0, 1e-9);
  EXPECT_NEAR(abeam.HeadLeft.From.X, 100.0, 1e-9);
  EXPECT_NEAR(abeam.HeadLeft.To.X, 100.0 + 14.0 * 0.8660254, 1e-6);
}

TEST(MakeLegArrow, EndsOnTheOuterRing) {
  const LegArrow arrow = MakeLegArrow(PlotGeometry(400.0, 400.0, 10.0), 180.0, 25.0);
  EXPECT_NEAR(arrow.Line.To.Y, 400.0, 1e-9);
}

TEST(MakeTargetMark, GoesFromTheCentreToTheOuterRingWithItsDiamondInsideOfIt) {
  const PolarGeometry geometry = PlotGeometry(400.0, 400.0, 10.0);
  for (const double angle : {0.0, 50.0, -90.0, 180.0}) {
    const TargetMark mark = MakeTargetMark(geometry, angle, 12.0);
    EXPECT_EQ(Far(mark.Line.From, {200.0, 200.0}), 0.0);
    EXPECT_LT(Far(mark.Line.To, PointAt(geometry, angle, 10.0)), 1e-9);
    for (const Point& corner : mark.Diamond) {
      EXPECT_LE(Far(corner, {200.0, 200.0}), 200.0 + 1e-9);
      EXPECT_LE(Far(corner, mark.Line.To), 12.0 + 1e-9);
    }
    EXPECT_NEAR(Far(mark.Diamond[0], mark.Diamond[2]), 12.0, 1e-9);
  }
}

TEST(MakeTargetMark, HasItsDiamondWidestInTheMiddle) {
  // Texts of 12 px: 12 long, 4.2 to either side.
  const TargetMark mark = MakeTargetMark(PlotGeometry(400.0, 400.0, 10.0), 90.0, 12.0);
  EXPECT_LT(Far(mark.Diamond[0], {400.0, 200.0}), 1e-9);
  EXPECT_LT(Far(mark.Diamond[1], {394.0, 195.8}), 1e-9);
  EXPECT_LT(Far(mark.Diamond[2], {388.0, 200.0}), 1e-9);
  EXPECT_LT(Far(mark.Diamond[3], {394.0, 204.2}), 1e-9);
}

TEST(MakeTurnArc, GoesTheWayOfTheTurnInsideOfTheOuterRing) {
  const PolarGeometry geometry = PlotGeometry(400.0, 400.0, 10.0);
  for (const auto& [from, to, middle] :
       {std::array{45.0, -45.0, 0.0}, std::array{150.0, 210.0, 180.0}, std::array{-150.0, -210.0, 180.0}}) {
    const TurnArc arc = MakeTurnArc(geometry, from, to, 10.0);
    // 26 px inside of the ring of 200.
    for (const Point& at : arc.Line) {
      EXPECT_NEAR(Far(at, {200.0, 200.0}), 174.0, 1e-9);
    }
    EXPECT_LT(Far(arc.Line.front(), AtRadius(geometry, from, 174.0)), 1e-9);
    EXPECT_LT(Far(arc.Line.back(), AtRadius(geometry, to, 174.0)), 1e-9);
    EXPECT_LT(Far(arc.Line[arc.Line.size() / 2], AtRadius(geometry, middle, 174.0)), 10.0) << middle;
    EXPECT_LT(Far(arc.Label, AtRadius(geometry, middle, 158.0)), 1e-9);
    EXPECT_EQ(Far(arc.HeadLeft.From, arc.Line.back()), 0.0);
    EXPECT_NEAR(Far(arc.HeadLeft.To, {200.0, 200.0}), 169.5, 1e-9);
    EXPECT_NEAR(Far(arc.HeadRight.To, {200.0, 200.0}), 178.5, 1e-9);
    // The head points backwards along the arc.
    EXPECT_LT(Far(arc.HeadLeft.To, arc.Line[arc.Line.size() - 4]),
              Far(arc.Line.back(), arc.Line[arc.Line.size() - 4]));
  }
}

TEST(MakeTurnArc, IsAtMostOnceRoundAndNoLessThanAPoint) {
  const PolarGeometry geometry = PlotGeometry(400.0, 400.0, 10.0);
  EXPECT_LE(MakeTurnArc(geometry, 0.0, 5000.0, 10.0).Line.size(), 121U);
  EXPECT_EQ(MakeTurnArc(geometry, 30.0, 30.0, 10.0).Line.size(), 2U);
  EXPECT_GE(Far(MakeTurnArc(PlotGeometry(20.0, 20.0, 10.0), 0.0, 90.0, 10.0).Line.front(), {10.0, 10.0}), 9.0)
      << "a plot that is too small has it somewhere";
}

}  // namespace
}  // namespace veerwatch
