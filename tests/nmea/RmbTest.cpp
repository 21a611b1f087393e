#include "nmea/Rmb.h"

#include <gtest/gtest.h>

#include <string_view>

namespace veerwatch {
namespace {

Rmb Decode(std::string_view line) { return DecodeRmb(Fields(line)); }

TEST(Rmb, ReadsRangeAndBearing) {
  const Rmb rmb = Decode("$GPRMB,A,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V*00");
  EXPECT_TRUE(rmb.RangeMark);
  EXPECT_EQ(rmb.Range, 1.3F);
  EXPECT_TRUE(rmb.BearingMark);
  EXPECT_EQ(rmb.Bearing, 52.5F);
  EXPECT_TRUE(rmb.Complete());
}

TEST(Rmb, UsesAnInvalidStatusLikeAValidOne) {
  EXPECT_EQ(Decode("$GPRMB,V,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V*00").Range, 1.3F);
  EXPECT_EQ(Decode("$GPRMB,,,,,,,,,,001.3,052.5*00").Range, 1.3F);
}

TEST(Rmb, ShiftsByOneFieldWhenOnlyTheSecondIsTheStatus) {
  const Rmb rmb = Decode("$GPRMB,X,A,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V*00");
  EXPECT_EQ(rmb.Range, 1.3F);
  EXPECT_EQ(rmb.Bearing, 52.5F);
  EXPECT_TRUE(rmb.Complete());
  EXPECT_EQ(Decode("$GPRMB,,A,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V*00").Range, 1.3F);
  EXPECT_EQ(Decode("$GPRMB,V,A,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V*00").Range, 1.3F);
}

TEST(Rmb, DoesNotShiftWhenTheFirstFieldIsTheStatusToo) {
  EXPECT_EQ(Decode("$GPRMB,A,A,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V*00").Range, 1.3F);
}

TEST(Rmb, DoesNotShiftWhenTheSecondFieldIsAnInvalidStatus) {
  EXPECT_EQ(Decode("$GPRMB,X,V,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V*00").Range, 1.3F);
}

TEST(Rmb, NeedsTenFieldsForTheRangeAndElevenForTheBearing) {
  EXPECT_FALSE(Decode("$GPRMB,A,,,,,,,,1.3*00").RangeMark);
  const Rmb ten = Decode("$GPRMB,A,,,,,,,,,1.3*00");
  EXPECT_TRUE(ten.RangeMark);
  EXPECT_FALSE(ten.BearingMark);
  EXPECT_FALSE(ten.Complete());
  EXPECT_TRUE(Decode("$GPRMB,A,,,,,,,,,1.3,52.5*00").Complete());
}

TEST(Rmb, NeedsOneFieldMoreWhenShifted) {
  EXPECT_FALSE(Decode("$GPRMB,X,A,,,,,,,,1.3*00").RangeMark);
  EXPECT_TRUE(Decode("$GPRMB,X,A,,,,,,,,,1.3*00").RangeMark);
  EXPECT_TRUE(Decode("$GPRMB,X,A,,,,,,,,,1.3,52.5*00").Complete());
}

TEST(Rmb, IsIncompleteWithoutRangeOrBearing) {
  const Rmb noRange = Decode("$GPRMB,A,,,,,,,,,,52.5,*00");
  EXPECT_FALSE(noRange.RangeMark);
  EXPECT_TRUE(noRange.BearingMark);
  EXPECT_FALSE(noRange.Complete());
  EXPECT_FALSE(Decode("$GPRMB,A,,,,,,,,,1.3,,*00").Complete());
}

TEST(Rmb, StopsAtAFieldThatCannotBeConverted) {
  for (const std::string_view line : {"$GPRMB,A,,,,,,,,,1.3x,52.5,*00", "$GPRMB,A,,,,,,,,,-1,52.5,*00",
                                      "$GPRMB,A,,,,,,,,,100001,52.5,*00"}) {
    EXPECT_FALSE(Decode(line).RangeMark) << line;
    EXPECT_FALSE(Decode(line).BearingMark) << line;
  }
  const Rmb badBearing = Decode("$GPRMB,A,,,,,,,,,1.3,361,*00");
  EXPECT_TRUE(badBearing.RangeMark);
  EXPECT_FALSE(badBearing.BearingMark);
}

}  // namespace
}  // namespace veerwatch
