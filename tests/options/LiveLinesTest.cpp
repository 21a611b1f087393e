#include "options/LiveLines.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(LiveLines, AreFullAt101) {
  LiveLines lines;
  for (int i = 0; i < 100; ++i) {
    lines.Append("line", false);
    EXPECT_FALSE(lines.Full()) << i;
  }
  lines.Append("line", false);
  EXPECT_TRUE(lines.Full());
  EXPECT_EQ(lines.Count(), 101U);
}

TEST(LiveLines, LoseTheOldestFirst) {
  LiveLines lines;
  lines.Append("old", true);
  lines.Append("new", false);
  lines.RemoveOldest();
  ASSERT_EQ(lines.Count(), 1U);
  EXPECT_EQ(lines.At(0).Text, "new");
  EXPECT_FALSE(lines.At(0).Highlighted);
  lines.Clear();
  EXPECT_EQ(lines.Count(), 0U);
}

TEST(LiveLineType, IsThatOfTheSentenceInIt) {
  EXPECT_EQ(LiveLineType("$WIMWV,045.0,R,12.1,N,A*2A"), "MWV");
  EXPECT_EQ(LiveLineType("Decode Error - $GPRMC,1"), "RMC");
  EXPECT_EQ(LiveLineType("!AIVDM,1,1,,A,x,0*00"), "VDM");
  EXPECT_EQ(LiveLineType("$PGRME,15.0,M"), "PGRME");
  EXPECT_EQ(LiveLineType("$GPGGA"), "GGA");
  for (const char* line :
       {"", "noise", "$", "$,", "$GP,", "$gprmc,1", "$GPRMCX,1", "$PLONGADDRESS,1", "$WI\x80VW,"}) {
    EXPECT_EQ(LiveLineType(line), "") << line;
  }
}

TEST(LiveLines, ListOnlyTheTypeThatIsChosen) {
  LiveLines lines;
  for (const char* text : {"$WIMWV,1", "$GPRMC,1", "noise", "$IIMWV,2"}) {
    lines.Append(text, false);
  }
  lines.Type("MWV");
  ASSERT_EQ(lines.Count(), 2U);
  EXPECT_EQ(lines.At(0).Text, "$WIMWV,1");
  EXPECT_EQ(lines.At(1).Text, "$IIMWV,2");
  EXPECT_TRUE(lines.Wants("$WIMWV,3"));
  EXPECT_FALSE(lines.Wants("$GPRMC,2"));
  EXPECT_FALSE(lines.Wants("noise"));
  lines.Type("");
  EXPECT_TRUE(lines.Wants("noise"));
}

TEST(LiveLines, KeepWhatComesInAPauseForItsEnd) {
  LiveLines lines;
  lines.Append("before", true);
  lines.Pause(true);
  lines.Wait("first", false);
  lines.Wait("second", true);
  EXPECT_EQ(lines.Count(), 1U);
  lines.Pause(false);
  ASSERT_EQ(lines.Count(), 3U);
  EXPECT_EQ(lines.At(1).Text, "first");
  EXPECT_EQ(lines.At(2).Text, "second");
  EXPECT_TRUE(lines.At(2).Highlighted);
  lines.Pause(true);
  for (int i = 0; i < 250; ++i) {
    lines.Wait("line " + std::to_string(i), false);
  }
  lines.Pause(false);
  ASSERT_EQ(lines.Count(), 101U);
  EXPECT_EQ(lines.At(0).Text, "line 149");
  EXPECT_EQ(lines.At(100).Text, "line 249");
  lines.Pause(true);
  lines.Wait("gone", false);
  lines.Clear();
  lines.Pause(false);
  EXPECT_EQ(lines.Count(), 0U);
}

TEST(LiveLines, NoteEachTypeOnceAndNotWithoutEnd) {
  LiveLines lines;
  EXPECT_TRUE(lines.NoteType("$WIMWV,1"));
  EXPECT_FALSE(lines.NoteType("$IIMWV,1"));
  EXPECT_FALSE(lines.NoteType("noise"));
  for (int i = 0; i < 1000; ++i) {
    lines.NoteType("$II" + std::to_string(100 + i % 900) + ",1");
  }
  EXPECT_EQ(lines.Types().size(), LiveLines::kMostTypes);
}

TEST(LiveLines, KnowTheirLongest) {
  LiveLines lines;
  EXPECT_EQ(lines.Longest(), 0U);
  lines.Append("12345", false);
  lines.Append("123", false);
  EXPECT_EQ(lines.Longest(), 5U);
}

}  // namespace
}  // namespace veerwatch
