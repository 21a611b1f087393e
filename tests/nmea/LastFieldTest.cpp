#include <gtest/gtest.h>

#include "nmea/Fields.h"

namespace veerwatch {
namespace {

TEST(LastField, OfOneCharacterIsEmptyInALineWithoutAStar) {
  const Fields fields("$IIHVM,5.0,E");
  EXPECT_EQ(fields.Count(), 2U);
  EXPECT_EQ(fields[2], "");
}

TEST(LastField, OfOneCharacterStandsBeforeAStar) { EXPECT_EQ(Fields("$IIHVM,5.0,E*3F")[2], "E"); }

TEST(LastField, OfOneCharacterStandsInALineWithAStarInAnEarlierField) {
  const Fields fields("$IIHVM,5*0,E");
  EXPECT_EQ(fields[1], "5*0");
  EXPECT_EQ(fields[2], "E");
}

TEST(LastField, OfTwoCharactersStandsWithoutAStar) { EXPECT_EQ(Fields("$IIHVM,5.0,Ex")[2], "Ex"); }

}  // namespace
}  // namespace veerwatch
