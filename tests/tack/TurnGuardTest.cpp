#include "tack/TurnGuard.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

/// A helm whose sentences reach the pilot.
HelmNow Sending() {
  HelmNow now;
  now.Mode = TrackMode::Track;
  now.InputStarted = true;
  now.InputPort = 3;
  now.InputOpen = true;
  now.OutputPort = 4;
  now.OutputOpen = true;
  now.AutoPilot = 100.0F;
  return now;
}

TEST(TurnHindrance, IsNoneInEachModeThatReads) {
  for (const TrackMode mode : {TrackMode::Setup, TrackMode::Manual, TrackMode::Track}) {
    HelmNow now = Sending();
    now.Mode = mode;
    EXPECT_EQ(TurnHindrance(now), "");
  }
}

TEST(TurnHindrance, NamesWhatNoSentenceCanPass) {
  HelmNow now = Sending();
  now.WindLost = true;
  EXPECT_EQ(TurnHindrance(now), "No turn: No Wind");
  now.OutputOpen = false;
  EXPECT_EQ(TurnHindrance(now), "No turn: Output Port 4 Not Open");
  now.InputOpen = false;
  EXPECT_EQ(TurnHindrance(now), "No turn: Input Port 3 Not Open");
  now.InputStarted = false;
  EXPECT_EQ(TurnHindrance(now), "No turn: Input Stopped, press Setup first");
  now.Mode = TrackMode::Off;
  EXPECT_EQ(TurnHindrance(now), "No turn in Off: press Setup first");
}

TEST(TurnFromNow, KeepsWhatIsNotKnown) {
  HelmNow now = Sending();
  const TurnFrom before{10.0F, 20.0F, 30.0F};
  TurnFrom from = TurnFromNow(now, before);
  EXPECT_EQ(from.Heading, 10.0F);
  EXPECT_EQ(from.AutoPilot, 100.0F);
  EXPECT_EQ(from.WindAngle, 30.0F);
  now.Heading = 11.0F;
  now.WindAngleTrue = -33.0F;
  from = TurnFromNow(now, before);
  EXPECT_EQ(from.Heading, 11.0F);
  EXPECT_EQ(from.WindAngle, -33.0F);
}

TEST(TurnHasMoved, BeyondFiveDegreesOfAnyOfTheThreeAlsoThroughNorthAndAstern) {
  const TurnFrom from{358.0F, 2.0F, 178.0F};
  EXPECT_FALSE(TurnHasMoved(from, from));
  EXPECT_FALSE(TurnHasMoved(from, {3.0F, 357.0F, -177.0F}));
  EXPECT_TRUE(TurnHasMoved(from, {3.5F, 2.0F, 178.0F}));
  EXPECT_TRUE(TurnHasMoved(from, {352.5F, 2.0F, 178.0F}));
  EXPECT_TRUE(TurnHasMoved(from, {358.0F, 356.5F, 178.0F}));
  EXPECT_TRUE(TurnHasMoved(from, {358.0F, 2.0F, -176.5F}));
}

TEST(ApartText, SpeaksBeyondTenDegreesOnEitherSide) {
  EXPECT_EQ(ApartText({350.0F, 0.0F, 45.0F}), "");
  EXPECT_EQ(ApartText({0.0F, 350.0F, 45.0F}), "");
  EXPECT_EQ(ApartText({350.0F, 14.0F, 45.0F}),
            "Bearing and heading are 24 degrees apart: wait until she is steady");
  EXPECT_EQ(ApartText({14.0F, 350.0F, -45.0F}),
            "Bearing and heading are 24 degrees apart: wait until she is steady");
}

}  // namespace
}  // namespace veerwatch
