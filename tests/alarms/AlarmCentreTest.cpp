#include "alarms/AlarmCentre.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace veerwatch
