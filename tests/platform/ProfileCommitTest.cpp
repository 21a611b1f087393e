// A profile that is written to its file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "tests/platform/ProfileFixture.h"

namespace veerwatch {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

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
