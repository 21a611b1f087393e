// The passages of twenty minutes, held by the default method.
#include "tests/closedloop/Holding.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace veerwatch {
namespace {

TEST(Holding, AConstantHeadingHasTheSpreadOfTheWindAndTellsThePilotNothing) {
  HoldCase what;
  what.Constant = true;
  const HoldResult result = Hold(what);
  // A swing of 7 degrees in some minutes leaves about ten winds of their own in twenty.
  EXPECT_NEAR(result.Rms, 6.5, 2.5);
  EXPECT_NEAR(result.Mean, 0.0, 5.0);
  EXPECT_GT(result.Most, 1.7 * result.Rms);
  EXPECT_EQ(result.Changes, 0.0);
  EXPECT_LT(result.Rudder, 20.0) << "there is no sea, and the pilot has little to do";
  EXPECT_FALSE(result.Lost());
}

TEST(Holding, BeginsOnEveryAngleThatIsHeld) {
  for (const HoldCase& one : Passages({})) {
    if (one.Lag == 4.0 && one.TheSea == Sea::Slight) {
      HoldCase constant = one;
      constant.Constant = true;
      // The gusts turn the apparent wind aft by more than the lulls turn it forward.
      EXPECT_NEAR(Hold(constant).Mean, 0.0, 4.0) << "angle " << one.Angle;
    }
  }
}

TEST(Holding, ACalmLoopHoldsCloserThanAConstantHeading) {
  HoldCase what;
  what.Constant = true;
  const HoldResult constant = Hold(what);
  what.Constant = false;
  what.Bandwidth = 60.0F;
  const HoldResult held = Hold(what);
  EXPECT_LT(held.Rms, 0.9 * constant.Rms);
  EXPECT_NEAR(held.Mean, 0.0, 0.5);
  EXPECT_GT(held.Rudder, constant.Rudder);
  what.Bandwidth = 20.0F;
  EXPECT_GT(Hold(what).Rudder, 1.5 * held.Rudder) << "a smaller bandwidth steers more";
  EXPECT_GT(held.Changes, 30.0);
  EXPECT_LE(held.Changes, 60.0) << "one bearing for each wind";
}

TEST(Holding, TheSpreadIsTakenAgainstTheMean) {
  HoldCase what;
  what.Constant = true;
  what.Alter = [](BoatSettings& boat) {
    boat.GustDeviation = 0.0;
    boat.ShiftDeviation = 0.0;
    boat.SwingDeviation = 0.0;
    // It keeps the course by its own compass, 4 degrees to the left of the one by the boat's.
    boat.Pilot.Refuses = true;
  };
  const HoldResult result = Hold(what);
  EXPECT_NEAR(result.Mean, 4.0, 0.2);
  EXPECT_LT(result.Rms, 0.2);
  EXPECT_NEAR(result.Most, 4.0, 0.4);
}

TEST(Holding, APilotThatTurnsTheWrongWayLosesTheAngle) {
  HoldCase what;
  what.Bandwidth = 60.0F;
  what.Alter = [](BoatSettings& boat) { boat.Pilot.Reversed = true; };
  EXPECT_TRUE(Hold(what).Lost());
}

TEST(Holding, TheDefaultLosesTheAngleAtTenWindsASecond) {
  HoldCase what;
  what.WindRate = 10.0;
  what.Lag = 8.0;
  const HoldResult result = Hold(what);
  EXPECT_TRUE(result.Lost());
  EXPECT_GT(result.Rudder, 150.0);
  EXPECT_GT(result.Changes, 500.0);
}

/// Seven of the ninety passages of `what`, with every lag, sea and angle among them.
HoldSummary SomePassages(const HoldCase& what) {
  const std::vector<HoldCase> all = Passages(what);
  std::vector<HoldResult> results;
  for (std::size_t i = 0; i < all.size(); i += 13) {
    results.push_back(Hold(all[i]));
  }
  return SummaryOf(results);
}

HoldSummary SomePassages(std::size_t method, float bandwidth, double rate) {
  HoldCase what;
  what.Method = NamedMethods().at(method);
  what.Bandwidth = bandwidth;
  what.WindRate = rate;
  return SomePassages(what);
}

TEST(Holding, ClockAndDirectionHoldTwiceAsCloselyAsAConstantHeadingAtEveryRate) {
  HoldCase what;
  what.Constant = true;
  const HoldSummary constant = SomePassages(what);
  const HoldSummary byDefault = SomePassages({});
  for (const std::size_t method : {1U, 2U}) {
    const HoldSummary slow = SomePassages(method, 60.0F, 1.0);
    const HoldSummary quick = SomePassages(method, 60.0F, 10.0);
    for (const HoldSummary& held : {slow, quick}) {
      EXPECT_EQ(held.Lost, 0) << method;
      EXPECT_LT(held.Rms, 0.6 * constant.Rms) << method;
      EXPECT_LT(held.Rudder, 0.8 * byDefault.Rudder) << method;
    }
    EXPECT_NEAR(quick.Rms, slow.Rms, 0.1 * slow.Rms) << method;
    if (method == 2U) {
      EXPECT_LT(quick.Changes, 35.0) << "the pilot has quiet";
    }
  }
}

TEST(Holding, TheDirectionHoldsWithEveryBandwidth) {
  for (const float bandwidth : {5.0F, 60.0F}) {
    EXPECT_EQ(SomePassages(2, bandwidth, 5.0).Lost, 0) << bandwidth;
  }
}

/// Clock and Direction with lags and rates of every size, each case with a seed of its own.
std::vector<HoldCase> Corners() {
  std::vector<HoldCase> cases;
  for (const std::size_t method : {1U, 2U}) {
    for (const auto& [lag, rate] : {std::pair{1.0, 1.0}, {8.0, 1.0}, {4.0, 5.0}, {1.0, 10.0}, {8.0, 10.0}}) {
      HoldCase what;
      what.Method = NamedMethods().at(method);
      what.Bandwidth = 60.0F;
      what.Lag = lag;
      what.WindRate = rate;
      what.Seed = cases.size() + 1;
      cases.push_back(what);
    }
  }
  return cases;
}

std::string NameOf(const HoldCase& what) {
  return std::string(what.Method.Name) + ", lag " + std::to_string(what.Lag) + ", rate " +
         std::to_string(what.WindRate);
}

void Steady(BoatSettings& boat) {
  boat.GustDeviation = 0.0;
  boat.ShiftDeviation = 0.0;
  boat.SwingDeviation = 0.0;
}

TEST(Holding, IsBackWithinAMinuteAfterAMinuteAtTheWheel) {
  for (HoldCase what : Corners()) {
    const double off = what.Seed % 2 == 0 ? 20.0 : -20.0;
    const UpsetResult gusty = StandbyUpset(what, off);
    EXPECT_LT(gusty.Back, 60.0) << NameOf(what);
    EXPECT_LT(gusty.Most, 40.0) << NameOf(what);
    EXPECT_GT(gusty.Before, 15.0) << "the wheel was followed, " << NameOf(what);
    what.Alter = Steady;
    const UpsetResult steady = StandbyUpset(what, off);
    EXPECT_LT(steady.Stays, 60.0) << NameOf(what);
    EXPECT_LT(steady.Most, 30.0) << NameOf(what);
  }
}

TEST(Holding, TheLawPerSentenceIsNotBackAfterAMinuteAtTheWheel) {
  HoldCase what;
  what.Alter = Steady;
  const UpsetResult result = StandbyUpset(what, 20.0);
  EXPECT_GT(result.Ahead, 90.0);
  EXPECT_GT(result.Stays, 60.0);
}

TEST(Holding, ALateBurstOfHalfAMinuteHardlyMovesTheBearing) {
  for (const HoldCase& what : Corners()) {
    const BurstResult burst = LateBurst(what);
    EXPECT_LT(burst.Moved, 15.0) << NameOf(what);
    EXPECT_LT(burst.Most, 25.0) << NameOf(what);
  }
  HoldCase sentence;
  sentence.WindRate = 5.0;
  EXPECT_GT(LateBurst(sentence).Moved, 15.0) << "150 sentences count as 150 corrections";
}

TEST(Holding, TheDirectionHoldsTheMeanAngleOnASwingingMasthead) {
  for (const auto& [side, angle] : {std::pair{TrackSide::True, 150.0}, {TrackSide::Apparent, 140.0}}) {
    HoldCase what;
    what.Method = NamedMethods().at(2);
    what.Bandwidth = 60.0F;
    what.TheSea = Sea::Beam;
    what.Side = side;
    what.Angle = angle;
    EXPECT_NEAR(Hold(what).Mean, 0.0, 1.0) << angle;
  }
}

TEST(Holding, ASeaMakesTheRudderWork) {
  HoldCase what;
  what.Constant = true;
  const double flat = Hold(what).Rudder;
  what.TheSea = Sea::Following;
  EXPECT_GT(Hold(what).Rudder, flat + 50.0);
}

TEST(Holding, TheSamePassageComesOutTheSame) {
  HoldCase what;
  what.TheSea = Sea::Head;
  const HoldResult one = Hold(what);
  const HoldResult two = Hold(what);
  EXPECT_EQ(one.Rms, two.Rms);
  EXPECT_EQ(one.Rudder, two.Rudder);
  what.Seed = 2;
  EXPECT_NE(one.Rms, Hold(what).Rms);
}

TEST(Holding, LostIsWhatIsOffByMoreThanTwentyDegreesInTheMeanSquare) {
  HoldResult result;
  result.Rms = 20.0;
  EXPECT_FALSE(result.Lost());
  result.Mean = -0.5;
  EXPECT_TRUE(result.Lost());
  result = {};
  result.Mean = 170.0;
  EXPECT_TRUE(result.Lost()) << "steady on the other side";
}

TEST(Holding, ThereAreNinetyPassagesWithASeedOfTheirOwn) {
  std::set<std::uint64_t> seeds;
  std::set<std::tuple<double, Sea, TrackSide, double>> cases;
  HoldCase what;
  what.WindRate = 5.0;
  for (const HoldCase& one : Passages(what)) {
    seeds.insert(one.Seed);
    cases.insert({one.Lag, one.TheSea, one.Side, one.Angle});
    EXPECT_EQ(one.WindRate, 5.0);
  }
  EXPECT_EQ(seeds.size(), 90U);
  EXPECT_EQ(cases.size(), 90U);
}

TEST(Holding, TheSummaryHasTheMediansAndCountsTheLost) {
  const HoldSummary sum = SummaryOf(
      {{0.0, 30.0, 60.0, 200.0, 60.0}, {0.0, 5.0, 20.0, 100.0, 50.0}, {0.0, 4.0, 20.0, 10.0, 55.0}});
  EXPECT_EQ(sum.Lost, 1);
  EXPECT_EQ(sum.Count, 3);
  EXPECT_EQ(sum.Rms, 5.0);
  EXPECT_EQ(sum.Rudder, 100.0);
  EXPECT_EQ(sum.Changes, 55.0);
  EXPECT_EQ(SummaryOf({{0.0, 4.0, 9.0, 1.0, 1.0}, {0.0, 5.0, 9.0, 1.0, 1.0}}).Rms, 4.5);
}

}  // namespace
}  // namespace veerwatch
