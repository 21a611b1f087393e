#include "polar/BestAngles.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/PolarText.h"

namespace veerwatch {
namespace {

TEST(FindBestAngles, FindsTheMostWayToWindwardAndToLeeward) {
  const BestAngles best =
      FindBestAngles(TableOf("TWA\t5\t20\n40\t6\t6\n90\t6\t6\n150\t8\t8\n180\t6\t6\n"), 12.0F);
  ASSERT_TRUE(best.Upwind && best.Downwind);
  EXPECT_EQ(best.Upwind->Angle, 40.0F);
  EXPECT_NEAR(best.Upwind->MadeGood, 6.0 * 0.76604444, 1e-5);
  // From 8 kn at 150 degrees the speed falls by 2 kn over 30 degrees: the most of (18 - a / 15) * -cos(a)
  // lies where tan(a) = -(1 / 15) / ((18 - a / 15) * pi / 180), at about 153.76 degrees.
  EXPECT_NEAR(best.Downwind->Angle, 153.76, 0.06);
  const double radians = static_cast<double>(best.Downwind->Angle) * std::acos(-1.0) / 180.0;
  EXPECT_NEAR(best.Downwind->MadeGood,
              (18.0 - static_cast<double>(best.Downwind->Angle) / 15.0) * -std::cos(radians), 1e-5);
}

TEST(FindBestAngles, IsTheSameInWhicheverWindThePlotIsSeen) {
  PolarTable table = TableOf("TWA\t5\t20\n40\t6\t6\n90\t6\t6\n150\t8\t8\n180\t6\t6\n");
  const BestAngles inTrue = FindBestAngles(table, 12.0F);
  table.Type(PlotType::ApparentWind);
  const BestAngles inApparent = FindBestAngles(table, 12.0F);
  EXPECT_EQ(inApparent.Upwind->Angle, inTrue.Upwind->Angle);
  EXPECT_EQ(inApparent.Downwind->Angle, inTrue.Downwind->Angle);
}

TEST(FindBestAngles, LooksDeadDownwindToo) {
  const BestAngles best = FindBestAngles(TableOf("TWA\t5\t20\n40\t6\t6\n150\t5\t5\n180\t9\t9\n"), 12.0F);
  ASSERT_TRUE(best.Downwind.has_value());
  EXPECT_EQ(best.Downwind->Angle, 180.0F);
  EXPECT_EQ(best.Downwind->MadeGood, 9.0F);
}

TEST(FindBestAngles, LooksHeadToWindToo) {
  const BestAngles best = FindBestAngles(TableOf("TWA\t5\t20\n0\t9\t9\n90\t1\t1\n"), 12.0F);
  ASSERT_TRUE(best.Upwind.has_value());
  EXPECT_EQ(best.Upwind->Angle, 0.0F);
  EXPECT_EQ(best.Upwind->MadeGood, 9.0F);
}

TEST(IsLastAngle, KnowsBothEndsOfTheTable) {
  const PolarTable table = TableOf("TWA\t5\t20\n40\t6\t6\n90\t6\t6\n150\t8\t8\n");
  EXPECT_TRUE(IsLastAngle(table, 40.0F));
  EXPECT_TRUE(IsLastAngle(table, 150.0F));
  EXPECT_FALSE(IsLastAngle(table, 40.2F));
  EXPECT_FALSE(IsLastAngle(table, 90.0F));
  EXPECT_FALSE(IsLastAngle(PolarTable(), 0.0F));
}

TEST(IsLastAngle, TakesBowAndSternForNoEnd) {
  const PolarTable table = TableOf("TWA\t5\t20\n0\t1\t1\n90\t6\t6\n180\t8\t8\n");
  EXPECT_FALSE(IsLastAngle(table, 0.0F));
  EXPECT_FALSE(IsLastAngle(table, 180.0F));
}

TEST(BestAnglesMemory, AsksAnewForAnotherWindOrTable) {
  PolarTable table = TableOf("TWA\t5\t20\n40\t6\t6\n90\t6\t9\n180\t6\t6\n");
  BestAnglesMemory memory;
  const float light = memory.Of(table, 1, 5.0F).Upwind->MadeGood;
  table.Value(0, 1, 1) = 3.0F;
  EXPECT_EQ(memory.Of(table, 1, 5.04F).Upwind->MadeGood, light);
  EXPECT_LT(memory.Of(table, 2, 5.0F).Upwind->MadeGood, light);
  EXPECT_GT(memory.Of(table, 2, 20.0F).Upwind->MadeGood, memory.Of(table, 2, 5.0F).Upwind->MadeGood + 0.1F);
}

TEST(FindBestAngles, FollowsSmoothLookups) {
  PolarTable table = TableOf(kSmallPolar);
  const BestAngles stepped = FindBestAngles(table, 8.0F);
  table.Smooth(true);
  const BestAngles smooth = FindBestAngles(table, 8.0F);
  ASSERT_TRUE(stepped.Downwind && smooth.Downwind);
  // Dead downwind 4 kn smooth and 6 kn stepped.
  EXPECT_LT(smooth.Downwind->MadeGood, 5.0F);
  EXPECT_GT(stepped.Downwind->MadeGood, 5.0F);
}

TEST(FindBestAngles, HasNoneWhereThePolarMakesNoWay) {
  const BestAngles reach = FindBestAngles(TableOf("TWA\t5\t20\n91\t6\t6\n150\t8\t8\n"), 12.0F);
  EXPECT_FALSE(reach.Upwind.has_value());
  EXPECT_TRUE(reach.Downwind.has_value());
  const BestAngles empty = FindBestAngles(PolarTable(), 12.0F);
  EXPECT_FALSE(empty.Upwind || empty.Downwind);
}

}  // namespace
}  // namespace veerwatch
