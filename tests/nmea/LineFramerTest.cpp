#include "nmea/LineFramer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "platform/Random.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LineFramerTest : public testing::Test {
 protected:
  void Feed(std::string_view bytes) {
    m_framer.Feed(
        bytes, [this](std::string_view line) { m_lines.emplace_back(line); },
        [this](std::string_view line) { m_overlong.emplace_back(line); });
  }

  LineFramer m_framer;
  std::vector<std::string> m_lines;
  std::vector<std::string> m_overlong;
};

TEST_F(LineFramerTest, ACarriageReturnEndsALine) {
  Feed("one\rtwo\r");
  EXPECT_THAT(m_lines, ElementsAre("one", "two"));
  EXPECT_EQ(m_framer.LineBuffer(), "");
}

TEST_F(LineFramerTest, CrLfAndLfCrEndALineToo) {
  Feed("one\r\ntwo\r\n");
  Feed("three\n\rfour\n\r");
  EXPECT_THAT(m_lines, ElementsAre("one", "two", "three", "four"));
}

TEST_F(LineFramerTest, ALineFeedAloneNeverEndsALine) {
  Feed("one\ntwo\n\n");
  EXPECT_THAT(m_lines, IsEmpty());
  EXPECT_EQ(m_framer.LineBuffer(), "onetwo");
}

TEST_F(LineFramerTest, ALineFeedInsideALineVanishes) {
  Feed("\no\nn\n\ne\n\r");
  EXPECT_THAT(m_lines, ElementsAre("one"));
}

TEST_F(LineFramerTest, ALineSplitAcrossCallsIsJoined) {
  Feed("$IIMWV,04");
  EXPECT_EQ(m_framer.LineBuffer(), "$IIMWV,04");
  Feed("5,R,10.5");
  Feed("");
  Feed("\r");
  EXPECT_THAT(m_lines, ElementsAre("$IIMWV,045,R,10.5"));
}

TEST_F(LineFramerTest, AnEmptyLineIsALine) {
  Feed("\r\r\n\r");
  EXPECT_THAT(m_lines, ElementsAre("", "", ""));
}

TEST_F(LineFramerTest, KeepsEveryOtherByte) {
  std::string bytes;
  for (int i = 0; i < 256; ++i) {
    if (i != '\r' && i != '\n') {
      bytes += static_cast<char>(i);
    }
  }
  Feed(bytes + "\r");
  EXPECT_THAT(m_lines, ElementsAre(bytes));
}

TEST_F(LineFramerTest, ClearForgetsTheLineThatIsNotWholeYet) {
  Feed("half");
  m_framer.Clear();
  EXPECT_EQ(m_framer.LineBuffer(), "");
  Feed("whole\r");
  EXPECT_THAT(m_lines, ElementsAre("whole"));
}

TEST_F(LineFramerTest, ALineOfTheLongestLengthIsKept) {
  const std::string longest(4096, 'x');
  Feed(longest + "\r");
  EXPECT_THAT(m_lines, ElementsAre(longest));
  EXPECT_THAT(m_overlong, IsEmpty());
}

TEST_F(LineFramerTest, LineFeedsDoNotCountTowardsTheLength) {
  const std::string longest(4096, 'x');
  Feed("\n" + longest + "\n\n\r");
  EXPECT_THAT(m_lines, ElementsAre(longest));
  EXPECT_THAT(m_overlong, IsEmpty());
}

TEST_F(LineFramerTest, ALongerLineIsReportedOnceAndTheRestIsDropped) {
  const std::string longest(4096, 'x');
  Feed(longest + "y" + std::string(100000, 'z'));
  EXPECT_THAT(m_overlong, ElementsAre(longest));
  EXPECT_EQ(m_framer.LineBuffer(), "");
  Feed(std::string(100000, 'z') + "\n");
  EXPECT_THAT(m_lines, IsEmpty());
  Feed("\rnext\r");
  EXPECT_THAT(m_overlong, ElementsAre(longest));
  EXPECT_THAT(m_lines, ElementsAre("next"));
}

TEST_F(LineFramerTest, TheBufferNeverGrowsBeyondTheLongestLine) {
  for (int i = 0; i < 300; ++i) {
    Feed(std::string(997, 'x'));
    ASSERT_LE(m_framer.LineBuffer().size(), LineFramer::kLongestLine);
  }
  EXPECT_EQ(m_overlong.size(), 1U);
}

TEST_F(LineFramerTest, ClearEndsTheDroppingOfALongLine) {
  Feed(std::string(5000, 'x'));
  m_framer.Clear();
  Feed("next\r");
  EXPECT_THAT(m_lines, ElementsAre("next"));
}

TEST_F(LineFramerTest, ClearFromInsideALineIsTaken) {
  std::vector<std::string> lines;
  m_framer.Feed(
      "one\rtwo\rhalf",
      [&](std::string_view line) {
        m_framer.Clear();
        lines.emplace_back(line);
      },
      [](std::string_view) {});
  EXPECT_THAT(lines, ElementsAre("one", "two"));
}

TEST_F(LineFramerTest, AnyCuttingOfTheSameBytesGivesTheSameLines) {
  SeededRandom random(5);
  std::string bytes;
  for (int i = 0; i < 20000; ++i) {
    const double draw = random.Next();
    bytes += draw < 0.01 ? '\r' : draw < 0.1 ? '\n' : 'a';
  }
  bytes += std::string(9000, 'b') + "\r" + std::string(4096, 'c') + "\r" + std::string(4097, 'd') + "\r";
  Feed(bytes);
  const std::vector<std::string> lines = m_lines;
  const std::vector<std::string> overlong = m_overlong;
  ASSERT_GT(lines.size(), 100U);
  ASSERT_EQ(overlong.size(), 2U);
  for (int round = 0; round < 20; ++round) {
    m_lines.clear();
    m_overlong.clear();
    m_framer.Clear();
    for (std::size_t at = 0; at < bytes.size();) {
      const auto length = static_cast<std::size_t>(random.Next() * random.Next() * 3000.0);
      Feed(std::string_view(bytes).substr(at, length));
      at += length;
    }
    ASSERT_EQ(m_lines, lines);
    ASSERT_EQ(m_overlong, overlong);
  }
}

}  // namespace
}  // namespace veerwatch
