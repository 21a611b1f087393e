#include "app/TypedAngle.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

using Fate = TypedAngle::Fate;

constexpr TypedAngleCare kCarefulAndSent{true, 10.0F, true};
constexpr TypedAngleCare kCareful{true, 10.0F, false};
constexpr TypedAngleCare kCareless{false, 10.0F, true};

TEST(TypedAngle, WithoutCareWhatIsNoNumberIsZero) {
  EXPECT_EQ(ReadTypedAngle("", 275.0F, kCareless), (TypedAngle{Fate::Take, 0.0F}));
  EXPECT_EQ(ReadTypedAngle("north", 275.0F, kCareless), (TypedAngle{Fate::Take, 0.0F}));
  EXPECT_EQ(ReadTypedAngle("95.5 deg", 275.0F, kCareless), (TypedAngle{Fate::Take, 95.5F}));
}

TEST(TypedAngle, WithCareWhatIsNoNumberRestores) {
  for (const char* text : {"", "  ", "north", "-"}) {
    EXPECT_EQ(ReadTypedAngle(text, 275.0F, kCareful), (TypedAngle{Fate::Restore, 275.0F})) << text;
    EXPECT_EQ(ReadTypedAngle(text, 275.0F, kCarefulAndSent), (TypedAngle{Fate::Restore, 275.0F})) << text;
  }
  EXPECT_EQ(ReadTypedAngle("0", 5.0F, kCarefulAndSent), (TypedAngle{Fate::Take, 0.0F}));
}

TEST(TypedAngle, AsksBeyondTheLimitWhileThePilotIsSentTo) {
  EXPECT_EQ(ReadTypedAngle("110", 100.0F, kCarefulAndSent), (TypedAngle{Fate::Take, 110.0F}));
  EXPECT_EQ(ReadTypedAngle("110.1", 100.0F, kCarefulAndSent), (TypedAngle{Fate::Ask, 110.1F}));
  EXPECT_EQ(ReadTypedAngle("89.9", 100.0F, kCarefulAndSent), (TypedAngle{Fate::Ask, 89.9F}));
  EXPECT_EQ(ReadTypedAngle("280", 100.0F, kCarefulAndSent), (TypedAngle{Fate::Ask, 280.0F}));
  EXPECT_EQ(ReadTypedAngle("280", 100.0F, kCareful), (TypedAngle{Fate::Take, 280.0F}));
  EXPECT_EQ(ReadTypedAngle("280", 100.0F, kCareless), (TypedAngle{Fate::Take, 280.0F}));
}

TEST(TypedAngle, MeasuresTheShortWayRound) {
  EXPECT_EQ(ReadTypedAngle("5", 355.5F, kCarefulAndSent).What, Fate::Take);
  EXPECT_EQ(ReadTypedAngle("-5", 355.0F, kCarefulAndSent).What, Fate::Take);
  EXPECT_EQ(ReadTypedAngle("101500", 100.0F, kCarefulAndSent).What, Fate::Ask) << "folds to 340";
  EXPECT_EQ(ReadTypedAngle("-175", 178.0F, kCarefulAndSent).What, Fate::Take);
}

}  // namespace
}  // namespace veerwatch
