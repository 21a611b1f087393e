#include "log/LogReader.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace veerwatch {

namespace {

std::vector<std::string> Lines(const std::string& log, LineEnds ends) {
  std::istringstream stream(log);
  LogReader reader(stream, ends);
  std::vector<std::string> lines;
  for (std::string line; reader.Next(line);) {
    lines.push_back(line);
  }
  return lines;
}

using Texts = std::vector<std::string>;

TEST(LogReader, EndsLinesAtEveryKindOfLineEnd) {
  EXPECT_EQ(Lines("a\nb\rc\r\nd", LineEnds::Any), (Texts{"a", "b", "c", "d"}));
}

TEST(LogReader, KeepsEmptyLinesAndAddsNoneAtTheEnd) {
  EXPECT_EQ(Lines("a\n\nb\r\n\r\n", LineEnds::Any), (Texts{"a", "", "b", ""}));
  EXPECT_EQ(Lines("", LineEnds::Any), Texts{});
}

TEST(LogReader, TakesLineFeedBeforeCarriageReturnAsTwoEnds) {
  EXPECT_EQ(Lines("a\n\rb", LineEnds::Any), (Texts{"a", "", "b"}));
}

TEST(LogReader, RawLinesEndAtCarriageReturnsAndLoseTheirLineFeeds) {
  EXPECT_EQ(Lines("a\nb\r\nc\r\r", LineEnds::CarriageReturn), (Texts{"ab", "c", ""}));
}

TEST(LogReader, RawDropsAnUnfinishedLastLine) {
  EXPECT_EQ(Lines("a\rb", LineEnds::CarriageReturn), (Texts{"a"}));
}

TEST(LogReader, PassesEveryByte) {
  std::string bytes;
  for (int c = 0; c < 256; ++c) {
    if (c != '\n' && c != '\r') {
      bytes.push_back(static_cast<char>(c));
    }
  }
  EXPECT_EQ(Lines(bytes + "\r", LineEnds::CarriageReturn), (Texts{bytes}));
  EXPECT_EQ(Lines(bytes, LineEnds::Any), (Texts{bytes}));
}

TEST(LogReader, DropsTheRestOfAnEndlessLine) {
  const std::string endless(LogReader::kLongestLine + 100, 'x');
  const Texts lines = Lines(endless + "\ny", LineEnds::Any);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].size(), LogReader::kLongestLine);
  EXPECT_EQ(lines[1], "y");
}

}  // namespace

}  // namespace veerwatch
