#include "platform/BaudSearch.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

class Searching : public testing::Test {
 public:
  BaudSearch Search{[](std::string_view line) { return line == "good"; }};

  void SetUp() override { Search.Restart(1000); }

  /// What is left of a text that arrives.
  std::string Left(std::string text, std::int64_t now) {
    Search.Take(text, now);
    return text;
  }
};

TEST_F(Searching, TriesEachUsualRateInTurnForThreeSeconds) {
  std::int64_t now = 1000;
  for (const int rate : {4800, 9600, 19200, 38400, 57600, 115200, 4800}) {
    EXPECT_EQ(Search.Rate(), rate);
    EXPECT_FALSE(Search.Tick(now + 2999));
    now += 3000;
    EXPECT_TRUE(Search.Tick(now));
  }
  EXPECT_FALSE(Search.Found());
}

TEST_F(Searching, TwoGoodLinesWithinTwoSecondsSettleIt) {
  Search.Tick(4000);
  EXPECT_EQ(Left("good\r\n", 4100), "");
  EXPECT_FALSE(Search.Found());
  EXPECT_EQ(Left("bad\r\ngo", 5000), "");
  EXPECT_EQ(Left("od\r\nnext\r\npart", 6100), "\nnext\r\npart");
  EXPECT_TRUE(Search.Found());
  EXPECT_EQ(Search.Rate(), 9600);
  EXPECT_FALSE(Search.Tick(100000));
  EXPECT_EQ(Search.Rate(), 9600);
}

TEST_F(Searching, TwoThatAreFurtherApartDoNot) {
  Left("good\n", 1100);
  Left("good\n", 3101);
  EXPECT_FALSE(Search.Found());
  Left("good\n", 3900);
  EXPECT_TRUE(Search.Found()) << "the second and the third are near each other";
}

TEST_F(Searching, WhatCameAtAnotherRateDoesNotCount) {
  Left("good\ngo", 3900);
  EXPECT_TRUE(Search.Tick(4000));
  Left("od\n", 4010);
  Left("good\n", 4020);
  EXPECT_FALSE(Search.Found());
}

TEST_F(Searching, NoiseIsWhatComesAndMakesNoLinesAtAnyRateSoFar) {
  EXPECT_FALSE(Search.Noise());
  Left("\x80\x91", 1100);
  EXPECT_TRUE(Search.Noise());
  EXPECT_TRUE(Search.Tick(4000));
  EXPECT_TRUE(Search.Noise()) << "also while the next rate is still silent";
  Left("good\ngood\n", 4100);
  EXPECT_FALSE(Search.Noise());
  Search.Restart(9000);
  EXPECT_FALSE(Search.Noise());
}

TEST_F(Searching, NoiseSettlesNothingAndTakesNoRoom) {
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(Left(std::string(100000, '\xff'), 1100), "");
  }
  EXPECT_EQ(Left("\n\n\r\r", 1200), "");
  EXPECT_FALSE(Search.Found());
  Left("good\ngood\n", 1300);
  EXPECT_TRUE(Search.Found());
}

TEST_F(Searching, BeginsAgainAtTheRateThatWasFound) {
  Search.Tick(4000);
  Left("good\ngood\n", 4100);
  Search.Restart(9000);
  EXPECT_FALSE(Search.Found());
  EXPECT_EQ(Search.Rate(), 9600);
  EXPECT_FALSE(Search.Tick(11999));
  EXPECT_TRUE(Search.Tick(12000));
}

}  // namespace
}  // namespace veerwatch
