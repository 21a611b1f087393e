#include "nmea/Sentence.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/Sentences.h"

namespace veerwatch {
namespace {

TEST(CheckFrame, WantsADollarFirst) {
  EXPECT_EQ(CheckFrame("IIMWV,045,R,10.5,N,A"), Frame::NoDollar);
  EXPECT_EQ(CheckFrame(""), Frame::NoDollar);
  EXPECT_EQ(CheckFrame(" $IIMWV"), Frame::NoDollar);
  EXPECT_EQ(CheckFrame("!AIVDM,1,1,,A"), Frame::NoDollar);
  EXPECT_EQ(CheckFrame("$"), Frame::Good);
}

TEST(CheckFrame, AcceptsARightChecksum) {
  // 0x28 is the well-known checksum of this sentence.
  EXPECT_EQ(CheckFrame("$GPGLL,5300.97914,N,00259.98174,E,125926,A*28"), Frame::Good);
}

TEST(CheckFrame, RefusesAWrongChecksum) {
  EXPECT_EQ(CheckFrame("$GPGLL,5300.97914,N,00259.98174,E,125926,A*29"), Frame::WrongChecksum);
  EXPECT_EQ(CheckFrame("$GPGLL,5300.97914,N,00259.98174,E,125926,V*28"), Frame::WrongChecksum);
  EXPECT_EQ(CheckFrame("$GPGLL,5300.97914,N,00259.98174,E,125926,A*2 "), Frame::WrongChecksum);
}

TEST(CheckFrame, RefusesAChecksumInLowerCase) {
  // The characters of "GPAAM" give 0x5A: 'G' ^ 'P' = 17, ^ 'A' ^ 'A' = 17, ^ 'M' = 5A.
  EXPECT_EQ(CheckFrame("$GPAAM*5A"), Frame::Good);
  EXPECT_EQ(CheckFrame("$GPAAM*5a"), Frame::WrongChecksum);
}

TEST(CheckFrame, AcceptsLowerCaseWhereItMay) {
  constexpr FrameRules kLower{ChecksumRule::AcceptMissing, true};
  EXPECT_EQ(CheckFrame("$GPAAM*5a", kLower), Frame::Good);
  EXPECT_EQ(CheckFrame("$GPAAM*5A", kLower), Frame::Good);
  EXPECT_EQ(CheckFrame("$GPAAM*5b", kLower), Frame::WrongChecksum);
}

TEST(CheckFrame, RefusesALineWithoutAChecksumWhereOneIsRequired) {
  constexpr FrameRules kRequired{ChecksumRule::Require, false};
  EXPECT_EQ(CheckFrame("$IIMWV,045,R,10.5,N,A", kRequired), Frame::WrongChecksum);
  EXPECT_EQ(CheckFrame("$IIMWV,045,R,10.5,N,A*5", kRequired), Frame::WrongChecksum);
  EXPECT_EQ(CheckFrame("$", kRequired), Frame::WrongChecksum);
  EXPECT_EQ(CheckFrame("$GPAAM*5A", kRequired), Frame::Good);
}

TEST(CheckFrame, AcceptsALineWithoutAChecksum) {
  EXPECT_EQ(CheckFrame("$IIMWV,045,R,10.5,N,A"), Frame::Good);
  EXPECT_EQ(CheckFrame("$IIMWV,045,R,10.5,N,A*"), Frame::Good);
  EXPECT_EQ(CheckFrame("$IIMWV,045,R,10.5,N,A*5"), Frame::Good);
  EXPECT_EQ(CheckFrame("$IIMWV,045,R,10.5,N,A*555"), Frame::Good);
}

TEST(CheckFrame, TakesTheEmptyBodyOfAShortLine) {
  EXPECT_EQ(CheckFrame("$*00"), Frame::Good);
  EXPECT_EQ(CheckFrame("$*01"), Frame::WrongChecksum);
}

TEST(CheckFrame, CountsAStarInsideTheBody) {
  // 'A' ^ '*' ^ 'B' = 41 ^ 2A ^ 42 = 29.
  EXPECT_EQ(CheckFrame("$A*B*29"), Frame::Good);
}

TEST(CheckFrame, CountsBytesAbove127AsTheyAre) {
  EXPECT_EQ(CheckFrame("$\xFF*FF"), Frame::Good);
  EXPECT_EQ(CheckFrame("$\xC3\xA9*6A"), Frame::Good);  // C3 ^ A9 = 6A
}

TEST(CheckFrame, NoticesEverySingleByteOfDamageBetweenDollarAndChecksum) {
  const std::string line = WithChecksum("$IIMWV,045,R,10.5,N,A");
  ASSERT_EQ(CheckFrame(line), Frame::Good);
  const std::size_t star = line.size() - 3;
  for (std::size_t at = 1; at < line.size(); ++at) {
    for (int byte = 0; byte < 256; ++byte) {
      std::string damaged = line;
      damaged[at] = static_cast<char>(byte);
      // Without its star the line has no checksum and is good without.
      const bool good = damaged == line || at == star;
      ASSERT_EQ(CheckFrame(damaged) == Frame::Good, good) << at << " " << byte;
    }
  }
}

}  // namespace
}  // namespace veerwatch
