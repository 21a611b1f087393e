#include "options/TrackPreview.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <numeric>

#include "tests/support/FixedRandom.h"

namespace veerwatch {

void PrintTo(const TrackPoint& point, std::ostream* out) {
  *out << '(' << point.Column << ", " << point.Row << ')';
}

namespace {

using testing::ElementsAre;

/// Gains 0.02 and 0.08; 2 columns a second and 10 rows a degree on kWidth by kHeight.
TrackPreviewTexts Texts() { return {"40", "1", "10", "0", "120", "-5", "15"}; }
constexpr int kWidth = 241;
constexpr int kHeight = 201;

TrackPreview Drawn(const TrackPreviewTexts& texts, int width = kWidth, int height = kHeight,
                   FixedRandom random = FixedRandom()) {
  return TrackPreviewDraw(texts, width, height, random);
}

std::vector<int> Steps(int from, int step, std::size_t count) {
  std::vector<int> steps;
  for (std::size_t i = 0; i < count; ++i) {
    steps.push_back(from + step * static_cast<int>(i));
  }
  return steps;
}

TEST(TrackPreview, ScaleSpansTheLastColumnAndRow) {
  const TrackPreview preview = Drawn(Texts());
  EXPECT_EQ(preview.Trouble, "");
  EXPECT_EQ(preview.Scale.TimeStart, 0.0);
  EXPECT_EQ(preview.Scale.TimeEnd, 120.0);
  EXPECT_EQ(preview.Scale.TimeScale, 2.0);
  EXPECT_EQ(preview.Scale.BearingMin, -5.0);
  EXPECT_EQ(preview.Scale.BearingMax, 15.0);
  EXPECT_EQ(preview.Scale.BearingOrigin, 200.0);
  EXPECT_EQ(preview.Scale.BearingScale, -10.0);
}

TEST(TrackPreview, GridHasALineEveryTenSecondsAndEveryDegree) {
  const TrackPreview preview = Drawn(Texts());
  EXPECT_EQ(preview.Columns, Steps(0, 20, 13));
  EXPECT_EQ(preview.Rows, Steps(200, -10, 21));
}

TEST(TrackPreview, ReferenceLinesStandAtOneZeroAndMinusOneDegree) {
  const TrackPreview preview = Drawn(Texts());
  EXPECT_EQ(preview.References[0].Row, 140);
  EXPECT_EQ(preview.References[0].Rgb, 0xFF0000U);
  EXPECT_EQ(preview.References[1].Row, 150);
  EXPECT_EQ(preview.References[1].Rgb, 0x00FF00U);
  EXPECT_EQ(preview.References[2].Row, 160);
  EXPECT_EQ(preview.References[2].Rgb, 0xFF0000U);
}

TEST(TrackPreview, TraceBeginsAtTheOffsetAndHasAPointASecond) {
  TrackPreviewTexts texts = Texts();
  const TrackPreview whole = Drawn(texts);
  ASSERT_EQ(whole.Trace.size(), 122U);
  EXPECT_EQ(whole.Trace.back().Column, 240);
  // Bearings 9.2, 8.448, 7.74144, 7.077888, 6.455033856.
  EXPECT_THAT(std::vector<TrackPoint>(whole.Trace.begin(), whole.Trace.begin() + 6),
              ElementsAre(TrackPoint{0, 50}, TrackPoint{0, 58}, TrackPoint{2, 66}, TrackPoint{4, 73},
                          TrackPoint{6, 79}, TrackPoint{8, 85}));
}

TEST(TrackPreview, NoiseIsAddedToTheErrorFromTheRandomNumbersInTurn) {
  TrackPreviewTexts texts = Texts();
  texts.Noise = "2";
  const TrackPreview preview = Drawn(texts, kWidth, kHeight, FixedRandom({0.0, 0.25, 0.75}));
  // Bearings 9.04, 8.2176, 7.604928, 6.7897216.
  EXPECT_THAT(std::vector<TrackPoint>(preview.Trace.begin(), preview.Trace.begin() + 5),
              ElementsAre(TrackPoint{0, 50}, TrackPoint{0, 60}, TrackPoint{2, 68}, TrackPoint{4, 74},
                          TrackPoint{6, 82}));
}

TEST(TrackPreview, DampingZeroIsAFlatLineAtTheOffset) {
  TrackPreviewTexts texts = Texts();
  texts.Damping = "0";
  texts.Noise = "3";
  const TrackPreview preview = Drawn(texts, kWidth, kHeight, FixedRandom({0.1, 0.9, 0.3}));
  ASSERT_EQ(preview.Trace.size(), 122U);
  for (const TrackPoint& point : preview.Trace) {
    EXPECT_EQ(point.Row, 50) << point.Column;
  }
}

TEST(TrackPreview, WithoutNoiseEveryRedrawIsTheSame) {
  SeededRandom random(1);
  const TrackPreview first = TrackPreviewDraw(Texts(), kWidth, kHeight, random);
  const TrackPreview second = TrackPreviewDraw(Texts(), kWidth, kHeight, random);
  EXPECT_EQ(first.Trace, second.Trace);
  for (std::size_t i = 1; i < 30; ++i) {
    EXPECT_LE(first.Trace[i - 1].Row, first.Trace[i].Row) << i;
  }
}

TEST(TrackPreview, WithNoiseEveryRedrawGoesOnWithTheRandomNumbers) {
  TrackPreviewTexts texts = Texts();
  texts.Noise = "2";
  SeededRandom random(1);
  const TrackPreview first = TrackPreviewDraw(texts, kWidth, kHeight, random);
  const TrackPreview second = TrackPreviewDraw(texts, kWidth, kHeight, random);
  EXPECT_NE(first.Trace, second.Trace);
  FixedRandom counted;
  TrackPreviewDraw(texts, kWidth, kHeight, counted);
  EXPECT_EQ(counted.Draws, 121U);
}

TEST(TrackPreview, TimeThatIsNoMultipleOfTenEndsTheGridBeforeAndTheTraceAtTheLastWholeSecond) {
  TrackPreviewTexts texts = Texts();
  texts.Time = "47.5";
  const TrackPreview preview = Drawn(texts, 476);
  EXPECT_THAT(preview.Columns, ElementsAre(0, 100, 200, 300, 400));
  ASSERT_EQ(preview.Trace.size(), 49U);
  EXPECT_EQ(preview.Trace.back().Column, 470);
}

TEST(TrackPreview, TimeBelowASecondHasOnePass) {
  TrackPreviewTexts texts = Texts();
  texts.Time = "0.5";
  const TrackPreview preview = Drawn(texts);
  EXPECT_THAT(preview.Columns, ElementsAre(0));
  EXPECT_THAT(preview.Trace, ElementsAre(TrackPoint{0, 50}, TrackPoint{0, 58}));
}

TEST(TrackPreview, MinimumAboveMaximumTurnsTheAxisAndHasNoHorizontalGrid) {
  TrackPreviewTexts texts = Texts();
  std::swap(texts.Min, texts.Max);
  const TrackPreview preview = Drawn(texts);
  EXPECT_EQ(preview.Trouble, "");
  EXPECT_EQ(preview.Scale.BearingScale, 10.0);
  EXPECT_TRUE(preview.Rows.empty());
  EXPECT_EQ(preview.Columns.size(), 13U);
  ASSERT_EQ(preview.Trace.size(), 122U);
  EXPECT_EQ(preview.Trace[0], (TrackPoint{0, 150}));
  EXPECT_EQ(preview.Trace[1], (TrackPoint{0, 142}));
  EXPECT_EQ(preview.References[0].Row, 60);
}

TEST(TrackPreview, HorizontalGridStartsAtTheMinimum) {
  TrackPreviewTexts texts = Texts();
  texts.Min = "-0.5";
  texts.Max = "2.25";
  // Bearings -0.5, 0.5, 1.5 at 40 rows a degree.
  EXPECT_THAT(Drawn(texts, kWidth, 111).Rows, ElementsAre(110, 70, 30));
}

TEST(TrackPreview, TiesGoToTheEvenColumnAndRow) {
  TrackPreviewTexts texts = Texts();
  texts.Time = "10";
  texts.Min = "0";
  texts.Max = "20";
  const TrackScale scale = Drawn(texts, 6, 11).Scale;
  EXPECT_EQ(scale.TimeColumn(1.0), 0);
  EXPECT_EQ(scale.TimeColumn(3.0), 2);
  EXPECT_EQ(scale.TimeColumn(5.0), 2);
  EXPECT_EQ(scale.TimeColumn(7.0), 4);
  EXPECT_EQ(scale.BearingRow(1.0), 10);
  EXPECT_EQ(scale.BearingRow(3.0), 8);
  EXPECT_EQ(scale.BearingRow(5.0), 8);
  EXPECT_EQ(scale.BearingRow(21.0), 0);
  EXPECT_EQ(scale.BearingRow(23.0), -2);
}

TEST(TrackPreview, ReadOutTellsTimeAndBearingInSinglePrecision) {
  const TrackPreview preview = Drawn(Texts());
  EXPECT_EQ(preview.ReadOut(0.0, 200.0), "time=0, bearing=-5");
  EXPECT_EQ(preview.ReadOut(25.0, 150.0), "time=12.5, bearing=0");
  EXPECT_EQ(preview.ReadOut(240.0, 1.0), "time=120, bearing=14.9");
  TrackPreviewTexts texts = Texts();
  texts.Time = "90";
  // 240 / 90 columns a second: 37.5 and 0.375; 1 and 200 / 30 rows a degree, the nearest singles.
  texts.Max = "25";
  EXPECT_EQ(Drawn(texts).ReadOut(100.0, 199.0), "time=37.5, bearing=-4.85");
  EXPECT_EQ(Drawn(texts).ReadOut(1.0, 200.0), "time=0.375, bearing=-5");
  texts.Time = "80";
  EXPECT_EQ(Drawn(texts).ReadOut(100.0, 200.0), "time=33.333332, bearing=-5");
}

TEST(TrackPreview, TextThatIsNoNumberNamesItsBox) {
  const std::vector<std::pair<std::string TrackPreviewTexts::*, std::string>> boxes{
      {&TrackPreviewTexts::Bandwidth, "Bandwidth"}, {&TrackPreviewTexts::Damping, "Damping"},
      {&TrackPreviewTexts::Offset, "Offset"},       {&TrackPreviewTexts::Noise, "Noise"},
      {&TrackPreviewTexts::Time, "Time"},           {&TrackPreviewTexts::Min, "Minimum"},
      {&TrackPreviewTexts::Max, "Maximum"}};
  for (const auto& [box, name] : boxes) {
    for (const char* text : {"", "x", "nan", "inf", "1e999", "0x10", "12 3"}) {
      TrackPreviewTexts texts = Texts();
      texts.*box = text;
      const TrackPreview preview = Drawn(texts);
      EXPECT_EQ(preview.Trouble, name + " is not a number") << text;
      EXPECT_TRUE(preview.Trace.empty());
      EXPECT_TRUE(preview.Columns.empty());
      EXPECT_TRUE(preview.Rows.empty());
      EXPECT_EQ(preview.ReadOut(10.0, 10.0), "");
    }
  }
}

TEST(TrackPreview, NumbersThatAllowNoPlotNameTheirBox) {
  struct Case {
    std::string TrackPreviewTexts::*Box;
    const char* Text;
    const char* Trouble;
  };
  const std::vector<Case> cases{
      {&TrackPreviewTexts::Bandwidth, "0", "Bandwidth must not be 0"},
      {&TrackPreviewTexts::Bandwidth, "-0", "Bandwidth must not be 0"},
      {&TrackPreviewTexts::Bandwidth, "1e-310", "Bandwidth is too small"},
      {&TrackPreviewTexts::Bandwidth, "0.001", "Bandwidth: the response grows beyond all numbers"},
      {&TrackPreviewTexts::Offset, "1e7", "Offset must be within 1000000 degrees"},
      {&TrackPreviewTexts::Noise, "-1e300", "Noise must be within 1000000 degrees"},
      {&TrackPreviewTexts::Time, "0", "Time must be above 0"},
      {&TrackPreviewTexts::Time, "-120", "Time must be above 0"},
      {&TrackPreviewTexts::Time, "1e9", "Time must be at most 1000000 seconds"},
      {&TrackPreviewTexts::Time, "1e300", "Time must be at most 1000000 seconds"},
      {&TrackPreviewTexts::Time, "1e-310", "Time is too short"},
      {&TrackPreviewTexts::Min, "15", "Minimum and maximum must differ"},
      {&TrackPreviewTexts::Max, "-5.0", "Minimum and maximum must differ"},
      {&TrackPreviewTexts::Min, "-1e300", "Minimum must be within 1000000 degrees"},
      {&TrackPreviewTexts::Max, "1e300", "Maximum must be within 1000000 degrees"}};
  for (const Case& wrong : cases) {
    TrackPreviewTexts texts = Texts();
    texts.*wrong.Box = wrong.Text;
    const TrackPreview preview = Drawn(texts);
    EXPECT_EQ(preview.Trouble, wrong.Trouble) << wrong.Text;
    EXPECT_TRUE(preview.Trace.empty());
    EXPECT_EQ(preview.ReadOut(10.0, 10.0), "");
  }
  TrackPreviewTexts texts = Texts();
  texts.Min = "0";
  texts.Max = "1e-310";
  EXPECT_EQ(Drawn(texts).Trouble, "Minimum and maximum are too close");
}

TEST(TrackPreview, NegativeBandwidthIsDrawnAsItRunsAway) {
  TrackPreviewTexts texts = Texts();
  texts.Bandwidth = "-40";
  const TrackPreview preview = Drawn(texts);
  ASSERT_EQ(preview.Trace.size(), 122U);
  EXPECT_EQ(preview.Trace[1].Row, 42);  // 10.8
}

TEST(TrackPreview, NegativeNoiseIsTheSameAmplitude) {
  TrackPreviewTexts texts = Texts();
  texts.Noise = "-2";
  // -0.25 of a span of -4: an error of 1 less than the bearing.
  EXPECT_EQ(Drawn(texts, kWidth, kHeight, FixedRandom({0.25})).Trace[1].Row, 57);  // 9.28
}

TEST(TrackPreview, PlotWithoutRoomStaysEmpty) {
  for (const auto& [width, height] : {std::pair{0, 0}, std::pair{1, 200}, std::pair{200, 1}}) {
    const TrackPreview preview = Drawn(Texts(), width, height);
    EXPECT_TRUE(preview.Trace.empty());
    EXPECT_EQ(preview.Trouble, "");
    EXPECT_EQ(preview.ReadOut(0.0, 0.0), "");
  }
  EXPECT_EQ(Drawn(Texts(), 2, 2).Columns, Steps(0, 1, 2));
}

TEST(TrackPreview, GridLinesCloserThanColumnsAreOneOnEachColumn) {
  TrackPreviewTexts texts = Texts();
  texts.Time = "100005";
  texts.Min = "-5000.25";
  texts.Max = "5000";
  const TrackPreview preview = Drawn(texts);
  // What every single line of the grid would give.
  std::vector<int> columns;
  for (double time = 0.0; time <= 100005.0; time += 10.0) {
    columns.push_back(static_cast<int>(std::nearbyint(time * 240.0 / 100005.0)));
  }
  columns.erase(std::unique(columns.begin(), columns.end()), columns.end());
  std::vector<int> rows;
  for (double bearing = -5000.25; bearing <= 5000.0; bearing += 1.0) {
    rows.push_back(static_cast<int>(std::nearbyint(200.0 - (bearing + 5000.25) * 200.0 / 10000.25)));
  }
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  EXPECT_EQ(preview.Columns, columns);
  EXPECT_EQ(preview.Rows, rows);
}

TEST(TrackPreview, ManyPointsOnAColumnKeepItsFirstLeastLargestAndLastRow) {
  TrackPreviewTexts texts = Texts();
  texts.Time = "12000";
  texts.Noise = "4";
  SeededRandom random(7);
  const TrackPreview preview = TrackPreviewDraw(texts, 13, kHeight, random);
  // Each second on its own, 1000 to a column.
  SeededRandom again(7);
  double bearing = 10.0;
  double accumulator = 0.0;
  std::vector<std::vector<int>> columns(13);
  columns[0].push_back(50);
  for (int second = 0; second <= 12000; ++second) {
    const double error = (again.Next() - 0.5) * 8.0 - bearing;
    bearing += 0.08 * (accumulator + error);
    accumulator += 0.02 * error;
    columns[static_cast<std::size_t>(std::nearbyint(second / 1000.0))].push_back(
        static_cast<int>(std::nearbyint(150.0 - bearing * 10.0)));
  }
  std::vector<std::vector<int>> drawn(13);
  for (const TrackPoint& point : preview.Trace) {
    drawn.at(static_cast<std::size_t>(point.Column)).push_back(point.Row);
  }
  for (std::size_t i = 0; i < columns.size(); ++i) {
    ASSERT_FALSE(drawn[i].empty()) << i;
    EXPECT_LE(drawn[i].size(), 4U);
    EXPECT_EQ(drawn[i].front(), columns[i].front()) << i;
    EXPECT_EQ(drawn[i].back(), columns[i].back()) << i;
    EXPECT_EQ(*std::min_element(drawn[i].begin(), drawn[i].end()),
              *std::min_element(columns[i].begin(), columns[i].end()));
    EXPECT_EQ(*std::max_element(drawn[i].begin(), drawn[i].end()),
              *std::max_element(columns[i].begin(), columns[i].end()));
  }
}

TEST(TrackPreview, StrokesJoinThePoints) {
  const TrackPreview preview = Drawn(Texts());
  const std::vector<Stroke> strokes = preview.Strokes();
  ASSERT_EQ(strokes.size(), 121U);
  EXPECT_EQ(strokes[1].From.X, 0.0);
  EXPECT_EQ(strokes[1].From.Y, 58.0);
  EXPECT_EQ(strokes[1].To.X, 2.0);
  EXPECT_EQ(strokes[1].To.Y, 66.0);
}

TEST(TrackPreview, StrokesAreCutOnTheirWayFarOffThePlot) {
  TrackPreview preview;
  preview.Width = 100;
  preview.Height = 100;
  preview.Trace = {{0, 50}, {40, 650}, {80, 650}, {90, -1000000000}, {100, -350}};
  const std::vector<Stroke> strokes = preview.Strokes();
  ASSERT_EQ(strokes.size(), 2U);
  EXPECT_EQ(strokes[0].From.X, 0.0);
  EXPECT_EQ(strokes[0].From.Y, 50.0);
  EXPECT_DOUBLE_EQ(strokes[0].To.X, 10.0);
  EXPECT_DOUBLE_EQ(strokes[0].To.Y, 200.0);
  EXPECT_NEAR(strokes[1].From.X, 80.0, 1e-4);
  EXPECT_NEAR(strokes[1].From.Y, 200.0, 1e-3);
  EXPECT_NEAR(strokes[1].To.X, 80.0, 1e-4);
  EXPECT_NEAR(strokes[1].To.Y, -100.0, 1e-3);
}

TEST(TrackPreview, RowsStayInRangeWhateverTheBearing) {
  TrackPreviewTexts texts = Texts();
  texts.Bandwidth = "0.2";
  texts.Time = "100";
  texts.Min = "0";
  texts.Max = "1e-200";
  const TrackPreview preview = Drawn(texts);
  ASSERT_EQ(preview.Trouble, "");
  for (const TrackPoint& point : preview.Trace) {
    EXPECT_LE(std::abs(point.Row), 1000000000);
  }
  for (const Stroke& stroke : preview.Strokes()) {
    EXPECT_TRUE(std::isfinite(stroke.From.X) && std::isfinite(stroke.To.X));
    EXPECT_TRUE(std::fabs(stroke.From.Y) <= 500.0 && std::fabs(stroke.To.Y) <= 500.0);
  }
}

// Bandwidth 40 and damping 1: W 0.1, Ki 0.02, Kp 0.08. The first bearings are 9.2 and 8.448; the last of two
// seconds is 7.74144, and the second half of three bearings holds 8.448 and 7.74144.
TEST(TrackPreviewFigures, AreThoseOfTheTrace) {
  FixedRandom still;
  const TrackPreview preview = TrackPreviewDraw({"40", "1", "10", "0", "2", "-5", "15"}, 241, 201, still);
  ASSERT_TRUE(preview.Figures);
  EXPECT_EQ(preview.Figures->Overshoot, 0.0);
  EXPECT_EQ(preview.Figures->SettlingTime, std::nullopt);
  EXPECT_NEAR(preview.Figures->SteadyRootMeanSquare, 8.1024, 0.0001);
  EXPECT_EQ(preview.FiguresText(), "This run: overshoot 0.00 deg, not settled, steady state 8.10 deg rms");
}

TEST(TrackPreviewFigures, AreNoneWhereNothingIsDrawn) {
  FixedRandom still;
  const TrackPreview preview = TrackPreviewDraw({"x", "1", "10", "0", "2", "-5", "15"}, 241, 201, still);
  EXPECT_FALSE(preview.Figures);
  EXPECT_EQ(preview.FiguresText(), "");
}

}  // namespace
}  // namespace veerwatch
