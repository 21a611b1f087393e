#include "alarms/Notices.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(Notices, AreEmptyWhileNobodySaysAnything) {
  Notices notices;
  EXPECT_EQ(notices.Line(), "");
  notices.Set(NoticeKind::Source, "");
  notices.Dismiss();
  EXPECT_EQ(notices.Line(), "");
  EXPECT_TRUE(notices.Texts().empty());
}

TEST(Notices, ShowTheMostImportantOneAndCountTheOthers) {
  Notices notices;
  notices.Set(NoticeKind::Source, "source");
  EXPECT_EQ(notices.Line(), "source");
  notices.Set(NoticeKind::Save, "save");
  notices.Set(NoticeKind::Profile, "profile");
  EXPECT_EQ(notices.Line(), "save (and 2 more)");
  EXPECT_EQ(notices.Texts(), (std::vector<std::string>{"save", "profile", "source"}));
  notices.Set(NoticeKind::Save, "");
  EXPECT_EQ(notices.Line(), "profile (and 1 more)");
}

TEST(Notices, ThatWereReadStayAwayUntilTheySayAnotherThing) {
  Notices notices;
  notices.Set(NoticeKind::Profile, "profile");
  notices.Set(NoticeKind::Source, "one");
  notices.Dismiss();
  EXPECT_EQ(notices.Line(), "one");
  notices.Dismiss();
  EXPECT_EQ(notices.Line(), "");
  notices.Set(NoticeKind::Source, "one");
  EXPECT_EQ(notices.Line(), "");
  notices.Set(NoticeKind::Source, "two");
  EXPECT_EQ(notices.Line(), "two");
  notices.Set(NoticeKind::Source, "");
  notices.Set(NoticeKind::Source, "two");
  EXPECT_EQ(notices.Line(), "two") << "it came back";
}

}  // namespace
}  // namespace veerwatch
