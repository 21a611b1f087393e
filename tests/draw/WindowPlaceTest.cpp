#include "draw/WindowPlace.h"

#include <gtest/gtest.h>

#include <vector>

namespace veerwatch {
namespace {

const Box kScreen{0.0, 0.0, 1920.0, 1080.0};
const Box kRight{1920.0, 200.0, 1280.0, 800.0};

void Expect(const Box& placed, double x, double y, double width, double height) {
  EXPECT_EQ(placed.X, x);
  EXPECT_EQ(placed.Y, y);
  EXPECT_EQ(placed.Width, width);
  EXPECT_EQ(placed.Height, height);
}

TEST(WindowPlace, AWindowOnAScreenStays) {
  Expect(PlaceOnScreen({0, 0, 267, 267}, {kScreen}, 220, 180), 0, 0, 267, 267);
  Expect(PlaceOnScreen({2000, 300, 400, 300}, {kScreen, kRight}, 220, 180), 2000, 300, 400, 300);
}

TEST(WindowPlace, AWindowPartlyOutsideStaysWhereItCanBeGrabbed) {
  Expect(PlaceOnScreen({-200, 500, 400, 300}, {kScreen}, 220, 180), -200, 500, 400, 300);
  Expect(PlaceOnScreen({1800, 1000, 400, 300}, {kScreen}, 220, 180), 1800, 1000, 400, 300);
}

TEST(WindowPlace, AWindowOffEveryScreenIsBroughtBack) {
  Expect(PlaceOnScreen({5000, 5000, 400, 300}, {kScreen}, 220, 180), 1520, 780, 400, 300);
  Expect(PlaceOnScreen({-5000, 100, 400, 300}, {kScreen}, 220, 180), 0, 100, 400, 300);
  Expect(PlaceOnScreen({5000, 5000, 400, 300}, {kScreen, kRight}, 220, 180), 2800, 700, 400, 300);
}

TEST(WindowPlace, AWindowWhoseTitleBarIsAboveTheScreenIsBroughtBack) {
  Expect(PlaceOnScreen({100, -100, 400, 300}, {kScreen}, 220, 180), 100, 0, 400, 300);
  Expect(PlaceOnScreen({100, 1070, 400, 300}, {kScreen}, 220, 180), 100, 780, 400, 300);
}

TEST(WindowPlace, AWindowIsNeitherTooSmallNorTooLarge) {
  Expect(PlaceOnScreen({10, 10, 1, 1}, {kScreen}, 220, 180), 10, 10, 220, 180);
  Expect(PlaceOnScreen({10, 10, 60000, 60000}, {kScreen}, 220, 180), 10, 10, 1920, 1080);
}

TEST(WindowPlace, AWindowIsSeenWithFortyPixelsEachWayOnOneScreen) {
  const std::vector<Box> screens{kScreen, kRight};
  EXPECT_TRUE(CanBeSeen({100, 100, 400, 300}, screens));
  EXPECT_TRUE(CanBeSeen({-360, -260, 400, 300}, screens));
  EXPECT_FALSE(CanBeSeen({-361, -260, 400, 300}, screens));
  EXPECT_FALSE(CanBeSeen({-360, -261, 400, 300}, screens));
  EXPECT_TRUE(CanBeSeen({3160, 960, 400, 300}, screens)) << "on the right screen";
  EXPECT_FALSE(CanBeSeen({3161, 960, 400, 300}, screens));
  EXPECT_FALSE(CanBeSeen({1881, -261, 78, 500}, {kScreen})) << "too narrow";
  EXPECT_FALSE(CanBeSeen({100, 100, 400, 300}, {})) << "without screens";
}

TEST(WindowPlace, WithoutScreensItStays) {
  Expect(PlaceOnScreen({-7, 9, 400, 300}, {}, 220, 180), -7, 9, 400, 300);
}

}  // namespace
}  // namespace veerwatch
