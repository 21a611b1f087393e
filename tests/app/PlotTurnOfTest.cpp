#include "app/PlotTurnOf.h"

#include <gtest/gtest.h>

#include <cmath>

#include "instruments/MathLib.h"

namespace veerwatch {
namespace {

InstrumentData Winds(float wind, float boat) {
  InstrumentData data;
  data.WindTrueValid = data.BoatSpeedValid = true;
  data.WindSpeedTrue = wind;
  data.BoatSpeed = boat;
  return data;
}

TEST(HeldInOtherWind, IsTheOtherAngleOfTheTriangle) {
  // A wind of 6 knots abeam of a boat of 6 knots comes from 45 degrees, and the reverse.
  EXPECT_NEAR(*HeldInOtherWind(TrackSide::True, 90.0F, Winds(6.0F, 6.0F)), 45.0F, 0.01F);
  EXPECT_NEAR(*HeldInOtherWind(TrackSide::Apparent, 45.0F, Winds(6.0F, 6.0F)), 90.0F, 0.01F);
  EXPECT_NEAR(*HeldInOtherWind(TrackSide::Apparent, -45.0F, Winds(6.0F, 6.0F)), -90.0F, 0.01F);
}

TEST(HeldInOtherWind, LeadsThereAndBackAtEveryAngle) {
  const InstrumentData data = Winds(12.0F, 7.0F);
  for (float angle = -179.0F; angle < 180.0F; angle += 7.0F) {
    const auto apparent = HeldInOtherWind(TrackSide::True, angle, data);
    ASSERT_TRUE(apparent.has_value());
    EXPECT_NEAR(*HeldInOtherWind(TrackSide::Apparent, *apparent, data), angle, 0.05F);
  }
}

TEST(HeldInOtherWind, IsNothingWhereThereIsNoSuchAngleOrNoWind) {
  EXPECT_FALSE(HeldInOtherWind(TrackSide::Apparent, 90.0F, Winds(5.0F, 6.0F)));
  EXPECT_FALSE(HeldInOtherWind(TrackSide::Apparent, 170.0F, Winds(5.0F, 6.0F)));
  EXPECT_FALSE(HeldInOtherWind(TrackSide::True, 90.0F, Winds(0.0F, 6.0F)));
  EXPECT_FALSE(HeldInOtherWind(TrackSide::True, 90.0F, InstrumentData()));
}

TEST(PlotTurnOf, GoesThroughTheBowOrTheStern) {
  TurnPlan tack;
  tack.Wind = 45.0;
  tack.Change = 90.0;
  tack.Overshoot = 5.0;
  tack.Rate = 10.0;
  const PlotTurn bow = PlotTurnOf(tack, 0.0, Winds(12.0F, 6.0F));
  EXPECT_EQ(bow.TrueFrom, 45.0);
  EXPECT_EQ(bow.TrueTo, -45.0);
  EXPECT_NEAR(bow.ApparentFrom, -bow.ApparentTo, 1e-4);
  EXPECT_LT(bow.ApparentFrom, 45.0);
  EXPECT_EQ(bow.Text, "90 deg, 10 s") << "95 there and 5 back, at 10 a second";
  TurnPlan jibe;
  jibe.Wind = 150.0;
  jibe.Change = -60.0;
  jibe.Rate = 5.0;
  const PlotTurn stern = PlotTurnOf(jibe, 0.0, Winds(12.0F, 6.0F));
  EXPECT_EQ(stern.TrueTo, 210.0);
  EXPECT_NEAR(stern.ApparentFrom + stern.ApparentTo, 360.0, 1e-3) << "the arc goes on past the stern";
  EXPECT_GT(stern.ApparentTo, 180.0);
  EXPECT_EQ(stern.Text, "60 deg, 12 s");
}

TEST(PlotTurnOf, IsWhatIsLeftOfATurnThatRuns) {
  TurnPlan tack;
  tack.Wind = -40.0;
  tack.Change = -80.0;
  tack.Overshoot = -5.0;
  tack.Rate = 10.0;
  const PlotTurn turn = PlotTurnOf(tack, 55.0, Winds(12.0F, 6.0F));
  EXPECT_EQ(turn.TrueFrom, 15.0);
  EXPECT_EQ(turn.TrueTo, 40.0);
  EXPECT_EQ(turn.Text, "25 deg, 4 s") << "30 to the end of the overshoot and 5 back, rounded";
  EXPECT_EQ(PlotTurnOf(tack, 90.0, Winds(12.0F, 6.0F)).Text, "0 deg, 1 s");
}

}  // namespace
}  // namespace veerwatch
