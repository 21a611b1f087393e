#include "platform/Profile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Random.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

class ProfileTest : public testing::Test {
 protected:
  Profile Loaded(std::string_view content) {
    WriteFile(m_file, content);
    Profile profile;
    EXPECT_EQ(profile.Load(m_file), Profile::LoadResult::Read);
    return profile;
  }

  template <class T>
  static T Got(const Profile& profile, std::string_view section, std::string_view key, T value) {
    profile.ProfileGet(section, key, value);
    return value;
  }

  float Number(std::string_view text) { return Got(Loaded(Line(text)), "S", "K", -99.0F); }
  std::int16_t Whole(std::string_view text) { return Got<std::int16_t>(Loaded(Line(text)), "S", "K", -99); }

  static std::string Line(std::string_view text) { return "[S]\nK=" + std::string(text) + "\n"; }

  const TemporaryFolder m_folder;
  const fs::path m_file = m_folder / "Veerwatch.ini";
};

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

// --- Lines survive
// -----------------------------------------------------------------------------------------------

std::vector<std::string> StrangeContents() {
  std::string bytes;
  for (int i = 0; i < 256; ++i) {
    bytes += static_cast<char>(i);
  }
  SeededRandom random(11);
  std::string noise;
  const std::string_view alphabet("[]=;\"\r\n \tKS\0\xFF", 13);
  for (int i = 0; i < 4000; ++i) {
    noise += alphabet[static_cast<std::size_t>(random.Next() * static_cast<double>(alphabet.size()))];
  }
  return {"",
          "\n",
          "\r",
          "\r\n",
          "\n\r",
          "\r\r\n\n",
          "no section",
          "[S]",
          "[S]\nK=1",
          "[S]\r\nK=1\r\n",
          "\xEF\xBB\xBF[S]\r\nK=1\r\n",
          "; comment\n\n  [S]  \n\tK = \"1\" ; behind\n\n[Unknown]\nother = value\n\n\n",
          "[S\nK=1\n]\n=\n=1\nK\n[]\n[]]\n",
          std::string("a\0b\n[S]\nK\0=1\n\0", 14),
          std::string(10000, '['),
          std::string(10000, '\n'),
          bytes,
          bytes + bytes,
          noise};
}

TEST_F(ProfileTest, KeepsEveryFileLetterForLetter) {
  for (const std::string& content : StrangeContents()) {
    const Profile profile = Loaded(content);
    ASSERT_EQ(profile.Content(), content);
    ASSERT_EQ(profile.Commit(m_file), std::nullopt);
    ASSERT_EQ(ReadFile(m_file), content);
  }
}

TEST_F(ProfileTest, SettingAKeyLeavesEveryOtherLineOfAnyFileLetterForLetter) {
  for (const std::string& content : StrangeContents()) {
    Profile profile = Loaded(content);
    profile.ProfileSet("Section of its own", "Key", "v");
    const std::string after = profile.Content();
    // A last line without an end may get one; apart from that the old text stands unchanged in front.
    ASSERT_EQ(after.substr(0, content.size()), content);
    ASSERT_EQ(profile.Text("Section of its own", "Key"), "v");
    WriteFile(m_file, after);
    Profile again;
    ASSERT_EQ(again.Load(m_file), Profile::LoadResult::Read);
    ASSERT_EQ(again.Text("Section of its own", "Key"), "v");
    ASSERT_EQ(again.Text("S", "K"), Loaded(content).Text("S", "K"));
  }
}

TEST_F(ProfileTest, EveryTruncationOfAFileIsRead) {
  const std::string content =
      "; mine\r\n[Track]\r\nDamping=4.5\r\nAlarm=False\r\n\r\n[Other]\r\nKey=\"quoted\"\r\n";
  for (std::size_t length = 0; length <= content.size(); ++length) {
    const std::string prefix = content.substr(0, length);
    const Profile profile = Loaded(prefix);
    ASSERT_EQ(profile.Content(), prefix);
    const float damping = Got(profile, "Track", "Damping", -1.0F);
    ASSERT_TRUE(damping == -1.0F || damping == 4.0F || damping == 4.5F) << prefix;
    // Only the whole word switches it off.
    const bool whole = length >= content.find("False") + 5;
    ASSERT_EQ(Got(profile, "Track", "Alarm", true), !whole) << prefix;
  }
}

TEST_F(ProfileTest, EverySingleByteOfDamageIsSurvived) {
  const std::string content = "; mine\n[Track]\nDamping=4.5\nAlarm=False\n";
  for (std::size_t at = 0; at < content.size(); ++at) {
    for (int byte = 0; byte < 256; byte += 3) {
      std::string damaged = content;
      damaged[at] = static_cast<char>(byte);
      Profile profile = Loaded(damaged);
      ASSERT_EQ(profile.Content(), damaged);
      ASSERT_TRUE(std::isfinite(Got(profile, "Track", "Damping", 1.0F)));
      profile.ProfileSet("Track", "Damping", 2.0F);
      ASSERT_EQ(Got(profile, "Track", "Damping", 1.0F), 2.0F) << damaged;
    }
  }
}

// --- Setting keys
// ------------------------------------------------------------------------------------------------

TEST_F(ProfileTest, SetsAKeyInItsOwnLine) {
  Profile profile = Loaded("; top\n[A]\nX=1\nK=old\nY=2\n[B]\nK=b\n");
  profile.ProfileSet("a", "k", "new");
  const std::string content = profile.Content();
  EXPECT_EQ(profile.Text("A", "K"), "new");
  EXPECT_EQ(profile.Text("B", "K"), "b");
  EXPECT_EQ(content.substr(0, content.find('\n', 14) + 1).find("; top\n[A]\nX=1\n"), 0U);
  EXPECT_NE(content.find("new\nY=2\n[B]\nK=b\n"), std::string::npos) << content;
  EXPECT_EQ(content.find("old"), std::string::npos) << content;
}

TEST_F(ProfileTest, SetsTheFirstOfTwoEqualKeysAndLeavesTheSecond) {
  Profile profile = Loaded("[S]\nK=1\nK=2\n");
  profile.ProfileSet("S", "K", "3");
  EXPECT_EQ(profile.Content(), "[S]\nK=3\nK=2\n");
}

TEST_F(ProfileTest, SetsANewKeyBehindTheLastLineOfItsSection) {
  Profile profile = Loaded("[A]\nX=1\n[B]\nY=2\n");
  profile.ProfileSet("A", "K", "new");
  EXPECT_EQ(profile.Content(), "[A]\nX=1\nK=new\n[B]\nY=2\n");
}

TEST_F(ProfileTest, SetsANewSectionAtTheEnd) {
  Profile profile = Loaded("[A]\nX=1\n");
  profile.ProfileSet("B", "K", "new");
  const std::string content = profile.Content();
  EXPECT_EQ(content.find("[A]\nX=1\n"), 0U);
  EXPECT_NE(content.find("[B]\nK=new\n"), std::string::npos) << content;
}

TEST_F(ProfileTest, DoesNotGlueANewLineToALastOneWithoutAnEnd) {
  Profile profile = Loaded("[A]\nX=1");
  profile.ProfileSet("A", "K", "new");
  EXPECT_EQ(profile.Text("A", "X"), "1");
  EXPECT_EQ(profile.Content().find("[A]\nX=1\nK=new"), 0U) << profile.Content();
  Profile other = Loaded("[A]\nX=1");
  other.ProfileSet("B", "K", "new");
  EXPECT_EQ(other.Content().find("[A]\nX=1\n"), 0U);
  EXPECT_NE(other.Content().find("[B]\nK=new"), std::string::npos) << other.Content();
}

TEST_F(ProfileTest, WritesNewLinesWithTheLineEndOfTheFile) {
  Profile profile = Loaded("[A]\r\nX=1\r\n");
  profile.ProfileSet("A", "K", "1");
  profile.ProfileSet("B", "K", "2");
  const std::string content = profile.Content();
  for (std::size_t at = content.find('\n'); at != std::string::npos; at = content.find('\n', at + 1)) {
    ASSERT_GT(at, 0U);
    ASSERT_EQ(content[at - 1], '\r') << content;
  }
  EXPECT_EQ(content.find("[A]\r\nX=1\r\nK=1\r\n"), 0U) << content;
}

TEST_F(ProfileTest, KeepsTheLineEndOfALineThatIsSet) {
  Profile profile = Loaded("[A]\nK=1\r\nL=2\n");
  profile.ProfileSet("A", "K", "3");
  EXPECT_EQ(profile.Content(), "[A]\nK=3\r\nL=2\n");
}

TEST_F(ProfileTest, SettingTheSameValuesAgainChangesNothing) {
  Profile profile = Loaded("; mine\r\n[A]\r\nK=1\r\n");
  profile.ProfileSet("A", "F", 2.5F);
  profile.ProfileSet("B", "T", true);
  const std::string once = profile.Content();
  profile.ProfileSet("A", "F", 2.5F);
  profile.ProfileSet("B", "T", true);
  EXPECT_EQ(profile.Content(), once);
}

TEST_F(ProfileTest, WritesEachTypeInItsOwnText) {
  Profile profile;
  profile.ProfileSet("S", "Yes", true);
  profile.ProfileSet("S", "No", false);
  profile.ProfileSet("S", "Whole", std::int16_t{-5});
  profile.ProfileSet("S", "Single", 92.3F);
  profile.ProfileSet("S", "Round", 2.0F);
  profile.ProfileSet("S", "Small", 1e-5F);
  profile.ProfileSet("S", "Text", std::string_view("a b"));
  EXPECT_EQ(profile.Content(),
            "[S]\nYes=True\nNo=False\nWhole=-5\nSingle=92.3\nRound=2\nSmall=0.00001\nText=a b\n");
}

TEST_F(ProfileTest, DoesNotSetAValueThatIsNotFinite) {
  Profile profile = Loaded("[S]\nK=5\n");
  profile.ProfileSet("S", "K", std::numeric_limits<float>::quiet_NaN());
  profile.ProfileSet("S", "K", std::numeric_limits<float>::infinity());
  profile.ProfileSet("S", "New", -std::numeric_limits<float>::infinity());
  EXPECT_EQ(profile.Content(), "[S]\nK=5\n");
}

TEST_F(ProfileTest, WritesControlCharactersOfATextAsBlanks) {
  Profile profile;
  profile.ProfileSet("S", "K", std::string_view("a\nb\rc\0d\te", 9));
  EXPECT_EQ(profile.Text("S", "K"), "a b c d e");
  EXPECT_EQ(profile.Content(), "[S]\nK=a b c d e\n");
}

TEST_F(ProfileTest, EverySingleReadsBackAsItWasSet) {
  for (const float value : {0.0F, 0.1F, -0.1F, 92.3F, 359.99997F, 1e-30F, -3.4028235e38F, 16777215.0F}) {
    Profile profile;
    profile.ProfileSet("S", "K", value);
    EXPECT_EQ(Got(profile, "S", "K", -99.0F), value);
  }
}

// --- Committing
// --------------------------------------------------------------------------------------------------

TEST_F(ProfileTest, CommitsToOneFileAndLeavesNothingBeside) {
  Profile profile = Loaded("[S]\nK=1\n");
  profile.ProfileSet("S", "K", "2");
  EXPECT_EQ(profile.Commit(m_file), std::nullopt);
  EXPECT_EQ(ReadFile(m_file), "[S]\nK=2\n");
  EXPECT_THAT(m_folder.Names(), ElementsAre("Veerwatch.ini"));
}

TEST_F(ProfileTest, CommitsThroughALinkThatStaysALink) {
  WriteFile(m_folder / "real.ini", "[S]\nK=1\n");
  fs::create_symlink("real.ini", m_file);
  Profile profile;
  ASSERT_EQ(profile.Load(m_file), Profile::LoadResult::Read);
  profile.ProfileSet("S", "K", "2");
  EXPECT_EQ(profile.Commit(m_file), std::nullopt);
  EXPECT_TRUE(fs::is_symlink(m_file));
  EXPECT_EQ(ReadFile(m_folder / "real.ini"), "[S]\nK=2\n");
}

TEST_F(ProfileTest, AFailedCommitSaysWhyAndLeavesAFolderInTheWay) {
  fs::create_directory(m_file);
  WriteFile(m_file / "inside", "kept");
  Profile profile;
  profile.ProfileSet("S", "K", "1");
  const std::optional<std::string> error = profile.Commit(m_file);
  ASSERT_TRUE(error.has_value());
  EXPECT_FALSE(error->empty());
  EXPECT_EQ(error->find('\n'), std::string::npos);
  EXPECT_EQ(ReadFile(m_file / "inside"), "kept");
  EXPECT_THAT(m_folder.Names(), ElementsAre("Veerwatch.ini"));
}

TEST_F(ProfileTest, ACommitIntoAPlaceThatIsNoFolderFails) {
  WriteFile(m_folder / "file", "kept");
  Profile profile;
  profile.ProfileSet("S", "K", "1");
  EXPECT_TRUE(profile.Commit(m_folder / "file" / "Veerwatch.ini").has_value());
  EXPECT_EQ(ReadFile(m_folder / "file"), "kept");
}

TEST_F(ProfileTest, PutsAFileThatItCouldNotReadAsideFirst) {
  const std::string large(Profile::kLargestFile + 1, ';');
  WriteFile(m_file, large);
  Profile profile;
  ASSERT_EQ(profile.Load(m_file), Profile::LoadResult::Unreadable);
  profile.ProfileSet("S", "K", "1");
  EXPECT_EQ(profile.Commit(m_file), std::nullopt);
  EXPECT_EQ(ReadFile(m_file), "[S]\nK=1\n");
  EXPECT_EQ(ReadFile(m_folder / "Veerwatch.ini.unreadable"), large);
  EXPECT_THAT(m_folder.Names(), UnorderedElementsAre("Veerwatch.ini", "Veerwatch.ini.unreadable"));
}

TEST_F(ProfileTest, PutsAFileAsideThatBecameUnreadableAfterTheLoad) {
  WriteFile(m_file, "[S]\nK=1\n");
  Profile profile;
  ASSERT_EQ(profile.Load(m_file), Profile::LoadResult::Read);
  const std::string large(Profile::kLargestFile + 1, ';');
  WriteFile(m_file, large);
  EXPECT_EQ(profile.Commit(m_file), std::nullopt);
  EXPECT_EQ(ReadFile(m_file), "[S]\nK=1\n");
  EXPECT_EQ(ReadFile(m_folder / "Veerwatch.ini.unreadable"), large);
}

TEST_F(ProfileTest, PutsAnUnreadableFileAsideOnce) {
  WriteFile(m_file, std::string(Profile::kLargestFile + 1, ';'));
  Profile profile;
  ASSERT_EQ(profile.Load(m_file), Profile::LoadResult::Unreadable);
  for (const char* value : {"1", "2", "3"}) {
    profile.ProfileSet("S", "K", value);
    EXPECT_EQ(profile.Commit(m_file), std::nullopt);
  }
  EXPECT_EQ(ReadFile(m_file), "[S]\nK=3\n");
  EXPECT_THAT(m_folder.Names(), UnorderedElementsAre("Veerwatch.ini", "Veerwatch.ini.unreadable"));
}

TEST_F(ProfileTest, PutsEveryFileThatItCouldNotReadAsideUnderANameOfItsOwn) {
  const std::string large(Profile::kLargestFile + 1, ';');
  for (const char* mark : {"first", "second"}) {
    WriteFile(m_file, large + mark);
    Profile profile;
    ASSERT_EQ(profile.Load(m_file), Profile::LoadResult::Unreadable);
    EXPECT_EQ(profile.Commit(m_file), std::nullopt);
  }
  EXPECT_EQ(ReadFile(m_folder / "Veerwatch.ini.unreadable"), large + "first");
  EXPECT_EQ(ReadFile(m_folder / "Veerwatch.ini.unreadable.unreadable"), large + "second");
}

#ifdef __linux__
TEST_F(ProfileTest, AFileWithAReadErrorIsUnreadable) {
  Profile profile;
  EXPECT_EQ(profile.Load("/proc/self/mem"), Profile::LoadResult::Unreadable);
  EXPECT_EQ(profile.Content(), "");
}
#endif

TEST_F(ProfileTest, WhatWasCommittedReadsBackTheSame) {
  Profile profile;
  profile.ProfileSet("Track", "Alarm", false);
  profile.ProfileSet("Track", "Damping", 4.25F);
  profile.ProfileSet("Nmea", "Port", std::int16_t{12});
  profile.ProfileSet("Polar Data", "File 1", "/boats/a polar.pol");
  ASSERT_EQ(profile.Commit(m_file), std::nullopt);
  Profile again;
  ASSERT_EQ(again.Load(m_file), Profile::LoadResult::Read);
  EXPECT_FALSE(Got(again, "Track", "Alarm", true));
  EXPECT_EQ(Got(again, "Track", "Damping", 0.0F), 4.25F);
  EXPECT_EQ(Got<std::int16_t>(again, "Nmea", "Port", 0), 12);
  EXPECT_EQ(Got<std::string>(again, "Polar Data", "File 1", ""), "/boats/a polar.pol");
}

}  // namespace
}  // namespace veerwatch
