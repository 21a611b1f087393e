#include "nmea/Checksum.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace veerwatch {
namespace {

std::string Text(int checksum) {
  const auto digits = ChecksumText(static_cast<std::uint8_t>(checksum));
  return {digits[0], digits[1]};
}

TEST(Checksum, IsTheExclusiveOrOfTheBytes) {
  EXPECT_EQ(Checksum(""), 0);
  EXPECT_EQ(Checksum("A"), 0x41);
  EXPECT_EQ(Checksum("AA"), 0);
  EXPECT_EQ(Checksum("AB"), 0x41 ^ 0x42);
  // The well-known example sentence of a position fix.
  EXPECT_EQ(Checksum("GPGLL,5300.97914,N,00259.98174,E,125926,A"), 0x28);
}

TEST(Checksum, TakesBytesAbove127AsTheyAre) {
  EXPECT_EQ(Checksum("\xFF"), 0xFF);
  EXPECT_EQ(Checksum("\xFF\x01"), 0xFE);
  EXPECT_EQ(Checksum(std::string_view("\0\x10", 2)), 0x10);
}

TEST(ChecksumText, IsAlwaysTwoUpperCaseDigits) {
  EXPECT_EQ(Text(0x00), "00");
  EXPECT_EQ(Text(0x0A), "0A");
  EXPECT_EQ(Text(0x10), "10");
  EXPECT_EQ(Text(0x5C), "5C");
  EXPECT_EQ(Text(0xFF), "FF");
}

}  // namespace
}  // namespace veerwatch
