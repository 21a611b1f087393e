#include "platform/OutputSlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScriptedLine : public OutputSlot::Line {
 public:
  bool Leaving() override { return IsLeaving; }
  std::size_t Write(std::string_view text) override {
    const std::size_t taken = std::min(text.size(), Takes);
    if (taken > 0) {
      Written.emplace_back(text.substr(0, taken));
      IsLeaving = Keeps;
    }
    return taken;
  }
  bool IsLeaving = false;
  bool Keeps = true;          ///< what it takes stays on its way until IsLeaving is set back
  std::size_t Takes = 1'000;  ///< characters at a time
  std::vector<std::string> Written;
};

constexpr std::int64_t kNow = 5'000'000;

TEST(OutputSlot, WritesAtOnceOnAFreeLine) {
  ScriptedLine line;
  OutputSlot slot(line);
  slot.Put("a\r\n", kNow);
  EXPECT_THAT(line.Written, ElementsAre("a\r\n"));
  EXPECT_FALSE(slot.Waiting());
}

TEST(OutputSlot, KeepsOnlyTheNewestWhileTheLineIsLeaving) {
  ScriptedLine line;
  OutputSlot slot(line);
  for (const char* sentence : {"first", "second", "third", "fourth"}) {
    slot.Put(sentence, kNow);
  }
  EXPECT_THAT(line.Written, ElementsAre("first"));
  EXPECT_TRUE(slot.Waiting());
  slot.Pump(kNow);
  EXPECT_THAT(line.Written, ElementsAre("first"));
  line.IsLeaving = false;
  slot.Pump(kNow);
  EXPECT_THAT(line.Written, ElementsAre("first", "fourth"));
  EXPECT_FALSE(slot.Waiting());
  line.IsLeaving = false;
  slot.Pump(kNow);
  EXPECT_THAT(line.Written, ElementsAre("first", "fourth"));
}

TEST(OutputSlot, PutsANewSentenceInPlaceOfAWaitingOneOnALineThatBecameFree) {
  ScriptedLine line;
  OutputSlot slot(line);
  slot.Put("first", kNow);
  slot.Put("second", kNow);
  line.IsLeaving = false;
  slot.Put("third", kNow);
  EXPECT_THAT(line.Written, ElementsAre("first", "third"));
  EXPECT_FALSE(slot.Waiting());
}

TEST(OutputSlot, ForgetsTheWaitingSentenceWhenWithdrawn) {
  ScriptedLine line;
  line.IsLeaving = true;
  OutputSlot slot(line);
  slot.Put("old", kNow);
  slot.Withdraw();
  EXPECT_FALSE(slot.Waiting());
  line.IsLeaving = false;
  slot.Pump(kNow);
  EXPECT_THAT(line.Written, IsEmpty());
}

TEST(OutputSlot, TakesAnEmptySentenceForNothing) {
  ScriptedLine line;
  line.IsLeaving = true;
  OutputSlot slot(line);
  slot.Put("kept", kNow);
  slot.Put("", kNow);
  line.IsLeaving = false;
  slot.Pump(kNow);
  EXPECT_THAT(line.Written, ElementsAre("kept"));
}

TEST(OutputSlot, CountsWhatWasWrittenAndNotWhatWaitsOrIsReplaced) {
  ScriptedLine line;
  OutputSlot slot(line);
  for (const char* sentence : {"first", "second", "third"}) {
    slot.Put(sentence, kNow);
  }
  EXPECT_EQ(slot.Written(), 1U);
  line.IsLeaving = false;
  slot.Pump(kNow);
  EXPECT_EQ(slot.Written(), 2U);
}

constexpr const char* kFirst = "one\r\ntwo\r\n";
constexpr const char* kSecond = "ONE\r\nTWO\r\n";

/// Everything that the line took.
std::string All(const ScriptedLine& line) {
  std::string all;
  for (const std::string& part : line.Written) {
    all += part;
  }
  return all;
}

TEST(OutputSlot, WritesTheSentencesOfABundleInOnePiece) {
  ScriptedLine line;
  OutputSlot slot(line);
  slot.Put(kFirst, kNow);
  EXPECT_THAT(line.Written, ElementsAre(kFirst));
  EXPECT_EQ(slot.Written(), 1U);
}

TEST(OutputSlot, ReplacesAWaitingBundleAsAWhole) {
  ScriptedLine line;
  OutputSlot slot(line);
  slot.Put("x\r\n", kNow);
  slot.Put(kFirst, kNow);
  slot.Put(kSecond, kNow);
  line.IsLeaving = false;
  slot.Pump(kNow);
  EXPECT_THAT(line.Written, ElementsAre("x\r\n", kSecond));
}

/// After how many characters of the first bundle the second one is put.
class OutputSlotCut : public testing::TestWithParam<std::size_t> {};

TEST_P(OutputSlotCut, NeverMixesTwoBundles) {
  for (const bool keeps : {false, true}) {
    ScriptedLine line;
    line.Keeps = keeps;
    line.Takes = GetParam();
    OutputSlot slot(line);
    slot.Put(kFirst, kNow);
    line.Takes = 1;
    slot.Put(kSecond, kNow);
    for (int step = 0; step < 100; ++step) {
      line.IsLeaving = false;
      slot.Pump(kNow);
    }
    EXPECT_EQ(All(line), GetParam() == 0 ? kSecond : std::string(kFirst) + kSecond);
    EXPECT_EQ(slot.Written(), GetParam() == 0 ? 1U : 2U);
    EXPECT_FALSE(slot.Waiting());
    EXPECT_FALSE(slot.OnItsWay() && !keeps);
  }
}

INSTANTIATE_TEST_SUITE_P(AfterCharacters, OutputSlotCut, testing::Range(std::size_t{0}, std::size_t{12}),
                         [](const auto& characters) { return std::to_string(characters.param); });

TEST(OutputSlot, KeepsTheNewestBundleUntilTheRestOfTheOneBeforeHasLeft) {
  ScriptedLine line;
  line.Takes = 6;
  OutputSlot slot(line);
  slot.Put(kFirst, kNow);
  EXPECT_TRUE(slot.OnItsWay());
  EXPECT_TRUE(slot.Waiting());
  EXPECT_EQ(slot.Written(), 0U);
  slot.Put(kSecond, kNow);
  EXPECT_THAT(line.Written, ElementsAre("one\r\nt", "wo\r\n"));
  EXPECT_EQ(slot.Written(), 1U);
  slot.Pump(kNow);
  EXPECT_EQ(line.Written.size(), 2U) << "it has not left";
  line.IsLeaving = false;
  slot.Pump(kNow);
  EXPECT_EQ(line.Written.size(), 3U);
}

TEST(OutputSlot, TakesABundleOfWhichNothingWasTakenForOneThatWaits) {
  ScriptedLine line;
  line.Takes = 0;
  OutputSlot slot(line);
  slot.Put(kFirst, kNow);
  EXPECT_FALSE(slot.OnItsWay());
  EXPECT_TRUE(slot.Waiting());
  slot.Withdraw();
  line.Takes = 1'000;
  slot.Pump(kNow);
  EXPECT_THAT(line.Written, IsEmpty());
}

TEST(OutputSlot, WithdrawsNothingThatIsOnItsWay) {
  ScriptedLine line;
  line.Takes = 4;
  OutputSlot slot(line);
  slot.Put(kFirst, kNow);
  slot.Withdraw();
  slot.Pump(kNow);
  slot.Pump(kNow);
  EXPECT_EQ(All(line), kFirst);
}

TEST(OutputSlot, ForgetsTheBundleThatWaitsWhenItIsCleared) {
  ScriptedLine line;
  line.IsLeaving = true;
  OutputSlot slot(line);
  slot.Put(kFirst, kNow);
  slot.Clear();
  EXPECT_FALSE(slot.Waiting());
  line.IsLeaving = false;
  slot.Pump(kNow);
  EXPECT_THAT(line.Written, IsEmpty());
}

TEST(OutputSlot, ForgetsTheRestTooWhenItIsCleared) {
  ScriptedLine line;
  line.Keeps = false;
  line.Takes = 4;
  OutputSlot slot(line);
  slot.Put(kFirst, kNow);
  slot.Clear();
  EXPECT_FALSE(slot.OnItsWay());
  slot.Pump(kNow);
  EXPECT_EQ(All(line), "one\r");
  EXPECT_EQ(slot.Written(), 0U);
}

TEST(OutputSlot, ForgetsWhatWaitedForMoreThanTwoSeconds) {
  for (const std::int64_t waited : {2000, 2001}) {
    ScriptedLine line;
    line.IsLeaving = true;
    OutputSlot slot(line);
    slot.Put(kFirst, kNow);
    line.IsLeaving = false;
    slot.Pump(kNow + waited);
    EXPECT_EQ(All(line), waited > 2000 ? "" : kFirst);
    EXPECT_FALSE(slot.Waiting());
  }
}

TEST(OutputSlot, NeverForgetsTheRestOfABundleOnItsWay) {
  ScriptedLine line;
  line.Takes = 6;
  OutputSlot slot(line);
  slot.Put(kFirst, kNow);
  slot.Pump(kNow + 60'000);
  EXPECT_EQ(All(line), kFirst);
}

TEST(OutputSlot, CountsTheWaitFromTheNewest) {
  ScriptedLine line;
  line.IsLeaving = true;
  OutputSlot slot(line);
  slot.Put(kFirst, kNow);
  slot.Put(kSecond, kNow + 1500);
  slot.Put("", kNow + 2000);
  line.IsLeaving = false;
  slot.Pump(kNow + 3500);
  EXPECT_EQ(All(line), kSecond);
}

}  // namespace
}  // namespace veerwatch
