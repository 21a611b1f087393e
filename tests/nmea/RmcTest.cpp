#include "nmea/Rmc.h"

#include <gtest/gtest.h>

#include <string_view>

namespace veerwatch {
namespace {

Rmc Decode(std::string_view line) { return DecodeRmc(Fields(line)); }

TEST(Rmc, ReadsSpeedCourseAndVariation) {
  const Rmc rmc = Decode("$GPRMC,123519,A,4807.0,N,01131.0,E,5.2,230.0,230394,3.1,W*00");
  EXPECT_TRUE(rmc.SpeedMark);
  EXPECT_EQ(rmc.Speed, 5.2F);
  EXPECT_TRUE(rmc.CourseMark);
  EXPECT_EQ(rmc.Course, 230.0F);
  EXPECT_EQ(rmc.Variation.Degrees, -3.1F);
  EXPECT_TRUE(rmc.Complete());
}

TEST(Rmc, DoesNotLookAtTimeStatusPositionAndDate) {
  EXPECT_TRUE(Decode("$GPRMC,,V,,,,,5.2,230.0,,3.1,E*00").Complete());
  EXPECT_TRUE(Decode("$GPRMC,?,?,?,?,?,?,5.2,230.0,?,3.1,E*00").Complete());
}

TEST(Rmc, IsIncompleteWithoutVariationButKeepsCourseAndSpeed) {
  const Rmc rmc = Decode("$GPRMC,123519,A,4807.0,N,01131.0,E,5.2,230.0,230394,,*00");
  EXPECT_TRUE(rmc.SpeedMark);
  EXPECT_TRUE(rmc.CourseMark);
  EXPECT_EQ(rmc.Variation.Direction, '\0');
  EXPECT_FALSE(rmc.Complete());
}

TEST(Rmc, IsIncompleteWithoutSpeedOrCourse) {
  const Rmc noSpeed = Decode("$GPRMC,,A,,,,,,230.0,,3.1,E*00");
  EXPECT_FALSE(noSpeed.SpeedMark);
  EXPECT_TRUE(noSpeed.CourseMark);
  EXPECT_FALSE(noSpeed.Complete());
  const Rmc noCourse = Decode("$GPRMC,,A,,,,,5.2,,,3.1,E*00");
  EXPECT_TRUE(noCourse.SpeedMark);
  EXPECT_FALSE(noCourse.CourseMark);
  EXPECT_FALSE(noCourse.Complete());
}

TEST(Rmc, NeedsSevenFieldsForSpeedEightForCourseElevenForVariation) {
  EXPECT_FALSE(Decode("$GPRMC,,A,,,,*00").SpeedMark);
  EXPECT_TRUE(Decode("$GPRMC,,A,,,,,5.2*00").SpeedMark);
  EXPECT_TRUE(Decode("$GPRMC,,A,,,,,5.2,230.0*00").CourseMark);
  EXPECT_EQ(Decode("$GPRMC,,A,,,,,5.2,230.0,,3.1*00").Variation.Degrees, 0.0F);
  EXPECT_EQ(Decode("$GPRMC,,A,,,,,5.2,230.0,,3.1,E*00").Variation.Degrees, 3.1F);
}

TEST(Rmc, TakesTheModeAfterTheVariation) {
  EXPECT_EQ(Decode("$GPRMC,,A,,,,,5.2,230.0,,3.1,W,A*00").Variation.Degrees, -3.1F);
  EXPECT_EQ(Decode("$GPRMC,,A,,,,,5.2,230.0,,3.1,W,A").Variation.Degrees, -3.1F);
}

TEST(Rmc, StopsAtAFieldThatCannotBeConverted) {
  const Rmc badSpeed = Decode("$GPRMC,,A,,,,,5.2x,230.0,,3.1,E*00");
  EXPECT_FALSE(badSpeed.SpeedMark);
  EXPECT_FALSE(badSpeed.CourseMark);
  EXPECT_EQ(badSpeed.Variation.Direction, '\0');
  const Rmc badCourse = Decode("$GPRMC,,A,,,,,5.2,360.5,,3.1,E*00");
  EXPECT_TRUE(badCourse.SpeedMark);
  EXPECT_FALSE(badCourse.CourseMark);
  EXPECT_EQ(badCourse.Variation.Direction, '\0');
  const Rmc badVariation = Decode("$GPRMC,,A,,,,,5.2,230.0,,181,E*00");
  EXPECT_TRUE(badVariation.SpeedMark);
  EXPECT_TRUE(badVariation.CourseMark);
  EXPECT_EQ(badVariation.Variation.Direction, '\0');
}

}  // namespace
}  // namespace veerwatch
