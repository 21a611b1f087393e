#include <gtest/gtest.h>

#include <random>
#include <set>
#include <sstream>

#include "platform/NumberText.h"
#include "tests/profile/AllTables.h"

namespace veerwatch {
namespace {

/// Texts that some rows take and others refuse: the extremes of every range and random numbers.
std::vector<std::string> Candidates() {
  std::vector<std::string> texts{
      "True",    "False",  "0",           "1",     "2",     "3",       "5",       "-1",      "0.5",    "0.51",
      "1e-30",   "1e6",    "-1e6",        "9999",  "-9999", "3.4e38",  "-3.4e38", "32767",   "-32767", "180",
      "-180",    "359.99", "16777215",    "86400", "600",   "#00ABFF", "a.pol",   "#FFFFFF", "360",    "540",
      "Default", "-0.001", "/boat/b.pol", "1.5",   "14",    "15",      "GP"};
  std::mt19937 dice(20);
  for (const float width : {1.0F, 400.0F, 40000.0F, 1e20F}) {
    std::uniform_real_distribution<float> number(-width, width);
    for (int i = 0; i < 8; ++i) {
      texts.push_back(ShortestText(number(dice)));
    }
  }
  return texts;
}

/// The same, and every text between the commas of a range, such as the names of an enumeration.
std::vector<std::string> With(std::vector<std::string> texts, const std::string& range) {
  std::istringstream parts(range);
  for (std::string part; std::getline(parts >> std::ws, part, ',');) {
    texts.push_back(part);
  }
  return texts;
}

template <class Struct>
Struct ReadFrom(const SettingTable<Struct>& table, const SettingRow<Struct>& row, const std::string& text,
                const Struct& before) {
  Profile profile;
  profile.ProfileSet(row.Section, row.Key, text);
  Struct all = before;
  SettingsRead(table, profile, all);
  return all;
}

template <class Struct>
std::string Content(const SettingTable<Struct>& table, const Struct& all) {
  Profile profile;
  SettingsWrite(table, profile, all);
  return profile.Content();
}

/// Calls `check` for every row of every table, with the table, the defaults and the row's name.
template <class Check>
void ForEachRow(const Check& check) {
  VisitTables([&check]<class Struct>(const SettingTable<Struct>& table, const Struct& defaults) {
    for (const SettingRow<Struct>& row : table) {
      SCOPED_TRACE("[" + row.Section + "] " + row.Key);
      check(table, row, defaults);
    }
  });
}

TEST(SettingTables, HaveNoKeyTwice) {
  std::set<std::string> names;
  ForEachRow([&names](const auto&, const auto& row, const auto&) {
    std::string name = row.Section + "/" + row.Key;
    for (char& c : name) {
      c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    EXPECT_TRUE(names.insert(name).second);
  });
  EXPECT_GT(names.size(), 90U);
}

TEST(SettingTables, SayWhatEachKeyMeansAndCanBe) {
  ForEachRow([](const auto&, const auto& row, const auto&) {
    EXPECT_FALSE(row.Meaning.empty());
    EXPECT_FALSE(row.Value.Range.empty());
    for (const std::string& text :
         {row.Meaning, row.Value.Range, std::string(row.Unit), std::string(row.Where)}) {
      EXPECT_EQ(text.find_first_of("|\n"), std::string::npos) << text;
    }
  });
}

TEST(SettingTables, ChangeWithAKeyThatMemberAlone) {
  const auto candidates = Candidates();
  ForEachRow([&candidates](const auto& table, const auto& row, const auto& defaults) {
    int changed = 0;
    for (const std::string& text : With(candidates, row.Value.Range)) {
      const auto all = ReadFrom(table, row, text, defaults);
      const std::string written = WrittenText(row, all);
      changed += written != WrittenText(row, defaults) ? 1 : 0;
      Profile alone;
      SettingsWrite(table, alone, defaults);
      alone.ProfileSet(row.Section, row.Key, written);
      EXPECT_EQ(Content(table, all), alone.Content()) << text;
    }
    EXPECT_EQ(changed > 0, row.Use != SettingUse::WrittenOnly);
  });
}

TEST(SettingTables, ReadBackWhatTheyWrote) {
  const auto candidates = Candidates();
  ForEachRow([&candidates](const auto& table, const auto& row, const auto& defaults) {
    for (const std::string& text : With(candidates, row.Value.Range)) {
      const auto all = ReadFrom(table, row, text, defaults);
      const std::string written = WrittenText(row, all);
      const auto again = ReadFrom(table, row, written, defaults);
      EXPECT_EQ(Content(table, again), Content(table, all)) << text << ", written as " << written;
    }
  });
}

TEST(SettingTables, TakeEachDefaultAgainAfterAnotherValue) {
  const auto candidates = Candidates();
  ForEachRow([&candidates]<class Struct>(const SettingTable<Struct>& table, const SettingRow<Struct>& row,
                                         const Struct& defaults) {
    if constexpr (std::is_same_v<Struct, PolarPlace>) {
      return;  // has none
    }
    if (std::is_same_v<Struct, TraceChoice> && row.Value.Range.starts_with("#")) {
      return;  // "Default" leaves the colour that is there
    }
    const std::string text = WrittenText(row, defaults);
    for (const std::string& candidate : With(candidates, row.Value.Range)) {
      const Struct other = ReadFrom(table, row, candidate, defaults);
      EXPECT_EQ(WrittenText(row, ReadFrom(table, row, text, other)), text) << "after " << candidate;
    }
  });
}

TEST(SettingTables, LeaveTheDefaultForADamagedValue) {
  ForEachRow([](const auto& table, const auto& row, const auto& defaults) {
    if (row.Value.Range == "a path" || row.Value.Range == "a program with its arguments") {
      return;  // any text is one
    }
    for (const char* text : {"", "nan", "inf", "-inf", "0x10", "1e999", "12.3x", "rubbish", "#12345G"}) {
      EXPECT_EQ(Content(table, ReadFrom(table, row, text, defaults)), Content(table, defaults)) << text;
    }
  });
}

}  // namespace
}  // namespace veerwatch
