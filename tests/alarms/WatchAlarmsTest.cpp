// The conditions of the watch in the one list: their words, order, acknowledgement and sound.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>

#include "alarms/AlarmCentre.h"
#include "alarms/WatchText.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

Standing Of(Condition what, Level rank, std::int64_t since = 0, double figure = 0.0) {
  Standing one;
  one.What = what;
  one.Rank = rank;
  one.Since.Steady = since;
  one.Figure = figure;
  return one;
}

WatchNow With(std::initializer_list<Standing> conditions) {
  WatchNow now;
  now.Mode = TrackMode::Track;
  for (const Standing& one : conditions) {
    now.All[now.Count++] = one;
  }
  return now;
}

const Standing kNoWind = Of(Condition::NoWind, Level::Red, 1000, 7.0);
const Standing kStuck = Of(Condition::WindNotChanging, Level::Amber, 2000);
const Standing kSimulation = Of(Condition::Simulation, Level::Note);

TEST(WatchText, IsReadAcrossTheCabin) {
  EXPECT_EQ(WatchText(kNoWind), "No Wind 7 s");
  EXPECT_EQ(WatchText(Of(Condition::NoBoatSpeed, Level::Red)), "No Boat Speed");
  EXPECT_EQ(WatchText(Of(Condition::NoHeading, Level::Amber)), "No Heading");
  EXPECT_EQ(WatchText(kStuck), "Wind Not Changing");
  Standing two = Of(Condition::TwoWinds, Level::Amber);
  two.Talkers = {Talker{'W', 'I'}, Talker{'I', 'I'}};
  EXPECT_EQ(WatchText(two), "2 Wind Sources (WI, II)");
  EXPECT_EQ(WatchText(Of(Condition::WindJumps, Level::Amber)), "Wind Jumps");
  Standing pilot = Of(Condition::PilotNotFollowing, Level::Red);
  pilot.Follow = FollowVerdict::DoesNotFollow;
  EXPECT_EQ(WatchText(pilot), "Pilot: Does not follow");
  pilot.Follow = FollowVerdict::TurnsAway;
  EXPECT_EQ(WatchText(pilot), "Pilot: Turns the wrong way");
  EXPECT_EQ(WatchText(Of(Condition::PilotLost, Level::Red, 0, 2.0)), "Pilot Lost - Output Port 2");
  EXPECT_EQ(WatchText(Of(Condition::GybeRisk, Level::Red)), "Gybe Risk");
  EXPECT_EQ(WatchText(Of(Condition::OffCourse, Level::Amber, 0, 30.2)), "Off Course 30");
  EXPECT_EQ(WatchText(kSimulation), "Simulation");
}

TEST(WatchText, TheVerdictOnThePilotStandsWithItsOffset) {
  WatchNow watch;
  EXPECT_EQ(FollowLine(watch), "Pilot: Unknown");
  watch.Follow = FollowVerdict::Follows;
  EXPECT_EQ(FollowLine(watch), "Pilot: Follows");
  watch.PilotOffset = 4.6;
  EXPECT_EQ(FollowLine(watch), "Pilot: Follows, offset +5");
  watch.PilotOffset = -3.4;
  watch.Follow = FollowVerdict::Slow;
  EXPECT_EQ(FollowLine(watch), "Pilot: Slow, offset -3");
  watch.PilotOffset = -0.4;
  EXPECT_EQ(FollowLine(watch), "Pilot: Slow");
  watch.PilotOffset = 5.0;
  watch.Follow = FollowVerdict::Unknown;
  EXPECT_EQ(FollowLine(watch), "Pilot: Unknown") << "of another time";
  watch.Follow = FollowVerdict::TurnsAway;
  EXPECT_EQ(FollowLine(watch), "Pilot: Turns the wrong way");
}

TEST(WatchText, ATalkerOfControlCharactersShowsAsPictures) {
  Standing two = Of(Condition::TwoHeadings, Level::Amber);
  two.Talkers = {Talker{'\x1B', 'C'}, Talker{'I', 'I'}};
  EXPECT_EQ(WatchText(two), "2 Heading Sources (\u241BC, II)");
}

TEST(WatchText, EveryConditionHasTextAndRemedy) {
  for (std::size_t i = 0; i < kConditionCount; ++i) {
    const auto what = static_cast<Condition>(i);
    EXPECT_NE(WatchText(Of(what, Level::Note)), "") << i;
    EXPECT_NE(WatchRemedy(what), "") << i;
  }
  for (std::size_t i = 0; i < kWatchedCount; ++i) {
    EXPECT_NE(WatchedText(static_cast<Watched>(i)), "") << i;
  }
}

TEST(WatchText, AValueSaysWhereItCameFromAndHowOldItIs) {
  ValueAge age;
  EXPECT_EQ(ValueText(Watched::BoatSpeed, age), "Boat Speed: waiting");
  age.State = Freshness::NotFitted;
  EXPECT_EQ(ValueText(Watched::BoatSpeed, age), "Boat Speed: not fitted");
  age.State = Freshness::Fresh;
  EXPECT_EQ(ValueText(Watched::Heading, age), "Heading: simulated");
  age = {Freshness::Stale, 7900, {{'M', 'W', 'V'}, {'W', 'I'}, 5, {}}};
  EXPECT_EQ(ValueText(Watched::WindApparent, age), "Apparent Wind from MWV (WI), 7 s old");
}

TEST(WatchText, SaysWhatTheProgramDoesOrWouldDo) {
  WatchNow watch = With({kNoWind});
  EXPECT_EQ(WatchDoes(kNoWind, watch),
            "Tells it, and steers on. With Act: no step; the pilot keeps its last bearing");
  watch.Act = true;
  EXPECT_EQ(WatchDoes(kNoWind, watch), "Act: no step; the pilot keeps its last bearing");
  watch.Mode = TrackMode::Manual;
  EXPECT_EQ(WatchDoes(kNoWind, watch), "Tells it");
  EXPECT_EQ(WatchDoes(kSimulation, watch), "Tells it");
}

TEST(WatchAlarms, StandInFrontOfTheNotices) {
  AlarmCentre alarms;
  alarms.Set(AlarmKind::Save, "Settings not saved");
  alarms.Watch(With({kNoWind, kStuck}));
  EXPECT_THAT(alarms.Texts(), ElementsAre("No Wind 7 s", "Wind Not Changing", "Settings not saved"));
  EXPECT_EQ(alarms.Line(), "No Wind 7 s +2 more");
  alarms.Dismiss();
  EXPECT_EQ(alarms.Line(), "No Wind 7 s +1 more");
  alarms.Watch(With({}));
  EXPECT_EQ(alarms.Line(), "");
}

TEST(WatchAlarms, AnEntryHasAllThatTheListShows) {
  AlarmCentre alarms;
  WatchNow watch = With({kNoWind});
  watch.Values[0] = {Freshness::Stale, 7900, {{'M', 'W', 'V'}, {'W', 'I'}, 5, {}}};
  alarms.Watch(watch);
  alarms.Set(AlarmKind::Source, "Heading: nothing from RMC or VTG; HDG is there");
  const auto entries = alarms.Entries();
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_EQ(entries[0].Rank, Level::Red);
  EXPECT_EQ(entries[0].What, Condition::NoWind);
  EXPECT_EQ(entries[0].Since->Steady, 1000);
  EXPECT_EQ(entries[0].Value, "Apparent Wind from MWV (WI), 7 s old");
  EXPECT_FALSE(entries[0].Acknowledged);
  EXPECT_NE(entries[0].Remedy, "");
  EXPECT_EQ(entries[1].Rank, Level::Note);
  EXPECT_EQ(entries[1].What, std::nullopt);
  EXPECT_EQ(entries[1].Remedy, "Options > Data: choose the source that is there");
}

TEST(WatchAlarms, AcknowledgedTheLineStaysAndTheSoundStops) {
  AlarmCentre alarms;
  alarms.Watch(With({kNoWind, kStuck}));
  EXPECT_EQ(alarms.Tone({1000, 0}).Pattern, Level::Red);
  alarms.Acknowledge();
  EXPECT_EQ(alarms.Tone({1000, 0}).Pattern, std::nullopt);
  EXPECT_EQ(alarms.Line(), "No Wind 7 s +1 more");
  EXPECT_TRUE(alarms.Entries()[0].Acknowledged);
  alarms.Watch(With({kStuck}));
  EXPECT_EQ(alarms.Tone({2000, 0}).Pattern, std::nullopt);
  alarms.Watch(With({kNoWind, kStuck}));
  EXPECT_EQ(alarms.Tone({3000, 0}).Pattern, Level::Red) << "it came anew";
}

TEST(WatchAlarms, WhatTurnsWorseIsHeardAgain) {
  AlarmCentre alarms;
  alarms.Watch(With({Of(Condition::NoWind, Level::Amber)}));
  alarms.Acknowledge();
  alarms.Watch(With({kNoWind}));
  EXPECT_EQ(alarms.Tone({3000, 0}).Pattern, Level::Red);
  alarms.Acknowledge();
  alarms.Watch(With({Of(Condition::NoWind, Level::Amber)}));
  EXPECT_EQ(alarms.Tone({3000, 0}).Pattern, std::nullopt) << "and what turns better is not";
}

TEST(WatchAlarms, ThePatternIsThatOfTheWorstThatIsNotAcknowledged) {
  AlarmCentre alarms;
  alarms.Watch(With({kStuck}));
  EXPECT_EQ(alarms.Tone({2000, 0}).Pattern, Level::Amber);
  alarms.Acknowledge();
  alarms.Watch(With({kStuck, Of(Condition::PilotLineFull, Level::Note)}));
  EXPECT_EQ(alarms.Tone({2000, 0}).Pattern, Level::Note);
  alarms.Watch(With({kSimulation}));
  EXPECT_EQ(alarms.Tone({2000, 0}).Pattern, std::nullopt) << "a simulation is silent";
}

TEST(WatchAlarms, ARedOneThatNobodyAnswersRisesAfterThirtySeconds) {
  AlarmCentre alarms;
  alarms.Watch(With({kNoWind}));
  EXPECT_FALSE(alarms.Tone({30999, 0}).Rises);
  EXPECT_TRUE(alarms.Tone({31000, 0}).Rises);
  alarms.Acknowledge();
  EXPECT_FALSE(alarms.Tone({31000, 0}).Rises);
  alarms.Watch(With({kStuck}));
  EXPECT_FALSE(alarms.Tone({100000, 0}).Rises) << "an amber one does not";
}

TEST(WatchAlarms, AreMuteForTenMinutes) {
  AlarmCentre alarms;
  alarms.Watch(With({kNoWind}));
  alarms.Mute({5000, 0});
  EXPECT_EQ(alarms.Tone({604999, 0}).Pattern, std::nullopt);
  EXPECT_TRUE(alarms.Muted({604999, 0}));
  EXPECT_EQ(alarms.Tone({605000, 0}).Pattern, Level::Red);
  alarms.Mute({605000, 0});
  alarms.Unmute();
  EXPECT_FALSE(alarms.Muted({605001, 0}));
}

}  // namespace
}  // namespace veerwatch
