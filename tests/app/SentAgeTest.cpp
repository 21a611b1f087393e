#include "app/SentAge.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(SentAge, CountsFromTheLatestSentence) {
  SentAge age;
  age.Look(7, 100000);
  EXPECT_EQ(age.Text(), "nothing sent") << "what left before nobody looked";
  EXPECT_TRUE(age.Late());
  age.Look(8, 101000);
  EXPECT_EQ(age.Text(), "sent now");
  EXPECT_FALSE(age.Late());
  age.Look(8, 104999);
  EXPECT_EQ(age.Text(), "sent 3 s ago");
  EXPECT_FALSE(age.Late());
  age.Look(8, 105000);
  EXPECT_EQ(age.Text(), "sent 4 s ago");
  EXPECT_TRUE(age.Late());
  age.Look(10, 105400);
  EXPECT_EQ(age.Text(), "sent now");
}

}  // namespace
}  // namespace veerwatch
