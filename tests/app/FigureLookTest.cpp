#include "app/FigureLook.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

ValueAge Aged(Freshness state, std::int64_t milliseconds) {
  ValueAge age;
  age.State = state;
  age.Age = milliseconds;
  return age;
}

TEST(FigureLook, AFreshOneAndOneThatNeverCameAreAsEver) {
  for (const Freshness state : {Freshness::Fresh, Freshness::Waiting, Freshness::NotFitted}) {
    EXPECT_EQ(LookOf(Aged(state, 3000), TrackMode::Track, true), FigureLook{});
  }
}

TEST(FigureLook, AStaleOneIsInHalfToneWithItsAge) {
  EXPECT_EQ(LookOf(Aged(Freshness::Stale, 7900), TrackMode::Track, true), (FigureLook{true, false, "7 s"}));
  EXPECT_EQ(LookOf(Aged(Freshness::Lost, 12000), TrackMode::Setup, false), (FigureLook{true, false, "12 s"}));
}

TEST(FigureLook, ALostOneIsBlankOnlyWhereThatIsWanted) {
  EXPECT_TRUE(LookOf(Aged(Freshness::Lost, 12000), TrackMode::Track, true).Blank);
  EXPECT_FALSE(LookOf(Aged(Freshness::Lost, 12000), TrackMode::Track, false).Blank);
}

TEST(FigureLook, InOffEachIsInHalfToneWithoutAnAge) {
  for (const Freshness state : {Freshness::Fresh, Freshness::Stale, Freshness::Waiting}) {
    EXPECT_EQ(LookOf(Aged(state, 5000), TrackMode::Off, true), (FigureLook{true, false, ""}));
  }
}

TEST(FigureLook, AnAgeIsToldInFewCharacters) {
  EXPECT_EQ(AgeText(Aged(Freshness::Stale, 99999)), "99 s");
  EXPECT_EQ(AgeText(Aged(Freshness::Stale, 100000)), "1 min");
  EXPECT_EQ(AgeText(Aged(Freshness::Stale, 5999999)), "99 min");
  EXPECT_EQ(AgeText(Aged(Freshness::Stale, 6000000)), "1 h");
}

}  // namespace
}  // namespace veerwatch
