#include "history/HistoryCsv.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "history/ClockText.h"
#include "tests/support/HandClock.h"

namespace veerwatch {
namespace {

class HistoryCsvTest : public testing::Test {
 public:
  HistoryCsvTest() {
    Data.TraceCountSet(2);
    Data.TraceDefine(1, "Boat Speed", TraceKind::Speed, "Kts");
    Data.TraceDefine(2, "True Wind Angle", TraceKind::Angle, "R");
    Data.SampleBufferSet(10, 100.0);
  }

  HandClock Time;
  StripChartData Data;
};

TEST_F(HistoryCsvTest, NamesTheColumnsWithoutAnyValue) {
  EXPECT_EQ(HistoryCsv(Data),
            "Time (UTC),Boat Speed [Kts],True Wind Angle [R],"
            "Boat Speed Lowest [Kts],Boat Speed Highest [Kts],True Wind Angle Lowest [R],True Wind Angle "
            "Highest [R]\n");
}

TEST_F(HistoryCsvTest, HasALinePerSlotThatHoldsAValue) {
  Data.SampleAdd("Boat Speed", "5.3 Kts", Time.Time);
  Time.Pass(4000);
  Data.SampleAdd("Boat Speed", "5.4 Kts", Time.Time);
  Time.Pass(10000);
  Data.SampleAdd("True Wind Angle", "-45.2 M", Time.Time);
  Time.Pass(30000);
  Data.SampleAdd("Boat Speed", "6.0 Kts", Time.Time);
  Data.SampleAdd("True Wind Angle", "180.0 M", Time.Time);
  EXPECT_EQ(HistoryCsv(Data),
            "Time (UTC),Boat Speed [Kts],True Wind Angle [M],"
            "Boat Speed Lowest [Kts],Boat Speed Highest [Kts],True Wind Angle Lowest [M],True Wind Angle "
            "Highest [M]\n"
            "2026-03-31T09:00:00Z,5.4,,5.3,5.4,,\n"
            "2026-03-31T09:00:10Z,,-45.2,,,-45.2,-45.2\n"
            "2026-03-31T09:00:40Z,6,180,6,6,180,180\n");
}

/// What happened over the seam of an angle stays in one piece: 350.1, 355 and 2 are -9.9 to 2.
TEST_F(HistoryCsvTest, TheEdgesOfAnAngleLieOnTheTurnOfItsLatestValue) {
  for (const char* angle : {"355.0 M", "350.1 M", "2.0 M"}) {
    Data.SampleAdd("True Wind Angle", angle, Time.Time);
  }
  EXPECT_NE(HistoryCsv(Data).find("\n2026-03-31T09:00:00Z,,2,,,-9.9,2\n"), std::string::npos)
      << HistoryCsv(Data);
}

TEST_F(HistoryCsvTest, ASlotThatAClockOpenedBeginsAtAWholeTenOfSeconds) {
  Time.Pass(7654);
  Data.SampleAdd("Boat Speed", "5.0 Kts", Time.Time);
  Time.Pass(1000);
  Time.Time.Wall += 60123;
  Data.SampleAdd("Boat Speed", "6.0 Kts", Time.Time);
  const std::string csv = HistoryCsv(Data);
  EXPECT_NE(csv.find("\n2026-03-31T09:00:00Z,5,"), std::string::npos) << csv;
  EXPECT_NE(csv.find("\n2026-03-31T09:01:00Z,6,"), std::string::npos) << csv;
}

TEST_F(HistoryCsvTest, QuotesWhatHoldsACommaOrAQuote) {
  Data.TraceDefine(1, "Speed, \"fast\"", TraceKind::Speed, "Kts");
  EXPECT_TRUE(
      HistoryCsv(Data).starts_with("Time (UTC),\"Speed, \"\"fast\"\" [Kts]\",True Wind Angle [R],"
                                   "\"Speed, \"\"fast\"\" Lowest [Kts]\","))
      << HistoryCsv(Data);
}

TEST_F(HistoryCsvTest, HoldsTheWholeRingAndNoMore) {
  for (int slot = 0; slot < 150; ++slot) {
    Data.SampleAdd("Boat Speed", "5 Kts", Time.Time);
    Time.Pass(10000);
  }
  const std::string csv = HistoryCsv(Data);
  EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 101);
  EXPECT_NE(csv.find("\n2026-03-31T09:08:20Z,5,,5,5,,\n"), std::string::npos);
}

TEST(ClockText, ShowsTheLocalClock) {
  EXPECT_EQ(ClockText(HandClock::kMorning, 0), "09:00");
  EXPECT_EQ(ClockText(HandClock::kMorning, 7200), "11:00");
  EXPECT_EQ(ClockText(HandClock::kMorning, -10 * 3600), "23:00");
  EXPECT_EQ(ClockTextSeconds(HandClock::kMorning + 61999, 0), "09:01:01");
  EXPECT_EQ(ClockText(-1, 0), "23:59");
}

TEST(ClockText, WritesIso8601) {
  EXPECT_EQ(Iso8601Text(0), "1970-01-01T00:00:00Z");
  EXPECT_EQ(Iso8601Text(HandClock::kMorning + 12999), "2026-03-31T09:00:12Z");
  EXPECT_EQ(Iso8601Text(951782400000), "2000-02-29T00:00:00Z");
}

}  // namespace
}  // namespace veerwatch
