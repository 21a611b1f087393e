#include "pilot/LineLoad.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(LineLoad, IsThePartOfTheTimeThatTheLineIsBusy) {
  // 54 characters, ten bits each, eight times a second at 4800 bits a second.
  const auto load = LineLoadOf(54, 0, 8.0, 4800);
  ASSERT_TRUE(load);
  EXPECT_DOUBLE_EQ(load->Part, 0.9);
  EXPECT_TRUE(load->Full());
  EXPECT_EQ(LineLoadText(*load), "Pilot line 90 % full at 4800 baud");
}

TEST(LineLoad, GoesByTheCadenceWhereThereIsOne) {
  EXPECT_DOUBLE_EQ(LineLoadOf(48, 2, 10.0, 4800)->Part, 0.2);
  EXPECT_DOUBLE_EQ(LineLoadOf(48, 2, std::nullopt, 38400)->Part, 0.025);
}

TEST(LineLoad, IsFullBeyondFourFifths) {
  EXPECT_FALSE(LineLoadOf(384, 1, std::nullopt, 4800)->Full());
  EXPECT_TRUE(LineLoadOf(385, 1, std::nullopt, 4800)->Full());
}

TEST(LineLoad, IsNotKnownWithoutARateOfTheLineOrOfTheWinds) {
  EXPECT_FALSE(LineLoadOf(54, 0, std::nullopt, 4800));
  EXPECT_FALSE(LineLoadOf(54, 1, 1.0, std::nullopt));
}

}  // namespace
}  // namespace veerwatch
