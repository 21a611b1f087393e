#include "settings/TextRule.h"

#include <gtest/gtest.h>

#include <string>

namespace veerwatch {
namespace {

TEST(TextRule, ATalkerIsTwoCapitalLetters) {
  for (const char* text : {"EC", "GP", "II", "AP", "ZZ"}) {
    EXPECT_TRUE(kTalker.Takes(text)) << text;
  }
  for (const char* text : {"", "E", "ECX", "ec", "E1", "E,", "$E", "\xC3\x84"}) {
    EXPECT_FALSE(kTalker.Takes(text)) << text;
  }
}

TEST(TextRule, ATalkerIsNoMakersOwn) {
  EXPECT_FALSE(kTalker.Takes("PX"));
  EXPECT_FALSE(kTalker.Begins("P"));
}

TEST(TextRule, APointHasOneToSixCapitalLettersAndDigits) {
  for (const char* text : {"1", "WP01", "ABCDEF"}) {
    EXPECT_TRUE(kPointName.Takes(text)) << text;
  }
  for (const char* text : {"", "ABCDEFG", "wp", "A B", "A,B", "A*", "A-1"}) {
    EXPECT_FALSE(kPointName.Takes(text)) << text;
  }
}

TEST(TextRule, WhatIsBegunMayBeEmptyAndHoldsNoOtherCharacter) {
  for (const TextRule* rule : {&kTalker, &kPointName}) {
    EXPECT_TRUE(rule->Begins(""));
    EXPECT_TRUE(rule->Begins("E"));
    for (int c = 0; c < 256; ++c) {
      const std::string one(1, static_cast<char>(c));
      const bool letter = (c >= 'A' && c <= 'Z' && (rule != &kTalker || c != 'P'));
      const bool digit = rule == &kPointName && c >= '0' && c <= '9';
      EXPECT_EQ(rule->Begins(one), letter || digit) << c;
    }
    EXPECT_FALSE(rule->Begins(std::string(rule->Most + 1, 'A')));
  }
}

}  // namespace
}  // namespace veerwatch
