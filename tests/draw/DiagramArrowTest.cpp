#include "draw/DiagramArrow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(DiagramArrow, RightPointsAtTheSecondEnd) {
  EXPECT_THAT(ArrowHeads({{{{10.0, 50.0}, {90.0, 50.0}}, "Right"}}),
              testing::ElementsAre(Stroke{{86.0, 53.0}, {90.0, 50.0}}, Stroke{{86.0, 47.0}, {90.0, 50.0}}));
}

TEST(DiagramArrow, TopPointsUpAtTheFirstEnd) {
  EXPECT_THAT(ArrowHeads({{{{30.0, 20.0}, {30.0, 70.0}}, "Top"}}),
              testing::ElementsAre(Stroke{{34.0, 23.0}, {30.0, 20.0}}, Stroke{{26.0, 23.0}, {30.0, 20.0}}));
}

TEST(DiagramArrow, OtherTagsHaveNone) {
  for (const char* tag : {"", "Left", "Bottom", "right", "TOP", "Right "}) {
    EXPECT_TRUE(ArrowHeads({{{{0.0, 0.0}, {100.0, 0.0}}, tag}}).empty()) << tag;
  }
}

}  // namespace
}  // namespace veerwatch
