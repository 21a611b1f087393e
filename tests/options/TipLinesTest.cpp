#include "options/TipLines.h"

#include <gtest/gtest.h>

#include <string>

namespace veerwatch {
namespace {

TEST(TipLines, LeavesWhatFitsIntoALine) {
  EXPECT_EQ(TipLines(""), "");
  EXPECT_EQ(TipLines("Initial Track Offset  (deg)"), "Initial Track Offset  (deg)");
  const std::string fifty = std::string(24, 'a') + " " + std::string(25, 'b');
  EXPECT_EQ(TipLines(fifty), fifty);
}

TEST(TipLines, BreaksAtTheLastBlankOfALine) {
  EXPECT_EQ(TipLines(std::string(24, 'a') + " " + std::string(26, 'b')),
            std::string(24, 'a') + "\n" + std::string(26, 'b'));
  EXPECT_EQ(
      TipLines("one two three four five six seven eight nine ten eleven twelve thirteen fourteen fifteen "
               "sixteen seventeen eighteen nineteen"),
      "one two three four five six seven eight nine ten\neleven twelve thirteen fourteen fifteen "
      "sixteen\nseventeen eighteen nineteen");
}

TEST(TipLines, LeavesAWordThatIsLongerWhole) {
  const std::string word(60, 'w');
  EXPECT_EQ(TipLines(word), word);
  EXPECT_EQ(TipLines("a " + word + " b"), "a\n" + word + "\nb");
}

TEST(TipLines, CountsALetterOfSeveralBytesOnce) {
  std::string letters;
  for (int i = 0; i < 24; ++i) {
    letters += "\u00fc";
  }
  EXPECT_EQ(TipLines(letters + " " + letters), letters + " " + letters);
}

}  // namespace
}  // namespace veerwatch
