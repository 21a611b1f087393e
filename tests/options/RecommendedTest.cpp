// The recommended settings: what holds, what is set, and nothing besides.
#include "options/Recommended.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <string>

namespace veerwatch {
namespace {

RecommendedTicks All() {
  RecommendedTicks ticks{};
  ticks.fill(true);
  return ticks;
}

TEST(Recommended, NothingHoldsInAProfileOfBefore) {
  const Settings settings;
  for (const Recommendation& each : Recommendations()) {
    EXPECT_FALSE(each.Holds({settings, false})) << each.What;
    EXPECT_NE(each.Now({settings, false}), each.Better) << each.What;
  }
}

TEST(Recommended, EachLineSetsWhatItNamesAndNoOther) {
  for (std::size_t i = 0; i < kRecommendationCount; ++i) {
    Settings settings;
    bool smooth = false;
    RecommendedTicks ticks{};
    ticks.at(i) = true;
    ApplyRecommended(ticks, {settings, smooth});
    for (std::size_t k = 0; k < kRecommendationCount; ++k) {
      const Recommendation& each = Recommendations().at(k);
      EXPECT_EQ(each.Holds({settings, smooth}), k == i) << each.What << " by line " << i;
      EXPECT_EQ(each.Now({settings, smooth}) == each.Better, k == i) << each.What << " by line " << i;
    }
  }
}

TEST(Recommended, SetsEveryMemberThatItIsAbout) {
  Settings settings;
  bool smooth = false;
  ApplyRecommended(All(), {settings, smooth});
  EXPECT_EQ(settings.m_eTrackMethod, TrackMethod::Direction);
  EXPECT_EQ(settings.m_fTrackBandwidth, 60.0F);
  EXPECT_TRUE(settings.m_bWatchAct);
  EXPECT_EQ(settings.m_eWatchSound, AlarmSound::Tone);
  EXPECT_TRUE(settings.m_bWatchBlankLost);
  EXPECT_TRUE(settings.m_bCarefulEntry);
  EXPECT_EQ(settings.m_eNmeaInvalidStatus, InvalidRule::Ignore);
  EXPECT_EQ(settings.m_eNmeaChecksum, ChecksumRule::Require);
  EXPECT_EQ(settings.m_eNmeaForeignLines, ForeignRule::List);
  EXPECT_EQ(settings.m_iPilotCadence, 1);
  EXPECT_TRUE(smooth);
  EXPECT_EQ(settings.m_fTrackAlarmAverage, 5.0F);
}

TEST(Recommended, WhatHoldsInAWayOfItsOwnStays) {
  Settings settings;
  settings.m_eTrackMethod = TrackMethod::Direction;
  settings.m_fTrackBandwidth = 120.0F;
  settings.m_iPilotCadence = 5;
  settings.m_fTrackAlarmAverage = 8.0F;
  bool smooth = false;
  ApplyRecommended(All(), {settings, smooth});
  EXPECT_EQ(settings.m_fTrackBandwidth, 120.0F) << "tuned by hand";
  EXPECT_EQ(settings.m_iPilotCadence, 5);
  EXPECT_EQ(settings.m_fTrackAlarmAverage, 8.0F);
}

TEST(Recommended, EachLineHasAReasonOfItsOwn) {
  std::set<std::string> reasons;
  for (const Recommendation& each : Recommendations()) {
    const std::string reason = each.Reason;
    EXPECT_TRUE(reason.ends_with('.')) << each.What;
    EXPECT_TRUE(reasons.insert(reason).second) << each.What;
  }
}

TEST(Recommended, SaysInWordsWhatIsSetNow) {
  Settings settings;
  settings.m_iPilotCadence = 5;
  settings.m_fTrackAlarmAverage = 2.5F;
  settings.m_eTrackMethod = TrackMethod::Clock;
  std::set<std::string> now;
  for (const Recommendation& each : Recommendations()) {
    now.insert(each.Now({settings, true}));
  }
  for (const char* words : {"Clock", "5 a second", "over 2.5 s", "smooth", "off", "Accept missing", "Beep"}) {
    EXPECT_EQ(now.count(words), 1U) << words;
  }
}

}  // namespace
}  // namespace veerwatch
