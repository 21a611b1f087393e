#include "polar/CourseCaptions.h"

#include <gtest/gtest.h>

#include <limits>

namespace veerwatch {
namespace {

TEST(SteerFace, SaysTheTurnAndItsSide) {
  EXPECT_EQ(SteerFace(112.0F, 100.0F), (TurnFace{"Steer +12 >", TurnColor::Starboard}));
  EXPECT_EQ(SteerFace(88.0F, 100.0F), (TurnFace{"< Steer -12", TurnColor::Port}));
  EXPECT_EQ(SteerFace(100.0F, 100.0F), (TurnFace{"Steer 0", TurnColor::Own}));
}

TEST(SteerFace, TurnsThroughNorthTheShortWay) {
  EXPECT_EQ(SteerFace(10.0F, 350.0F).Caption, "Steer +20 >");
  EXPECT_EQ(SteerFace(350.0F, 10.0F).Caption, "< Steer -20");
  EXPECT_EQ(SteerFace(190.0F, 10.0F), (TurnFace{"Steer +180 >", TurnColor::Starboard}));
}

TEST(SteerFace, IsZeroWhenTheWholeDegreesAre) {
  EXPECT_EQ(SteerFace(100.4F, 100.0F), (TurnFace{"Steer 0", TurnColor::Own}));
  EXPECT_EQ(SteerFace(99.6F, 100.0F), (TurnFace{"Steer 0", TurnColor::Own}));
  EXPECT_EQ(SteerFace(100.75F, 100.0F), (TurnFace{"Steer +1 >", TurnColor::Starboard}));
  EXPECT_EQ(SteerFace(99.25F, 100.0F), (TurnFace{"< Steer -1", TurnColor::Port}));
}

TEST(TackFace, PointsTheOtherWayForAJibe) {
  EXPECT_EQ(TackFace(true, true, true), (TurnFace{"<< Tack", TurnColor::Port}));
  EXPECT_EQ(TackFace(false, true, true), (TurnFace{"Tack >>", TurnColor::Starboard}));
  EXPECT_EQ(TackFace(true, false, true), (TurnFace{"Jibe >>", TurnColor::Starboard}));
  EXPECT_EQ(TackFace(false, false, true), (TurnFace{"<< Jibe", TurnColor::Port}));
}

TEST(TackFace, HasNoColourWithoutAnotherLeg) {
  EXPECT_EQ(TackFace(true, true, false), (TurnFace{"<< Tack", TurnColor::Own}));
  EXPECT_EQ(TackFace(false, false, false), (TurnFace{"<< Jibe", TurnColor::Own}));
}

TEST(FormatHours, RoundsTheMinutesAndCarriesThem) {
  EXPECT_EQ(FormatHours(1.999), "2:00");
  EXPECT_EQ(FormatHours(0.0), "0:00");
  EXPECT_EQ(FormatHours(0.5), "0:30");
  EXPECT_EQ(FormatHours(2.15), "2:09");
  EXPECT_EQ(FormatHours(1.0 + 59.4 / 60.0), "1:59");
  EXPECT_EQ(FormatHours(1.0 + 59.6 / 60.0), "2:00");
}

TEST(FormatHours, HasDashesForWhatIsNeverReached) {
  EXPECT_EQ(FormatHours(99.9), "99:54");
  EXPECT_EQ(FormatHours(99.999), "--:--") << "carried to 100";
  EXPECT_EQ(FormatHours(100.0), "--:--");
  EXPECT_EQ(FormatHours(-0.5), "--:--");
  EXPECT_EQ(FormatHours(std::nullopt), "--:--");
  EXPECT_EQ(FormatHours(std::numeric_limits<double>::infinity()), "--:--");
  EXPECT_EQ(FormatHours(std::numeric_limits<double>::quiet_NaN()), "--:--");
}

TEST(HoursFor, IsNothingWithoutWay) {
  EXPECT_EQ(HoursFor(12.0F, 6.0F), 2.0);
  EXPECT_EQ(HoursFor(0.0F, 6.0F), 0.0);
  EXPECT_FALSE(HoursFor(12.0F, 0.0F).has_value());
  EXPECT_FALSE(HoursFor(0.0F, 0.0F).has_value());
  EXPECT_FALSE(HoursFor(12.0F, -1.0F).has_value());
  EXPECT_FALSE(HoursFor(-1.0F, 6.0F).has_value());
}

}  // namespace
}  // namespace veerwatch
