// Who may read and write a file that was replaced.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/AtomicFile.h"
#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

using std::filesystem::perms;

perms Of(const std::filesystem::path& file) { return std::filesystem::status(file).permissions(); }

TEST(WriteAtomically, KeepsThePermissionsOfTheOldFile) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder / "Veerwatch.ini";
  for (const unsigned mode : {0600U, 0640U, 0664U, 0666U, 0444U}) {
    WriteFile(file, "old");
    std::filesystem::permissions(file, static_cast<perms>(mode));
    EXPECT_EQ(WriteAtomically(file, "new"), std::nullopt);
    EXPECT_EQ(Of(file), static_cast<perms>(mode));
    std::filesystem::remove(file);
  }
}

TEST(WriteAtomically, GivesANewFileWhatTheUserGivesNewFiles) {
  const TemporaryFolder folder;
  const mode_t before = ::umask(027);
  EXPECT_EQ(WriteAtomically(folder / "Veerwatch.ini", "new"), std::nullopt);
  ::umask(before);
  EXPECT_EQ(Of(folder / "Veerwatch.ini"), static_cast<perms>(0640));
}

}  // namespace
}  // namespace veerwatch
