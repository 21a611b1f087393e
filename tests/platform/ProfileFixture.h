// A profile in a folder of its own, for all tests of Profile.
#pragma once

#include "platform/Profile.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "tests/support/TemporaryFolder.h"

namespace veerwatch {

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
  const std::filesystem::path m_file = m_folder / "Veerwatch.ini";
};

}  // namespace veerwatch
