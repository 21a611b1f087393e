#include "nmea/LineFault.h"

#include <gtest/gtest.h>

#include <string>

namespace veerwatch {
namespace {

std::string Listed(LineFault fault) {
  std::string text = "what was there before";
  ListedLine("$IIMWV,045", fault, text);
  return text;
}

std::string Failed(LineFault fault) {
  std::string text = "what was there before";
  ListedFault("$IIMWV,045", fault, text);
  return text;
}

TEST(LineFault, HasAName) {
  EXPECT_EQ(LineFaultText(LineFault::None), "");
  EXPECT_EQ(LineFaultText(LineFault::Decode), "Decode Error");
  EXPECT_EQ(LineFaultText(LineFault::Sentence), "Sentence Error");
  EXPECT_EQ(LineFaultText(LineFault::Checksum), "Checksum Error");
}

TEST(LineFault, MarksALineWhoseFrameIsBad) {
  EXPECT_EQ(Listed(LineFault::Sentence), "$IIMWV,045 <<Sentence Error>>");
  EXPECT_EQ(Listed(LineFault::Checksum), "$IIMWV,045 <<Checksum Error>>");
}

TEST(LineFault, LeavesALineWhoseFrameIsGoodAsItCame) {
  EXPECT_EQ(Listed(LineFault::None), "$IIMWV,045");
  EXPECT_EQ(Listed(LineFault::Decode), "$IIMWV,045");
}

TEST(LineFault, StandsBeforeTheLineInTheListOfErrors) {
  EXPECT_EQ(Failed(LineFault::Decode), "Decode Error - $IIMWV,045");
  EXPECT_EQ(Failed(LineFault::Sentence), "Sentence Error - $IIMWV,045");
  EXPECT_EQ(Failed(LineFault::Checksum), "Checksum Error - $IIMWV,045");
}

}  // namespace
}  // namespace veerwatch
