#include "platform/OutputSlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScriptedLine : public OutputSlot::Line {
 public:
  bool Busy() override { return IsBusy; }
  void Write(std::string_view sentence) override {
    Written.emplace_back(sentence);
    IsBusy = true;
  }
  bool IsBusy = false;
  std::vector<std::string> Written;
};

TEST(OutputSlot, WritesAtOnceOnAFreeLine) {
  ScriptedLine line;
  OutputSlot slot(line);
  slot.Put("a\r\n");
  EXPECT_THAT(line.Written, ElementsAre("a\r\n"));
  EXPECT_FALSE(slot.Waiting());
}

TEST(OutputSlot, WritesASentenceOnceThoughTheLineComesBackMeanwhile) {
  class ReturningLine : public ScriptedLine {
   public:
    void Write(std::string_view sentence) override {
      Written.emplace_back(sentence);
      if (Written.size() < 5) {
        Slot->Pump();
      }
    }
    OutputSlot* Slot = nullptr;
  };
  ReturningLine line;
  OutputSlot slot(line);
  line.Slot = &slot;
  slot.Put("a");
  EXPECT_THAT(line.Written, ElementsAre("a"));
  EXPECT_EQ(slot.Written(), 1U);
}

TEST(OutputSlot, KeepsOnlyTheNewestWhileTheLineIsBusy) {
  ScriptedLine line;
  OutputSlot slot(line);
  for (const char* sentence : {"first", "second", "third", "fourth"}) {
    slot.Put(sentence);
  }
  EXPECT_THAT(line.Written, ElementsAre("first"));
  EXPECT_TRUE(slot.Waiting());
  slot.Pump();
  EXPECT_THAT(line.Written, ElementsAre("first"));
  line.IsBusy = false;
  slot.Pump();
  EXPECT_THAT(line.Written, ElementsAre("first", "fourth"));
  EXPECT_FALSE(slot.Waiting());
  line.IsBusy = false;
  slot.Pump();
  EXPECT_THAT(line.Written, ElementsAre("first", "fourth"));
}

TEST(OutputSlot, PutsANewSentenceInPlaceOfAWaitingOneOnALineThatBecameFree) {
  ScriptedLine line;
  OutputSlot slot(line);
  slot.Put("first");
  slot.Put("second");
  line.IsBusy = false;
  slot.Put("third");
  EXPECT_THAT(line.Written, ElementsAre("first", "third"));
  EXPECT_FALSE(slot.Waiting());
}

TEST(OutputSlot, ForgetsTheWaitingSentenceWhenCleared) {
  ScriptedLine line;
  line.IsBusy = true;
  OutputSlot slot(line);
  slot.Put("old");
  slot.Clear();
  EXPECT_FALSE(slot.Waiting());
  line.IsBusy = false;
  slot.Pump();
  EXPECT_THAT(line.Written, IsEmpty());
}

TEST(OutputSlot, TakesAnEmptySentenceForNothing) {
  ScriptedLine line;
  line.IsBusy = true;
  OutputSlot slot(line);
  slot.Put("kept");
  slot.Put("");
  line.IsBusy = false;
  slot.Pump();
  EXPECT_THAT(line.Written, ElementsAre("kept"));
}

TEST(OutputSlot, CountsWhatWasWrittenAndNotWhatWaitsOrIsReplaced) {
  ScriptedLine line;
  OutputSlot slot(line);
  for (const char* sentence : {"first", "second", "third"}) {
    slot.Put(sentence);
  }
  EXPECT_EQ(slot.Written(), 1U);
  line.IsBusy = false;
  slot.Pump();
  EXPECT_EQ(slot.Written(), 2U);
}

}  // namespace
}  // namespace veerwatch
