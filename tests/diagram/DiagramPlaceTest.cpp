#include "diagram/DiagramPlace.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

/// A button of 100 x 40 at (200, 150) in a window at (300, 100), whose frame adds 8 and 30.
constexpr DiagramAnchor kAnchor{200, 150, 100, 40, 300, 100, 808, 530, 800, 500};

TEST(DiagramShowNear, PutsTheWindowJustBelowTheMiddleOfTheButton) {
  // 200 + 50 + 300 + 8 and 150 + 40 + 100 + 30.
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1920, 1080), (DiagramPlace{558, 320}));
}

TEST(DiagramShowNear, StaysWhereTheWindowJustFits) {
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1158, 720), (DiagramPlace{558, 320}));
}

TEST(DiagramShowNear, IsFlushWithTheRightEdge) {
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1157, 1080), (DiagramPlace{557, 320}));
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1024, 1080), (DiagramPlace{424, 320}));
}

TEST(DiagramShowNear, IsFlushWithTheLowerEdge) {
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1920, 719), (DiagramPlace{558, 319}));
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1920, 600), (DiagramPlace{558, 200}));
}

TEST(DiagramShowNear, IsFlushWithBothEdgesInTheCorner) {
  EXPECT_EQ(DiagramShowNear(kAnchor, 600, 400, 1024, 600), (DiagramPlace{424, 200}));
}

TEST(DiagramShowNear, GivesWholeNumbers) {
  DiagramAnchor odd = kAnchor;
  odd.ButtonWidth = 101;  // its half is 50.5
  odd.ButtonTop = 150.2;
  EXPECT_EQ(DiagramShowNear(odd, 600, 400, 1920, 1080), (DiagramPlace{559, 320}));
}

TEST(DiagramShowNear, WorksOnAScreenToTheLeft) {
  DiagramAnchor left = kAnchor;
  left.WindowLeft = -1500;
  EXPECT_EQ(DiagramShowNear(left, 600, 400, 0, 1080), (DiagramPlace{-1242, 320}));
  left.WindowLeft = -700;
  EXPECT_EQ(DiagramShowNear(left, 600, 400, 0, 1080), (DiagramPlace{-600, 320}));
}

}  // namespace
}  // namespace veerwatch
