// Numbers that are a part of a longer text.

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "platform/NumberText.h"

namespace veerwatch {
namespace {

TEST(NumberPart, NothingAfterTheEndOfTheTextIsRead) {
  const std::string_view longer = "1e123456789";
  EXPECT_EQ(StrictNumber(longer.substr(0, 3)), 10.0F);
  EXPECT_EQ(StrictDouble(longer.substr(0, 4)), 1e12);
  // An array that ends with the text, so that the check of its bounds ends the test.
  const std::vector<char> e{'1', 'e'};
  EXPECT_EQ(StrictNumber(std::string_view(e.data(), e.size())), std::nullopt);
  EXPECT_EQ(StrictDouble(std::string_view("123456789012").substr(0, 10)), 1234567890.0);
}

}  // namespace
}  // namespace veerwatch
