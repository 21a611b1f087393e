#include "connect/CalibrationDesk.h"

#include <gmock/gmock.h>

#include <string>

#include "connect/ValueDesk.h"

namespace veerwatch {
namespace {

using testing::Eq;
using testing::HasSubstr;
using testing::Optional;

class CalibrationDeskTest : public testing::Test {
 protected:
  Settings Present;
  ValueDesk Values{Present};
  Moment Now{1000, 1000};

  void Seconds(int count, std::initializer_list<const char*> lines) {
    for (int second = 0; second < count; ++second) {
      for (const char* line : lines) {
        Values.Take(line + std::string("*00"), Now);
      }
      Now.Steady += 1000;
    }
  }
  Settings Applied() const {
    Settings settings = Present;
    Values.ApplyTo(settings);
    return settings;
  }
  const CalibrationDesk& Desk() const { return Values.Calibration(); }
};

TEST_F(CalibrationDeskTest, TheWindIsSetToNothingAndCountsFromThenOn) {
  EXPECT_EQ(Desk().Wind().Text, "Wind angle offset 0 deg; no apparent wind comes");
  Seconds(10, {"$IIMWV,356,R,10,N,A"});
  EXPECT_THAT(Desk().Wind().Text, HasSubstr("the wind now comes from -4 deg"));
  EXPECT_THAT(Desk().Wind().Value, Optional(4.0F));
  Values.SetWindOffset(4.0F);
  EXPECT_EQ(Applied().m_fNmeaWindOffset, 4.0F);
  Seconds(2, {"$IIMWV,356,R,10,N,A"});
  EXPECT_EQ(Values.Figure(BoatValue::WindApparent, Now), "0 deg, 10.0 kn");
  EXPECT_THAT(Desk().Wind().Value, Optional(4.0F)) << "it is right already";
}

TEST_F(CalibrationDeskTest, TheLogIsSetToTheGps) {
  Seconds(3, {"$IIVHW,,T,,M,5.0,N,,"});
  EXPECT_THAT(Desk().Speed().Text, HasSubstr("a log and a GPS are needed"));
  Seconds(10, {"$IIVHW,,T,,M,5.0,N,,", "$GPRMC,,A,,,,,6.0,90,,0,E"});
  EXPECT_EQ(Desk().Speed().Text,
            "Log factor 1.00; the log shows 5.0 kn, the GPS 6.0 kn: alike in still water");
  EXPECT_THAT(Desk().Speed().Value, Optional(1.2F));
  Values.SetSpeedFactor(1.2F);
  Seconds(2, {"$IIVHW,,T,,M,5.0,N,,", "$GPRMC,,A,,,,,6.0,90,,0,E"});
  EXPECT_EQ(Values.Figure(BoatValue::BoatSpeed, Now), "6.0 kn");
}

TEST_F(CalibrationDeskTest, ALogThatStandsIsNotComparedWithTheGps) {
  Seconds(10, {"$IIVHW,,T,,M,0.5,N,,", "$GPRMC,,A,,,,,6.0,90,,0,E"});
  EXPECT_THAT(Desk().Speed().Text, HasSubstr("too slow, or too far apart"));
  EXPECT_FALSE(Desk().Speed().Value.has_value());
}

TEST_F(CalibrationDeskTest, TheCompassIsSetToTheCourseAcrossNorth) {
  Seconds(10, {"$HCHDM,355,M", "$GPRMC,,A,,,,,6.0,006,,2,E"});
  EXPECT_THAT(Desk().Heading().Text, HasSubstr("the compass shows 355 deg, the course is 004 deg"));
  EXPECT_THAT(Desk().Heading().Value, Optional(9.0F));
  Values.SetHeadingOffset(9.0F);
  Seconds(2, {"$HCHDM,355,M", "$GPRMC,,A,,,,,6.0,006,,2,E"});
  EXPECT_EQ(Values.Figure(BoatValue::Heading, Now), "004 deg");
}

TEST_F(CalibrationDeskTest, ABoatThatLiesStillHasNoCourse) {
  Seconds(10, {"$HCHDM,355,M", "$GPRMC,,A,,,,,0.2,006,,2,E"});
  EXPECT_FALSE(Desk().Heading().Value.has_value());
  EXPECT_THAT(Desk().Heading().Text, HasSubstr("too slow to compare"));
}

}  // namespace
}  // namespace veerwatch
