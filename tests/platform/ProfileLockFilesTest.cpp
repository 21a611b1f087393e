// The files that a lock of a profile has open.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>
#include <iterator>
#include <optional>

#include "platform/ProfileLock.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

namespace fs = std::filesystem;

std::ptrdiff_t OpenFiles() {
  const fs::directory_iterator files("/proc/self/fd");
  return std::distance(begin(files), end(files));
}

/// While this lives the program is as one that was started with its standard input closed, so that the next
/// file opened has the number 0.
class WithoutInput {
 public:
  WithoutInput() { ::close(STDIN_FILENO); }
  ~WithoutInput() {
    ::dup2(m_input, STDIN_FILENO);
    ::close(m_input);
  }
  WithoutInput(const WithoutInput&) = delete;
  WithoutInput& operator=(const WithoutInput&) = delete;

 private:
  int m_input = ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3);
};

class ProfileLockFiles : public testing::Test {
 protected:
  const TemporaryFolder m_folder;
  const fs::path m_profile = m_folder / "Veerwatch.ini";
};

TEST_F(ProfileLockFiles, AreClosedAtTheEnd) {
  const std::ptrdiff_t before = OpenFiles();
  {
    const ProfileLock first(m_profile);
    EXPECT_GT(OpenFiles(), before);
    EXPECT_TRUE(ProfileLock(m_profile).HeldByAnother());
  }
  EXPECT_EQ(OpenFiles(), before);
}

TEST_F(ProfileLockFiles, LockAlsoByTheNumber0) {
  {
    const WithoutInput without;
    const ProfileLock first(m_profile);
    EXPECT_NE(::fcntl(STDIN_FILENO, F_GETFD), -1) << "the lock has the number 0";
    EXPECT_TRUE(ProfileLock(m_profile).HeldByAnother());
    const int folder = ::open(m_folder.Path().c_str(), O_RDONLY | O_DIRECTORY);
    EXPECT_EQ(::flock(folder, LOCK_EX | LOCK_NB), 0) << "the lock file is enough";
    ::close(folder);
  }
  EXPECT_FALSE(ProfileLock(m_profile).HeldByAnother());
}

TEST_F(ProfileLockFiles, OfTheNumber0AreClosedByOneThatIsRefused) {
  const ProfileLock first(m_profile);
  const WithoutInput without;
  EXPECT_TRUE(ProfileLock(m_profile).HeldByAnother());
  EXPECT_EQ(::fcntl(STDIN_FILENO, F_GETFD), -1);
}

}  // namespace
}  // namespace veerwatch
