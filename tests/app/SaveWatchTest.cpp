#include "app/SaveWatch.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

int TicksUntilSaved(SaveWatch& watch, const std::string& content) {
  for (int tick = 1; tick <= 60; ++tick) {
    if (watch.Tick(content)) {
      return tick;
    }
  }
  return 0;
}

TEST(SaveWatch, SavesTenSecondsAfterAChange) {
  SaveWatch watch;
  watch.Saved("one");
  EXPECT_EQ(TicksUntilSaved(watch, "one"), 0);
  EXPECT_EQ(TicksUntilSaved(watch, "two"), 11) << "seen at the first tick, saved ten later";
}

TEST(SaveWatch, WaitsAnewWhenItWasSaved) {
  SaveWatch watch;
  watch.Saved("one");
  ASSERT_EQ(TicksUntilSaved(watch, "two"), 11);
  watch.Saved("two");
  EXPECT_EQ(TicksUntilSaved(watch, "two"), 0);
  EXPECT_EQ(TicksUntilSaved(watch, "three"), 11);
}

TEST(SaveWatch, ForgetsAChangeThatWasTakenBack) {
  SaveWatch watch;
  watch.Saved("one");
  for (int i = 0; i < 9; ++i) {
    EXPECT_FALSE(watch.Tick("two"));
  }
  EXPECT_FALSE(watch.Tick("one"));
  EXPECT_EQ(TicksUntilSaved(watch, "two"), 11);
}

}  // namespace
}  // namespace veerwatch
