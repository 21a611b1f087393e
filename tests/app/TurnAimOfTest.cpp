#include "app/TurnAimOf.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <utility>

namespace veerwatch {
namespace {

/// One column of 10 knots, with these speeds at these angles.
PolarTable TableOf(std::initializer_list<std::pair<float, float>> rows) {
  PolarTable table;
  table.PolarColumns(0) = 1;
  table.PolarRows(0) = static_cast<std::int16_t>(rows.size());
  table.Value(0, 0, 1) = 10.0F;
  int row = 0;
  for (const auto& [angle, speed] : rows) {
    ++row;
    table.Value(0, row, 0) = angle;
    table.Value(0, row, 1) = speed;
  }
  return table;
}

TEST(TurnAimOf, IsTheBestAngleAndTheApparentOneThatBelongsToIt) {
  const PolarTable table =
      TableOf({{30.0F, 1.0F}, {45.0F, 6.0F}, {90.0F, 6.0F}, {150.0F, 6.0F}, {180.0F, 3.0F}});
  const auto up = TurnAimOf(table, 10.0F, true);
  ASSERT_TRUE(up.has_value());
  EXPECT_EQ(up->True, 45.0F);
  EXPECT_NEAR(up->Apparent, 28.4F, 0.2F);
  EXPECT_FALSE(up->AtEdge);
  const auto down = TurnAimOf(table, 10.0F, false);
  ASSERT_TRUE(down.has_value());
  EXPECT_EQ(down->True, 150.0F);
  EXPECT_NEAR(down->Apparent, 118.0F, 0.1F);
}

TEST(TurnAimOf, IsTheSameInWhicheverWindThePlotIsSeen) {
  PolarTable table = TableOf({{30.0F, 1.0F}, {45.0F, 6.0F}, {90.0F, 6.0F}});
  table.Type(PlotType::ApparentWind);
  EXPECT_EQ(TurnAimOf(table, 10.0F, true)->True, 45.0F);
}

TEST(TurnAimOf, SaysThatItLiesAtTheEdgeOfTheTable) {
  EXPECT_TRUE(TurnAimOf(TableOf({{45.0F, 6.0F}, {90.0F, 6.0F}, {120.0F, 7.0F}}), 10.0F, true)->AtEdge);
  EXPECT_TRUE(TurnAimOf(TableOf({{45.0F, 6.0F}, {90.0F, 6.0F}, {120.0F, 7.0F}}), 10.0F, false)->AtEdge);
  EXPECT_FALSE(TurnAimOf(TableOf({{45.0F, 6.0F}, {90.0F, 6.0F}, {180.0F, 7.0F}}), 10.0F, false)->AtEdge)
      << "nothing lies beyond dead astern";
}

TEST(TurnAimOf, IsNothingWhereThePolarMakesNoWay) {
  EXPECT_FALSE(TurnAimOf(PolarTable(), 10.0F, true).has_value());
  EXPECT_FALSE(TurnAimOf(TableOf({{45.0F, 6.0F}, {80.0F, 6.0F}}), 10.0F, false).has_value());
  EXPECT_FALSE(TurnAimOf(TableOf({{45.0F, 6.0F}, {80.0F, 6.0F}}), 0.0F, true).has_value());
}

}  // namespace
}  // namespace veerwatch
