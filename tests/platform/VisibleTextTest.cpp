#include "platform/VisibleText.h"

#include <gtest/gtest.h>

#include <string>

namespace veerwatch {
namespace {

using std::string_literals::operator""s;

TEST(VisibleText, LeavesWhatCanBeReadAsItIs) {
  for (const char* text : {"", "Veerwatch.ini", "a\ttab", "~ !", "\u00A0", "Möwe", "€", "\U0001F6A3",
                           "\uFFFD", "\u2400", "\uD7FF", "\uE000", "\u0800", "\U00010000", "\U0010FFFF"}) {
    EXPECT_EQ(VisibleText(text), text);
  }
}

TEST(VisibleText, PicturesTheControlCharactersBelowTheBlank) {
  EXPECT_EQ(VisibleText("a\0b"s), "a\u2400b");
  EXPECT_EQ(VisibleText("\x01\x08\n\x0B\r\x1F"), "\u2401\u2408\u240A\u240B\u240D\u241F");
  EXPECT_EQ(VisibleText("\x1B[2J"), "\u241B[2J");
}

TEST(VisibleText, PicturesDelete) { EXPECT_EQ(VisibleText("\x7F"), "\u2421"); }

TEST(VisibleText, PicturesTheControlCharactersAbove127AsTheTwoThatMeanTheSame) {
  EXPECT_EQ(VisibleText("\u0080"), "\u241B@");
  EXPECT_EQ(VisibleText("\u009B31m"), "\u241B[31m");
  EXPECT_EQ(VisibleText("\u009F"), "\u241B_");
}

TEST(VisibleText, ReplacesEachByteThatIsNoUtf8) {
  const std::string bad = "\uFFFD";
  EXPECT_EQ(VisibleText("\x9B"), bad) << "alone, a terminal of one byte a character takes it for a control";
  EXPECT_EQ(VisibleText("M\xF6we"), "M" + bad + "we");
  EXPECT_EQ(VisibleText("\xC3"), bad) << "cut off";
  EXPECT_EQ(VisibleText("\xE2\x82"), bad + bad) << "cut off";
  EXPECT_EQ(VisibleText("\xE2\x82z"), bad + bad + "z");
  EXPECT_EQ(VisibleText("\xC0\x9B"), bad + bad) << "longer than it need be";
  EXPECT_EQ(VisibleText("\xC1\xBF"), bad + bad) << "longer than it need be";
  EXPECT_EQ(VisibleText("\xE0\x82\x9B"), bad + bad + bad) << "longer than it need be";
  EXPECT_EQ(VisibleText("\xF0\x80\x82\x9B"), bad + bad + bad + bad) << "longer than it need be";
  EXPECT_EQ(VisibleText("\xED\xA0\x80"), bad + bad + bad) << "half a pair";
  EXPECT_EQ(VisibleText("\xF4\x90\x80\x80"), bad + bad + bad + bad) << "beyond the last";
  EXPECT_EQ(VisibleText("\xF5\x80\x80\x80"), bad + bad + bad + bad) << "beyond the last";
}

TEST(VisibleText, ASecondTimeChangesNothing) {
  std::string every;
  for (int byte = 0; byte < 256; ++byte) {
    every.push_back(static_cast<char>(byte));
    every.append("\xC2").push_back(static_cast<char>(byte));
  }
  const std::string once = VisibleText(every);
  EXPECT_EQ(VisibleText(once), once);
  EXPECT_EQ(VisibleBytes(every), VisibleText(VisibleBytes(every)));
}

TEST(VisibleBytes, TakesEachByteForTheCodePointOfItsNumber) {
  EXPECT_EQ(VisibleBytes("a\tz\0"s), "a\tz\u2400");
  EXPECT_EQ(VisibleBytes("\x7F\x80\x9B\x9F"), "\u2421\u241B@\u241B[\u241B_");
  EXPECT_EQ(VisibleBytes("\xA0\xFE\xFF"), "\u00A0\u00FE\u00FF");
}

}  // namespace
}  // namespace veerwatch
