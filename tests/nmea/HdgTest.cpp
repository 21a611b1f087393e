#include "nmea/Hdg.h"

#include <gtest/gtest.h>

#include <string_view>

namespace veerwatch {
namespace {

Hdg Decode(std::string_view line) { return DecodeHdg(Fields(line)); }

TEST(Hdg, ReadsHeadingAndWesterlyVariation) {
  const Hdg hdg = Decode("$IIHDG,123.4,,,5.0,W*00");
  EXPECT_TRUE(hdg.HeadingMark);
  EXPECT_EQ(hdg.Heading, 123.4F);
  EXPECT_EQ(hdg.Variation.Degrees, -5.0F);
  EXPECT_EQ(hdg.Variation.Direction, 'W');
  EXPECT_TRUE(hdg.Complete());
}

TEST(Hdg, ReadsEasterlyVariation) {
  const Hdg hdg = Decode("$IIHDG,123.4,1.0,E,5.5,E*00");
  EXPECT_EQ(hdg.Variation.Degrees, 5.5F);
  EXPECT_EQ(hdg.Variation.Direction, 'E');
}

TEST(Hdg, DoesNotLookAtTheDeviation) { EXPECT_TRUE(Decode("$IIHDG,123.4,rubbish,?,5.0,W*00").Complete()); }

TEST(Hdg, IsIncompleteWithoutVariation) {
  const Hdg hdg = Decode("$IIHDG,123.4,,,,*00");
  EXPECT_TRUE(hdg.HeadingMark);
  EXPECT_EQ(hdg.Variation.Direction, '\0');
  EXPECT_FALSE(hdg.Complete());
}

TEST(Hdg, IsIncompleteWithoutHeading) {
  const Hdg hdg = Decode("$IIHDG,,,,5.0,W*00");
  EXPECT_FALSE(hdg.HeadingMark);
  EXPECT_EQ(hdg.Variation.Degrees, -5.0F);
  EXPECT_FALSE(hdg.Complete());
}

TEST(Hdg, HasNoDirectionForAnyOtherMark) {
  for (const std::string_view line : {"$IIHDG,123.4,,,5.0,N*00", "$IIHDG,123.4,,,5.0,w*00",
                                      "$IIHDG,123.4,,,5.0,*00", "$IIHDG,123.4,,,5.0,EW*00"}) {
    EXPECT_EQ(Decode(line).Variation.Direction, '\0') << line;
    EXPECT_FALSE(Decode(line).Complete()) << line;
  }
}

TEST(Hdg, HasNoDirectionWithoutAVariation) {
  EXPECT_EQ(Decode("$IIHDG,123.4,,,,W*00").Variation.Direction, '\0');
}

TEST(Hdg, NeedsOneFieldForTheHeadingAndFiveForTheVariation) {
  EXPECT_TRUE(Decode("$IIHDG,123.4*00").HeadingMark);
  EXPECT_TRUE(Decode("$IIHDG,123.4").HeadingMark);
  EXPECT_EQ(Decode("$IIHDG,123.4,,,5.0*00").Variation.Degrees, 0.0F);
  EXPECT_EQ(Decode("$IIHDG,123.4,,,5.0,W*00").Variation.Degrees, -5.0F);
}

TEST(Hdg, LosesTheDirectionAtTheEndOfALineWithoutAChecksum) {
  EXPECT_EQ(Decode("$IIHDG,123.4,,,5.0,W").Variation.Direction, '\0');
}

TEST(Hdg, StopsAtAFieldThatCannotBeConverted) {
  for (const std::string_view line :
       {"$IIHDG,12x,,,5.0,W*00", "$IIHDG,361,,,5.0,W*00", "$IIHDG,nan,,,5.0,W*00"}) {
    EXPECT_FALSE(Decode(line).HeadingMark) << line;
    EXPECT_EQ(Decode(line).Variation.Direction, '\0') << line;
  }
  for (const std::string_view line : {"$IIHDG,12.5,,,5.0x,W*00", "$IIHDG,12.5,,,180.5,W*00"}) {
    EXPECT_TRUE(Decode(line).HeadingMark) << line;
    EXPECT_EQ(Decode(line).Heading, 12.5F) << line;
    EXPECT_EQ(Decode(line).Variation.Direction, '\0') << line;
    EXPECT_FALSE(Decode(line).Complete()) << line;
  }
}

}  // namespace
}  // namespace veerwatch
