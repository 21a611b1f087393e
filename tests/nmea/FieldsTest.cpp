#include "nmea/Fields.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Split(std::string_view line) {
  const Fields fields(line);
  std::vector<std::string> all;
  for (std::size_t n = 1; n <= fields.Count(); ++n) {
    all.emplace_back(fields[n]);
  }
  return all;
}

TEST(Fields, LieBetweenTheCommas) {
  EXPECT_THAT(Split("$IIMWV,045,R,10.5,N,A*3C"), ElementsAre("045", "R", "10.5", "N", "A"));
}

TEST(Fields, AreEmptyBetweenAdjacentCommas) {
  EXPECT_THAT(Split("$IIHDG,123.4,,,5.0,W*hh"), ElementsAre("123.4", "", "", "5.0", "W"));
  EXPECT_THAT(Split("$IIHDG,,,,,"), ElementsAre("", "", "", "", ""));
}

TEST(Fields, TheLastOneEndsAtTheStar) {
  EXPECT_THAT(Split("$IIHVM,5.0,W*7A"), ElementsAre("5.0", "W"));
  EXPECT_THAT(Split("$IIHVM,5.0,*7A"), ElementsAre("5.0", ""));
}

TEST(Fields, TheLastOneEndsAtTheFirstStarAfterTheLastComma) {
  EXPECT_THAT(Split("$IIHVM,5*1,W*7A*7B"), ElementsAre("5*1", "W"));
}

TEST(Fields, AStarBeforeTheLastCommaIsText) {
  EXPECT_THAT(Split("$IIHVM,5*1,West"), ElementsAre("5*1", "West"));
}

TEST(Fields, TheLastOneEndsWithTheLineWithoutAStar) {
  EXPECT_THAT(Split("$IIHVM,5.0,West"), ElementsAre("5.0", "West"));
  EXPECT_THAT(Split("$IIHVM,5.0,We"), ElementsAre("5.0", "We"));
}

TEST(Fields, ALastOneOfOneCharacterWithoutAStarIsEmpty) {
  EXPECT_THAT(Split("$IIMWV,045,R,10.5,N,A"), ElementsAre("045", "R", "10.5", "N", ""));
  EXPECT_THAT(Split("$IIHVM,5.0,W"), ElementsAre("5.0", ""));
  EXPECT_THAT(Split("$IIHVM,5"), ElementsAre(""));
}

TEST(Fields, ALastOneOfOneCharacterWithAStarIsKept) {
  EXPECT_THAT(Split("$IIHVM,5*0C"), ElementsAre("5"));
  EXPECT_THAT(Split("$IIHVM,5*"), ElementsAre("5"));
}

TEST(Fields, ALastOneOfOneStarIsEmpty) { EXPECT_THAT(Split("$IIHVM,5.0,*"), ElementsAre("5.0", "")); }

TEST(Fields, AreNoneUnlessTheFirstCommaIsTheSeventhCharacter) {
  EXPECT_THAT(Split("$GPHDG5,123.4,,,5.0,W"), IsEmpty());
  EXPECT_THAT(Split("$PHDG,123.4,,,5.0,W"), IsEmpty());
  EXPECT_THAT(Split("$IIHDG"), IsEmpty());
  EXPECT_THAT(Split("$IIHDG*20"), IsEmpty());
  EXPECT_THAT(Split(""), IsEmpty());
  EXPECT_THAT(Split(","), IsEmpty());
  EXPECT_THAT(Split(",,,,,,,,"), IsEmpty());
}

TEST(Fields, AreOneEmptyFieldWhenTheCommaEndsTheLine) { EXPECT_THAT(Split("$IIHDG,"), ElementsAre("")); }

TEST(Fields, TheRestOfALineWithVeryManyIsOnlyCounted) {
  std::string line = "$IIHDG";
  for (int i = 0; i < 1000; ++i) {
    line += ",12";
  }
  const Fields fields(line);
  EXPECT_EQ(fields.Count(), 1000U);
  for (std::size_t n = 1; n <= Fields::kKept; ++n) {
    EXPECT_EQ(fields[n], "12");
  }
}

TEST(Fields, TheLastKeptOneIsCutLikeAnyOther) {
  std::string line = "$IIHDG";
  for (std::size_t i = 1; i < Fields::kKept; ++i) {
    line += ",";
  }
  EXPECT_EQ(Fields(line + ",55*00")[Fields::kKept], "55");
  EXPECT_EQ(Fields(line + ",5")[Fields::kKept], "");
  EXPECT_EQ(Fields(line + ",5,6,7")[Fields::kKept], "5");
}

TEST(Fields, WhatALineDoesNotHaveIsEmpty) {
  const Fields fields("$IIHVM,5.0,W*7A");
  EXPECT_EQ(fields[3], "");
  EXPECT_EQ(fields[Fields::kKept], "");
}

TEST(Fields, TextNeedsEnoughFieldsAndAFieldThatIsNotEmpty) {
  const Fields fields("$IIHDG,123.4,,E*00");
  ASSERT_EQ(fields.Count(), 3U);
  EXPECT_EQ(fields.Text(1, 1), "123.4");
  EXPECT_EQ(fields.Text(1, 3), "123.4");
  EXPECT_EQ(fields.Text(1, 4), std::nullopt);
  EXPECT_EQ(fields.Text(2, 1), std::nullopt);
  EXPECT_EQ(fields.Text(4, 1), std::nullopt);
}

TEST(Fields, AddUpToTheLine) {
  // Put together again with commas, the fields of a whole sentence are the sentence.
  for (const std::string_view body : {"$GPRMB,A,0.66,L,003,004,4917.24,N,12309.57,W,001.3,052.5,000.5,V",
                                      "$IIVHW,,T,123.4,M,6.5,N,,K", "$IIMWV,,,,,"}) {
    std::string line = std::string(body.substr(0, 6));
    for (const std::string& field : Split(std::string(body) + "*00")) {
      line += "," + field;
    }
    EXPECT_EQ(line, body);
  }
}

}  // namespace
}  // namespace veerwatch
