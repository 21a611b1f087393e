#include "app/MarkLegsOf.h"

#include <gtest/gtest.h>

#include "tests/support/PolarText.h"

namespace veerwatch {
namespace {

constexpr const char* kCruiser = "TWA\t10\n30\t1\n45\t6\n60\t6.4\n90\t7\n120\t7\n150\t6.5\n180\t4\n";

TEST(MarkLegsOf, HasTwoLegsToWindwardWithThePresentTackFirst) {
  const PolarTable table = TableOf(kCruiser);
  const auto starboard = MarkLegsOf(table, {90.0, 90.0, 10.0, 50.0});
  ASSERT_TRUE(starboard.has_value());
  EXPECT_TRUE(starboard->Two);
  EXPECT_NEAR(starboard->Now, 45.0, 1.0);
  EXPECT_NEAR(starboard->Other, -45.0, 1.0);
  const auto port = MarkLegsOf(table, {90.0, 90.0, 10.0, -50.0});
  EXPECT_NEAR(port->Now, -45.0, 1.0);
  EXPECT_NEAR(port->Other, 45.0, 1.0);
}

TEST(MarkLegsOf, IsOneLegWhereTheStraightWayIsBest) {
  const auto legs = MarkLegsOf(TableOf(kCruiser), {0.0, 80.0, 10.0, 50.0});
  ASSERT_TRUE(legs.has_value());
  EXPECT_FALSE(legs->Two);
  EXPECT_NEAR(legs->Now, 80.0, 0.01);
}

TEST(MarkLegsOf, IsTheSameInWhicheverWindThePlotIsSeen) {
  PolarTable table = TableOf(kCruiser);
  table.Type(PlotType::ApparentWind);
  EXPECT_NEAR(MarkLegsOf(table, {90.0, 90.0, 10.0, 50.0})->Now, 45.0, 1.0);
}

TEST(MarkLegsOf, IsNothingWithoutAPolarOrAWind) {
  EXPECT_FALSE(MarkLegsOf(PolarTable(), {0.0, 80.0, 10.0, 50.0}));
  EXPECT_FALSE(MarkLegsOf(TableOf(kCruiser), {0.0, 80.0, 0.0, 50.0}));
}

}  // namespace
}  // namespace veerwatch
