#include "platform/Profile.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/platform/ProfileFixture.h"

namespace veerwatch {
namespace {

namespace fs = std::filesystem;

// --- Loading
// ---------------------------------------------------------------------------------------------------

TEST_F(ProfileTest, AMissingFileIsNoErrorAndLeavesTheProfileEmpty) {
  Profile profile;
  profile.ProfileSet("S", "K", "held before");
  EXPECT_EQ(profile.Load(m_file), Profile::LoadResult::Missing);
  EXPECT_EQ(profile.Content(), "");
  EXPECT_EQ(profile.Text("S", "K"), "");
  EXPECT_TRUE(m_folder.Names().empty());
}

TEST_F(ProfileTest, TextOfTwoBytesACharacterIsUnreadable) {
  using std::string_literals::operator""s;
  for (const std::string& text : {"\xFF\xFE[\0S\0]\0"s, "\xFE\xFF\0[\0S\0]"s, "\xFF\xFE"s}) {
    WriteFile(m_file, text);
    Profile profile;
    EXPECT_EQ(profile.Load(m_file), Profile::LoadResult::Unreadable);
    EXPECT_EQ(profile.Content(), "");
  }
}

TEST_F(ProfileTest, AFolderInPlaceOfTheFileIsUnreadable) {
  fs::create_directory(m_file);
  Profile profile;
  profile.ProfileSet("S", "K", "held before");
  EXPECT_EQ(profile.Load(m_file), Profile::LoadResult::Unreadable);
  EXPECT_EQ(profile.Content(), "");
}

TEST_F(ProfileTest, AFileWithoutReadPermissionIsUnreadable) {
  if (geteuid() == 0) {
    GTEST_SKIP() << "the superuser reads everything";
  }
  WriteFile(m_file, "[S]\nK=1\n");
  fs::permissions(m_file, fs::perms::none);
  Profile profile;
  EXPECT_EQ(profile.Load(m_file), Profile::LoadResult::Unreadable);
}

TEST_F(ProfileTest, WritesNothingThatItWouldNotReadAgain) {
  const std::string start = "[A]\nx=1\n";
  const std::string before = start + std::string(Profile::kLargestFile - start.size() - 4, ';');
  WriteFile(m_file, before);
  Profile profile;
  ASSERT_EQ(profile.Load(m_file), Profile::LoadResult::Read);
  profile.ProfileSet("A", "x", "12345");
  EXPECT_EQ(profile.Content().size(), Profile::kLargestFile);
  EXPECT_EQ(profile.Commit(m_file), std::nullopt) << "the largest one";
  EXPECT_EQ(profile.Load(m_file), Profile::LoadResult::Read);
  WriteFile(m_file, before);
  profile.ProfileSet("A", "x", "123456");
  const auto failure = profile.Commit(m_file);
  ASSERT_TRUE(failure.has_value());
  EXPECT_NE(failure->find("larger than 1048576 bytes"), std::string::npos) << *failure;
  EXPECT_TRUE(ReadFile(m_file) == before) << "the old one stays";
}

TEST_F(ProfileTest, AFileOfTheLargestSizeIsReadAndALargerOneIsNot) {
  const std::string start = "[S]\nK=5\n";
  std::string content = start + std::string(Profile::kLargestFile - start.size(), ';');
  EXPECT_EQ(Loaded(content).Text("S", "K"), "5");
  WriteFile(m_file, content + ";");
  Profile profile;
  EXPECT_EQ(profile.Load(m_file), Profile::LoadResult::Unreadable);
  EXPECT_EQ(profile.Content(), "");
}

TEST_F(ProfileTest, LoadingReplacesWhatWasHeld) {
  Profile profile = Loaded("[S]\nK=1\nL=2\n");
  WriteFile(m_file, "[S]\nK=3\n");
  EXPECT_EQ(profile.Load(m_file), Profile::LoadResult::Read);
  EXPECT_EQ(profile.Text("S", "K"), "3");
  EXPECT_EQ(profile.Text("S", "L"), "");
}

TEST_F(ProfileTest, AnEmptyFileIsAProfileWithoutKeys) {
  const Profile profile = Loaded("");
  EXPECT_EQ(profile.Content(), "");
  EXPECT_EQ(profile.Text("S", "K"), "");
}

// --- Finding keys
// ----------------------------------------------------------------------------------------------

TEST_F(ProfileTest, FindsSectionAndKeyWhateverTheirCase) {
  const Profile profile = Loaded("[tRaCk]\nALARM limit=7\n");
  EXPECT_EQ(profile.Text("Track", "Alarm Limit"), "7");
  EXPECT_EQ(profile.Text("TRACK", "alarm limit"), "7");
}

TEST_F(ProfileTest, TheFirstOfTwoEqualKeysCounts) {
  EXPECT_EQ(Loaded("[S]\nK=first\nk=second\n").Text("S", "K"), "first");
}

TEST_F(ProfileTest, TheFirstOfTwoEqualSectionsCounts) {
  const Profile profile = Loaded("[S]\nK=first\n[T]\nK=other\n[s]\nK=second\nL=only here\n");
  EXPECT_EQ(profile.Text("S", "K"), "first");
  EXPECT_EQ(profile.Text("S", "L"), "");
}

TEST_F(ProfileTest, AKeyBelongsToItsOwnSectionOnly) {
  const Profile profile = Loaded("K=before any section\n[A]\nK=a\n[B]\nL=b\n");
  EXPECT_EQ(profile.Text("A", "K"), "a");
  EXPECT_EQ(profile.Text("A", "L"), "");
  EXPECT_EQ(profile.Text("B", "K"), "");
  EXPECT_EQ(profile.Text("", "K"), "");
}

TEST_F(ProfileTest, ANameMustMatchWhole) {
  const Profile profile = Loaded("[Track]\nAlarm Limit=7\n");
  EXPECT_EQ(profile.Text("Track", "Alarm"), "");
  EXPECT_EQ(profile.Text("Trac", "Alarm Limit"), "");
  EXPECT_EQ(profile.Text("Track", "Alarm Limits"), "");
}

TEST_F(ProfileTest, ACommentIsNoKey) {
  const Profile profile = Loaded("[S]\n;K=1\n; K=2\nK=3\n");
  EXPECT_EQ(profile.Text("S", "K"), "3");
  EXPECT_EQ(profile.Text("S", ";K"), "");
}

TEST_F(ProfileTest, DropsBlanksAroundNameAndValue) {
  EXPECT_EQ(Loaded("[S]\n  K \t =  a b \t\n").Text("S", "K"), "a b");
}

TEST_F(ProfileTest, DropsOnePairOfQuotesAroundAValue) {
  EXPECT_EQ(Loaded("[S]\nK=\"a b\"\n").Text("S", "K"), "a b");
  EXPECT_EQ(Loaded("[S]\nK= \"12.5\" \n").Text("S", "K"), "12.5");
  EXPECT_EQ(Loaded("[S]\nK=\"\"\n").Text("S", "K"), "");
  EXPECT_EQ(Loaded("[S]\nK=\"\"a\"\"\n").Text("S", "K"), "\"a\"");
  EXPECT_EQ(Number("\"12.5\""), 12.5F);
}

TEST_F(ProfileTest, KeepsAQuoteThatHasNoPartner) {
  EXPECT_EQ(Loaded("[S]\nK=\"a\n").Text("S", "K"), "\"a");
  EXPECT_EQ(Loaded("[S]\nK=a\"\n").Text("S", "K"), "a\"");
  EXPECT_EQ(Loaded("[S]\nK=\"\n").Text("S", "K"), "\"");
}

TEST_F(ProfileTest, KeepsEqualsSignsAndSemicolonsInsideAValue) {
  EXPECT_EQ(Loaded("[S]\nK=a=b;c\n").Text("S", "K"), "a=b;c");
}

TEST_F(ProfileTest, ReadsLinesWithEveryLineEnd) {
  EXPECT_EQ(Loaded("[S]\r\nK=1\r\nL=2\r\n").Text("S", "L"), "2");
  EXPECT_EQ(Loaded("[S]\rK=1\rL=2\r").Text("S", "L"), "2");
  EXPECT_EQ(Loaded("[S]\nK=1\r\nL=2").Text("S", "L"), "2");
}

// --- Typed reading
// -----------------------------------------------------------------------------------------------

TEST_F(ProfileTest, AMissingOrEmptyKeyLeavesTheVariable) {
  const Profile profile = Loaded("[S]\nEmpty=\nBlank=   \nQuoted=\"\"\n");
  for (const std::string_view key : {"Empty", "Blank", "Quoted", "Missing"}) {
    EXPECT_TRUE(Got(profile, "S", key, true)) << key;
    EXPECT_EQ(Got<std::int16_t>(profile, "S", key, 7), 7) << key;
    EXPECT_EQ(Got(profile, "S", key, 7.5F), 7.5F) << key;
    EXPECT_EQ(Got<std::string>(profile, "S", key, "default"), "default") << key;
  }
}

TEST_F(ProfileTest, ReadsBooleansAsWordsOrNumbers) {
  const std::vector<std::pair<std::string_view, bool>> cases{
      {"True", true}, {"False", false}, {"TRUE", true},  {"false", false},
      {"0", false},   {"0.0", false},   {"-0", false},   {"1", true},
      {"-1", true},   {"2.5", true},    {"0.001", true}, {"\"False\"", false}};
  for (const auto& [text, value] : cases) {
    EXPECT_EQ(Got(Loaded(Line(text)), "S", "K", !value), value) << text;
  }
}

TEST_F(ProfileTest, ATextThatIsNoBooleanLeavesTheVariable) {
  for (const std::string_view text :
       {"yes", "no", "on", "Tru", "Truex", "nan", "inf", "0x0", "1e999", "1x"}) {
    EXPECT_TRUE(Got(Loaded(Line(text)), "S", "K", true)) << text;
    EXPECT_FALSE(Got(Loaded(Line(text)), "S", "K", false)) << text;
  }
}

TEST_F(ProfileTest, ReadsSingles) {
  EXPECT_EQ(Number("12.5"), 12.5F);
  EXPECT_EQ(Number("-0.1"), -0.1F);
  EXPECT_EQ(Number(" 92.3 "), 92.3F);
  EXPECT_EQ(Number("1e2"), 100.0F);
  EXPECT_EQ(Number("1e-60"), 0.0F);
}

TEST_F(ProfileTest, ATextThatIsNoNumberLeavesTheVariable) {
  for (const std::string_view text : {"nan", "inf", "-inf", "0x10", "1e999", "1e39", "12.3x", "abc", "1,5",
                                      "--1", "True", "1 2", ".", "e5"}) {
    EXPECT_EQ(Number(text), -99.0F) << text;
    EXPECT_EQ(Whole(text), -99) << text;
  }
}

TEST_F(ProfileTest, RoundsANumberToAWholeOneWithTiesToEven) {
  const std::vector<std::pair<std::string_view, std::int16_t>> cases{
      {"5", 5},   {"2.4", 2},  {"2.5", 2},   {"2.6", 3},   {"3.5", 4},
      {"0.5", 0}, {"-0.5", 0}, {"-1.5", -2}, {"-2.5", -2}, {"1e2", 100}};
  for (const auto& [text, value] : cases) {
    EXPECT_EQ(Whole(text), value) << text;
  }
}

TEST_F(ProfileTest, AWholeNumberOutOfRangeLeavesTheVariable) {
  EXPECT_EQ(Whole("32767"), 32767);
  EXPECT_EQ(Whole("-32768"), -32768);
  for (const std::string_view text : {"32768", "-32769", "40000", "65541", "4294967301", "1e30"}) {
    EXPECT_EQ(Whole(text), -99) << text;
  }
  const Profile profile = Loaded("[S]\nLow=-1\nHigh=2\nGood=1\n");
  std::int16_t value = 7;
  profile.ProfileGet("S", "Low", value, 0, 1);
  EXPECT_EQ(value, 7);
  profile.ProfileGet("S", "High", value, 0, 1);
  EXPECT_EQ(value, 7);
  profile.ProfileGet("S", "Good", value, 0, 1);
  EXPECT_EQ(value, 1);
}

TEST_F(ProfileTest, CountsOnlyTheFirst79CharactersOfAValue) {
  const std::string text79 = std::string(78, 'a') + "b";
  EXPECT_EQ(Got<std::string>(Loaded(Line(text79)), "S", "K", ""), text79);
  EXPECT_EQ(Got<std::string>(Loaded(Line(text79 + "c")), "S", "K", ""), text79);
  // The 80th character would make 15 of the 1, or no number of it.
  EXPECT_EQ(Number(std::string(78, '0') + "15"), 1.0F);
  EXPECT_EQ(Whole(std::string(78, '0') + "15"), 1);
  EXPECT_EQ(Number(std::string(78, '0') + "1x"), 1.0F);
  EXPECT_EQ(Number(std::string(77, '0') + "1x"), -99.0F);
}

TEST_F(ProfileTest, GivesTheWholeTextOfALongValue) {
  const std::string text(500, 'a');
  EXPECT_EQ(Loaded(Line(text)).Text("S", "K"), text);
}

TEST_F(ProfileTest, AValueWithANulIsNoNumber) {
  using std::string_view_literals::operator""sv;
  EXPECT_EQ(Number("1\0002"sv), -99.0F);
  EXPECT_EQ(Number("\0001"sv), -99.0F);
}

}  // namespace
}  // namespace veerwatch
