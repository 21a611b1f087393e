#include "settings/SettingRule.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>

namespace veerwatch {
namespace {

void ExpectTaken(const NumberRule& rule, std::initializer_list<float> numbers) {
  for (const float number : numbers) {
    EXPECT_EQ(rule.Take(number), number) << rule.Range << ": " << number;
  }
}

void ExpectRefused(const NumberRule& rule, std::initializer_list<float> numbers) {
  for (const float number : numbers) {
    EXPECT_EQ(rule.Take(number), std::nullopt) << rule.Range << ": " << number;
  }
}

TEST(NumberRule, AnyNumberIsTakenAsItIs) { ExpectTaken(kAnyNumber, {0.0F, -3e38F, 3e38F, 0.001F}); }

TEST(NumberRule, FromZeroRefusesWhatIsBelow) {
  ExpectTaken(kFromZero, {0.0F, 1e-30F, 3e38F});
  ExpectRefused(kFromZero, {-1e-30F, -1.0F, NAN});
}

TEST(NumberRule, AboveZeroRefusesZero) {
  ExpectTaken(kAboveZero, {1e-30F, 3e38F});
  ExpectRefused(kAboveZero, {0.0F, -0.0F, -1.0F, NAN});
}

TEST(NumberRule, AnAverageCountIsOneByIsAverageCount) {
  ExpectTaken(kAverageCount, {0.0F, 0.51F, 60.0F});
  ExpectRefused(kAverageCount, {0.5F, 0.001F, -1.0F, NAN});
}

TEST(NumberRule, AColourHas24Bits) {
  ExpectTaken(kColour24, {0.0F, 16777215.0F});
  ExpectRefused(kColour24, {-1.0F, 16777216.0F, NAN});
}

TEST(NumberRule, AnglesAreFoldedAndNeverRefused) {
  EXPECT_EQ(kBearing.Take(-90.0F), 270.0F);
  EXPECT_EQ(kBearing.Take(360.0F), 0.0F);
  EXPECT_EQ(kBearing.Take(1085.5F), 5.5F);
  EXPECT_EQ(kRelative.Take(190.0F), -170.0F);
  EXPECT_EQ(kRelative.Take(-180.0F), 180.0F);
}

TEST(IsAverageCount, IsZeroOrAboveAHalf) {
  for (const float count : {0.0F, -0.0F, 0.50001F, 0.6F, 1.0F, 60.0F, 1e30F}) {
    EXPECT_TRUE(IsAverageCount(count)) << count;
  }
  for (const float count : {0.5F, 0.4F, 1e-30F, -0.1F, -2.0F, NAN}) {
    EXPECT_FALSE(IsAverageCount(count)) << count;
  }
}

}  // namespace
}  // namespace veerwatch
