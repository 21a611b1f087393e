// What a profile holds survives letter for letter, and any damage is survived.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Random.h"
#include "tests/platform/ProfileFixture.h"

namespace veerwatch {
namespace {

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

}  // namespace
}  // namespace veerwatch
