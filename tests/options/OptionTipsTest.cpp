#include "options/OptionTips.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

#include "options/TipLines.h"
#include "settings/SettingsTable.h"

namespace veerwatch {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

TEST(OptionTips, HaveTheHintTheRangeWithItsUnitAndTheSentence) {
  EXPECT_EQ(OptionTipText("txtTrackBandwidth", "Tracking Bandwidth (sec)"),
            "Tracking Bandwidth (sec)\nRange: above 0, in s.\nLarger when she swings or the rudder works "
            "much;\nsmaller when she follows a shift too late.");
  EXPECT_EQ(OptionTipText("txtTrackDamping", "Hint"),
            "Hint\nRange: 0 and above.\nLeave it at 4; below 1 she swings long after each\nshift.");
  EXPECT_THAT(OptionTipText("txtNmeaTrueWindAverage", "Hint"),
              HasSubstr("\nRange: 0, or above 0.5, in samples.\n"));
}

TEST(OptionTips, HaveTheBoundsOfAWholeNumber) {
  EXPECT_THAT(OptionTipText("txtNmeaPort", "Hint"), HasSubstr("\nRange: 1 to 32767.\n"));
  EXPECT_THAT(OptionTipText("txtSimulateSeed", "Hint"), HasSubstr("\nRange: 0 to 32767.\n"));
}

TEST(OptionTips, SayWhatATextMayBe) {
  EXPECT_THAT(OptionTipText("txtPilotOwnTalker", "Hint"),
              HasSubstr("\nTakes: two letters, the first of them no P.\n"));
  EXPECT_THAT(OptionTipText("txtWatchCommand", "Hint"),
              HasSubstr("\nTakes: a program with its arguments.\n"));
}

TEST(OptionTips, HaveTheRangeOfANumberThatIsNoSetting) {
  EXPECT_THAT(OptionTipText("txtTrackMin", "Hint"), HasSubstr("\nRange: -1000000 to 1000000, in deg.\n"));
  EXPECT_THAT(OptionTipText("txtTrackLag", "Hint"), HasSubstr("\nRange: 0 to 60, in s.\n"));
  EXPECT_THAT(OptionTipText("txtTrackTime", "Hint"), HasSubstr("\nRange: above 0, in s.\n"));
  EXPECT_THAT(OptionTipText("txtSimulateTime", "Hint"), HasSubstr("\nRange: hours and minutes, as 1:30.\n"));
}

TEST(OptionTips, OfWhatIsChosenHaveNoRange) {
  EXPECT_EQ(OptionTipText("cmbNmeaForeignLines", "Hint"),
            "Hint\nList where an AIS receiver is on the same wire.");
}

TEST(OptionTips, AreTheHintAloneForWhatSetsNothing) {
  EXPECT_EQ(OptionTipText("lblNmeaStatus", "Input Comm Status"), "Input Comm Status");
}

TEST(OptionTips, AreEachASentenceForAControlOfItsOwn) {
  std::set<std::string_view> controls;
  for (const OptionTip& tip : OptionTips()) {
    EXPECT_TRUE(controls.insert(tip.Control).second) << tip.Control << " has two";
    EXPECT_THAT(tip.When, EndsWith(".")) << tip.Control;
  }
}

TEST(OptionTips, KeepTheirLinesShort) {
  for (const OptionTip& tip : OptionTips()) {
    std::istringstream lines(OptionTipText(tip.Control, "Hint"));
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
      EXPECT_LE(line.size(), static_cast<std::size_t>(kTipLine)) << line;
    }
    EXPECT_LE(count, 5) << tip.Control;
  }
}

TEST(OptionTips, NameEachNumberAndEachTextThatIsTypedOnTheTabs) {
  int typed = 0;
  for (const auto& row : SettingsTable()) {
    const bool tab = std::string_view(row.Where).starts_with("Options > ") &&
                     std::string_view(row.Where) != "Options > Wind";
    if (!tab ||
        (row.Value.Member == nullptr && !row.Value.FreeText && row.Key != "Port" && row.Key != "Seed")) {
      continue;
    }
    ++typed;
    EXPECT_EQ(std::count_if(
                  OptionTips().begin(), OptionTips().end(),
                  [&row](const OptionTip& tip) { return tip.Section == row.Section && tip.Key == row.Key; }),
              1)
        << row.Section << " " << row.Key;
  }
  EXPECT_GT(typed, 30);
}

TEST(OptionTips, NameKeysThatAreThere) {
  for (const OptionTip& tip : OptionTips()) {
    const auto there = [&tip](const auto& row) { return tip.Section == row.Section && tip.Key == row.Key; };
    EXPECT_TRUE(tip.Key.empty() || std::any_of(SettingsTable().begin(), SettingsTable().end(), there))
        << tip.Control;
  }
}

}  // namespace
}  // namespace veerwatch
