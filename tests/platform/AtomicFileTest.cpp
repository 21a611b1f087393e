#include "platform/AtomicFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

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

TEST(WriteAtomically, FollowsAsManyLinksAsTheSystemDoes) {
  const TemporaryFolder folder;
  fs::create_symlink("target.ini", folder / "1");
  for (int link = 2; link <= 41; ++link) {
    fs::create_symlink(std::to_string(link - 1), folder / std::to_string(link));
  }
  EXPECT_EQ(WriteAtomically(folder / "40", "text"), std::nullopt);
  EXPECT_EQ(ReadFile(folder / "target.ini"), "text");
  EXPECT_TRUE(WriteAtomically(folder / "41", "other").has_value());
  EXPECT_EQ(ReadFile(folder / "target.ini"), "text");
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

/// Makes a pipe that whoever opens it for writing waits on for good.
void MakePipe(const fs::path& file) { ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0); }

/// Makes a socket that lies in the file system.
void MakeSocket(const fs::path& file) {
  const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  ASSERT_LT(file.string().size(), sizeof address.sun_path);
  file.string().copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  ::close(descriptor);
}

TEST(WriteAtomically, LeavesWhatIsNoPlainFileAndNamesItsKind) {
  const TemporaryFolder folder;
  MakePipe(folder / "pipe");
  MakeSocket(folder / "socket");
  fs::create_symlink("pipe", folder / "link to pipe");
  fs::create_symlink("/dev/null", folder / "link to device");
  const auto before = folder.Names();
  for (const auto& [name, kind] :
       {std::pair{"pipe", "it is a pipe"}, std::pair{"link to pipe", "it is a pipe"},
        std::pair{"socket", "it is a socket"}, std::pair{"link to device", "it is a device"}}) {
    EXPECT_EQ(WriteAtomically(folder / name, "new"),
              "cannot write " + (folder / name).string() + ": " + kind);
  }
  EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
  EXPECT_TRUE(fs::is_socket(folder / "socket"));
  EXPECT_TRUE(fs::is_symlink(folder / "link to pipe"));
  EXPECT_EQ(fs::read_symlink(folder / "link to device"), "/dev/null");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_THAT(folder.Names(), testing::UnorderedElementsAreArray(before)) << "nothing else was made";
}

TEST(WriteAtomically, TouchesNothingThatLiesBesideUnderANameLikeIts) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.ini.new", "the user's own");
  EXPECT_EQ(WriteAtomically(folder / "a.ini", "new"), std::nullopt);
  EXPECT_EQ(ReadFile(folder / "a.ini.new"), "the user's own");

  MakePipe(folder / "b.ini.new");
  EXPECT_EQ(WriteAtomically(folder / "b.ini", "new"), std::nullopt);
  EXPECT_TRUE(fs::is_fifo(folder / "b.ini.new"));

  WriteFile(folder / "witness", "kept");
  fs::create_symlink("witness", folder / "c.ini.new");
  EXPECT_EQ(WriteAtomically(folder / "c.ini", "new"), std::nullopt);
  EXPECT_EQ(ReadFile(folder / "witness"), "kept");
  EXPECT_THAT(folder.Names(), UnorderedElementsAre("a.ini", "a.ini.new", "b.ini", "b.ini.new", "c.ini",
                                                   "c.ini.new", "witness"));
}

TEST(WriteAtomically, KeepsThePermissionsOfTheOldFile) {
  const TemporaryFolder folder;
  for (const fs::perms mode : {fs::perms{0600}, fs::perms{0664}, fs::perms{0444}}) {
    WriteFile(folder / "a.ini", "old");
    fs::permissions(folder / "a.ini", mode);
    EXPECT_EQ(WriteAtomically(folder / "a.ini", "new"), std::nullopt);
    EXPECT_EQ(fs::status(folder / "a.ini").permissions(), mode);
    fs::remove(folder / "a.ini");
  }
}

TEST(WriteAtomically, WritesAFileOfTheLongestName) {
  const TemporaryFolder folder;
  const std::string name(255, 'x');
  EXPECT_EQ(WriteAtomically(folder / name, "new"), std::nullopt);
  EXPECT_EQ(ReadFile(folder / name), "new");
}

TEST(WriteAtomically, WritesAFileWhoseNameIsNoUtf8UnderItsOwnBytes) {
  const TemporaryFolder folder;
  EXPECT_EQ(WriteAtomically(folder / "M\xF6we.ini", "new"), std::nullopt);
  EXPECT_THAT(folder.Names(), ElementsAre("M\xF6we.ini"));
}

TEST(WriteAtomically, SaysNamesWithoutControlCharacters) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "a\x1B[2J\n\xFF");
  EXPECT_EQ(WriteAtomically(folder / "a\x1B[2J\n\xFF", "new"),
            "cannot write " + folder.Path().string() + "/a\u241B[2J\u240A\uFFFD: it is a folder");
}

}  // namespace
}  // namespace veerwatch
