#include "app/HistoryMarks.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace veerwatch {
namespace {

HistoryMarks::Sense Tracking(float held, TrackSide side = TrackSide::True) {
  return {TrackMode::Track, PilotHand::Loop, std::nullopt, side, held};
}
HistoryMarks::Sense Turning(std::optional<ManoeuvreKind> kind) {
  return {TrackMode::Manual, PilotHand::Turn, kind, TrackSide::True, 10.0F};
}

TEST(HistoryMarks, SetsOneForTheHeldAngleOnceItHoldsStill) {
  HistoryMarks marks;
  EXPECT_FALSE(marks.Look(Tracking(45.0F))) << "it may still move";
  EXPECT_EQ(marks.Look(Tracking(45.0F)), "TWA 45");
  EXPECT_FALSE(marks.Look(Tracking(45.0F)));
  EXPECT_FALSE(marks.Look(Tracking(47.9F)));
  EXPECT_FALSE(marks.Look(Tracking(47.9F))) << "less than three degrees";
  EXPECT_FALSE(marks.Look(Tracking(-48.1F)));
  EXPECT_EQ(marks.Look(Tracking(-48.1F)), "TWA -48");
}

TEST(HistoryMarks, SetsOneForTheOtherWindAndForTrackBegunAnew) {
  HistoryMarks marks;
  marks.Look(Tracking(45.0F));
  EXPECT_EQ(marks.Look(Tracking(45.0F)), "TWA 45");
  EXPECT_EQ(marks.Look(Tracking(45.0F, TrackSide::Apparent)), "AWA 45");
  EXPECT_FALSE(marks.Look({TrackMode::Manual, PilotHand::User, std::nullopt, TrackSide::Apparent, 45.0F}));
  EXPECT_EQ(marks.Look(Tracking(45.0F, TrackSide::Apparent)), "AWA 45");
}

TEST(HistoryMarks, FollowsAnAngleThatMovesSlowlyInSteps) {
  HistoryMarks marks;
  marks.Look(Tracking(45.0F));
  marks.Look(Tracking(45.0F));
  int set = 0;
  for (int second = 1; second <= 60; ++second) {
    set += marks.Look(Tracking(45.0F + 0.2F * static_cast<float>(second))) ? 1 : 0;
  }
  EXPECT_GE(set, 3);
  EXPECT_LE(set, 4);
}

TEST(HistoryMarks, SetsOneAsATurnBeginsAndTheAngleAfterIt) {
  HistoryMarks marks;
  EXPECT_EQ(marks.Look(Turning(ManoeuvreKind::Tack)), "Tack");
  EXPECT_FALSE(marks.Look(Turning(ManoeuvreKind::Tack)));
  marks.Look(Tracking(-45.0F));
  EXPECT_EQ(marks.Look(Tracking(-45.0F)), "TWA -45");
  EXPECT_EQ(marks.Look(Turning(ManoeuvreKind::Jibe)), "Jibe");
  EXPECT_FALSE(marks.Look({TrackMode::Manual, PilotHand::User, std::nullopt, TrackSide::True, 0.0F}));
  EXPECT_EQ(marks.Look(Turning(ManoeuvreKind::Steer)), "Steer");
  EXPECT_FALSE(marks.Look({TrackMode::Manual, PilotHand::User, std::nullopt, TrackSide::True, 0.0F}));
  EXPECT_EQ(marks.Look(Turning(std::nullopt)), "Turn");
}

}  // namespace
}  // namespace veerwatch
