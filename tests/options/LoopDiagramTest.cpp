#include "options/LoopDiagram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace veerwatch {
namespace {

std::vector<Stroke> Ways(const LoopDiagram& diagram) {
  std::vector<Stroke> ways = diagram.Lines;
  ways.insert(ways.end(), diagram.WayBack.begin(), diagram.WayBack.end());
  for (const DiagramArrow& arrow : diagram.lnArrow) {
    ways.push_back(arrow.Way);
  }
  return ways;
}

/// Whether `middle` lies between two ends, which it may meet but for rounding.
bool Between(double a, double b, double middle) {
  constexpr double kSlack = 1e-9;
  return middle >= std::min(a, b) - kSlack && middle <= std::max(a, b) + kSlack;
}

/// Whether a point stands on the edge of a box or of a junction, or on a way other than `self`.
bool OnSomething(const LoopDiagram& diagram, const Stroke& self, const Point& at) {
  const auto in = [&at](const PlacedText& box) {
    return Between(box.Place.X, box.Place.Right(), at.X) && Between(box.Place.Y, box.Place.Bottom(), at.Y);
  };
  const auto meets = [&at](const Circle& junction) {
    return std::hypot(at.X - junction.Middle.X, at.Y - junction.Middle.Y) <= junction.Radius + 0.001;
  };
  const auto on = [&](const Stroke& way) {
    return Between(way.From.X, way.To.X, at.X) && Between(way.From.Y, way.To.Y, at.Y) && !(way == self);
  };
  const std::vector<Stroke> ways = Ways(diagram);
  return std::any_of(diagram.Boxes.begin(), diagram.Boxes.end(), in) ||
         std::any_of(diagram.Junctions.begin(), diagram.Junctions.end(), meets) ||
         std::any_of(ways.begin(), ways.end(), on);
}

TEST(LoopDiagram, HasExactlyItsLabels) {
  const LoopDiagram diagram = LoopDiagramMade();
  std::vector<std::string> texts;
  for (const auto* boxes : {&diagram.Titles, &diagram.Boxes}) {
    for (const PlacedText& box : *boxes) {
      texts.push_back(box.Text);
    }
  }
  EXPECT_THAT(texts, testing::UnorderedElementsAre("Tracking Circuit", "Overshoot Circuit",
                                                   "Current Wind Angle", "Desired Wind Angle", "Accumulator",
                                                   "Accumulator", "Bearing", "Scale", "Scale"));
}

TEST(LoopDiagram, ArrowsGoStraightRightOrUp) {
  for (const auto& [way, tag] : LoopDiagramMade().lnArrow) {
    if (tag == "Right") {
      EXPECT_EQ(way.From.Y, way.To.Y);
      EXPECT_GT(way.To.X - way.From.X, 4.0);
    } else {
      EXPECT_EQ(tag, "Top");
      EXPECT_EQ(way.From.X, way.To.X);
      EXPECT_GT(way.To.Y - way.From.Y, 3.0);
    }
  }
}

TEST(LoopDiagram, EveryArrowHasTwoStrokes) {
  const LoopDiagram diagram = LoopDiagramMade();
  const std::vector<Stroke> strokes = ArrowHeads(diagram.lnArrow);
  ASSERT_EQ(strokes.size(), 2 * diagram.lnArrow.size());
  EXPECT_EQ(strokes[0].To, diagram.lnArrow[0].Way.To);
  EXPECT_EQ(strokes[0].From.X, diagram.lnArrow[0].Way.To.X - 4.0);
  EXPECT_EQ(strokes[2].To, diagram.lnArrow[1].Way.From);
  EXPECT_EQ(strokes[2].From.Y, diagram.lnArrow[1].Way.From.Y + 3.0);
}

TEST(LoopDiagram, EveryWayBeginsAndEndsAtSomething) {
  const LoopDiagram diagram = LoopDiagramMade();
  for (const Stroke& way : Ways(diagram)) {
    EXPECT_TRUE(OnSomething(diagram, way, way.From)) << way.From.X << ", " << way.From.Y;
    EXPECT_TRUE(OnSomething(diagram, way, way.To)) << way.To.X << ", " << way.To.Y;
  }
}

TEST(LoopDiagram, EverythingStandsInsideAndNoTwoBoxesOverlap) {
  const LoopDiagram diagram = LoopDiagramMade();
  const std::vector<PlacedText>& boxes = diagram.Boxes;
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const Box& box = boxes[i].Place;
    EXPECT_TRUE(box.X > 0.0 && box.Right() < diagram.Width) << boxes[i].Text;
    EXPECT_TRUE(box.Y > 0.0 && box.Bottom() < diagram.Height) << boxes[i].Text;
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(box.Overlaps(boxes[j].Place)) << boxes[i].Text << " and " << boxes[j].Text;
    }
  }
  for (const Box& circuit : diagram.Circuits) {
    EXPECT_EQ(std::count_if(boxes.begin(), boxes.end(),
                            [&circuit](const PlacedText& box) { return box.Place.Overlaps(circuit); }),
              2);
  }
}

}  // namespace
}  // namespace veerwatch
