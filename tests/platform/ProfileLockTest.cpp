#include "platform/ProfileLock.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <optional>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

/// The kernel counts locks by open file, so a second lock in this process is held off as one of another
/// process is.
class ProfileLockTest : public testing::Test {
 protected:
  /// One program has the profile, a second one cannot have it, and a third one can after the first.
  void ExpectOneAtATime() const {
    {
      const ProfileLock first(m_profile);
      EXPECT_FALSE(first.HeldByAnother()) << first.Trouble();
      EXPECT_TRUE(ProfileLock(m_profile).HeldByAnother());
      EXPECT_TRUE(ProfileLock(m_profile).HeldByAnother()) << "one that was refused takes nothing away";
    }
    EXPECT_FALSE(ProfileLock(m_profile).HeldByAnother());
  }

  const TemporaryFolder m_folder;
  const fs::path m_profile = m_folder / "Veerwatch.ini";
  const fs::path m_lock = m_folder / "Veerwatch.ini.lock";
};

TEST_F(ProfileLockTest, KeepsASecondOneOutAndLeavesNothingBehind) {
  WriteFile(m_profile, "text");
  ExpectOneAtATime();
  EXPECT_THAT(m_folder.Names(), ElementsAre("Veerwatch.ini"));
  EXPECT_EQ(ReadFile(m_profile), "text");
}

TEST_F(ProfileLockTest, KeepsASecondOneOutOfAProfileThatIsNotThereYet) {
  ExpectOneAtATime();
  EXPECT_TRUE(m_folder.Names().empty());
}

TEST_F(ProfileLockTest, NamesTheFileThatAnotherHasLocked) {
  const ProfileLock first(m_profile);
  EXPECT_EQ(first.HeldFile(), "");
  EXPECT_EQ(first.Trouble(), "");
  EXPECT_TRUE(fs::exists(m_lock));
  EXPECT_EQ(ProfileLock(m_profile).HeldFile(), m_lock);
}

TEST_F(ProfileLockTest, TakesNoteOfNothingThatStandsInTheFile) {
  for (const char* left : {"", "garbage\x01", "1\nveerwatch\nsome other machine\n0123456789abcdef\n"}) {
    WriteFile(m_lock, left);
    ExpectOneAtATime();
  }
}

TEST_F(ProfileLockTest, TwoProfilesInOneFolderDoNotMeet) {
  const ProfileLock first(m_profile);
  const ProfileLock second(m_folder / "other.ini");
  EXPECT_FALSE(second.HeldByAnother());
}

TEST_F(ProfileLockTest, HoldsWhenTheProfileIsReplaced) {
  WriteFile(m_profile, "old");
  const ProfileLock first(m_profile);
  WriteFile(m_folder / "fresh", "new");
  fs::rename(m_folder / "fresh", m_profile);
  EXPECT_TRUE(ProfileLock(m_profile).HeldByAnother());
}

TEST_F(ProfileLockTest, HoldsWhenSomebodyRemovesItsFile) {
  WriteFile(m_profile, "text");
  const ProfileLock first(m_profile);
  fs::remove(m_lock);
  EXPECT_TRUE(ProfileLock(m_profile).HeldByAnother());
}

TEST_F(ProfileLockTest, DoesNotRemoveTheFileOfAnother) {
  std::optional<ProfileLock> first(m_profile);
  fs::remove(m_lock);
  const ProfileLock second(m_profile);
  ASSERT_FALSE(second.HeldByAnother()) << "there is no profile to tell them apart";
  first.reset();
  EXPECT_TRUE(fs::exists(m_lock));
}

TEST_F(ProfileLockTest, GoesWithoutAFileThatCannotBeMade) {
  WriteFile(m_profile, "text");
  fs::create_directory(m_lock);
  ExpectOneAtATime();
  EXPECT_EQ(ProfileLock(m_profile).Trouble(), m_lock.string() + ": it is a folder");
  {
    const ProfileLock first(m_profile);
    EXPECT_EQ(ProfileLock(m_profile).HeldFile(), m_profile);
  }
  EXPECT_TRUE(fs::is_directory(m_lock));
  fs::remove(m_lock);

  // Whoever opened it would wait for somebody at its other end.
  ASSERT_EQ(::mkfifo(m_lock.c_str(), 0600), 0);
  ExpectOneAtATime();
  EXPECT_EQ(ProfileLock(m_profile).Trouble(), m_lock.string() + ": it is a pipe");
  EXPECT_TRUE(fs::is_fifo(m_lock));
  fs::remove(m_lock);

  fs::create_symlink("elsewhere", m_lock);
  ExpectOneAtATime();
  EXPECT_THAT(ProfileLock(m_profile).Trouble(), HasSubstr(m_lock.string()));
  EXPECT_THAT(m_folder.Names(), UnorderedElementsAre("Veerwatch.ini", "Veerwatch.ini.lock"))
      << "no link is written through";
}

TEST_F(ProfileLockTest, GoesWithoutAFileAndWithoutAProfile) {
  fs::create_directory(m_lock);
  ExpectOneAtATime();
  const ProfileLock first(m_profile);
  EXPECT_EQ(ProfileLock(m_profile).HeldFile(), m_folder.Path());
}

TEST_F(ProfileLockTest, OneThatFoundNoRoomForItsFileKeepsOutOneThatFindsRoomLater) {
  WriteFile(m_profile, "text");
  fs::create_directory(m_lock);
  const ProfileLock first(m_profile);
  fs::remove(m_lock);
  EXPECT_TRUE(ProfileLock(m_profile).HeldByAnother());
}

TEST_F(ProfileLockTest, OpensNoProfileThatIsNoPlainFile) {
  ASSERT_EQ(::mkfifo(m_profile.c_str(), 0600), 0);
  ExpectOneAtATime();
}

TEST_F(ProfileLockTest, TakesAFileThatMayOnlyBeRead) {
  if (geteuid() == 0) {
    GTEST_SKIP() << "the superuser writes everywhere";
  }
  WriteFile(m_lock, "");
  fs::permissions(m_lock, fs::perms::owner_read);
  ExpectOneAtATime();
}

TEST_F(ProfileLockTest, SaysTroubleWithoutControlCharacters) {
  const fs::path profile = m_folder / "a\x1B[2J.ini";
  fs::create_directory(profile.string() + ".lock");
  EXPECT_EQ(ProfileLock(profile).Trouble(),
            m_folder.Path().string() + "/a\u241B[2J.ini.lock: it is a folder");
}

}  // namespace
}  // namespace veerwatch
