// Turns that are followed to their end, on the boat of the tests; script/turns sails many more.

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "tests/closedloop/Turning.h"

namespace veerwatch {
namespace {

std::vector<TurnResult> Sail(const TurnCase& what, int seeds, bool jibes) {
  std::vector<TurnResult> results;
  for (const TurnCase& one : TurnCases(what, seeds, jibes)) {
    results.push_back(SailTurn(one));
  }
  return results;
}

TEST(Turning, EveryTurnEndsOnTheOtherTackAndNoneGoesRoundTheOtherWay) {
  for (const double rate : {1.0, 10.0}) {
    for (const bool jibes : {false, true}) {
      TurnCase what;
      what.Method = NamedMethods().at(1);
      what.WindRate = rate;
      const TurnSummary sum = SummaryOf(Sail(what, 10, jibes));
      EXPECT_EQ(sum.Done, 10) << rate << jibes;
      EXPECT_EQ(sum.WrongWay, 0) << rate << jibes;
      EXPECT_EQ(sum.InTheWind, 0) << rate << jibes;
      EXPECT_LE(sum.Median, 2.0) << rate << jibes;
      EXPECT_LE(sum.NineOfTen, 5.0) << rate << jibes;
    }
  }
}

TEST(Turning, InAStrongWindOnTheBeamABoatThatItPullsComesToTheOtherSideToo) {
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    TurnCase what;
    what.Method = NamedMethods().at(1);
    what.Boat.WindSpeed = 24.0;
    what.Angle = 84.0F;
    what.Seed = seed;
    const TurnResult one = SailTurn(what);
    EXPECT_TRUE(one.Done) << seed << ": her pilot is held 15 degrees to one side, then as many to the other";
    EXPECT_LE(std::fabs(one.Shown), 10.0) << seed;
  }
}

TEST(Turning, InASteadyWindEveryMethodIsWithinTwoDegreesOfTheMirroredAngle) {
  for (const NamedMethod& method : NamedMethods()) {
    TurnCase what;
    what.Method = method;
    what.Boat.GustDeviation = what.Boat.ShiftDeviation = what.Boat.SwingDeviation = 0.0;
    for (const TurnResult& one : Sail(what, 5, false)) {
      EXPECT_TRUE(one.Done) << method.Name;
      EXPECT_LE(std::fabs(one.Shown), 2.0) << method.Name;
      EXPECT_LE(one.Jump, 3.0) << method.Name;
    }
  }
}

TEST(Turning, APilotThatRefusesOrTurnsTheWrongWayIsFoundOut) {
  for (const bool reversed : {false, true}) {
    TurnCase what;
    what.Method = NamedMethods().at(1);
    what.Boat.Pilot.Refuses = !reversed;
    what.Boat.Pilot.Reversed = reversed;
    EXPECT_FALSE(SailTurn(what).Done);
  }
}

}  // namespace
}  // namespace veerwatch
