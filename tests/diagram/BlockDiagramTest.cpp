#include "diagram/BlockDiagram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace veerwatch {
namespace {

using testing::UnorderedElementsAre;

bool Overlap(const BlockArea& a, const BlockArea& b) {
  return a.X < b.X + b.Width && b.X < a.X + a.Width && a.Y < b.Y + b.Height && b.Y < a.Y + a.Height;
}

bool Inside(const BlockArea& inner, const BlockArea& outer) {
  return inner.X >= outer.X && inner.Y >= outer.Y && inner.X + inner.Width <= outer.X + outer.Width &&
         inner.Y + inner.Height <= outer.Y + outer.Height;
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
  std::vector<BlockArea> areas;
  for (const BlockButton& button : diagram.Buttons) {
    EXPECT_TRUE(Inside(button.Area, diagram.Computer)) << button.Name;
    areas.push_back(button.Area);
  }
  for (const auto& labels : {diagram.Labels, diagram.States}) {
    for (const BlockLabel& label : labels) {
      areas.push_back(label.Area);
    }
  }
  const BlockArea all{0.0, 0.0, diagram.Width, diagram.Height};
  for (std::size_t i = 0; i < areas.size(); ++i) {
    EXPECT_TRUE(Inside(areas[i], all)) << i;
    for (std::size_t j = i + 1; j < areas.size(); ++j) {
      EXPECT_FALSE(Overlap(areas[i], areas[j])) << i << " " << j;
    }
  }
}

TEST(BlockDiagram, NoWayCrossesABoxOrAText) {
  const BlockDiagram diagram = BlockDiagramMade();
  std::vector<BlockArea> areas;
  for (const BlockButton& button : diagram.Buttons) {
    areas.push_back(button.Area);
  }
  for (const auto& labels : {diagram.Labels, diagram.States}) {
    for (const BlockLabel& label : labels) {
      areas.push_back(label.Area);
    }
  }
  for (const auto& lines : {diagram.Lines, diagram.lnArrowRight}) {
    for (const DiagramLine& line : lines) {
      EXPECT_TRUE(line.X1 == line.X2 || line.Y1 == line.Y2) << "straight";
      const BlockArea box{std::min(line.X1, line.X2), std::min(line.Y1, line.Y2), std::abs(line.X2 - line.X1),
                          std::abs(line.Y2 - line.Y1)};
      for (const BlockArea& area : areas) {
        EXPECT_FALSE(Overlap(box, area)) << line.X1 << " " << line.Y1 << " " << area.X << " " << area.Y;
      }
    }
  }
}

TEST(BlockDiagram, EveryArrowEndsInABoxAtTheRightWithAHead) {
  const BlockDiagram diagram = BlockDiagramMade();
  const std::vector<DiagramLine> heads = BlockArrowHeads(diagram);
  ASSERT_EQ(heads.size(), 2 * diagram.lnArrowRight.size());
  for (std::size_t i = 0; i < diagram.lnArrowRight.size(); ++i) {
    const DiagramLine& line = diagram.lnArrowRight[i];
    EXPECT_LT(line.X1, line.X2);
    EXPECT_EQ(line.Y1, line.Y2);
    const DiagramLine& below = heads[2 * i];
    const DiagramLine& above = heads[2 * i + 1];
    EXPECT_EQ(below, (DiagramLine{line.X2 - 60, line.Y2 + 45, line.X2, line.Y2, {}}));
    EXPECT_EQ(above, (DiagramLine{line.X2 - 60, line.Y2 - 45, line.X2, line.Y2, {}}));
    int ends = 0;
    for (const BlockButton& button : diagram.Buttons) {
      ends +=
          button.Area.X == line.X2 && line.Y2 > button.Area.Y && line.Y2 < button.Area.Y + button.Area.Height
              ? 1
              : 0;
    }
    for (const BlockLabel& label : diagram.Labels) {
      ends += label.Framed && label.Area.X == line.X2 ? 1 : 0;
    }
    EXPECT_EQ(ends, 1) << i;
  }
}

}  // namespace
}  // namespace veerwatch
