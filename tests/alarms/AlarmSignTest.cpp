#include "alarms/AlarmSign.h"

#include <gtest/gtest.h>

#include <set>

namespace veerwatch {
namespace {

constexpr Box kBox{10.0, 20.0, 30.0, 30.0};

TEST(AlarmSign, EachLevelHasItsOwnOutlineInsideItsBox) {
  std::set<std::size_t> corners;
  for (const Level level : {Level::Red, Level::Amber, Level::Note}) {
    const Polyline outline = AlarmSign(level, kBox);
    ASSERT_GE(outline.size(), 4U);
    EXPECT_NEAR(outline.front().X, outline.back().X, 1e-9);
    EXPECT_NEAR(outline.front().Y, outline.back().Y, 1e-9);
    corners.insert(outline.size() - 1);
    for (const Point& point : outline) {
      EXPECT_GE(point.X, kBox.X - 1e-9);
      EXPECT_LE(point.X, kBox.Right() + 1e-9);
      EXPECT_GE(point.Y, kBox.Y - 1e-9);
      EXPECT_LE(point.Y, kBox.Bottom() + 1e-9);
    }
  }
  EXPECT_EQ(corners, (std::set<std::size_t>{3, 8, 32}));
}

TEST(AlarmSign, AnOctagonStandsOnASide) {
  const Polyline outline = AlarmSign(Level::Red, kBox);
  int bottom = 0;
  for (std::size_t i = 1; i < outline.size(); ++i) {
    bottom += outline[i].Y > kBox.Bottom() - 1e-6 ? 1 : 0;
  }
  EXPECT_EQ(bottom, 2);
}

TEST(AlarmSign, TheMarkOfTheTriangleStandsBelowItsTip) {
  EXPECT_GT(AlarmSignMark(Level::Amber, kBox).Y, kBox.Y);
  EXPECT_EQ(AlarmSignMark(Level::Red, kBox), kBox);
  EXPECT_EQ(AlarmSignLetter(Level::Red), '!');
  EXPECT_EQ(AlarmSignLetter(Level::Note), 'i');
}

}  // namespace
}  // namespace veerwatch
