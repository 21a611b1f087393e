#include "history/TraceStroke.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace veerwatch {
namespace {

using Points = std::vector<Point>;

constexpr double kWidth = 2.0;

std::vector<Stroke> Pieces(const Points& points) { return TraceStroke().Pieces(points, kWidth); }

void ExpectPoint(const Point& point, double x, double y) {
  EXPECT_NEAR(point.X, x, 1e-9);
  EXPECT_NEAR(point.Y, y, 1e-9);
}

TEST(TraceStroke, ASteadyLineIsOnePiece) {
  Points points;
  for (int i = 0; i < 180; ++i) {
    points.push_back({20.3 + 4.7 * i, 50.37});
  }
  const auto pieces = Pieces(points);
  ASSERT_EQ(pieces.size(), 1U);
  ExpectPoint(pieces[0].From, 20.3, 50.37);
  ExpectPoint(pieces[0].To, 20.3 + 4.7 * 179 + kWidth / 2.0, 50.37);
}

TEST(TraceStroke, SoIsASlope) {
  Points points;
  for (int i = 0; i < 50; ++i) {
    points.push_back({3.0 * i, 4.0 * i});
  }
  const auto pieces = Pieces(points);
  ASSERT_EQ(pieces.size(), 1U);
  ExpectPoint(pieces[0].From, 0.0, 0.0);
  ExpectPoint(pieces[0].To, 147.0 + 0.6, 196.0 + 0.8);
}

TEST(TraceStroke, PiecesReachOverACornerUntilTheirOuterEdgesMeet) {
  // Level, then 45 degrees down: the outer edges meet tan(22.5 degrees) half widths after the corner.
  const auto pieces = Pieces({{0.0, 0.0}, {10.0, 0.0}, {20.0, 10.0}});
  const double reach = kWidth / 2.0 * std::tan(22.5 * M_PI / 180.0);
  ASSERT_EQ(pieces.size(), 2U);
  ExpectPoint(pieces[0].From, 0.0, 0.0);
  ExpectPoint(pieces[0].To, 10.0 + reach, 0.0);
  ExpectPoint(pieces[1].From, 10.0 - reach * std::sqrt(0.5), -reach * std::sqrt(0.5));
}

TEST(TraceStroke, ASharpCornerIsClosedByHalfTheWidth) {
  const auto pieces = Pieces({{0.0, 100.0}, {1.0, 0.0}, {2.0, 100.0}});
  ASSERT_EQ(pieces.size(), 2U);
  EXPECT_NEAR(pieces[0].To.Y, -kWidth / 2.0, 1e-3);
  EXPECT_NEAR(pieces[1].From.Y, -kWidth / 2.0, 1e-3);
}

TEST(TraceStroke, NoPointIsFarFromItsPiece) {
  Points points;
  std::uint32_t random = 1;
  for (int i = 0; i < 2000; ++i) {
    random = random * 1664525U + 1013904223U;
    const double noise = static_cast<double>(random >> 8U) / (1U << 24U) - 0.5;
    // A slow swing with noise from none to a pixel.
    points.push_back({1.7 * i, 40.0 * std::sin(i * 0.01) + noise * i / 2000.0});
  }
  const auto pieces = Pieces(points);
  EXPECT_LT(pieces.size(), 1800U);
  ASSERT_GT(pieces.size(), 100U);
  for (const Point& point : points) {
    double nearest = 1e9;
    for (const Stroke& piece : pieces) {
      if (point.X >= piece.From.X - 1e-9 && point.X <= piece.To.X + 1e-9) {
        const double part = (point.X - piece.From.X) / (piece.To.X - piece.From.X);
        nearest = std::min(nearest, std::fabs(piece.From.Y + part * (piece.To.Y - piece.From.Y) - point.Y));
      }
    }
    EXPECT_LE(nearest, TraceStroke::kStraight + 1e-9) << point.X;
  }
}

TEST(TraceStroke, FewerThanTwoPointsHaveNone) {
  EXPECT_TRUE(Pieces({}).empty());
  EXPECT_TRUE(Pieces({{1.0, 2.0}}).empty());
  EXPECT_EQ(Pieces({{1.0, 2.0}, {3.0, 2.0}}).size(), 1U);
}

}  // namespace
}  // namespace veerwatch
