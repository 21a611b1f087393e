#include "nmea/Hdt.h"

#include <gtest/gtest.h>

#include <string_view>

#include "tests/support/Origins.h"

namespace veerwatch {
namespace {

TEST(Hdm, ReadsAMagneticHeading) {
  EXPECT_EQ(DecodeHdm(Fields("$APHDM,218.634,M*39")).Heading, 218.634F);
  for (const std::string_view line :
       {"$APHDM,218.6,T*00", "$APHDM,218.6,*00", "$APHDM,,M*00", "$APHDM,21x,M*00", "$APHDM,218.6*00"}) {
    EXPECT_FALSE(DecodeHdm(Fields(line)).Complete()) << line;
  }
}

TEST(Hdt, ReadsATrueHeading) {
  EXPECT_EQ(DecodeHdt(Fields("$GPHDT,123.456,T*00")).Heading, 123.456F);
  for (const std::string_view line : {"$GPHDT,,T*1B", "$GPHDT,123.4,M*00", "$GPHDT,361,T*00"}) {
    EXPECT_FALSE(DecodeHdt(Fields(line)).Complete()) << line;
  }
}

TEST(Ths, IsAHeadingOnlyWhenItsInstrumentSaysSo) {
  EXPECT_EQ(DecodeThs(Fields("$INTHS,123.456,A*20")).Heading, 123.456F);
  EXPECT_EQ(DecodeThs(Fields("$INTHS,123.456,S*00")).Heading, 123.456F);
  for (const std::string_view line : {"$INTHS,123.4,E*00", "$INTHS,123.4,M*00", "$INTHS,123.4,V*00",
                                      "$INTHS,123.4,*00", "$INTHS,123.4,AS*00", "$INTHS,,A*00"}) {
    EXPECT_FALSE(DecodeThs(Fields(line)).Complete()) << line;
  }
}

TEST(Hdt, BringsATrueHeadingAndHdmAMagneticOne) {
  Readings readings{kOrigin};
  DecodeHdt(Fields("$GPHDT,100.0,T*00")).AddTo(readings);
  EXPECT_EQ(readings.Find(Quantity::HeadingTrue)->Value, 100.0F);
  EXPECT_EQ(readings.Find(Quantity::Heading), nullptr);
  DecodeHdm(Fields("$GPHDM,97.0,M*00")).AddTo(readings);
  EXPECT_EQ(readings.Find(Quantity::Heading)->Value, 97.0F);
}

}  // namespace
}  // namespace veerwatch
