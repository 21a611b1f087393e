// The test of the pilot on the boat: with a rudder, in a sea, with each of the pilots.
#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>

#include "control/PilotTest.h"
#include "tests/closedloop/Following.h"
#include "tests/closedloop/Passage.h"

namespace veerwatch {
namespace {

/// Tries the pilot in Manual, as the options do.
class TriedPilot final : private HelmObserver {
 public:
  explicit TriedPilot(Passage& passage)
      : m_passage(passage), m_told(passage.TheHelm().Observers().Join(*this)) {}

  PilotTestResult Result() {
    m_test.Begin(m_passage.Set.m_fAutoPilot, Now());
    while (m_test.Runs()) {
      m_passage.Sail(1.0);
      m_test.Tick(Now());
      m_passage.TheHelm().TurnSteersTo(m_test.Bearing());
    }
    return m_test.Result();
  }

 private:
  std::int64_t Now() const { return static_cast<std::int64_t>(m_passage.Boat.State().Seconds * 1000.0); }
  void OnHeading(float heading) override { m_test.Heading(heading, Now()); }

  Passage& m_passage;
  PilotTest m_test;
  HelmObservers::Membership m_told;
};

/// A minute in Manual on a reach, then the test.
PilotTestResult Try(Sea sea, double lag, const PilotFault& fault, std::uint64_t seed) {
  BoatSettings boat = HardBoat(sea);
  boat.Pilot.CompassOffset = 5.0;
  boat.Pilot.BearingLag = lag;
  boat.HeadingPeriod = 0.2;
  Passage passage(boat, 90.0, seed);
  passage.Set.m_iNmeaHeading = 0;
  passage.Set.m_iNmeaBoatSpeed = 0;
  passage.TheHelm().Loop().SetAutoPilot(95.0);
  passage.Sail(5.0);
  passage.TheHelm().Modes().TrackSetManual();
  passage.Sail(120.0);
  if (fault.Begin != nullptr) {
    fault.Begin(passage.Boat, 90.0);
    // Whoever takes the wheel lets her round up at first.
    passage.Sail(fault.Right == FollowVerdict::TurnsAway ? 0.0 : 30.0);
  }
  return TriedPilot(passage).Result();
}

TEST(PilotTestOnTheBoat, FindsALagThatGrowsWithThePilots) {
  for (const Sea sea : {Sea::Flat, Sea::Slight, Sea::Beam}) {
    double before = 0.0;
    for (const double lag : {1.0, 4.0, 8.0}) {
      const PilotTestResult result = Try(sea, lag, kPilotFaults[0], 1);
      EXPECT_EQ(result.Verdict, FollowVerdict::Follows) << lag;
      ASSERT_TRUE(result.Lag);
      EXPECT_GT(*result.Lag, before + 0.5) << lag;
      EXPECT_LT(*result.Lag, lag + 8.0) << "with compass, rudder and hull, " << lag;
      EXPECT_NEAR(result.Offset, 5.0, 4.0);
      before = *result.Lag;
    }
  }
}

TEST(PilotTestOnTheBoat, TellsEachPilotRightly) {
  for (const Sea sea : {Sea::Flat, Sea::Slight, Sea::Beam, Sea::Head}) {
    for (const PilotFault& fault : kPilotFaults) {
      int right = 0;
      for (std::uint64_t seed = 1; seed <= 5; ++seed) {
        right += Try(sea, 4.0, fault, seed).Verdict == fault.Right ? 1 : 0;
      }
      EXPECT_EQ(right, 5) << fault.Name << " in sea " << static_cast<int>(sea);
    }
  }
}

}  // namespace
}  // namespace veerwatch
