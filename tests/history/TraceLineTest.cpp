#include "history/TraceLine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "tests/support/HandClock.h"

namespace veerwatch {
namespace {

/// One trace in a plot of 100 x 90 px that begins at 10, 5: ten slots of 10 px, one value per slot.
class TraceLineTest : public testing::Test {
 public:
  void Define(TraceKind kind, const ValueScale& scale) {
    Data.TraceCountSet(1);
    Data.TraceDefine(1, "Trace", kind, "");
    Data.SampleBufferSet(10, 100.0);
    Frame.Plot = {10.0, 5.0, 100.0, 90.0};
    Frame.EndSlot = 10;
    Frame.SlotWidth = 10.0;
    Frame.Scale = scale;
  }

  /// A text per slot from slot 0 on; an empty one is a slot without a sample.
  void Feed(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
      if (!text.empty()) {
        Data.SampleAdd("Trace", text, Time.Time);
      }
      Time.Pass(10000);
    }
  }

  const std::vector<TraceBucket>& Gather(std::int64_t first = 0, std::int64_t last = 9) {
    GatherBuckets(Data, Data.Traces()[0], first, last, Frame.PerBucket, Buckets);
    return Buckets;
  }

  const TraceLine& Draw() {
    Gather();
    TraceBuckets(Frame, Buckets, 0, Buckets.size(), Line);
    return Line;
  }

  std::vector<Point> Polyline(std::size_t number) const {
    return {Line.Points.begin() + static_cast<std::ptrdiff_t>(Line.Starts[number]),
            Line.Points.begin() + static_cast<std::ptrdiff_t>(Line.End(number))};
  }

  HandClock Time;
  StripChartData Data;
  TraceFrame Frame;
  std::vector<TraceBucket> Buckets;
  TraceLine Line;
};

const ValueScale kSpeeds{ScaleKind::Linear, 0.0, 9.0, 1.0};
const ValueScale kCompass{ScaleKind::Compass, 0.0, 360.0, 90.0};
const ValueScale kRelative{ScaleKind::Relative, -180.0, 180.0, 90.0};

using Points = std::vector<Point>;

TEST_F(TraceLineTest, StandsAtTheMiddlesOfSlots) {
  Define(TraceKind::Speed, kSpeeds);
  Feed({"0", "9", "4.5"});
  Draw();
  ASSERT_EQ(Line.Starts.size(), 1U);
  EXPECT_EQ(Polyline(0), (Points{{15.0, 95.0}, {25.0, 5.0}, {35.0, 50.0}}));
}

TEST_F(TraceLineTest, DoesNotCrossAGap) {
  Define(TraceKind::Speed, kSpeeds);
  Feed({"1", "2", "", "4", "5"});
  Draw();
  ASSERT_EQ(Line.Starts.size(), 2U);
  EXPECT_EQ(Polyline(0), (Points{{15.0, 85.0}, {25.0, 75.0}}));
  EXPECT_EQ(Polyline(1), (Points{{45.0, 55.0}, {55.0, 45.0}}));
}

TEST_F(TraceLineTest, DoesNotCrossAValueThatIsNotFinite) {
  Define(TraceKind::Speed, kSpeeds);
  Feed({"1", "2", "nan", "4", "5"});
  Draw();
  EXPECT_EQ(Line.Starts.size(), 2U);
}

TEST_F(TraceLineTest, ALonelySlotIsADotOfFivePixels) {
  Define(TraceKind::Speed, kSpeeds);
  Feed({"1", "", "3", "", "5", "6"});
  Draw();
  ASSERT_EQ(Line.Dots.size(), 2U);
  EXPECT_EQ(Line.Dots[0].Middle, (Point{15.0, 85.0}));
  EXPECT_EQ(Line.Dots[1].Middle, (Point{35.0, 65.0}));
  EXPECT_EQ(Line.Dots[0].Diameter, 5.0);
  EXPECT_EQ(Line.Dots[1].Diameter, 5.0);
  ASSERT_EQ(Line.Starts.size(), 1U);
  EXPECT_EQ(Polyline(0), (Points{{55.0, 45.0}, {65.0, 35.0}}));
}

TEST_F(TraceLineTest, DotsInARowDoNotMakeAThickLine) {
  Define(TraceKind::Speed, kSpeeds);
  Frame.SlotWidth = 2.0;
  Feed({"1", "", "3", "", "", "5"});
  Draw();
  ASSERT_EQ(Line.Dots.size(), 3U);
  EXPECT_EQ(Line.Dots[0].Diameter, 4.0);
  EXPECT_EQ(Line.Dots[1].Diameter, 4.0);
  EXPECT_EQ(Line.Dots[2].Diameter, 5.0);
  Frame.SlotWidth = 0.5;
  Draw();
  for (const ChartDot& dot : Line.Dots) {
    EXPECT_EQ(dot.Diameter, 2.0);
  }
}

TEST_F(TraceLineTest, ADotBeyondAFixedScaleIsNotDrawn) {
  Define(TraceKind::Speed, {ScaleKind::Linear, 2.0, 4.0, 1.0});
  Feed({"1.9", "", "2", "", "4", "", "4.1"});
  Draw();
  ASSERT_EQ(Line.Dots.size(), 2U);
  EXPECT_EQ(Line.Dots[0].Middle, (Point{35.0, 95.0}));
  EXPECT_EQ(Line.Dots[1].Middle, (Point{55.0, 5.0}));
}

TEST_F(TraceLineTest, ABarShowsWhatHappenedInASlot) {
  Define(TraceKind::Speed, kSpeeds);
  Data.SampleAdd("Trace", "2", Time.Time);
  Data.SampleAdd("Trace", "7", Time.Time);
  Data.SampleAdd("Trace", "3", Time.Time);
  Draw();
  ASSERT_EQ(Line.Bars.size(), 1U);
  EXPECT_EQ(Line.Bars[0].X, 10.0);
  EXPECT_EQ(Line.Bars[0].Width, 10.0);
  EXPECT_EQ(Line.Bars[0].Y, 25.0);
  EXPECT_EQ(Line.Bars[0].Bottom(), 75.0);
  ASSERT_EQ(Line.Dots.size(), 1U);
  EXPECT_EQ(Line.Dots[0].Middle, (Point{15.0, 65.0}));
}

TEST_F(TraceLineTest, AHeadingLeavesAtTheTopAndComesBackAtTheBottom) {
  Define(TraceKind::Angle, kCompass);
  Feed({"350", "10"});
  Draw();
  ASSERT_EQ(Line.Starts.size(), 2U);
  EXPECT_EQ(Polyline(0), (Points{{15.0, 7.5}, {20.0, 5.0}}));
  EXPECT_EQ(Polyline(1), (Points{{20.0, 95.0}, {25.0, 92.5}}));
}

TEST_F(TraceLineTest, AWindAngleLeavesAtTheBottomAndComesBackAtTheTop) {
  Define(TraceKind::Angle, kRelative);
  Feed({"-170", "170"});
  Draw();
  ASSERT_EQ(Line.Starts.size(), 2U);
  EXPECT_EQ(Polyline(0), (Points{{15.0, 92.5}, {20.0, 95.0}}));
  EXPECT_EQ(Polyline(1), (Points{{20.0, 5.0}, {25.0, 7.5}}));
}

TEST_F(TraceLineTest, AHeadingAroundNorthIsOneLineOnAScaleAroundNorth) {
  Define(TraceKind::Angle, {ScaleKind::Compass, 350.0, 370.0, 5.0});
  Feed({"355", "2", "358", "7"});
  Draw();
  ASSERT_EQ(Line.Starts.size(), 1U);
  EXPECT_EQ(Line.Points.size(), 4U);
}

/// Whatever an angle does, no stroke goes more than half round the circle, and none leaves the plot.
TEST_F(TraceLineTest, NoStrokeCrossesTheWrap) {
  for (const ValueScale& scale : {kCompass, kRelative}) {
    Define(TraceKind::Angle, scale);
    const double least = scale.Low;
    for (int begin = 0; begin < 360; begin += 5) {
      for (int step = -179; step <= 179; step += 11) {
        Data.SampleBufferSet(10, 100.0);
        const auto text = [&](int angle) {
          return std::to_string(static_cast<int>(OnTurnAbove(static_cast<double>(angle), least)));
        };
        Feed({text(begin), text(begin + step), text(begin + 2 * step)});
        Draw();
        for (std::size_t line = 0; line < Line.Starts.size(); ++line) {
          const std::vector<Point> points = Polyline(line);
          for (std::size_t i = 1; i < points.size(); ++i) {
            const double angle = std::fabs(points[i].Y - points[i - 1].Y) / 90.0 * 360.0;
            ASSERT_LE(angle, std::abs(step) + 1e-6) << begin << " by " << step;
            ASSERT_GE(points[i].Y, 5.0 - 1e-9);
            ASSERT_LE(points[i].Y, 95.0 + 1e-9);
          }
        }
      }
    }
  }
}

TEST_F(TraceLineTest, ABarOverTheSeamIsTwo) {
  Define(TraceKind::Angle, kCompass);
  Data.SampleAdd("Trace", "356", Time.Time);
  Data.SampleAdd("Trace", "8", Time.Time);
  Draw();
  ASSERT_EQ(Line.Bars.size(), 2U);
  double height = 0.0;
  for (const Box& bar : Line.Bars) {
    height += bar.Height;
  }
  EXPECT_NEAR(height, 12.0 / 360.0 * 90.0, 1e-6);
}

TEST_F(TraceLineTest, WhatIsBeyondAFixedScaleIsCutAtItsEdge) {
  Define(TraceKind::Speed, {ScaleKind::Linear, 2.0, 4.0, 1.0});
  Feed({"3", "5", "7", "3"});
  Draw();
  ASSERT_EQ(Line.Starts.size(), 2U);
  EXPECT_EQ(Polyline(0), (Points{{15.0, 50.0}, {20.0, 5.0}}));
  EXPECT_EQ(Polyline(1).back(), (Point{45.0, 50.0}));
  EXPECT_EQ(Polyline(1).front().Y, 5.0);
}

TEST_F(TraceLineTest, ALineThatComesFromBeforeIsCutAtTheLeftEdge) {
  Define(TraceKind::Speed, kSpeeds);
  Frame.EndSlot = 12;
  Feed({"0", "0", "9", "9"});
  Gather(1, 11);
  TraceBuckets(Frame, Buckets, 0, Buckets.size(), Line);
  // From 5 to 15 px the line rises over the whole plot, whose edge is at 10.
  ASSERT_EQ(Line.Starts.size(), 1U);
  EXPECT_EQ(Polyline(0), (Points{{10.0, 50.0}, {15.0, 5.0}, {25.0, 5.0}}));
}

TEST_F(TraceLineTest, ALineIsCutAtTheLeftEdgeAndAtTheEdgeOfItsScale) {
  Define(TraceKind::Speed, {ScaleKind::Linear, 0.0, 6.0, 1.0});
  Frame.EndSlot = 12;
  Feed({"0", "-9", "9"});
  Gather(1, 11);
  TraceBuckets(Frame, Buckets, 0, Buckets.size(), Line);
  // It comes into the scale at 10 px, just at the edge, and leaves it 10 / 3 px further on.
  ASSERT_EQ(Line.Points.size(), 2U);
  EXPECT_NEAR(Line.Points[0].X, 10.0, 1e-9);
  EXPECT_NEAR(Line.Points[0].Y, 95.0, 1e-9);
  EXPECT_NEAR(Line.Points[1].X, 10.0 + 10.0 / 3.0, 1e-9);
  EXPECT_NEAR(Line.Points[1].Y, 5.0, 1e-9);
  Feed({"-9"});
  Frame.EndSlot = 13;
  Gather(1, 12);
  TraceBuckets(Frame, Buckets, 0, Buckets.size(), Line);
  // From 5 px, where it has 9, down to -9 at 15 px: in the scale between 6.7 and 10 px, left of the plot.
  EXPECT_TRUE(Line.Points.empty());
}

TEST_F(TraceLineTest, ALineThatEndsAtTheLeftEdgeIsNotDrawn) {
  Define(TraceKind::Speed, kSpeeds);
  Frame.Plot = {15.0, 5.0, 95.0, 90.0};
  Feed({"1", "2"});
  Frame.EndSlot = 11;
  Draw();
  EXPECT_TRUE(Line.Points.empty());
}

TEST_F(TraceLineTest, ABarIsCutAtTheEdgesOfThePlot) {
  Define(TraceKind::Speed, kSpeeds);
  Frame.PerBucket = 4;
  Frame.EndSlot = 10;
  Frame.Plot = {30.0, 5.0, 80.0, 90.0};
  Feed({"1", "2", "3", "4", "", "", "", "", "5", "6"});
  Draw();
  // Columns from 10 to 50 px and from 90 to 130 in a plot from 30 to 110.
  ASSERT_EQ(Line.Bars.size(), 2U);
  EXPECT_EQ(Line.Bars[0].X, 30.0);
  EXPECT_EQ(Line.Bars[0].Width, 20.0);
  EXPECT_EQ(Line.Bars[1].X, 90.0);
  EXPECT_EQ(Line.Bars[1].Width, 20.0);
}

TEST_F(TraceLineTest, SeveralSlotsShareAColumn) {
  Define(TraceKind::Speed, kSpeeds);
  Frame.PerBucket = 4;
  Feed({"1", "5", "2", "3", "6", "7"});
  const std::vector<TraceBucket>& buckets = Gather();
  ASSERT_EQ(buckets.size(), 2U);
  EXPECT_EQ(buckets[0].Slot, 0);
  EXPECT_EQ(buckets[0].Low, 1.0F);
  EXPECT_EQ(buckets[0].High, 5.0F);
  EXPECT_EQ(buckets[0].Latest, 3.0F);
  EXPECT_EQ(buckets[1].Slot, 4);
  EXPECT_TRUE(buckets[1].Joined);
}

TEST_F(TraceLineTest, AGapBetweenColumnsIsKept) {
  Define(TraceKind::Speed, kSpeeds);
  Frame.PerBucket = 2;
  Feed({"1", "", "2", "3", "4", "5"});
  const std::vector<TraceBucket>& buckets = Gather();
  ASSERT_EQ(buckets.size(), 3U);
  EXPECT_FALSE(buckets[1].Joined);
  EXPECT_TRUE(buckets[2].Joined);
}

TEST_F(TraceLineTest, AColumnOfAnglesIsUnwrapped) {
  Define(TraceKind::Angle, kCompass);
  Frame.PerBucket = 4;
  Feed({"350", "355", "5", "2"});
  const std::vector<TraceBucket>& buckets = Gather();
  ASSERT_EQ(buckets.size(), 1U);
  EXPECT_EQ(buckets[0].Latest, 2.0F);
  EXPECT_EQ(buckets[0].Low, -10.0F);
  EXPECT_EQ(buckets[0].High, 5.0F);
}

TEST_F(TraceLineTest, PastAndLiveTogetherAreTheWholeLine) {
  Define(TraceKind::Speed, kSpeeds);
  Feed({"1", "2", "3", "4"});
  Draw();
  const std::vector<Point> whole = Line.Points;
  TraceLine past;
  TraceLine live;
  TraceBuckets(Frame, Buckets, 0, 3, past);
  TraceBuckets(Frame, Buckets, 3, 4, live);
  ASSERT_EQ(past.Points.size(), 3U);
  ASSERT_EQ(live.Points.size(), 2U);
  EXPECT_EQ(past.Points.back(), live.Points.front());
  EXPECT_EQ(live.Points.back(), whole.back());
}

TEST_F(TraceLineTest, SlotsThatAreNotHeldAreEmpty) {
  Define(TraceKind::Speed, kSpeeds);
  Feed({"1", "2"});
  EXPECT_EQ(Gather(-50, 500).size(), 2U);
  Data.SampleBufferSet(10, 100.0);
  EXPECT_TRUE(Gather().empty());
}

}  // namespace
}  // namespace veerwatch
