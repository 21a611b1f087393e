#include "diagram/BlockDiagram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace veerwatch {
namespace {

using testing::UnorderedElementsAre;

bool Inside(const Box& inner, const Box& outer) {
  return inner.X >= outer.X && inner.Y >= outer.Y && inner.Right() <= outer.Right() &&
         inner.Bottom() <= outer.Bottom();
}

TEST(BlockDiagram, HasTheFiveButtonsWithTheirTexts) {
  std::vector<std::string> texts;
  for (const BlockButton& button : BlockDiagramMade().Buttons) {
    texts.push_back(
        std::string(button.Name).append("|").append(button.Caption).append("|").append(button.ToolTip));
  }
  EXPECT_THAT(texts, UnorderedElementsAre("cmdInput|Input|NMEA 0183 Data", "cmdOutput|Output|Output Options",
                                          "cmdControl|Control Loop|Apparent or True Angle Tracking Options",
                                          "cmdPolar|Polar Plot|Performance Polar Plot",
                                          "cmdHistory|History Plot|Strip Chart Recorder"));
}

TEST(BlockDiagram, HasItsLabels) {
  std::vector<std::string> texts;
  for (const BlockLabel& label : BlockDiagramMade().Labels) {
    texts.emplace_back(label.Text);
  }
  EXPECT_THAT(texts, UnorderedElementsAre("Wind", "Speed", "NMEA 0183", "NMEA 0183", "Computer", "Autopilot",
                                          "Stanard Autopilot"));
}

TEST(BlockDiagram, NothingCoversAnythingElse) {
  const BlockDiagram diagram = BlockDiagramMade();
  std::vector<Box> areas;
  for (const BlockButton& button : diagram.Buttons) {
    EXPECT_TRUE(Inside(button.Area, diagram.Computer)) << button.Name;
    areas.push_back(button.Area);
  }
  for (const auto& labels : {diagram.Labels, diagram.States}) {
    for (const BlockLabel& label : labels) {
      areas.push_back(label.Area);
    }
  }
  const Box all{0.0, 0.0, diagram.Width, diagram.Height};
  for (std::size_t i = 0; i < areas.size(); ++i) {
    EXPECT_TRUE(Inside(areas[i], all)) << i;
    for (std::size_t j = i + 1; j < areas.size(); ++j) {
      EXPECT_FALSE(areas[i].Overlaps(areas[j])) << i << " " << j;
    }
  }
}

TEST(BlockDiagram, NoWayCrossesABoxOrAText) {
  const BlockDiagram diagram = BlockDiagramMade();
  std::vector<Box> areas;
  for (const BlockButton& button : diagram.Buttons) {
    areas.push_back(button.Area);
  }
  for (const auto& labels : {diagram.Labels, diagram.States}) {
    for (const BlockLabel& label : labels) {
      areas.push_back(label.Area);
    }
  }
  std::vector<Stroke> ways = diagram.Lines;
  for (const DiagramArrow& arrow : diagram.lnArrowRight) {
    ways.push_back(arrow.Way);
  }
  for (const auto& [from, to] : ways) {
    EXPECT_TRUE(from.X == to.X || from.Y == to.Y) << "straight";
    const Box box{std::min(from.X, to.X), std::min(from.Y, to.Y), std::abs(to.X - from.X),
                  std::abs(to.Y - from.Y)};
    for (const Box& area : areas) {
      EXPECT_FALSE(box.Overlaps(area)) << from.X << " " << from.Y << " " << area.X << " " << area.Y;
    }
  }
}

TEST(BlockDiagram, EveryArrowEndsInABoxAtTheRightWithAHead) {
  const BlockDiagram diagram = BlockDiagramMade();
  const std::vector<Stroke> heads = ArrowHeads(diagram.lnArrowRight);
  ASSERT_EQ(heads.size(), 2 * diagram.lnArrowRight.size());
  for (std::size_t i = 0; i < diagram.lnArrowRight.size(); ++i) {
    const auto [from, tip] = diagram.lnArrowRight[i].Way;
    EXPECT_LT(from.X, tip.X);
    EXPECT_EQ(from.Y, tip.Y);
    EXPECT_EQ(heads[2 * i], (Stroke{{tip.X - 4, tip.Y + 3}, tip}));
    EXPECT_EQ(heads[2 * i + 1], (Stroke{{tip.X - 4, tip.Y - 3}, tip}));
    int ends = 0;
    for (const BlockButton& button : diagram.Buttons) {
      ends += button.Area.X == tip.X && tip.Y > button.Area.Y && tip.Y < button.Area.Bottom() ? 1 : 0;
    }
    for (const BlockLabel& label : diagram.Labels) {
      ends += label.Framed && label.Area.X == tip.X ? 1 : 0;
    }
    EXPECT_EQ(ends, 1) << i;
  }
}

}  // namespace
}  // namespace veerwatch
