#include "draw/Shapes.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

constexpr Box kBox{10.0, 20.0, 30.0, 40.0};

TEST(Box, HasEdgesAndAMiddle) {
  EXPECT_EQ(kBox.Right(), 40.0);
  EXPECT_EQ(kBox.Bottom(), 60.0);
  EXPECT_EQ(kBox.Middle(), (Point{25.0, 40.0}));
}

TEST(Box, ContainsItsUpperLeftEdgesAndNotTheOthers) {
  EXPECT_TRUE(kBox.Contains(10.0, 20.0));
  EXPECT_TRUE(kBox.Contains(39.9, 59.9));
  EXPECT_FALSE(kBox.Contains(40.0, 30.0));
  EXPECT_FALSE(kBox.Contains(20.0, 60.0));
  EXPECT_FALSE(kBox.Contains(9.9, 30.0));
  EXPECT_FALSE(kBox.Contains(20.0, 19.9));
}

TEST(Box, OverlapsWhatSharesAnArea) {
  EXPECT_TRUE(kBox.Overlaps({39.0, 59.0, 10.0, 10.0}));
  EXPECT_TRUE(kBox.Overlaps({0.0, 0.0, 11.0, 21.0}));
  EXPECT_TRUE(kBox.Overlaps({15.0, 25.0, 1.0, 1.0})) << "inside";
  EXPECT_TRUE(kBox.Overlaps({0.0, 30.0, 100.0, 1.0})) << "across";
}

TEST(Box, DoesNotOverlapItsNeighbours) {
  EXPECT_FALSE(kBox.Overlaps({40.0, 20.0, 30.0, 40.0}));
  EXPECT_FALSE(kBox.Overlaps({0.0, 20.0, 10.0, 40.0}));
  EXPECT_FALSE(kBox.Overlaps({10.0, 60.0, 30.0, 40.0}));
  EXPECT_FALSE(kBox.Overlaps({10.0, 0.0, 30.0, 20.0}));
}

}  // namespace
}  // namespace veerwatch
