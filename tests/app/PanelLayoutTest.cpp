#include "app/PanelLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace veerwatch {
namespace {

std::vector<Box> Cards(const PanelLayout& layout) {
  return {layout.Banner,         layout.Winds[0].Card, layout.Winds[1].Card, layout.Heading.Card,
          layout.BoatSpeed.Card, layout.Waypoint.Card, layout.AutoPilot.Card};
}

std::vector<Box> Of(const PanelLayout::Wind& wind) {
  return {wind.Option,          wind.Angle.Caption, wind.Angle.Value,   wind.Speed.Caption, wind.Speed.Value,
          wind.Desired.Caption, wind.Desired.Value, wind.Delta.Caption, wind.Delta.Value,   wind.Port,
          wind.Starboard};
}

std::vector<Box> Of(const PanelLayout::Pilot& pilot) {
  return {pilot.Bearing.Caption, pilot.Bearing.Value, pilot.Heading,  pilot.Sent,
          pilot.Follows,         pilot.Port,          pilot.Starboard};
}

bool Overlap(const Box& a, const Box& b) {
  constexpr double kTouch = 1e-6;
  return a.X + a.Width > b.X + kTouch && b.X + b.Width > a.X + kTouch && a.Y + a.Height > b.Y + kTouch &&
         b.Y + b.Height > a.Y + kTouch;
}

bool Inside(const Box& inner, const Box& outer) {
  constexpr double kTouch = 1e-6;
  return inner.X >= outer.X - kTouch && inner.Y >= outer.Y - kTouch &&
         inner.X + inner.Width <= outer.X + outer.Width + kTouch &&
         inner.Y + inner.Height <= outer.Y + outer.Height + kTouch;
}

void ExpectApart(const std::vector<Box>& boxes, const Box& within) {
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    EXPECT_GT(boxes[i].Width, 0.0) << i;
    EXPECT_GT(boxes[i].Height, 0.0) << i;
    EXPECT_TRUE(Inside(boxes[i], within)) << i;
    for (std::size_t j = i + 1; j < boxes.size(); ++j) {
      EXPECT_FALSE(Overlap(boxes[i], boxes[j])) << i << " and " << j;
    }
  }
}

TEST(PanelLayout, KeepsEverythingApartAndInsideAtAnySize) {
  for (const double width : {200.0, 320.0, 500.0, 1024.0, 1160.0, 3840.0}) {
    for (const double height : {120.0, 200.0, 460.0, 640.0, 1100.0, 2160.0}) {
      SCOPED_TRACE(testing::Message() << width << " x " << height);
      const PanelLayout layout = LayPanel(width, height);
      ExpectApart(Cards(layout), {0.0, 0.0, width, height});
      for (const PanelLayout::Wind& wind : layout.Winds) {
        ExpectApart(Of(wind), wind.Card);
      }
      ExpectApart(Of(layout.AutoPilot), layout.AutoPilot.Card);
      ExpectApart({layout.Heading.Value.Caption, layout.Heading.Value.Value}, layout.Heading.Card);
    }
  }
}

TEST(PanelLayout, PutsTheBannerAcrossTheTopAndGrowsItWithThePanel) {
  const PanelLayout layout = LayPanel(1160.0, 640.0);
  EXPECT_GE(layout.Banner.Height, 40.0);
  EXPECT_DOUBLE_EQ(layout.Banner.X, layout.Winds[0].Card.X);
  EXPECT_DOUBLE_EQ(layout.Banner.X + layout.Banner.Width,
                   layout.Winds[1].Card.X + layout.Winds[1].Card.Width);
  EXPECT_LE(layout.Banner.Y + layout.Banner.Height, layout.Winds[0].Card.Y);
  EXPECT_DOUBLE_EQ(LayPanel(2320.0, 1280.0).Banner.Height, 2.0 * layout.Banner.Height);
  EXPECT_DOUBLE_EQ(LayPanel(2320.0, 1280.0).BannerText, 2.0 * layout.BannerText);
  EXPECT_GE(layout.BannerText, 22.0);
  EXPECT_GE(LayPanel(320.0, 200.0).Banner.Height, 20.0) << "still to be hit by a finger's tip";
}

TEST(PanelLayout, SurvivesAPanelOfOnePixel) {
  const PanelLayout layout = LayPanel(1.0, 1.0);
  EXPECT_GE(layout.CaptionText, 6.0);
  for (const Box& card : Cards(layout)) {
    EXPECT_TRUE(Inside(card, {0.0, 0.0, 1.0, 1.0}));
  }
}

TEST(PanelLayout, PutsTheWindsSideBySideWhenWideAndOneAboveTheOtherWhenTall) {
  const PanelLayout wide = LayPanel(1160.0, 640.0);
  EXPECT_EQ(wide.Winds[0].Card.Y, wide.Winds[1].Card.Y);
  EXPECT_LT(wide.Winds[0].Card.X, wide.Winds[1].Card.X);
  const PanelLayout tall = LayPanel(500.0, 900.0);
  EXPECT_EQ(tall.Winds[0].Card.X, tall.Winds[1].Card.X);
  EXPECT_LT(tall.Winds[0].Card.Y, tall.Winds[1].Card.Y);
}

TEST(PanelLayout, GivesPortTheLeftPlace) {
  const PanelLayout layout = LayPanel(1160.0, 640.0);
  EXPECT_LT(layout.Winds[0].Port.X, layout.Winds[0].Starboard.X);
  EXPECT_LT(layout.Winds[1].Port.X, layout.Winds[1].Starboard.X);
  EXPECT_LT(layout.AutoPilot.Port.X, layout.AutoPilot.Starboard.X);
}

TEST(PanelLayout, GrowsItsTextsWithThePanel) {
  EXPECT_DOUBLE_EQ(LayPanel(2320.0, 1280.0).CaptionText, 2.0 * LayPanel(1160.0, 640.0).CaptionText);
}

using Widths = std::vector<double>;
const Widths kShares{5.0, 3.0, 3.0};

TEST(ShareRoom, WeighsTheSharesWhileAllFit) {
  EXPECT_EQ(ShareRoom(1100.0, kShares, {100.0, 0.0, 300.0}), (Widths{500.0, 300.0, 300.0}));
}

TEST(ShareRoom, GivesALongTextTheFreeRoomOfTheOthers) {
  // 100 too little; the others have 400 and 200 too much.
  const Widths widths = ShareRoom(1100.0, kShares, {100.0, 100.0, 400.0});
  EXPECT_DOUBLE_EQ(widths[2], 400.0);
  EXPECT_NEAR(widths[0], 500.0 - 100.0 * 400.0 / 600.0, 1e-9);
  EXPECT_NEAR(widths[1], 300.0 - 100.0 * 200.0 / 600.0, 1e-9);
}

TEST(ShareRoom, CutsTheWidestWhereThereIsTooLittle) {
  EXPECT_EQ(ShareRoom(300.0, kShares, {400.0, 20.0, 150.0}), (Widths{140.0, 20.0, 140.0}));
  EXPECT_EQ(ShareRoom(300.0, kShares, {400.0, 0.0, 50.0}), (Widths{250.0, 0.0, 50.0}));
}

TEST(ShareRoom, NeitherLeavesRoomNorTakesMore) {
  for (const double room : {1.0, 200.0, 600.0, 5000.0}) {
    for (const Widths& needed :
         {Widths{0.0, 0.0, 0.0}, Widths{180.0, 90.0, 160.0}, Widths{900.0, 0.0, 900.0}}) {
      const Widths widths = ShareRoom(room, kShares, needed);
      EXPECT_NEAR(widths[0] + widths[1] + widths[2], room, 1e-6);
    }
  }
}

}  // namespace
}  // namespace veerwatch
