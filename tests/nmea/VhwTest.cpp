#include "nmea/Vhw.h"

#include <gtest/gtest.h>

#include <string_view>

namespace veerwatch {
namespace {

Vhw Decode(std::string_view line) { return DecodeVhw(Fields(line)); }

TEST(Vhw, ReadsMagneticHeadingAndKnots) {
  const Vhw vhw = Decode("$IIVHW,128.4,T,123.4,M,6.5,N,12.0,K*00");
  EXPECT_TRUE(vhw.HeadingMark);
  EXPECT_EQ(vhw.Heading, 123.4F);
  EXPECT_TRUE(vhw.SpeedMark);
  EXPECT_EQ(vhw.Speed, 6.5F);
  EXPECT_TRUE(vhw.Complete());
}

TEST(Vhw, DoesNotLookAtTheTrueHeadingNorAtKilometres) {
  EXPECT_TRUE(Decode("$IIVHW,,,123.4,M,6.5,N,,*00").Complete());
  EXPECT_TRUE(Decode("$IIVHW,rubbish,?,123.4,M,6.5,N,nan,?*00").Complete());
}

TEST(Vhw, HasNoHeadingUnlessItIsMarkedMagnetic) {
  for (const std::string_view line : {"$IIVHW,,,123.4,T,6.5,N,,*00", "$IIVHW,,,123.4,,6.5,N,,*00",
                                      "$IIVHW,,,123.4,m,6.5,N,,*00", "$IIVHW,,,,M,6.5,N,,*00"}) {
    EXPECT_FALSE(Decode(line).HeadingMark) << line;
    EXPECT_TRUE(Decode(line).SpeedMark) << line;
    EXPECT_FALSE(Decode(line).Complete()) << line;
  }
}

TEST(Vhw, HasNoSpeedUnlessItIsInKnots) {
  for (const std::string_view line : {"$IIVHW,,,123.4,M,6.5,K,,*00", "$IIVHW,,,123.4,M,6.5,,,*00",
                                      "$IIVHW,,,123.4,M,6.5,n,,*00", "$IIVHW,,,123.4,M,,N,,*00"}) {
    EXPECT_TRUE(Decode(line).HeadingMark) << line;
    EXPECT_FALSE(Decode(line).SpeedMark) << line;
    EXPECT_FALSE(Decode(line).Complete()) << line;
  }
}

TEST(Vhw, NeedsFourFieldsForTheHeadingAndSixForTheSpeed) {
  EXPECT_EQ(Decode("$IIVHW,,,123.4*00").Heading, 0.0F);
  EXPECT_TRUE(Decode("$IIVHW,,,123.4,M*00").HeadingMark);
  EXPECT_EQ(Decode("$IIVHW,,,123.4,M,6.5*00").Speed, 0.0F);
  EXPECT_TRUE(Decode("$IIVHW,,,123.4,M,6.5,N*00").SpeedMark);
}

TEST(Vhw, StopsAtAFieldThatCannotBeConverted) {
  for (const std::string_view line : {"$IIVHW,,,12x,M,6.5,N,,*00", "$IIVHW,,,-361,M,6.5,N,,*00"}) {
    EXPECT_FALSE(Decode(line).HeadingMark) << line;
    EXPECT_FALSE(Decode(line).SpeedMark) << line;
  }
  for (const std::string_view line :
       {"$IIVHW,,,12,M,6.5x,N,,*00", "$IIVHW,,,12,M,-0.1,N,,*00", "$IIVHW,,,12,M,1000.5,N,,*00"}) {
    EXPECT_TRUE(Decode(line).HeadingMark) << line;
    EXPECT_FALSE(Decode(line).SpeedMark) << line;
  }
}

TEST(Vtg, SharesTheLayout) {
  const Vtg vtg = DecodeVtg(Fields("$GPVTG,054.7,T,034.4,M,005.5,N,010.2,K*00"));
  EXPECT_TRUE(vtg.Complete());
  EXPECT_EQ(vtg.Heading, 34.4F);
  EXPECT_EQ(vtg.Speed, 5.5F);
}

}  // namespace
}  // namespace veerwatch
