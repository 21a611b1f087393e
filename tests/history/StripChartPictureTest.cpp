#include "history/StripChartPicture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "bench/SampleDay.h"
#include "history/HistoryTraces.h"
#include "tests/support/HandClock.h"

namespace veerwatch {
namespace {

/// Every character is as wide as six tenths of its height.
class EvenMeasure final : public TextMeasure {
 public:
  double Width(std::string_view text, double height) const override {
    return 0.6 * height * static_cast<double>(text.size());
  }
  double BoldWidth(std::string_view text, double height) const override { return 1.15 * Width(text, height); }
};

class StripChartPictureTest : public testing::Test {
 public:
  StripChartPictureTest() {
    Data.TraceCountSet(static_cast<int>(kHistoryTraces.size()));
    for (std::size_t i = 0; i < kHistoryTraces.size(); ++i) {
      const HistoryTrace& trace = kHistoryTraces[i];
      Data.TraceDefine(static_cast<int>(i) + 1, trace.Name,
                       trace.Group == 0 ? TraceKind::Speed : TraceKind::Angle, trace.Units);
    }
    Data.SampleBufferSet(kHistorySlotSeconds, kHistorySlots);
    Groups = GroupTraces(Data.Traces(), Titles);
    Settings.Traces.assign(Data.Traces().size(), TraceChoice());
    Settings.Scales.assign(Titles.size() + 1, ScaleChoice());
  }

  ChartSubject Subject() const { return {Data, Titles, Groups, Settings}; }

  void Add(const std::string& name, const std::string& text) { Data.SampleAdd(name, text, Time.Time); }

  void Record(int seconds, int step) {
    const Moment end = Time.Time;
    SampleDay(end, seconds, step, [this](const Moment& now, std::string_view name, const std::string& text) {
      Data.SampleAdd(name, text, now);
    });
    Data.Advance(end);
  }

  StripChartPicture& Compose(double width = 1200.0, double height = 600.0) {
    Picture.Compose(Subject(), {width, height, Data.LastSlot() + 1, Time.Offset, 11.0}, EvenMeasure());
    return Picture;
  }

  /// The legend's entry of a trace that is shown.
  const ChartLegendEntry& Entry(std::string_view trace) const {
    for (const ChartLegendEntry& entry : Picture.Legend) {
      if (kHistoryTraces[static_cast<std::size_t>(entry.Trace)].Name == trace) {
        return entry;
      }
    }
    throw std::runtime_error("no entry " + std::string(trace));
  }

  std::vector<std::string> Times() const {
    std::vector<std::string> times;
    for (const ChartTimeTick& tick : Picture.TimeTicks) {
      if (!tick.Label.Text.empty()) {
        times.push_back(tick.Label.Text);
      }
    }
    return times;
  }

  HandClock Time;
  StripChartData Data;
  const std::vector<std::string> Titles{"True Wind Speed", "True Wind Angle", "Boat Speed"};
  std::vector<TraceGroup> Groups;
  TraceSettings Settings;
  StripChartPicture Picture;
};

bool Inside(const Box& inner, double width, double height) {
  return inner.X >= -0.01 && inner.Y >= -0.01 && inner.Right() <= width + 0.01 &&
         inner.Bottom() <= height + 0.01;
}

bool Overlap(const Box& a, const Box& b) {
  return a.X < b.Right() - 0.01 && b.X < a.Right() - 0.01 && a.Y < b.Bottom() - 0.01 &&
         b.Y < a.Bottom() - 0.01;
}

TEST_F(StripChartPictureTest, HasThreePanelsWithTheirTitles) {
  Record(1800, 10);
  Compose();
  ASSERT_EQ(Picture.Panels.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(Picture.Panels[i].Axes.front().Title.Text, Titles[i]);
    EXPECT_FALSE(Picture.Panels[i].Axes.front().Labels.empty());
  }
  EXPECT_EQ(Picture.Panels[0].Axes.size(), 1U);
  ASSERT_EQ(Picture.Panels[1].Axes.size(), 2U);
  EXPECT_EQ(Picture.Panels[1].Axes[1].Title.Text, "Heading");
  EXPECT_EQ(Picture.Panels[1].Axes[1].Scale.Kind, ScaleKind::Compass);
}

/// At any size: nothing leaves the chart, panels do not meet, every trace has its entry in the legend.
TEST_F(StripChartPictureTest, FitsAnySize) {
  Record(3600, 10);
  for (const double width : {220.0, 267.0, 480.0, 1200.0, 3840.0}) {
    for (const double height : {180.0, 265.0, 600.0, 2160.0}) {
      SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height));
      Compose(width, height);
      ASSERT_EQ(Picture.Panels.size(), 3U);
      ASSERT_EQ(Picture.Legend.size(), kHistoryTraces.size());
      for (std::size_t i = 0; i < 3; ++i) {
        const Box& plot = Picture.Panels[i].Plot;
        EXPECT_TRUE(Inside(plot, width, height));
        EXPECT_GT(plot.Width, width < 267.0 ? 50.0 : width * 0.38);
        EXPECT_GT(plot.Height, 8.0);
        for (std::size_t other = 0; other < i; ++other) {
          EXPECT_FALSE(Overlap(plot, Picture.Panels[other].Plot));
        }
      }
      for (std::size_t i = 0; i < Picture.Legend.size(); ++i) {
        const ChartLegendEntry& entry = Picture.Legend[i];
        EXPECT_TRUE(Inside(entry.Cell, width, height));
        EXPECT_GE(entry.Value.Height, 7.0);
        EXPECT_FALSE(Overlap(entry.Name.Place, entry.Value.Place)) << entry.Name.Text;
        EXPECT_FALSE(Overlap(entry.Value.Place, entry.Units.Place)) << entry.Name.Text;
        for (std::size_t other = 0; other < i; ++other) {
          EXPECT_FALSE(Overlap(entry.Cell, Picture.Legend[other].Cell));
        }
      }
      for (const ChartTimeTick& tick : Picture.TimeTicks) {
        EXPECT_GE(tick.X, Picture.PlotArea.X - 0.01);
        EXPECT_LE(tick.X, Picture.PlotArea.Right() + 0.01);
      }
      EXPECT_FALSE(Times().empty());
    }
  }
}

/// Every value is right-aligned with one decimal, so its point is where its right edge and its size are.
TEST_F(StripChartPictureTest, TheValuesOfTheLegendStandUnderEachOtherByTheirPoints) {
  for (const HistoryTrace& trace : kHistoryTraces) {
    Add(trace.Name, trace.Group == 0 ? "7.0 Kts" : "-129.5 deg");
  }
  Add("Heading", "275.0 M");
  for (const double width : {220.0, 267.0, 480.0, 1200.0, 3840.0}) {
    for (const double height : {180.0, 265.0, 600.0, 2160.0}) {
      SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height));
      Compose(width, height);
      const PlacedText& first = Picture.Legend.front().Value;
      for (const ChartLegendEntry& entry : Picture.Legend) {
        EXPECT_EQ(entry.Value.Place.Right(), first.Place.Right());
        EXPECT_EQ(entry.Value.Height, first.Height);
        EXPECT_EQ(entry.Value.Align, PlacedText::Side::Right);
        // Right-aligned and bold it still begins after the bar.
        EXPECT_GT(entry.Value.Place.Right() - EvenMeasure().BoldWidth(entry.Value.Text, entry.Value.Height),
                  entry.Swatch.Right());
      }
    }
  }
}

TEST_F(StripChartPictureTest, AValueThatIsTooLongForTheLegendIsSmaller) {
  Add("Heading", "90.0 M");
  Add("Boat Speed", "-1234567.8 Kts");
  for (const double height : {265.0, 600.0}) {
    Compose(800.0, height);
    const PlacedText& heading = Entry("Heading").Value;
    const ChartLegendEntry& boat = Entry("Boat Speed");
    EXPECT_LT(boat.Value.Height, heading.Height);
    EXPECT_GE(boat.Value.Place.Right() - EvenMeasure().BoldWidth(boat.Value.Text, boat.Value.Height),
              boat.Swatch.Right());
  }
}

TEST_F(StripChartPictureTest, LongUnitsLeaveTheValuesTheirRoom) {
  Add("Heading", "90.0 M");
  for (const double height : {265.0, 900.0}) {
    Compose(800.0, height);
    const double before = Entry("Heading").Value.Height;
    Add("Boat Speed", "7.0 unitsOfManyLett");
    Compose(800.0, height);
    EXPECT_EQ(Entry("Heading").Value.Height, before);
    EXPECT_EQ(Entry("Boat Speed").Units.Text, "");
    EXPECT_EQ(Entry("Boat Speed").Value.Text, "7.0");
    Add("Boat Speed", "7.0 Kts");
  }
}

TEST_F(StripChartPictureTest, TheLegendGrowsWithTheWindow) {
  Record(600, 10);
  Compose(267.0, 265.0);
  const double small = Picture.Legend.front().Value.Height;
  Compose(1920.0, 1080.0);
  EXPECT_GT(Picture.Legend.front().Value.Height, 3.0 * small);
  EXPECT_EQ(Picture.Legend.front().Name.Text, "True Wind Speed");
}

TEST_F(StripChartPictureTest, TheLegendShowsTheNewestValueWithTheUnitsThatWereFed) {
  Add("True Wind Angle", "-45.3 M");
  Add("Polar Speed", "7.2 deg");
  Compose();
  for (const ChartLegendEntry& entry : Picture.Legend) {
    if (entry.Trace == 3) {
      EXPECT_EQ(entry.Value.Text, "-45.3");
      EXPECT_EQ(entry.Units.Text, "M");
      EXPECT_FALSE(entry.Old);
    } else if (entry.Trace == 8) {
      EXPECT_EQ(entry.Value.Text, "7.2");
      EXPECT_EQ(entry.Units.Text, "deg");
    } else {
      EXPECT_TRUE(entry.Old);
      EXPECT_EQ(entry.Value.Text, "\xE2\x80\x93");
    }
  }
}

TEST_F(StripChartPictureTest, AValueWithoutSuccessorBecomesOld) {
  Add("Heading", "90.0 M");
  Compose();
  EXPECT_FALSE(Entry("Heading").Old);
  Time.Pass(20000);
  Data.Advance(Time.Time);
  Compose();
  EXPECT_TRUE(Entry("Heading").Old);
  EXPECT_EQ(Entry("Heading").Value.Text, "90.0");
}

TEST_F(StripChartPictureTest, ClockTimesAreThoseOfTheWall) {
  Record(1800, 10);  // up to 09:00
  Compose();
  EXPECT_EQ(Times(), (std::vector<std::string>{"08:35", "08:40", "08:45", "08:50", "08:55", "09:00"}));
  Time.Offset = 2 * 3600;
  Compose();
  EXPECT_EQ(Times().back(), "11:00");
  Time.Offset = -(3 * 3600 + 1800);
  Compose();
  EXPECT_EQ(Times().back(), "05:30");
}

TEST_F(StripChartPictureTest, AClockTimeStandsWhereItsSlotIs) {
  Record(1800, 10);
  Compose();
  const ChartTimeTick& tick = Picture.TimeTicks.back();
  ASSERT_EQ(tick.Label.Text, "09:00");
  // The last slot begins at 09:00:00 when the last sample came then.
  EXPECT_NEAR(tick.X, Picture.PlotArea.Right() - Picture.SlotWidth, 1e-6);
}

TEST_F(StripChartPictureTest, MidnightIsATimeAsAnyOther) {
  Time.Pass(15LL * 3600 * 1000 + 600000);  // 00:10 of the next day
  Record(1800, 10);
  Compose();
  EXPECT_EQ(Times(), (std::vector<std::string>{"23:45", "23:50", "23:55", "00:00", "00:05", "00:10"}));
}

TEST_F(StripChartPictureTest, ADayHasAFewTimes) {
  Record(86400, 10);
  Settings.Span = 86400;
  Compose();
  EXPECT_GE(Times().size(), 6U);
  EXPECT_LE(Times().size(), 14U);
  EXPECT_GT(Picture.PerBucket, 1);
}

TEST_F(StripChartPictureTest, AJumpOfTheClockIsMarkedAndTheTimesGoOnAfterIt) {
  for (int i = 0; i < 60; ++i) {
    Add("Heading", "90.0 M");
    Time.Pass(10000);
  }
  Time.Time.Wall += 3LL * 3600 * 1000;
  for (int i = 0; i < 60; ++i) {
    Add("Heading", "90.0 M");
    Time.Pass(10000);
  }
  Compose();
  ASSERT_EQ(Picture.Jumps.size(), 1U);
  EXPECT_EQ(Times().back(), "12:15");
  EXPECT_NEAR(Picture.Jumps[0], Picture.PlotArea.Right() - 60.0 * Picture.SlotWidth, 1e-6);
  for (const ChartTrace& trace : Picture.Panels[1].Traces) {
    if (trace.Trace == 1) {
      EXPECT_EQ(trace.Past.Starts.size(), 2U);
    }
  }
}

TEST_F(StripChartPictureTest, HiddenTracesAndEmptyPanelsAreLeftOut) {
  Record(600, 10);
  Settings.Traces[0].Shown = false;
  Settings.Traces[8].Shown = false;
  Settings.Traces[1].Shown = false;
  Settings.Traces[6].Shown = false;
  Compose();
  ASSERT_EQ(Picture.Panels.size(), 2U);
  EXPECT_EQ(Picture.Panels[1].Axes.size(), 1U);
  EXPECT_EQ(Picture.Legend.size(), kHistoryTraces.size() - 4);
  for (TraceChoice& choice : Settings.Traces) {
    choice.Shown = false;
  }
  Compose();
  EXPECT_TRUE(Picture.Panels.empty());
  EXPECT_TRUE(Picture.Legend.empty());
}

TEST_F(StripChartPictureTest, AFixedScaleIsUsed) {
  Record(600, 10);
  Settings.Scales[2] = {false, 3.0F, 9.0F};
  Settings.Scales[3] = {false, 0.0F, 90.0F};
  Compose();
  EXPECT_EQ(Picture.Panels[2].Axes[0].Scale.Low, 3.0);
  EXPECT_EQ(Picture.Panels[2].Axes[0].Scale.High, 9.0);
  EXPECT_EQ(Picture.Panels[1].Axes[1].Scale.High, 90.0);
}

TEST_F(StripChartPictureTest, OnlyTheNewestBucketChangesWithASample) {
  Record(3600, 10);
  Compose();
  std::vector<Polyline> past;
  for (const ChartPanel& panel : Picture.Panels) {
    for (const ChartTrace& trace : panel.Traces) {
      past.push_back(trace.Past.Points);
    }
  }
  Add("Heading", Data.Traces()[1].Newest.Value > 28.0F ? "27.9 M" : "28.1 M");
  Compose();
  std::size_t at = 0;
  for (const ChartPanel& panel : Picture.Panels) {
    for (const ChartTrace& trace : panel.Traces) {
      EXPECT_EQ(trace.Past.Points, past[at++]);
      EXPECT_FALSE(trace.Live.Points.empty());
    }
  }
}

TEST_F(StripChartPictureTest, ReadsWhatStandsUnderAPoint) {
  for (int i = 0; i < 30; ++i) {
    Add("Heading", "90.0 M");
    Add("Heading", "94.0 M");
    Add("True Wind Angle", "-45.0 M");
    Time.Pass(10000);
  }
  Compose();
  const Box& plot = Picture.Panels[1].Plot;
  const auto reading = Picture.ReadAt(Subject(), plot.Right() - 1.5 * Picture.SlotWidth, plot.Y + 1.0);
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->Panel, 1U);
  EXPECT_EQ(reading->Time, "09:04:40");
  ASSERT_EQ(reading->Values.size(), 2U);
  EXPECT_EQ(reading->Values[0].Text, "Heading 94.0 M (90.0 to 94.0)");
  EXPECT_EQ(reading->Values[1].Text, "True Wind Angle -45.0 M");
  for (std::size_t i = 0; i < 2; ++i) {
    const auto close = Picture.ReadAt(Subject(), reading->X, reading->Values[i].Y);
    ASSERT_TRUE(close);
    EXPECT_EQ(close->Nearest, i);
  }
}

TEST_F(StripChartPictureTest, ReadsATurnRightRoundAsAllRound) {
  for (int degrees = 0; degrees < 720; degrees += 30) {
    Add("Heading", std::to_string(degrees % 360) + ".0 M");
    Add("True Wind Angle", std::to_string(degrees % 360 - 180) + ".0 M");
    Add("Pilot Delta", std::to_string(degrees < 360 ? degrees : 359) + ".0 deg");
  }
  Compose();
  const Box& plot = Picture.Panels[1].Plot;
  const auto reading = Picture.ReadAt(Subject(), plot.Right() - 0.5 * Picture.SlotWidth, plot.Y + 1.0);
  ASSERT_TRUE(reading);
  ASSERT_EQ(reading->Values.size(), 3U);
  EXPECT_EQ(reading->Values[0].Text, "Heading 330.0 M (all round)");
  EXPECT_EQ(reading->Values[1].Text, "True Wind Angle 150.0 M (all round)");
  EXPECT_EQ(reading->Values[2].Text, "Pilot Delta 359.0 deg (0.0 to -1.0)");
}

TEST_F(StripChartPictureTest, ASpeedIsNeverAllRound) {
  Add("Boat Speed", "0.0 Kts");
  Add("Boat Speed", "400.0 Kts");
  Compose();
  const Box& plot = Picture.Panels[2].Plot;
  const auto reading = Picture.ReadAt(Subject(), plot.Right() - 0.5 * Picture.SlotWidth, plot.Y + 1.0);
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->Values[0].Text, "Boat Speed 400.0 Kts (0.0 to 400.0)");
}

/// Wherever in a slot its first value came: its time is a whole ten of seconds.
TEST_F(StripChartPictureTest, ReadsTimesInWholeTensOfSeconds) {
  Time.Pass(7999);
  Add("Heading", "90.0 M");
  Time.Time.Wall += 4321;
  Time.Pass(1000);
  Add("Heading", "91.0 M");
  Compose();
  const Box& plot = Picture.Panels[1].Plot;
  for (const auto& [slots, time] : {std::pair{0.5, "09:00:10"}, std::pair{2.5, "09:00:00"}}) {
    const auto reading = Picture.ReadAt(Subject(), plot.Right() - slots * Picture.SlotWidth, plot.Y + 1.0);
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->Time, time);
  }
}

TEST_F(StripChartPictureTest, ReadsNothingOutsideOfPlotsAndInGaps) {
  Add("Heading", "90.0 M");
  Time.Pass(30000);
  Add("Heading", "90.0 M");
  Compose();
  const Box& plot = Picture.Panels[1].Plot;
  const double y = plot.Y + 1.0;
  EXPECT_FALSE(Picture.ReadAt(Subject(), plot.X - 2.0, y));
  EXPECT_FALSE(Picture.ReadAt(Subject(), plot.Right() + 2.0, y));
  EXPECT_TRUE(Picture.ReadAt(Subject(), plot.Right() - 0.5 * Picture.SlotWidth, y));
  EXPECT_FALSE(Picture.ReadAt(Subject(), plot.Right() - 1.5 * Picture.SlotWidth, y));
  EXPECT_FALSE(Picture.ReadAt(Subject(), plot.X + 1.0, y));
  EXPECT_FALSE(
      Picture.ReadAt(Subject(), plot.Right() - 0.5 * Picture.SlotWidth, Picture.Panels[0].Plot.Y + 1.0));
}

TEST_F(StripChartPictureTest, ComposesBeforeAnyValue) {
  Picture.Compose(Subject(), {800.0, 400.0, 0, 0, 11.0}, EvenMeasure());
  EXPECT_EQ(Picture.Panels.size(), 3U);
  EXPECT_TRUE(Picture.TimeTicks.empty());
  EXPECT_FALSE(Picture.ReadAt(Subject(), 300.0, 200.0));
}

TEST_F(StripChartPictureTest, HasMarksOnlyWhereTheyAreChosen) {
  Record(1800, 10);
  Data.MarkAdd("Tack", Time.Time);
  EXPECT_TRUE(Compose().Marks.empty());
  Settings.Marks = true;
  Compose();
  ASSERT_EQ(Picture.Marks.size(), 1U);
  EXPECT_NEAR(Picture.Marks[0].X, Picture.PlotArea.Right() - Picture.SlotWidth, 1e-6) << "the newest slot";
  EXPECT_EQ(Picture.Marks[0].Text.Text, "Tack");
  EXPECT_LE(Picture.Marks[0].Text.Place.Right(), Picture.PlotArea.Right() + 1e-6);
}

TEST_F(StripChartPictureTest, MarksMoveOnWithTheTimeAndLeaveTheChart) {
  Record(1800, 10);
  Settings.Marks = true;
  Data.MarkAdd("TWA 45", Time.Time);
  Compose();
  const double before = Picture.Marks.at(0).X;
  Time.Pass(600000);
  Data.Advance(Time.Time);
  Compose();
  EXPECT_NEAR(before - Picture.Marks.at(0).X, 60.0 * Picture.SlotWidth, 1e-6) << "ten minutes";
  Time.Pass(1800000);
  Data.Advance(Time.Time);
  EXPECT_TRUE(Compose().Marks.empty());
}

TEST_F(StripChartPictureTest, LabelsOfMarksDoNotLieOnEachOther) {
  Record(1800, 10);
  Settings.Marks = true;
  for (int i = 0; i < 40; ++i) {
    Time.Pass(10000);
    Data.MarkAdd("TWA " + std::to_string(i), Time.Time);
  }
  Compose();
  EXPECT_EQ(Picture.Marks.size(), 40U);
  int labels = 0;
  for (std::size_t i = 0; i < Picture.Marks.size(); ++i) {
    labels += Picture.Marks[i].Text.Text.empty() ? 0 : 1;
    for (std::size_t j = 0; j < i; ++j) {
      const PlacedText& a = Picture.Marks[i].Text;
      const PlacedText& b = Picture.Marks[j].Text;
      EXPECT_FALSE(!a.Text.empty() && !b.Text.empty() && Overlap(a.Place, b.Place)) << i << " " << j;
    }
  }
  EXPECT_GE(labels, 6) << "in four rows";
}

}  // namespace
}  // namespace veerwatch
