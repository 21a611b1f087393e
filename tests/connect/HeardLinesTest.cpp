#include "connect/HeardLines.h"

#include <gmock/gmock.h>

#include <string>

namespace veerwatch {
namespace {

Moment At(std::int64_t milliseconds) { return {milliseconds, milliseconds}; }

TEST(HeardLines, SaysEachSentenceWithItsPaceAndTheErrors) {
  HeardLines heard;
  for (int half = 0; half <= 20; ++half) {
    heard.Take("$IIMWV,045,R,10,N,A", LineFault::None, At(500 * half));
  }
  for (int second = 0; second < 10; ++second) {
    heard.Take("$HCHDG,100,,,,", LineFault::None, At(1000 * second));
  }
  heard.Take("$IIMWV,090,T,8,N,A", LineFault::None, At(9000));
  EXPECT_EQ(heard.Words(At(10000)), "MWV R 2/s, HDG 1/s, MWV T 1/s");
  EXPECT_EQ(heard.Details(At(10000)), "II MWV R: 2/s\nHC HDG: 1/s\nII MWV T: 1/s");
  heard.Take("noise", LineFault::Sentence, At(9000));
  EXPECT_EQ(heard.Words(At(10000)), "MWV R 2/s, HDG 1/s, MWV T 1/s, 1 error");
  heard.Take("$HCHDG,1*00", LineFault::Checksum, At(9000));
  EXPECT_EQ(heard.Faults(), 2);
  EXPECT_EQ(heard.Sentences(), 32);
}

TEST(HeardLines, ASeldomSentenceHasAPaceBelowOne) {
  EXPECT_EQ(PaceText(3, 0, 4000, 10000), "0.5/s");
  EXPECT_EQ(PaceText(1, 0, 0, 10000), "0.1/s");
  EXPECT_EQ(PaceText(1, 0, 0, 60000), "0.1/s") << "never as if it did not come";
  EXPECT_EQ(PaceText(11, 0, 10000, 99000), "1/s");
}

TEST(HeardLines, KnowsWhatTheProgramReads) {
  HeardLines heard;
  heard.Take("$GPGSV,1", LineFault::None, At(0));
  heard.Take("!AIVDM,1,1,,A,x,0", LineFault::None, At(0));
  EXPECT_EQ(heard.Known(), 0);
  EXPECT_EQ(heard.Sentences(), 2);
  heard.Take("$GPRMC,1", LineFault::None, At(0));
  EXPECT_EQ(heard.Known(), 1);
}

TEST(HeardLines, TwoThatBringTheSameAreTheSameAlsoWhenOneBringsMore) {
  HeardLines a;
  HeardLines b;
  HeardLines other;
  for (int i = 0; i < 100; ++i) {
    const std::string line = "$IIMWV," + std::to_string(i) + ",R,10,N,A";
    a.Take(line, LineFault::None, At(100 * i));
    if (i > 50) {
      b.Take(line, LineFault::None, At(100 * i + 40));
    }
    b.Take("$IIHDG," + std::to_string(i), LineFault::None, At(100 * i + 50));
    other.Take("$IIVHW," + std::to_string(i), LineFault::None, At(100 * i));
  }
  EXPECT_TRUE(BringSame(a.Different(), b.Different()));
  EXPECT_TRUE(BringSame(b.Different(), a.Different()));
  EXPECT_FALSE(BringSame(a.Different(), other.Different()));
}

TEST(HeardLines, ABoatThatLiesStillIsNoTwinByOneLine) {
  HeardLines a;
  HeardLines b;
  for (int i = 0; i < 100; ++i) {
    a.Take("$IIMTW,10,C", LineFault::None, At(100 * i));
    b.Take("$IIMTW,10,C", LineFault::None, At(100 * i));
  }
  EXPECT_FALSE(BringSame(a.Different(), b.Different()));
  EXPECT_FALSE(BringSame(a.Different(), HeardLines().Different())) << "nothing is not the same as anything";
}

TEST(HeardLines, AFloodOfKindsTakesNoMoreRoom) {
  HeardLines heard;
  for (int i = 100; i < 999; ++i) {
    heard.Take("$II" + std::to_string(i) + ",1", LineFault::None, At(i));
  }
  const std::string words = heard.Words(At(2000));
  EXPECT_EQ(std::count(words.begin(), words.end(), ','), static_cast<long>(HeardLines::kMostKinds) - 1);
}

}  // namespace
}  // namespace veerwatch
