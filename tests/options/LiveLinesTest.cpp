#include "options/LiveLines.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(LiveLines, AreFullAt101) {
  LiveLines lines;
  for (int i = 0; i < 100; ++i) {
    lines.Append("line", false);
    EXPECT_FALSE(lines.Full()) << i;
  }
  lines.Append("line", false);
  EXPECT_TRUE(lines.Full());
  EXPECT_EQ(lines.Count(), 101U);
}

TEST(LiveLines, LoseTheOldestFirst) {
  LiveLines lines;
  lines.Append("old", true);
  lines.Append("new", false);
  lines.RemoveOldest();
  ASSERT_EQ(lines.Count(), 1U);
  EXPECT_EQ(lines.At(0).Text, "new");
  EXPECT_FALSE(lines.At(0).Highlighted);
  lines.Clear();
  EXPECT_EQ(lines.Count(), 0U);
}

}  // namespace
}  // namespace veerwatch
