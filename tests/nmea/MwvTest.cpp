#include "nmea/Mwv.h"

#include <gtest/gtest.h>

#include <string_view>

namespace veerwatch {
namespace {

Mwv Decode(std::string_view line) { return DecodeMwv(Fields(line)); }

TEST(Mwv, ReadsAngleReferenceSpeedAndUnit) {
  const Mwv mwv = Decode("$IIMWV,045.5,R,10.5,N,A*00");
  EXPECT_EQ(mwv.WindAngle, 45.5F);
  EXPECT_EQ(mwv.Reference, 'R');
  EXPECT_EQ(mwv.WindSpeed, 10.5F);
  EXPECT_EQ(mwv.SpeedUnit, "Kts");
  EXPECT_TRUE(mwv.Complete());
}

TEST(Mwv, TakesTheReferenceToTheTrueWind) { EXPECT_EQ(Decode("$IIMWV,045,T,10.5,N,A*00").Reference, 'T'); }

TEST(Mwv, DoesNotLookAtTheStatus) {
  EXPECT_TRUE(Decode("$IIMWV,045,R,10.5,N,V*00").Complete());
  EXPECT_TRUE(Decode("$IIMWV,045,R,10.5,N*00").Complete());
}

TEST(Mwv, KeepsAnotherUnitAsItStands) {
  EXPECT_EQ(Decode("$IIMWV,045,R,10.5,K,A*00").SpeedUnit, "K");
  EXPECT_EQ(Decode("$IIMWV,045,R,10.5,M,A*00").SpeedUnit, "M");
  EXPECT_TRUE(Decode("$IIMWV,045,R,10.5,K,A*00").Complete());
}

TEST(Mwv, HasNoReferenceForAnyOtherMark) {
  for (const std::string_view line : {"$IIMWV,045,X,10.5,N,A*00", "$IIMWV,045,r,10.5,N,A*00",
                                      "$IIMWV,045,,10.5,N,A*00", "$IIMWV,045,RT,10.5,N,A*00"}) {
    const Mwv mwv = Decode(line);
    EXPECT_EQ(mwv.Reference, '\0') << line;
    EXPECT_EQ(mwv.SpeedUnit, "Kts") << line;
    EXPECT_FALSE(mwv.Complete()) << line;
  }
}

TEST(Mwv, HasNoReferenceWithoutAnAngle) {
  const Mwv mwv = Decode("$IIMWV,,R,10.5,N,A*00");
  EXPECT_EQ(mwv.Reference, '\0');
  EXPECT_EQ(mwv.WindSpeed, 10.5F);
  EXPECT_EQ(mwv.SpeedUnit, "Kts");
}

TEST(Mwv, HasNoUnitWithoutASpeed) {
  const Mwv mwv = Decode("$IIMWV,045,R,,N,A*00");
  EXPECT_EQ(mwv.Reference, 'R');
  EXPECT_EQ(mwv.SpeedUnit, "");
  EXPECT_FALSE(mwv.Complete());
}

TEST(Mwv, NeedsTwoFieldsForTheAngleAndFourForTheSpeed) {
  EXPECT_EQ(Decode("$IIMWV,045*00").WindAngle, 0.0F);
  EXPECT_EQ(Decode("$IIMWV,045,R*00").Reference, 'R');
  EXPECT_EQ(Decode("$IIMWV,045,R,10.5*00").WindSpeed, 0.0F);
  EXPECT_EQ(Decode("$IIMWV,045,R,10.5,N*00").WindSpeed, 10.5F);
}

TEST(Mwv, LosesAOneCharacterLastFieldWithoutAChecksum) {
  EXPECT_EQ(Decode("$IIMWV,045,R,10.5,N").SpeedUnit, "");
  EXPECT_EQ(Decode("$IIMWV,045,R,10.5,N,A").SpeedUnit, "Kts");
}

TEST(Mwv, StopsAtAFieldThatCannotBeConverted) {
  for (const std::string_view line : {"$IIMWV,abc,R,10.5,N,A*00", "$IIMWV,361,R,10.5,N,A*00",
                                      "$IIMWV,nan,R,10.5,N,A*00", "$IIMWV,-360.5,R,10.5,N,A*00"}) {
    const Mwv mwv = Decode(line);
    EXPECT_EQ(mwv.Reference, '\0') << line;
    EXPECT_EQ(mwv.SpeedUnit, "") << line;
  }
  for (const std::string_view line : {"$IIMWV,045,R,1x,N,A*00", "$IIMWV,045,R,-1,N,A*00",
                                      "$IIMWV,045,R,1001,N,A*00", "$IIMWV,045,R,inf,N,A*00"}) {
    const Mwv mwv = Decode(line);
    EXPECT_EQ(mwv.WindAngle, 45.0F) << line;
    EXPECT_EQ(mwv.Reference, 'R') << line;
    EXPECT_EQ(mwv.SpeedUnit, "") << line;
    EXPECT_FALSE(mwv.Complete()) << line;
  }
}

TEST(Mwv, IsEmptyWithoutFields) {
  const Mwv mwv = Decode("$IIMWV");
  EXPECT_EQ(mwv.Reference, '\0');
  EXPECT_EQ(mwv.SpeedUnit, "");
  EXPECT_FALSE(mwv.Complete());
}

}  // namespace
}  // namespace veerwatch
