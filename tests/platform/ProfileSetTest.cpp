// Keys that are set.
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "tests/platform/ProfileFixture.h"

namespace veerwatch {
namespace {

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

TEST_F(ProfileTest, SetsANewKeyAfterTheLastLineOfItsSection) {
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

}  // namespace
}  // namespace veerwatch
