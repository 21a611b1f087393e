#include "app/WatchDiary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string>

#include "tests/support/HandClock.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::int64_t kHour = 3600LL * 1000;  // [ms]

class WatchDiaryTest : public testing::Test {
 protected:
  /// The conditions that stand now, as the helm tells them.
  void Tell(std::initializer_list<Standing> standing) {
    WatchNow watch;
    watch.At = m_clock.Now();
    for (const Standing& one : standing) {
      watch.All[watch.Count++] = one;
    }
    m_observers.Tell([&](HelmObserver& observer) { observer.OnWatch(watch); });
  }
  static Standing Red(Condition what, double figure = 0.0) {
    Standing one;
    one.What = what;
    one.Rank = Level::Red;
    one.Figure = figure;
    return one;
  }
  std::filesystem::path Profile() const { return m_folder / "Charter.ini"; }
  std::filesystem::path File() const { return m_folder / "Charter.ini.watch"; }

  TemporaryFolder m_folder;
  HandClock m_clock;
  HelmObservers m_observers;
};

TEST_F(WatchDiaryTest, TellsWhatCameAndWhatWasOver) {
  WatchDiary diary(m_observers, m_clock);
  m_clock.Time.Wall = 1763820187000;
  Tell({Red(Condition::NoWind, 5.0)});
  m_clock.Pass(2000);
  Tell({Red(Condition::NoWind, 7.0)});
  m_clock.Pass(1000);
  Tell({});
  EXPECT_THAT(diary.Lines(),
              ElementsAre("2025-11-22 14:03:07 red No Wind 5 s", "2025-11-22 14:03:10 over No Wind 7 s"));
  m_clock.Pass(24 * kHour + 1);
  EXPECT_THAT(diary.Lines(), IsEmpty()) << "older than a day";
}

TEST_F(WatchDiaryTest, KnowsAfterTheNextStartWhatWasFoundBefore) {
  {
    WatchDiary diary(m_observers, m_clock);
    diary.Keep(Profile());
    Tell({Red(Condition::PilotLost, 6.0)});
    diary.Save();
    m_clock.Pass(kHour);
    Tell({});
    diary.Save();
  }
  WatchDiary next(m_observers, m_clock);
  next.Keep(Profile());
  EXPECT_THAT(next.Lines(), SizeIs(2));
  EXPECT_EQ(next.Lines(), WatchLinesOf(Profile(), m_clock.Now().Wall));
  m_clock.Pass(23 * kHour + kHour / 2);
  EXPECT_THAT(next.Lines(), SizeIs(1));
  EXPECT_THAT(WatchLinesOf(Profile(), m_clock.Now().Wall), SizeIs(1));
}

TEST_F(WatchDiaryTest, MakesNoFileWhereNothingWasFound) {
  WatchDiary diary(m_observers, m_clock);
  diary.Keep(Profile());
  Tell({});
  diary.Save();
  EXPECT_THAT(m_folder.Names(), IsEmpty());
}

TEST_F(WatchDiaryTest, TakesAllOfItAlongToAnotherProfile) {
  WatchDiary diary(m_observers, m_clock);
  diary.Keep(m_folder / "Home.ini");
  Tell({Red(Condition::NoWind, 5.0)});
  diary.Save();
  diary.Keep(Profile());
  Tell({});
  diary.Save();
  EXPECT_THAT(WatchLinesOf(Profile(), m_clock.Now().Wall), SizeIs(2));
}

TEST_F(WatchDiaryTest, StaysSmallWhateverComes) {
  WatchDiary diary(m_observers, m_clock);
  diary.Keep(Profile());
  for (int i = 0; i < 3000; ++i) {
    m_clock.Pass(1000);
    Tell({Red(Condition::NoWind, i)});
    Tell({});
    diary.Save();
    ASSERT_LT(std::filesystem::file_size(File()), 200'000U);
  }
  EXPECT_THAT(diary.Lines(), SizeIs(500));
  EXPECT_THAT(diary.Lines().back(), testing::HasSubstr("over No Wind 2999 s"));
}

TEST_F(WatchDiaryTest, ALastLineThatWasCutOffIsNoneAndDoesNotSpoilTheNext) {
  const std::string good = "1763820187000 came red NoWind 5 ??,?? header Unknown\n";
  WriteFile(File(), good + "1763820188000 came red NoWind 5 ??,?? header Unknown");
  m_clock.Time.Wall = 1763820189000;
  WatchDiary diary(m_observers, m_clock);
  diary.Keep(Profile());
  EXPECT_THAT(diary.Lines(), SizeIs(1));
  Tell({Red(Condition::NoHeading)});
  diary.Save();
  EXPECT_THAT(WatchLinesOf(Profile(), m_clock.Now().Wall), SizeIs(2));
}

TEST_F(WatchDiaryTest, WhatIsNoFileIsLeftAlone) {
  ASSERT_EQ(::mkfifo(File().c_str(), 0600), 0);
  WatchDiary diary(m_observers, m_clock);
  diary.Keep(Profile());
  Tell({Red(Condition::NoWind, 5.0)});
  diary.Save();
  EXPECT_TRUE(std::filesystem::is_fifo(File()));
  EXPECT_THAT(diary.Lines(), SizeIs(1));
}

TEST(WatchEntryLine, IsReadBackWhateverIsTold) {
  for (std::size_t what = 0; what < kConditionCount; ++what) {
    WatchEntry entry;
    entry.Wall = 1763820187123;
    entry.Over = what % 2 == 1;
    entry.What.What = static_cast<Condition>(what);
    entry.What.Rank = static_cast<Level>(what % 3);
    entry.What.Figure = 12.5 * (what % 2 == 0 ? 1.0 : -1.0);
    entry.What.Talkers = {{{'W', 'I'}, {'I', '2'}}};
    entry.What.Lift = what % 2 == 0;
    entry.What.Follow = static_cast<FollowVerdict>(what % 5);
    const auto read = ReadWatchEntry(WatchEntryLine(entry));
    ASSERT_TRUE(read.has_value()) << WatchEntryLine(entry);
    EXPECT_EQ(WatchEntryText(*read), WatchEntryText(entry));
    EXPECT_EQ(WatchEntryLine(*read), WatchEntryLine(entry));
    EXPECT_EQ(read->Wall, entry.Wall);
  }
}

TEST(WatchEntryLine, HoldsNothingThatATalkerMayBringIn) {
  WatchEntry entry;
  entry.What.What = Condition::TwoWinds;
  entry.What.Talkers = {{{' ', '\n'}, {'\0', 'a'}}};
  entry.What.Figure = std::nan("");
  EXPECT_EQ(WatchEntryLine(entry), "0 came note TwoWinds 0 ??,?? header Unknown");
}

TEST(ReadWatchEntry, TakesNothingElse) {
  for (const char* line :
       {"", " ", "1763820187000", "x came red NoWind 5 ??,?? header Unknown",
        "-1 came red NoWind 5 ??,?? header Unknown", "1e300 came red NoWind 5 ??,?? header Unknown",
        "nan came red NoWind 5 ??,?? header Unknown", "1 went red NoWind 5 ??,?? header Unknown",
        "1 came blue NoWind 5 ??,?? header Unknown", "1 came red Ann 5 ??,?? header Unknown",
        "1 came red NoWind 54.03e9 ??,?? header Unknown", "1 came red NoWind inf ??,?? header Unknown",
        "1 came red NoWind 5 WI header Unknown", "1 came red NoWind 5 W/,II header Unknown",
        "1 came red NoWind 5 ??,?? lee Unknown", "1 came red NoWind 5 ??,?? header Ann",
        "1 came red NoWind 5 ??,?? header Unknown x", "1  came red NoWind 5 ??,?? header Unknown"}) {
    EXPECT_FALSE(ReadWatchEntry(line).has_value()) << line;
  }
}

}  // namespace
}  // namespace veerwatch
