#include "nmea/Hvm.h"

#include <gtest/gtest.h>

#include <string_view>

namespace veerwatch {
namespace {

VariationValue Decode(std::string_view line) { return DecodeHvm(Fields(line)).Variation; }

TEST(Hvm, ReadsTheVariationSignedByItsDirection) {
  EXPECT_EQ(Decode("$IIHVM,5.5,E*00").Degrees, 5.5F);
  EXPECT_EQ(Decode("$IIHVM,5.5,E*00").Direction, 'E');
  EXPECT_EQ(Decode("$IIHVM,5.5,W*00").Degrees, -5.5F);
  EXPECT_EQ(Decode("$IIHVM,5.5,W*00").Direction, 'W');
  EXPECT_TRUE(DecodeHvm(Fields("$IIHVM,5.5,W*00")).Complete());
}

TEST(Hvm, IsIncompleteWithoutADirection) {
  for (const std::string_view line :
       {"$IIHVM,5.5,*00", "$IIHVM,5.5,X*00", "$IIHVM,5.5*00", "$IIHVM,,W*00", "$IIHVM", "$IIHVM,5.5,W",
        "$IIHVM,5.5x,W*00", "$IIHVM,181,W*00", "$IIHVM,nan,E*00"}) {
    EXPECT_EQ(Decode(line).Direction, '\0') << line;
    EXPECT_FALSE(DecodeHvm(Fields(line)).Complete()) << line;
  }
}

TEST(Hvm, NeedsTwoFields) { EXPECT_EQ(Decode("$IIHVM,5.5*00").Degrees, 0.0F); }

}  // namespace
}  // namespace veerwatch
