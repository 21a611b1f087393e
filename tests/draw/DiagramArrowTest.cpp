#include "draw/DiagramArrow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(DiagramArrow, RightPointsAtTheSecondEnd) {
  EXPECT_THAT(ArrowHead({100.0, 500.0, 900.0, 500.0, "Right"}),
              testing::ElementsAre(DiagramLine{840.0, 545.0, 900.0, 500.0, {}},
                                   DiagramLine{840.0, 455.0, 900.0, 500.0, {}}));
}

TEST(DiagramArrow, TopPointsUpAtTheFirstEnd) {
  EXPECT_THAT(ArrowHead({300.0, 200.0, 300.0, 700.0, "Top"}),
              testing::ElementsAre(DiagramLine{360.0, 245.0, 300.0, 200.0, {}},
                                   DiagramLine{240.0, 245.0, 300.0, 200.0, {}}));
}

TEST(DiagramArrow, OtherTagsHaveNone) {
  for (const char* tag : {"", "Left", "Bottom", "right", "TOP", "Right "}) {
    EXPECT_TRUE(ArrowHead({0.0, 0.0, 100.0, 0.0, tag}).empty()) << tag;
  }
}

}  // namespace
}  // namespace veerwatch
