#include "alarms/AlarmCentre.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace veerwatch {
namespace {

TEST(AlarmCentre, AreEmptyWhileNobodySaysAnything) {
  AlarmCentre notices;
  EXPECT_EQ(notices.Line(), "");
  notices.Set(AlarmKind::Source, "");
  notices.Dismiss();
  EXPECT_EQ(notices.Line(), "");
  EXPECT_TRUE(notices.Texts().empty());
}

TEST(AlarmCentre, ShowTheMostImportantOneAndCountTheOthers) {
  AlarmCentre notices;
  notices.Set(AlarmKind::Source, "source");
  EXPECT_EQ(notices.Line(), "source");
  notices.Set(AlarmKind::Save, "save");
  notices.Set(AlarmKind::Profile, "profile");
  EXPECT_EQ(notices.Line(), "save +2 more");
  EXPECT_EQ(notices.Texts(), (std::vector<std::string>{"save", "profile", "source"}));
  notices.Set(AlarmKind::Save, "");
  EXPECT_EQ(notices.Line(), "profile +1 more");
}

TEST(AlarmCentre, ARecordingThatHasEndedComesAfterWhatSteers) {
  AlarmCentre notices;
  notices.Set(AlarmKind::Record, "record");
  EXPECT_EQ(notices.Line(), "record");
  for (const auto& [kind, text] :
       {std::pair(AlarmKind::Source, "source"), std::pair(AlarmKind::Profile, "profile"),
        std::pair(AlarmKind::Save, "save")}) {
    notices.Set(kind, text);
    EXPECT_EQ(notices.Texts().front(), text);
    EXPECT_EQ(notices.Texts().back(), "record");
  }
  EXPECT_EQ(notices.Entries().back().Does, "Records no more, and goes on with everything else");
  EXPECT_EQ(notices.Entries().back().Remedy, "Make room on the disk, then File > Record Input...");
  notices.Set(AlarmKind::Record, "");
  EXPECT_EQ(notices.Texts().back(), "source");
}

TEST(AlarmCentre, ThatWereReadStayAwayUntilTheySayAnotherThing) {
  AlarmCentre notices;
  notices.Set(AlarmKind::Profile, "profile");
  notices.Set(AlarmKind::Source, "one");
  notices.Dismiss();
  EXPECT_EQ(notices.Line(), "one");
  notices.Dismiss();
  EXPECT_EQ(notices.Line(), "");
  notices.Set(AlarmKind::Source, "one");
  EXPECT_EQ(notices.Line(), "");
  notices.Set(AlarmKind::Source, "two");
  EXPECT_EQ(notices.Line(), "two");
  notices.Set(AlarmKind::Source, "");
  notices.Set(AlarmKind::Source, "two");
  EXPECT_EQ(notices.Line(), "two") << "it came back";
}

TEST(AlarmCentre, APromptStandsBeforeWhatIsOnlyToBeKnownAndAfterWhatIsWrong) {
  AlarmCentre notices;
  WatchNow watch;
  watch.All[0].What = Condition::Pinching;
  watch.All[0].Rank = Level::Amber;
  watch.All[1].What = Condition::Simulation;
  watch.All[1].Rank = Level::Note;
  watch.Count = 2;
  notices.Watch(watch);
  notices.Set(AlarmKind::Save, "save");
  notices.Set(AlarmKind::Course, "Tack now (Enter)");
  EXPECT_THAT(notices.Texts(), testing::ElementsAre("Pinching", "Tack now (Enter)", "Simulation", "save"));
}

}  // namespace
}  // namespace veerwatch
