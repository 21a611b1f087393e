#include "platform/AtomicFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <optional>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

TEST(WriteAtomically, MakesANewFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(WriteAtomically(folder / "a.ini", "new"), std::nullopt);
  EXPECT_EQ(ReadFile(folder / "a.ini"), "new");
  EXPECT_THAT(folder.Names(), ElementsAre("a.ini"));
}

TEST(WriteAtomically, ReplacesAFileAndLeavesNothingBeside) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.ini", "a longer old text");
  EXPECT_EQ(WriteAtomically(folder / "a.ini", "new"), std::nullopt);
  EXPECT_EQ(ReadFile(folder / "a.ini"), "new");
  EXPECT_THAT(folder.Names(), ElementsAre("a.ini"));
}

TEST(WriteAtomically, PutsANewFileInThePlaceOfTheOldOneInsteadOfWritingIntoIt) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.ini", "old");
  // A second name of the old file still leads to the old text, so the old file was never written to.
  fs::create_hard_link(folder / "a.ini", folder / "witness");
  EXPECT_EQ(WriteAtomically(folder / "a.ini", "new"), std::nullopt);
  EXPECT_EQ(ReadFile(folder / "a.ini"), "new");
  EXPECT_EQ(ReadFile(folder / "witness"), "old");
}

TEST(WriteAtomically, WritesEveryByteAsItIs) {
  const TemporaryFolder folder;
  std::string content;
  for (int i = 0; i < 256; ++i) {
    content += static_cast<char>(i);
  }
  content += "\r\n\n\r";
  EXPECT_EQ(WriteAtomically(folder / "a.ini", content), std::nullopt);
  EXPECT_EQ(ReadFile(folder / "a.ini"), content);
}

TEST(WriteAtomically, WritesAnEmptyFile) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.ini", "old");
  EXPECT_EQ(WriteAtomically(folder / "a.ini", ""), std::nullopt);
  EXPECT_TRUE(fs::is_regular_file(folder / "a.ini"));
  EXPECT_EQ(fs::file_size(folder / "a.ini"), 0U);
}

TEST(WriteAtomically, MakesTheFolderWhereItIsMissing) {
  const TemporaryFolder folder;
  EXPECT_EQ(WriteAtomically(folder / "one" / "two" / "a.ini", "new"), std::nullopt);
  EXPECT_EQ(ReadFile(folder / "one" / "two" / "a.ini"), "new");
}

TEST(WriteAtomically, KeepsALinkALinkAndReplacesItsTarget) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "real");
  WriteFile(folder / "real" / "target.ini", "old");
  fs::create_symlink(fs::path("real") / "target.ini", folder / "a.ini");
  EXPECT_EQ(WriteAtomically(folder / "a.ini", "new"), std::nullopt);
  EXPECT_TRUE(fs::is_symlink(folder / "a.ini"));
  EXPECT_FALSE(fs::is_symlink(folder / "real" / "target.ini"));
  EXPECT_EQ(ReadFile(folder / "real" / "target.ini"), "new");
  EXPECT_THAT(folder.Names(), UnorderedElementsAre("a.ini", "real"));
}

TEST(WriteAtomically, MakesTheFileThatALinkPointsTo) {
  const TemporaryFolder folder;
  fs::create_symlink("b.ini", folder / "a.ini");
  fs::create_symlink(fs::path("not there yet") / "c.ini", folder / "b.ini");
  EXPECT_EQ(WriteAtomically(folder / "a.ini", "text"), std::nullopt);
  EXPECT_TRUE(fs::is_symlink(folder / "a.ini"));
  EXPECT_TRUE(fs::is_symlink(folder / "b.ini"));
  EXPECT_EQ(ReadFile(folder / "not there yet" / "c.ini"), "text");
}

TEST(WriteAtomically, LeavesLinksThatLeadNowhere) {
  const TemporaryFolder folder;
  fs::create_symlink("b.ini", folder / "a.ini");
  fs::create_symlink("a.ini", folder / "b.ini");
  const auto failure = WriteAtomically(folder / "a.ini", "text");
  ASSERT_TRUE(failure.has_value());
  EXPECT_NE(failure->find("a.ini"), std::string::npos);
  EXPECT_TRUE(fs::is_symlink(folder / "a.ini"));
  EXPECT_TRUE(fs::is_symlink(folder / "b.ini"));
}

TEST(WriteAtomically, SaysInOneLineThatAFolderIsInTheWayAndLeavesIt) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "a.ini");
  WriteFile(folder / "a.ini" / "inside", "kept");
  const std::optional<std::string> error = WriteAtomically(folder / "a.ini", "new");
  ASSERT_TRUE(error.has_value());
  EXPECT_FALSE(error->empty());
  EXPECT_EQ(error->find('\n'), std::string::npos);
  EXPECT_EQ(ReadFile(folder / "a.ini" / "inside"), "kept");
  EXPECT_THAT(folder.Names(), ElementsAre("a.ini"));
}

TEST(WriteAtomically, FailsOnAnEmptyFolderInTheWayToo) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "a.ini");
  EXPECT_TRUE(WriteAtomically(folder / "a.ini", "new").has_value());
  EXPECT_TRUE(fs::is_directory(folder / "a.ini"));
  EXPECT_THAT(folder.Names(), ElementsAre("a.ini"));
}

TEST(WriteAtomically, FailsWhereTheFolderIsAFile) {
  const TemporaryFolder folder;
  WriteFile(folder / "file", "kept");
  EXPECT_TRUE(WriteAtomically(folder / "file" / "a.ini", "new").has_value());
  EXPECT_EQ(ReadFile(folder / "file"), "kept");
}

TEST(WriteAtomically, FailsInAFolderThatTakesNoFiles) {
  // The kernel's own folder takes no files from anyone, the superuser included.
  if (!fs::exists("/proc/self")) {
    GTEST_SKIP() << "no such folder here";
  }
  EXPECT_TRUE(WriteAtomically("/proc/veerwatch.ini", "new").has_value());
}

TEST(WriteAtomically, KeepsTheOldFileInAFolderThatCannotBeWritten) {
  if (geteuid() == 0) {
    GTEST_SKIP() << "the superuser writes everywhere";
  }
  const TemporaryFolder folder;
  WriteFile(folder / "a.ini", "old");
  fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_TRUE(WriteAtomically(folder / "a.ini", "new").has_value());
  EXPECT_EQ(ReadFile(folder / "a.ini"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("a.ini"));
}

TEST(WriteAtomically, KeepsTheOldFileWhenTheNewOneFindsNoRoom) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.ini", "old");
  // No file of this process may grow beyond a kilobyte for the moment, as on a full disk.
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{1024, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const std::optional<std::string> error = WriteAtomically(folder / "a.ini", std::string(100000, 'x'));
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  std::signal(SIGXFSZ, handler);
  EXPECT_TRUE(error.has_value());
  EXPECT_EQ(ReadFile(folder / "a.ini"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("a.ini"));
}

}  // namespace
}  // namespace veerwatch
