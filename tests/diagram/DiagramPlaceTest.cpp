#include "diagram/DiagramPlace.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

/// A button of 100 x 40 at (200, 150) in a window at (300, 100), whose frame adds 8 and 30.
constexpr DiagramAnchor kAnchor{{200, 150, 100, 40}, {300, 100, 808, 530}, 800, 500};

TEST(DiagramShowNear, PutsTheWindowJustBelowTheMiddleOfTheButton) {
  // 200 + 50 + 300 + 8 and 150 + 40 + 100 + 30.
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1920, 1080), (Point{558, 320}));
}

TEST(DiagramShowNear, StaysWhereTheWindowJustFits) {
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1158, 720), (Point{558, 320}));
}

TEST(DiagramShowNear, IsFlushWithTheRightEdge) {
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1157, 1080), (Point{557, 320}));
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1024, 1080), (Point{424, 320}));
}

TEST(DiagramShowNear, IsFlushWithTheLowerEdge) {
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1920, 719), (Point{558, 319}));
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1920, 600), (Point{558, 200}));
}

TEST(DiagramShowNear, IsFlushWithBothEdgesInTheCorner) {
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1024, 600), (Point{424, 200}));
}

TEST(DiagramShowNear, GivesWholeNumbers) {
  DiagramAnchor odd = kAnchor;
  odd.Button.Width = 101;  // its half is 50.5
  odd.Button.Y = 150.2;
  EXPECT_EQ(DiagramShowNear(odd, 600, 400, 1920, 1080), (Point{559, 320}));
}

TEST(DiagramShowNear, WorksOnAScreenToTheLeft) {
  DiagramAnchor left = kAnchor;
  left.Frame.X = -1500;
  EXPECT_EQ(DiagramShowNear(left, 600, 400, 0, 1080), (Point{-1242, 320}));
  left.Frame.X = -700;
  EXPECT_EQ(DiagramShowNear(left, 600, 400, 0, 1080), (Point{-600, 320}));
}

}  // namespace
}  // namespace veerwatch
