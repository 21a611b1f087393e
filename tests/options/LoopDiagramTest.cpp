#include "options/LoopDiagram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace veerwatch {
namespace {

bool Inside(const DiagramBox& box, double x, double y) {
  return x >= box.X && x <= box.X + box.Width && y >= box.Y && y <= box.Y + box.Height;
}

bool Overlap(const DiagramBox& a, const DiagramBox& b) {
  return a.X < b.X + b.Width && b.X < a.X + a.Width && a.Y < b.Y + b.Height && b.Y < a.Y + a.Height;
}

/// Whether a point stands on the edge of a box or of a junction, or on a line.
bool OnSomething(const LoopDiagram& diagram, const DiagramLine& self, double x, double y) {
  for (const DiagramBox& box : diagram.Boxes) {
    if (Inside(box, x, y)) {
      return true;
    }
  }
  for (const DiagramJunction& junction : diagram.Junctions) {
    if (std::hypot(x - junction.X, y - junction.Y) <= junction.Radius + 0.01) {
      return true;
    }
  }
  for (const auto* lines : {&diagram.Lines, &diagram.WayBack, &diagram.lnArrow}) {
    for (const DiagramLine& line : *lines) {
      const bool spans = x >= std::min(line.X1, line.X2) && x <= std::max(line.X1, line.X2) &&
                         y >= std::min(line.Y1, line.Y2) && y <= std::max(line.Y1, line.Y2);
      if (spans && !(line == self)) {
        return true;
      }
    }
  }
  return false;
}

TEST(LoopDiagram, HasExactlyItsLabels) {
  const LoopDiagram diagram = LoopDiagramMade();
  std::vector<std::string_view> texts;
  for (const auto* boxes : {&diagram.Circuits, &diagram.Boxes}) {
    for (const DiagramBox& box : *boxes) {
      texts.push_back(box.Text);
    }
  }
  EXPECT_THAT(texts, testing::UnorderedElementsAre("Tracking Circuit", "Overshoot Circuit",
                                                   "Current Wind Angle", "Desired Wind Angle", "Accumulator",
                                                   "Accumulator", "Bearing", "Scale", "Scale"));
}

TEST(LoopDiagram, ArrowsGoStraightRightOrUp) {
  for (const DiagramLine& line : LoopDiagramMade().lnArrow) {
    if (line.Tag == "Right") {
      EXPECT_EQ(line.Y1, line.Y2);
      EXPECT_GT(line.X2 - line.X1, 60.0);
    } else {
      EXPECT_EQ(line.Tag, "Top");
      EXPECT_EQ(line.X1, line.X2);
      EXPECT_GT(line.Y2 - line.Y1, 45.0);
    }
  }
}

TEST(LoopDiagram, EveryArrowHasTwoStrokes) {
  const LoopDiagram diagram = LoopDiagramMade();
  const std::vector<DiagramLine> strokes = LoopDiagramArrowHeads(diagram);
  ASSERT_EQ(strokes.size(), 2 * diagram.lnArrow.size());
  EXPECT_EQ(strokes[0].X2, diagram.lnArrow[0].X2);
  EXPECT_EQ(strokes[0].X1, diagram.lnArrow[0].X2 - 60.0);
  EXPECT_EQ(strokes[2].X2, diagram.lnArrow[1].X1);
  EXPECT_EQ(strokes[2].Y1, diagram.lnArrow[1].Y1 + 45.0);
}

TEST(LoopDiagram, EveryWayBeginsAndEndsAtSomething) {
  const LoopDiagram diagram = LoopDiagramMade();
  for (const auto* lines : {&diagram.Lines, &diagram.WayBack, &diagram.lnArrow}) {
    for (const DiagramLine& line : *lines) {
      EXPECT_TRUE(OnSomething(diagram, line, line.X1, line.Y1)) << line.X1 << ", " << line.Y1;
      EXPECT_TRUE(OnSomething(diagram, line, line.X2, line.Y2)) << line.X2 << ", " << line.Y2;
    }
  }
}

TEST(LoopDiagram, EverythingStandsInsideAndNoTwoBoxesOverlap) {
  const LoopDiagram diagram = LoopDiagramMade();
  std::vector<DiagramBox> boxes = diagram.Boxes;
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    EXPECT_TRUE(boxes[i].X > 0.0 && boxes[i].X + boxes[i].Width < diagram.Width) << boxes[i].Text;
    EXPECT_TRUE(boxes[i].Y > 0.0 && boxes[i].Y + boxes[i].Height < diagram.Height) << boxes[i].Text;
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(Overlap(boxes[i], boxes[j])) << boxes[i].Text << " and " << boxes[j].Text;
    }
  }
  for (const DiagramBox& circuit : diagram.Circuits) {
    EXPECT_EQ(std::count_if(boxes.begin(), boxes.end(),
                            [&circuit](const DiagramBox& box) { return Overlap(box, circuit); }),
              2)
        << circuit.Text;
  }
}

}  // namespace
}  // namespace veerwatch
