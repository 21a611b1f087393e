#include "platform/WholeFile.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/TemporaryFolder.h"

namespace veerwatch {
namespace {

constexpr std::uintmax_t kMiB = 1U << 20U;

TEST(WholeFile, ReadsEveryByteUpToTheLimit) {
  const TemporaryFolder folder;
  std::string bytes(kMiB, 'x');
  bytes[5] = '\0';
  bytes.back() = '\r';
  WriteFile(folder / "a", bytes);
  const WholeFile whole = ReadWholeFile(folder / "a", kMiB);
  EXPECT_EQ(whole.Error, "");
  EXPECT_TRUE(whole.Bytes == bytes);
  WriteFile(folder / "a", "");
  EXPECT_EQ(ReadWholeFile(folder / "a", kMiB).Error, "") << "an empty one too";
}

TEST(WholeFile, RefusesALargerOneWithoutReadingIt) {
  const TemporaryFolder folder;
  WriteFile(folder / "a", std::string(kMiB + 1, 'x'));
  EXPECT_EQ(ReadWholeFile(folder / "a", kMiB).Error, "larger than 1 MiB");
  // 40 GB that take no room on the disk.
  ASSERT_EQ(::truncate((folder / "a").c_str(), off_t{40} << 30), 0);
  const WholeFile sparse = ReadWholeFile(folder / "a", kMiB);
  EXPECT_EQ(sparse.Error, "larger than 1 MiB");
  EXPECT_EQ(sparse.Bytes, "");
}

TEST(WholeFile, OpensNoPipeAndNoDevice) {
  const TemporaryFolder folder;
  // Nobody writes into the pipe: opened, it would wait for ever.
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(ReadWholeFile(folder / "pipe", kMiB).Error, "not a file");
  EXPECT_EQ(ReadWholeFile("/dev/zero", kMiB).Error, "not a file");
  EXPECT_EQ(ReadWholeFile(folder.Path(), kMiB).Error, "not a file");
}

TEST(WholeFile, TellsWhatTheSystemSays) {
  const TemporaryFolder folder;
  EXPECT_EQ(ReadWholeFile(folder / "none", kMiB).Error, "No such file or directory");
  EXPECT_NE(ReadWholeFile({}, kMiB).Error, "");
  if (::access("/proc/self/mem", R_OK) == 0) {
    // Opens like a file; reading its first bytes is refused.
    EXPECT_NE(ReadWholeFile("/proc/self/mem", kMiB).Error, "");
  }
}

TEST(WholeFile, TellsThatNoMoreFilesCanBeOpened) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer opens files of its own";
#endif
  const TemporaryFolder folder;
  WriteFile(folder / "a", "text");
  rlimit limit{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &limit), 0);
  const rlimit none{0, limit.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
  const WholeFile whole = ReadWholeFile(folder / "a", kMiB);
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &limit), 0);
  EXPECT_EQ(whole.Error, "Too many open files");
}

TEST(WholeFile, ReadsNoMoreOfAFileThatTellsNoSize) {
  if (::access("/proc/kallsyms", R_OK) != 0) {
    GTEST_SKIP() << "no such file here";
  }
  EXPECT_EQ(ReadWholeFile("/proc/kallsyms", kMiB).Error, "larger than 1 MiB");
}

}  // namespace
}  // namespace veerwatch
