#include "history/StripChartData.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "tests/support/HandClock.h"

namespace veerwatch {
namespace {

class StripChartDataTest : public testing::Test {
 public:
  StripChartDataTest() {
    Data.TraceCountSet(2);
    Data.TraceDefine(1, "Boat Speed", TraceKind::Speed, "Kts");
    Data.TraceDefine(2, "Heading", TraceKind::Angle, "M");
    Data.SampleBufferSet(10, 8640.0);
  }

  bool Speed(const std::string& text) { return Data.SampleAdd("Boat Speed", text, Time.Time); }

  const TraceSlot& Slot(std::int64_t slot, std::size_t trace = 0) const {
    return Data.Traces()[trace].Slots.At(Data.Place(slot));
  }

  /// The slots that hold a boat speed.
  std::vector<std::int64_t> Filled() const {
    std::vector<std::int64_t> filled;
    for (std::int64_t slot = Data.FirstSlot(); slot <= Data.LastSlot(); ++slot) {
      if (!Slot(slot).Empty()) {
        filled.push_back(slot);
      }
    }
    return filled;
  }

  HandClock Time;
  StripChartData Data;
};

using Slots = std::vector<std::int64_t>;

TEST_F(StripChartDataTest, HoldsNothingBeforeTheFirstSample) {
  EXPECT_EQ(Data.LastSlot(), StripChartData::kNone);
  EXPECT_EQ(Data.FirstSlot(), StripChartData::kNone);
  EXPECT_EQ(Data.SlotCount(), 8640);
}

TEST_F(StripChartDataTest, TakesTheNumberAndTheUnits) {
  EXPECT_TRUE(Speed("5.3 Kts"));
  EXPECT_EQ(Slot(0).Latest, 5.3F);
  EXPECT_EQ(Data.Traces()[0].Newest.Value, 5.3F);
  EXPECT_EQ(Data.Traces()[0].Newest.Units(), "Kts");
  EXPECT_TRUE(Slot(0, 1).Empty());
}

TEST_F(StripChartDataTest, AnUnknownNameIsRefusedAndChangesNothing) {
  Speed("5.3 Kts");
  Time.Pass(60000);
  for (const char* name : {"", "boat speed", "Boat", "Boat Speed ", "Boat Speed Kts", "Depth"}) {
    EXPECT_FALSE(Data.SampleAdd(name, "9.9 Kts", Time.Time)) << name;
  }
  EXPECT_EQ(Data.LastSlot(), 0);
  EXPECT_EQ(Slot(0).Latest, 5.3F);
}

TEST_F(StripChartDataTest, ATextWithoutAFiniteNumberIsAGap) {
  for (const char* text : {"", " ", " Kts", "Kts", "nan Kts", "inf Kts", "-inf Kts", "1e99 Kts", "5.3Kts",
                           "--5 Kts", "0x10 Kts", "1,5 Kts"}) {
    Time.Pass(10000);
    Speed("5.3 Kts");
    EXPECT_TRUE(Speed(text)) << text;
    EXPECT_TRUE(Slot(Data.LastSlot()).Empty()) << text;
    EXPECT_TRUE(std::isnan(Data.Traces()[0].Newest.Value)) << text;
  }
}

TEST_F(StripChartDataTest, ATextWithoutUnitsIsTaken) {
  Speed("5.3");
  EXPECT_EQ(Slot(0).Latest, 5.3F);
  EXPECT_EQ(Data.Traces()[0].ShownUnits(), "Kts");
}

TEST_F(StripChartDataTest, ShowsTheUnitsThatWereFedLast) {
  EXPECT_EQ(Data.Traces()[0].ShownUnits(), "Kts");
  Speed("5.3 deg");
  EXPECT_EQ(Data.Traces()[0].ShownUnits(), "deg");
  Speed("5.3 unitsOfManyLetters");
  EXPECT_EQ(Data.Traces()[0].ShownUnits(), "unitsOfManyLett");
}

TEST_F(StripChartDataTest, SamplesOfTenSecondsShareASlot) {
  for (int second = 0; second < 30; ++second) {
    Speed(std::to_string(second) + " Kts");
    Time.Pass(1000);
  }
  ASSERT_EQ(Data.LastSlot(), 2);
  for (std::int64_t slot = 0; slot <= 2; ++slot) {
    EXPECT_EQ(Slot(slot).Low, static_cast<float>(slot * 10));
    EXPECT_EQ(Slot(slot).High, static_cast<float>(slot * 10 + 9));
    EXPECT_EQ(Slot(slot).Latest, static_cast<float>(slot * 10 + 9));
    EXPECT_EQ(Data.Wall(slot), HandClock::kMorning + slot * 10000);
  }
}

TEST_F(StripChartDataTest, SlotsBeginAtFullTensOfSecondsOfTheWallClock) {
  Time.Pass(7345);
  Speed("1 Kts");
  EXPECT_EQ(Data.Wall(0), HandClock::kMorning);
  Time.Pass(2654);  // 09:00:09.999
  Speed("2 Kts");
  EXPECT_EQ(Data.LastSlot(), 0);
  Time.Pass(1);
  Speed("3 Kts");
  EXPECT_EQ(Data.LastSlot(), 1);
  EXPECT_EQ(Data.Wall(1), HandClock::kMorning + 10000);
}

/// The two clocks are read one after the other and in whole milliseconds, so their difference is not quite
/// the same each time.
TEST_F(StripChartDataTest, SlotsBeginAtFullTensAlthoughTheClocksAreReadOneAfterTheOther) {
  for (int i = 0; i < 500; ++i) {
    Moment now = Time.Time;
    now.Steady += i % 3 - 1;
    now.Wall += i % 7;
    Data.SampleAdd("Boat Speed", "5 Kts", now);
    Time.Pass(1000);
  }
  ASSERT_EQ(Data.LastSlot(), 49);
  for (std::int64_t slot = 0; slot <= 49; ++slot) {
    ASSERT_EQ(Data.Wall(slot), HandClock::kMorning + slot * 10000);
  }
}

/// The wall clock is corrected by a few milliseconds every second, as a time server does it.
TEST_F(StripChartDataTest, SlotsFollowAWallClockThatIsSlewed) {
  for (const std::int64_t by : {5, -5}) {
    Data.SampleBufferSet(10, 8640.0);
    Time.Time.Wall = HandClock::kMorning;
    for (int i = 0; i < 7200; ++i) {
      Speed("5 Kts");
      const std::int64_t last = Data.LastSlot();
      ASSERT_EQ(Data.Wall(last) % 10000, 0);
      ASSERT_LE(Data.Wall(last), Time.Time.Wall);
      ASSERT_GT(Data.Wall(last) + 10000, Time.Time.Wall);
      ASSERT_FALSE(Data.JumpedBefore(last));
      Time.Pass(1000);
      Time.Time.Wall += by;
    }
    EXPECT_NEAR(static_cast<double>(Data.LastSlot()), 720.0, 4.0);
    EXPECT_EQ(Filled().size(), static_cast<std::size_t>(Data.LastSlot() + 1));
  }
}

TEST_F(StripChartDataTest, ATimeWithoutSamplesIsAGap) {
  Speed("1 Kts");
  Time.Pass(50000);
  Speed("2 Kts");
  EXPECT_EQ(Filled(), (Slots{0, 5}));
  for (std::int64_t slot = 0; slot <= 5; ++slot) {
    EXPECT_EQ(Data.Wall(slot), HandClock::kMorning + slot * 10000);
    EXPECT_FALSE(Data.JumpedBefore(slot));
  }
}

TEST_F(StripChartDataTest, GoesOnWithoutSamples) {
  Speed("1 Kts");
  Time.Pass(35000);
  Data.Advance(Time.Time);
  EXPECT_EQ(Data.LastSlot(), 3);
  EXPECT_EQ(Filled(), Slots{0});
}

TEST_F(StripChartDataTest, KeepsTheSlotsOfOneDay) {
  for (int slot = 0; slot < 8640 + 100; ++slot) {
    Speed(std::to_string(slot) + " Kts");
    Time.Pass(10000);
  }
  EXPECT_EQ(Data.LastSlot(), 8739);
  EXPECT_EQ(Data.FirstSlot(), 100);
  for (std::int64_t slot = 100; slot <= 8739; ++slot) {
    ASSERT_EQ(Slot(slot).Latest, static_cast<float>(slot));
    ASSERT_EQ(Data.Wall(slot), HandClock::kMorning + slot * 10000);
  }
}

TEST_F(StripChartDataTest, GoesOnOverMidnight) {
  constexpr std::int64_t kFifteenHours = 15LL * 3600 * 1000;
  Time.Pass(kFifteenHours - 20000);  // 23:59:40
  for (int second = 0; second < 40; ++second) {
    Speed("5 Kts");
    Time.Pass(1000);
  }
  EXPECT_EQ(Filled(), (Slots{0, 1, 2, 3}));
  EXPECT_EQ(Data.Wall(2) - HandClock::kMorning, kFifteenHours);
}

TEST_F(StripChartDataTest, APauseOfMoreThanADayLeavesNothingBehind) {
  for (int i = 0; i < 100; ++i) {
    Speed("5 Kts");
    Time.Pass(10000);
  }
  Time.Pass(100LL * 24 * 3600 * 1000);
  Speed("7 Kts");
  EXPECT_EQ(Filled(), Slots{Data.LastSlot()});
  EXPECT_EQ(Data.Wall(Data.LastSlot()), Time.Time.Wall);
  EXPECT_EQ(Data.Wall(Data.FirstSlot()), Time.Time.Wall - 8639LL * 10000);
}

TEST_F(StripChartDataTest, AWallClockSetForwardsLeavesAGap) {
  Speed("1 Kts");
  Time.Pass(3000);
  Time.Time.Wall += 3600000;
  Speed("2 Kts");
  EXPECT_EQ(Filled(), (Slots{0, 2}));
  EXPECT_EQ(Slot(0).Latest, 1.0F);
  EXPECT_EQ(Slot(2).Latest, 2.0F);
  EXPECT_EQ(Data.Wall(2), HandClock::kMorning + 3600000);
  EXPECT_TRUE(Data.JumpedBefore(2));
  Time.Pass(10000);
  Speed("3 Kts");
  EXPECT_EQ(Filled(), (Slots{0, 2, 3}));
}

TEST_F(StripChartDataTest, AWallClockSetBackLeavesAGapAndWritesNoSlotAgain) {
  for (int i = 0; i < 6; ++i) {
    Speed("1 Kts");
    Time.Pass(10000);
  }
  Time.Time.Wall -= 40000;
  Speed("2 Kts");
  EXPECT_EQ(Filled(), (Slots{0, 1, 2, 3, 4, 5, 7}));
  for (std::int64_t slot = 0; slot <= 5; ++slot) {
    EXPECT_EQ(Slot(slot).Latest, 1.0F);
  }
  EXPECT_EQ(Data.Wall(7), Time.Time.Wall);
}

TEST_F(StripChartDataTest, AfterAClockWasSetBackTimesComeTwice) {
  Speed("1 Kts");
  Time.Pass(20000);
  Time.Time.Wall -= 20000;
  Speed("2 Kts");
  EXPECT_EQ(Filled(), (Slots{0, 2}));
  EXPECT_EQ(Data.Wall(0), HandClock::kMorning);
  EXPECT_EQ(Data.Wall(2), HandClock::kMorning);
  EXPECT_TRUE(Data.JumpedBefore(2));
}

TEST_F(StripChartDataTest, AClockThatIsSetByLessThanTwoSecondsLeavesNone) {
  Speed("1 Kts");
  for (const std::int64_t by : {1900, -1900, 1500, -1000}) {
    Time.Pass(10000);
    Time.Time.Wall += by;
    Speed("1 Kts");
  }
  EXPECT_EQ(Filled(), (Slots{0, 1, 2, 3, 4}));
}

TEST_F(StripChartDataTest, AClockThatIsSetByTwoSecondsLeavesNoneAndByMoreDoes) {
  for (const std::int64_t by : {2000, -2000}) {
    Data.SampleBufferSet(10, 8640.0);
    Time.Time.Wall = HandClock::kMorning + 3000;
    Speed("1 Kts");
    Time.Pass(12000);
    Time.Time.Wall += by;
    Speed("2 Kts");
    EXPECT_EQ(Filled(), (Slots{0, 1})) << by;
    Time.Pass(10000);
    Time.Time.Wall += by + (by < 0 ? -1 : 1);
    Speed("3 Kts");
    EXPECT_EQ(Filled(), (Slots{0, 1, 3})) << by;
  }
}

TEST_F(StripChartDataTest, AClockThatIsSetBackByALittleAgainAndAgainLeavesAGapInTheEnd) {
  Speed("1 Kts");
  for (int i = 0; i < 4; ++i) {
    Time.Pass(1000);
    Time.Time.Wall -= 1500;  // 08:59:59.5 and on to 08:59:58.0
    Speed("2 Kts");
    EXPECT_EQ(Filled(), Slots{0});
  }
  Time.Pass(1000);
  Time.Time.Wall -= 1500;
  Speed("3 Kts");
  EXPECT_EQ(Filled(), (Slots{0, 2}));
  EXPECT_EQ(Data.Wall(2), HandClock::kMorning - 10000);
}

/// A jump takes as many slots as the steady clock counted, rounded to those of the wall clock.
TEST_F(StripChartDataTest, AJumpAfterASleepIsAsWideAsTheSleep) {
  Time.Pass(3000);
  Speed("1 Kts");
  Time.Pass(597000);
  Time.Time.Wall += 3600000;
  Speed("2 Kts");
  EXPECT_EQ(Filled(), (Slots{0, 60}));
  EXPECT_EQ(Data.Wall(59), HandClock::kMorning + 590000);
  EXPECT_EQ(Data.Wall(60), HandClock::kMorning + 3600000 + 600000);
  EXPECT_TRUE(Data.JumpedBefore(60));
  EXPECT_FALSE(Data.JumpedBefore(59));
}

TEST_F(StripChartDataTest, ASteadyClockThatRunsBackLeavesAGap) {
  for (int i = 0; i < 6; ++i) {
    Speed("1 Kts");
    Time.Pass(10000);
  }
  Time.Time.Steady -= 1000000;
  Speed("2 Kts");
  Time.Pass(10000);
  Speed("3 Kts");
  EXPECT_EQ(Filled(), (Slots{0, 1, 2, 3, 4, 5, 7, 8}));
}

TEST_F(StripChartDataTest, ASleepOfBothClocksIsAsWideAsItLasted) {
  Speed("1 Kts");
  Time.Pass(7200000);
  Speed("2 Kts");
  EXPECT_EQ(Filled(), (Slots{0, 720}));
  EXPECT_FALSE(Data.JumpedBefore(720));
}

TEST_F(StripChartDataTest, AnyJumpsOfTheClocksKeepSlotsInOrder) {
  std::uint32_t random = 1;
  const auto next = [&random](std::int64_t range) {
    random = random * 1664525U + 1013904223U;
    return static_cast<std::int64_t>(random >> 8U) % (2 * range) - range;
  };
  std::int64_t last = -1;
  std::set<std::int64_t> begun;
  for (int i = 0; i < 20000; ++i) {
    Time.Pass(1000);
    if (i % 50 == 0) {
      Time.Time.Wall += next(100000);
    }
    if (i % 70 == 0) {
      Time.Time.Steady += next(50000);
    }
    Speed(std::to_string(i) + " Kts");
    ASSERT_GE(Data.LastSlot(), last);
    if (Data.LastSlot() != last) {
      ASSERT_TRUE(begun.insert(Data.LastSlot()).second);
      ASSERT_EQ(Slot(Data.LastSlot()).Low, static_cast<float>(i));
    }
    last = Data.LastSlot();
    ASSERT_EQ(Slot(last).Latest, static_cast<float>(i));
    ASSERT_EQ(Data.Wall(last) % 10000, 0);
  }
}

TEST_F(StripChartDataTest, TracesOutOfRangeAreIgnored) {
  Data.TraceDefine(0, "Zero", TraceKind::Speed, "");
  Data.TraceDefine(3, "Three", TraceKind::Speed, "");
  Data.TraceDefine(-1, "Minus", TraceKind::Speed, "");
  EXPECT_FALSE(Data.SampleAdd("Zero", "1 Kts", Time.Time));
  EXPECT_FALSE(Data.SampleAdd("Three", "1 Kts", Time.Time));
  Data.TraceCountSet(-5);
  EXPECT_TRUE(Data.Traces().empty());
  EXPECT_FALSE(Speed("1 Kts"));
  Data.TraceCountSet(30000);
  EXPECT_EQ(Data.Traces().size(), StripChartData::kMostTraces);
}

TEST_F(StripChartDataTest, ARingOutOfRangeIsIgnored) {
  for (const double count : {0.0, -1.0, 1e9, std::nan("")}) {
    Data.SampleBufferSet(10, count);
    EXPECT_EQ(Data.SlotCount(), 8640);
  }
  Data.SampleBufferSet(0, 100.0);
  EXPECT_EQ(Data.SlotCount(), 8640);
  Data.SampleBufferSet(1, 100.0);
  EXPECT_EQ(Data.SlotCount(), 100);
  EXPECT_EQ(Data.SlotMilliseconds(), 1000);
}

TEST_F(StripChartDataTest, NineTracesOfADayTakeLessThanFourMegabytesAndNeverMore) {
  Data.TraceCountSet(9);
  for (int i = 1; i <= 9; ++i) {
    Data.TraceDefine(i, "Trace " + std::to_string(i), TraceKind::Angle, "deg");
  }
  const std::size_t morning = Data.Bytes();
  EXPECT_LT(morning, 4U * 1000U * 1000U);
  for (int slot = 0; slot < 20000; ++slot) {
    Data.SampleAdd("Trace 5", "123.4 deg", Time.Time);
    Time.Pass(10000);
  }
  EXPECT_EQ(Data.Bytes(), morning);
}

TEST_F(StripChartDataTest, KeepsMarksWithTheirSlotsAsLongAsThoseAreHeld) {
  Data.MarkAdd("before", Time.Time);
  EXPECT_TRUE(Data.Marks().empty()) << "nothing is recorded yet";
  Speed("5 Kts");
  Data.MarkAdd("Tack", Time.Time);
  Time.Pass(25000);
  Data.MarkAdd("TWA 45", Time.Time);
  ASSERT_EQ(Data.Marks().size(), 2U);
  EXPECT_EQ(Data.Marks()[0].Slot, 0);
  EXPECT_EQ(Data.Marks()[1].Slot, 2);
  EXPECT_EQ(Data.Marks()[1].Text, "TWA 45");
  Time.Pass(8639 * 10000);
  Data.MarkAdd("Jibe", Time.Time);
  ASSERT_EQ(Data.Marks().size(), 2U) << "the first slot is gone";
  EXPECT_EQ(Data.Marks()[0].Text, "TWA 45");
  for (int i = 0; i < 3000; ++i) {
    Time.Pass(10000);
    Data.MarkAdd("Steer", Time.Time);
  }
  EXPECT_LE(Data.Marks().size(), StripChartData::kMostMarks);
  EXPECT_EQ(Data.Marks().back().Slot, Data.LastSlot());
}

}  // namespace
}  // namespace veerwatch
