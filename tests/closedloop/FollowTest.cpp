// What the watch says of a pilot, on the boat: a dozen seeds of each kind. script/watch tries more.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <ostream>
#include <string>

#include "tests/closedloop/Following.h"
#include "tests/closedloop/Passage.h"

namespace veerwatch {

static void PrintTo(const PilotFault& fault, std::ostream* out) { *out << fault.Name; }

namespace {

class PilotThat : public testing::TestWithParam<PilotFault> {};

TEST_P(PilotThat, IsToldRightly) {
  for (const bool rudder : {true, false}) {
    for (std::uint64_t index = 0; index < 12; ++index) {
      const FollowCase what = FollowCaseOf(GetParam(), rudder, index);
      const FollowResult result = Follow(what);
      EXPECT_TRUE(result.Right) << (rudder ? "with a rudder, seed " : "without, seed ") << index << ": "
                                << result.Wrong;
      ASSERT_TRUE(result.Offset);
      EXPECT_NEAR(*result.Offset, rudder ? what.Offset : 0.0, 5.0) << "after three minutes, seed " << index;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AMinute, PilotThat, testing::ValuesIn(kPilotFaults), [](const auto& one) {
  // "in standby" becomes "InStandby".
  std::string name;
  bool capital = true;
  for (const char letter : one.param.Name) {
    if (letter != ' ') {
      name += capital ? static_cast<char>(std::toupper(letter)) : letter;
    }
    capital = letter == ' ';
  }
  return name;
});

// The bearing that is tracked turns with the boat, as far ahead of her as it may be.
TEST(PilotThatIsTracked, AndTurnsTheWrongWayIsToldSo) {
  for (const TrackMethod method : {TrackMethod::Sentence, TrackMethod::Clock, TrackMethod::Direction}) {
    for (std::uint64_t seed = 1; seed <= 4; ++seed) {
      Passage passage(GustyBoat(), 97.0, seed);
      passage.Set.m_iNmeaHeading = 0;
      passage.Set.m_iNmeaBoatSpeed = 0;
      passage.Set.m_eTrackMethod = method;
      passage.Set.m_bWatchAct = true;
      passage.Sail(5.0);
      passage.Track(TrackSide::True);
      passage.Sail(15.0);
      passage.Boat.Set().Pilot.Reversed = true;
      passage.Boat.Set().WindFrom += 20.0;
      passage.Sail(28.0);
      EXPECT_EQ(passage.TheHelm().Now().Watch.Follow, FollowVerdict::TurnsAway) << seed;
      passage.Sail(30.0);
      EXPECT_EQ(passage.TheHelm().Now().Watch.Follow, FollowVerdict::TurnsAway) << seed;
    }
  }
}

}  // namespace
}  // namespace veerwatch
