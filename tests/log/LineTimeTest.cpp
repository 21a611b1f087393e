#include "log/LineTime.h"

#include <gtest/gtest.h>

namespace veerwatch {
namespace {

TEST(LineTime, IsTakenOffTheFrontOfTheLine) {
  std::string line = "2026-11-21T09:15:02.123Z $IIMWV,045.0,R,10.5,N,A";
  EXPECT_EQ(TakeLineTime(line), 1795252502123);
  EXPECT_EQ(line, "$IIMWV,045.0,R,10.5,N,A");
}

TEST(LineTime, MayHaveTheNumberOfAnEndpointInFront) {
  std::string line = "12 2026-11-21T09:15:02.123Z $IIMWV,045.0,R,10.5,N,A";
  EXPECT_EQ(TakeLineTime(line), 1795252502123);
  EXPECT_EQ(line, "$IIMWV,045.0,R,10.5,N,A");
  for (const char* text :
       {"2 $IIMWV,045.0,R,10.5,N,A", "123 2026-11-21T09:15:02.123Z $", "2  2026-11-21T09:15:02.123Z $",
        "-2 2026-11-21T09:15:02.123Z $", "2", "2 ", " 2026-11-21T09:15:02.123Z $"}) {
    line = text;
    EXPECT_EQ(TakeLineTime(line), std::nullopt) << text;
    EXPECT_EQ(line, text);
  }
}

TEST(LineTime, HasAnyFractionOrNone) {
  std::string line = "1970-01-02T00:00:01Z x";
  EXPECT_EQ(TakeLineTime(line), 86401000);
  line = "1970-01-01T00:00:00.5Z x";
  EXPECT_EQ(TakeLineTime(line), 500);
  line = "1970-01-01T00:00:00.123456789Z x";
  EXPECT_EQ(TakeLineTime(line), 123);
}

TEST(LineTime, ALineWithoutOneStaysAsItIs) {
  for (const char* text : {"", "$IIMWV,045,R,10.5,N,A", "2026-11-21T09:15:02.123Z", "2026-11-21 09:15:02Z $",
                           "2026-11-21T09:15:02 $", "2026-13-21T09:15:02Z $", "2026-02-29T09:15:02Z $",
                           "2026-11-21T24:15:02Z $", "2026-11-21T09:60:02Z $", "2026-11-21T09:15:02.Z $",
                           "2026-11-21T09:15:02.1234567890Z $", "2026-11-2xT09:15:02Z $"}) {
    std::string line = text;
    EXPECT_EQ(TakeLineTime(line), std::nullopt) << text;
    EXPECT_EQ(line, text);
  }
}

TEST(LineTime, MayBeSecondsSince1970) {
  std::string line = "1795252502.123456 $IIMWV,045.0,R,10.5,N,A";
  EXPECT_EQ(TakeLineTime(line), 1795252502123);
  EXPECT_EQ(line, "$IIMWV,045.0,R,10.5,N,A");
  line = "1795252502.5 x";
  EXPECT_EQ(TakeLineTime(line), 1795252502500);
  line = "1795252502 x";
  EXPECT_EQ(TakeLineTime(line), 1795252502000);
  for (const char* text : {"12345678 x", "123456789012 x", "1795252502.1", "1795252502x", "1795252502"}) {
    line = text;
    EXPECT_EQ(TakeLineTime(line), std::nullopt) << text;
    EXPECT_EQ(line, text);
  }
}

TEST(LineTime, MayStandInATagBlock) {
  std::string line = "\\s:vane,c:1795252502*5B\\$IIMWV,045.0,R,10.5,N,A";
  EXPECT_EQ(TakeLineTime(line), 1795252502000);
  EXPECT_EQ(line, "$IIMWV,045.0,R,10.5,N,A");
  line = "\\c:1795252502123*5B\\$II";
  EXPECT_EQ(TakeLineTime(line), 1795252502123);
  line = "\\s:vane*5B\\$II";
  EXPECT_EQ(TakeLineTime(line), std::nullopt);
  EXPECT_EQ(line, "$II") << "the block is no part of the sentence";
  line = "\\s:vane,c:12x*5B\\$II";
  EXPECT_EQ(TakeLineTime(line), std::nullopt);
  line = "\\s:vane";
  EXPECT_EQ(TakeLineTime(line), std::nullopt);
  EXPECT_EQ(line, "\\s:vane");
}

}  // namespace
}  // namespace veerwatch
