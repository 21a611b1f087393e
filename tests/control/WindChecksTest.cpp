#include "control/WindChecks.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

constexpr Talker kFirst{'W', 'I'};
constexpr Talker kSecond{'I', 'I'};

TEST(UnchangedCheck, StandsAfterTwentyTimesAndTenSeconds) {
  UnchangedCheck check;
  for (int i = 0; i < 19; ++i) {
    check.Add(45.0F, 10.0F, 1000 * i);
    EXPECT_FALSE(check.Stands()) << i;
  }
  check.Add(45.0F, 10.0F, 19000);
  EXPECT_TRUE(check.Stands());
  check.Add(45.0F, 10.1F, 20000);
  EXPECT_FALSE(check.Stands()) << "the speed moves";
}

TEST(UnchangedCheck, ManyInAShortTimeAreNotEnough) {
  UnchangedCheck check;
  for (int i = 0; i < 100; ++i) {
    check.Add(45.0F, 10.0F, 100 * i);
  }
  EXPECT_FALSE(check.Stands()) << "9.9 s";
  check.Add(45.0F, 10.0F, 10000);
  EXPECT_TRUE(check.Stands());
}

TEST(UnchangedCheck, CountsFromTheLatestChange) {
  UnchangedCheck check;
  check.Add(44.0F, 10.0F, 0);
  for (int i = 0; i < 30; ++i) {
    check.Add(45.0F, 10.0F, 100000 + 100 * i);
  }
  EXPECT_FALSE(check.Stands()) << "3 s";
}

TEST(UnchangedCheck, SaysWhetherTheLatestIsAnother) {
  UnchangedCheck check;
  EXPECT_TRUE(check.JustChanged());
  check.Add(45.0F, 10.0F, 0);
  EXPECT_TRUE(check.JustChanged());
  check.Add(45.0F, 10.0F, 1);
  EXPECT_FALSE(check.JustChanged());
  check.Add(46.0F, 10.0F, 2);
  EXPECT_TRUE(check.JustChanged());
}

/// Leaps by `angle` for `milliseconds`, back at `moment`.
void Leap(JumpCheck& check, double angle, std::int64_t milliseconds, std::int64_t moment) {
  check.Add(100.0, moment - milliseconds - 1000);
  check.Add(100.0 + angle, moment - milliseconds);
  check.Add(100.0, moment);
}

TEST(JumpCheck, StandsAfterThreeLeapsInAMinute) {
  JumpCheck check;
  Leap(check, 60.1, 1000, 10000);
  Leap(check, -60.1, 3999, 20000);
  EXPECT_FALSE(check.Stands(20000));
  Leap(check, 180.0, 100, 70000);
  EXPECT_TRUE(check.Stands(70000));
  EXPECT_FALSE(check.Stands(70001)) << "the first is more than a minute ago";
}

TEST(JumpCheck, SixtyDegreesAndFourSecondsAreNoLeap) {
  JumpCheck check;
  for (int i = 1; i <= 3; ++i) {
    Leap(check, 60.0, 1000, 10000 * i);
  }
  EXPECT_FALSE(check.Stands(30000));
  for (int i = 4; i <= 6; ++i) {
    Leap(check, 90.0, 4000, 10000 * i);
  }
  EXPECT_FALSE(check.Stands(60000));
}

TEST(JumpCheck, ATackIsNoLeap) {
  JumpCheck check;
  for (int tack = 0; tack < 4; ++tack) {
    for (int second = 0; second < 10; ++second) {
      check.Add(tack % 2 == 0 ? 45.0 : -45.0, 10000 * tack + 1000 * second);
    }
  }
  EXPECT_FALSE(check.Stands(40000));
}

TEST(JumpCheck, AWindThatTurnsSlowlyIsFollowed) {
  JumpCheck check;
  for (int i = 0; i < 100; ++i) {
    check.Add(2.0 * i, 1000 * i);
    EXPECT_FALSE(check.Away()) << i;
  }
}

TEST(JumpCheck, ASwingToBothSidesOfTheMeanIsNoLeap) {
  JumpCheck check;
  check.Add(45.0, 999000);
  for (int i = 0; i < 100; ++i) {
    check.Add(i % 2 == 0 ? 13.0 : 77.0, 1000000 + 1000 * i);
    EXPECT_FALSE(check.Away()) << i;
  }
}

TEST(JumpCheck, LeapsAcrossTheSeamOfTheCircleAreMeasuredTheShortWay) {
  JumpCheck check;
  for (int i = 0; i < 30; ++i) {
    check.Add(i % 2 == 0 ? 350.0 : 10.0, 1000 * i);
  }
  EXPECT_FALSE(check.Stands(30000));
}

/// Both talk each second from 0 to `seconds`.
TalkerCheck Both(float angle, float speed, int seconds) {
  TalkerCheck check;
  for (int i = 0; i <= seconds; ++i) {
    check.Add(kFirst, {40.0F, 10.0F}, 1000 * i);
    check.Add(kSecond, {40.0F + angle, 10.0F + speed}, 1000 * i);
  }
  return check;
}

TEST(TalkerCheck, StandsWhenTwoAreApartForTenSeconds) {
  EXPECT_FALSE(Both(10.1F, 0.0F, 9).Stands(9999));
  const TalkerCheck check = Both(10.1F, 0.0F, 10);
  EXPECT_TRUE(check.Stands(10000));
  EXPECT_EQ(check.Talkers(), (std::array<Talker, 2>{kFirst, kSecond}));
  EXPECT_TRUE(Both(0.0F, 3.1F, 10).Stands(10000));
  EXPECT_FALSE(Both(10.0F, 3.0F, 10).Stands(10000));
  EXPECT_FALSE(Both(359.0F, 0.0F, 10).Stands(10000));
}

TEST(TalkerCheck, IsOverWhenOneFallsSilentOrTheyAgree) {
  TalkerCheck check = Both(30.0F, 0.0F, 10);
  check.Add(kFirst, {40.0F, 10.0F}, 14000);
  EXPECT_TRUE(check.Stands(14000));
  check.Add(kFirst, {40.0F, 10.0F}, 14001);
  EXPECT_FALSE(check.Stands(14001)) << "the second was last heard at 10 s";
  check = Both(30.0F, 0.0F, 10);
  check.Add(kSecond, {70.0F, 10.0F}, 14000);
  EXPECT_TRUE(check.Stands(14000));
  EXPECT_FALSE(check.Stands(14001)) << "the first was last heard at 10 s";
  check = Both(30.0F, 0.0F, 10);
  check.Add(kSecond, {41.0F, 10.0F}, 11000);
  EXPECT_FALSE(check.Stands(11000));
}

TEST(TalkerCheck, TheFirstStaysTheFirstWhileItTalks) {
  TalkerCheck check = Both(30.0F, 0.0F, 10);
  EXPECT_TRUE(check.IsFirst(kFirst, 10000));
  EXPECT_FALSE(check.IsFirst(kSecond, 14000));
  EXPECT_TRUE(check.IsFirst(kSecond, 14001)) << "it was last heard at 10 s";
}

}  // namespace
}  // namespace veerwatch
