#include "history/HistoryPlace.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(HistoryPlace, IsAFrameInWholePixels) {
  EXPECT_EQ(FrameOf(HistoryPlace()), (Box{0, 0, 267, 267}));
  EXPECT_EQ(FrameOf({300.0F, 450.0F, 6000.0F, 7500.0F}), (Box{30, 20, 500, 400}));
  EXPECT_EQ(FrameOf({-300.0F, -458.0F, 1.0F, 8.0F}), (Box{-31, -20, 1, 0}));
}

TEST(HistoryPlace, TakesAFrameInTwips) {
  HistoryPlace place;
  NoteFrame(place, {40, 50, 500, 360});
  EXPECT_EQ(place.Top, 750.0F);
  EXPECT_EQ(place.Left, 600.0F);
  EXPECT_EQ(place.Height, 5400.0F);
  EXPECT_EQ(place.Width, 7500.0F);
}

TEST(HistoryPlace, KeepsTheTwipsThatMeanTheSamePixel) {
  HistoryPlace place{301.0F, -7.0F, 4000.0F, 4007.0F};
  NoteFrame(place, {0, 20, 268, 267});
  EXPECT_EQ(place.Top, 301.0F);
  EXPECT_EQ(place.Left, -7.0F);
  EXPECT_EQ(place.Height, 4000.0F);
  EXPECT_EQ(place.Width, 4020.0F);
}

}  // namespace
}  // namespace veerwatch
