#include "nmea/Vwr.h"

#include <gtest/gtest.h>

#include <string_view>

#include "tests/support/Origins.h"

namespace veerwatch {
namespace {

Vwr Decode(std::string_view line) { return DecodeVwr(Fields(line)); }

TEST(Vwr, ReadsTheAngleBySideAndTheSpeedInKnots) {
  const Vwr right = Decode("$WIVWR,62.00,R,15.55,N,8.00,M,28.80,K*00");
  EXPECT_EQ(right.WindAngle, 62.0F);
  EXPECT_EQ(right.WindSpeed, 15.55F);
  EXPECT_TRUE(right.Complete());
  EXPECT_EQ(Decode("$WIVWR,039,L,08.10,N,04.17,M,,*00").WindAngle, -39.0F) << "port is negative";
}

TEST(Vwr, TakesTheFirstSpeedThatIsThere) {
  EXPECT_NEAR(Decode("$WIVWR,062,R,,N,8.00,M,99.0,K*00").WindSpeed, 15.5508, 1e-3);
  EXPECT_NEAR(Decode("$WIVWR,062,R,,N,,M,28.80,K*00").WindSpeed, 15.5508, 1e-3);
  EXPECT_FALSE(Decode("$WIVWR,062,R,,N,,M,,K*00").SpeedMark);
  EXPECT_FALSE(Decode("$WIVWR,062,R,15.0,X*00").SpeedMark) << "in a unit that is not known";
}

TEST(Vwr, HasTheEndsOfItsRange) {
  EXPECT_EQ(Decode("$WIVWR,180,L,5.0,N*00").WindAngle, 180.0F) << "dead astern has no side";
  EXPECT_EQ(Decode("$WIVWR,180,R,5.0,N*00").WindAngle, 180.0F);
  EXPECT_TRUE(Decode("$WIVWR,0,L,5.0,N*00").AngleMark);
  EXPECT_FALSE(Decode("$WIVWR,181,R,5.0,N*00").AngleMark);
  EXPECT_FALSE(Decode("$WIVWR,-10,R,5.0,N*00").AngleMark);
}

TEST(Vwr, HasNoAngleWithoutASide) {
  for (const std::string_view line :
       {"$WIVWR,062,,15.5,N*00", "$WIVWR,062,T,15.5,N*00", "$WIVWR,,R,15.5,N*00", "$WIVWR,062,l,15.5,N*00"}) {
    EXPECT_FALSE(Decode(line).AngleMark) << line;
    EXPECT_TRUE(Decode(line).SpeedMark) << line;
    EXPECT_FALSE(Decode(line).Complete()) << line;
  }
}

TEST(Vwr, StopsAtWhatIsNoNumber) {
  EXPECT_FALSE(Decode("$WIVWR,6x,R,15.5,N*00").SpeedMark);
  EXPECT_FALSE(Decode("$WIVWR,062,R,1e9,N,8.0,M*00").SpeedMark);
}

TEST(Vwr, IsTheApparentWindAndVwtTheTrueOne) {
  Readings apparent{kOrigin};
  Decode("$WIVWR,039,L,08.10,N*00").AddTo(apparent);
  EXPECT_EQ(apparent.Find(Quantity::ApparentWindAngle)->Value, -39.0F);
  EXPECT_EQ(apparent.Find(Quantity::ApparentWindSpeed)->Value, 8.1F);
  Readings real{kOrigin};
  DecodeVwt(Fields("$IIVWT,039,L,08.10,N,04.17,M,,*2B")).AddTo(real);
  EXPECT_EQ(real.Find(Quantity::TrueWindAngle)->Value, -39.0F);
  EXPECT_EQ(real.Find(Quantity::TrueWindSpeed)->Value, 8.1F);
}

}  // namespace
}  // namespace veerwatch
