// Two programs at a time: one profile is taken by one of them, two profiles sail side by side.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "tests/e2e/RealPorts.h"

namespace veerwatch {
namespace {

constexpr const char* kSimulated = "[Simulate]\nNmea=True\n";

bool HasSaid(Process& program, std::string_view text) {
  return Await([&] { return program.Said().find(text) != std::string::npos || !program.Runs(); }) &&
         program.Said().find(text) != std::string::npos;
}

TEST(Instances, TheSecondOneOfAProfileSaysSoAndTouchesNothing) {
  Process first(VEERWATCH_REMOTE, kSimulated);
  ASSERT_TRUE(first.Start());
  ASSERT_TRUE(HasSaid(first, "ready"));
  Process second(&first);
  ASSERT_TRUE(second.Start());
  EXPECT_TRUE(HasSaid(second, "another Veerwatch is running with this profile")) << second.Said();
  EXPECT_EQ(second.Said().find("ready"), std::string::npos);
  EXPECT_NE(
      second.Said().find("(it holds the lock on " + (first.Folder() / "Veerwatch.ini.lock").string() + ")"),
      std::string::npos)
      << second.Said();
  EXPECT_TRUE(second.Runs()) << "its message waits to be read";
  second.Terminate();
  EXPECT_TRUE(second.AwaitEnd().has_value());
  EXPECT_TRUE(first.Runs());
  EXPECT_EQ(first.Profile(), kSimulated) << "nothing was written";
  first.Tell("quit");
  EXPECT_EQ(first.AwaitEnd(), 0);
}

/// Whether a process has the file open.
bool HasOpen(pid_t process, const std::string& file) {
  for (const auto& entry : fs::directory_iterator("/proc/" + std::to_string(process) + "/fd")) {
    std::error_code gone;
    if (fs::read_symlink(entry, gone) == file) {
      return true;
    }
  }
  return false;
}

using OnePort = RealPorts;

TEST_F(OnePort, IsLeftAloneByTheSecondOfAProfile) {
  Sail();
  EXPECT_TRUE(HasOpen(m_program->Id(), In.Device()));
  Process second(&*m_program);
  ASSERT_TRUE(second.Start());
  ASSERT_TRUE(HasSaid(second, "another Veerwatch is running with this profile")) << second.Said();
  EXPECT_FALSE(HasOpen(second.Id(), In.Device()));
  EXPECT_FALSE(HasOpen(second.Id(), Out.Device()));
  WriteAll(In, ApparentWind("041"));
  EXPECT_TRUE(Pilots.Hears(Pilot("100.0")));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "41"));
  EXPECT_EQ(Pilots.Heard(), "");
  second.Terminate();
  EXPECT_TRUE(second.AwaitEnd().has_value());
  ExpectOrderlyEnd();
}

TEST(Instances, ALinkToTheProfileIsTheSameProfile) {
  Process first(VEERWATCH_REMOTE, kSimulated);
  const std::string link = (first.Folder() / "link.ini").string();
  std::filesystem::create_symlink("Veerwatch.ini", link);
  ASSERT_TRUE(first.Start());
  ASSERT_TRUE(HasSaid(first, "ready"));
  Process second(&first);
  ASSERT_TRUE(second.Start({"--profile", link}));
  EXPECT_TRUE(HasSaid(second, "another Veerwatch is running with this profile")) << second.Said();
  second.Terminate();
  EXPECT_TRUE(second.AwaitEnd().has_value());
  first.Tell("quit");
  EXPECT_EQ(first.AwaitEnd(), 0);
}

TEST(Instances, AnotherProfileSailsBesideIt) {
  Process first(VEERWATCH_REMOTE, kSimulated);
  ASSERT_TRUE(first.Start());
  ASSERT_TRUE(HasSaid(first, "ready"));
  const std::string other = (first.Folder() / "other.ini").string();
  std::ofstream(other) << kSimulated;
  Process second(&first);
  ASSERT_TRUE(second.Start({"--profile", other}));
  ASSERT_TRUE(HasSaid(second, "ready")) << second.Said();
  second.Tell("quit");
  EXPECT_EQ(second.AwaitEnd(), 0);
  EXPECT_TRUE(first.Runs());
  EXPECT_EQ(first.Profile(), kSimulated);
  first.Tell("quit");
  EXPECT_EQ(first.AwaitEnd(), 0);
}

TEST(Instances, AKilledOneKeepsNobodyOut) {
  Process first(VEERWATCH_REMOTE, kSimulated);
  ASSERT_TRUE(first.Start());
  ASSERT_TRUE(HasSaid(first, "ready"));
  first.Kill();
  EXPECT_EQ(first.AwaitEnd(), -9);
  EXPECT_TRUE(std::filesystem::exists(first.Folder() / "Veerwatch.ini.lock"));
  Process second(&first);
  ASSERT_TRUE(second.Start());
  EXPECT_TRUE(HasSaid(second, "ready")) << second.Said();
  second.Tell("quit");
  EXPECT_EQ(second.AwaitEnd(), 0);
}

/// The first of two gets to its window, whatever lies in place of the lock file, and the second one does not.
void ExpectOneRuns(const std::function<void(const fs::path& lock)>& prepare,
                   const Surroundings& around = {}) {
  Process first(VEERWATCH_REMOTE, kSimulated);
  prepare(first.Folder() / "Veerwatch.ini.lock");
  ASSERT_TRUE(first.Start({}, around));
  ASSERT_TRUE(HasSaid(first, "ready")) << first.Said();
  Process second(&first);
  ASSERT_TRUE(second.Start({}, around));
  EXPECT_TRUE(HasSaid(second, "another Veerwatch is running with this profile")) << second.Said();
  second.Terminate();
  EXPECT_TRUE(second.AwaitEnd().has_value());
  first.Terminate();
  EXPECT_TRUE(first.AwaitEnd().has_value());
}

TEST(Instances, WhatWasLeftInTheLockFileKeepsNobodyOut) {
  // Nothing, as of one that was killed while it started; a living process of a machine whose card was cloned.
  for (const std::string left :
       {"", "garbage", "1\nsystemd\nanother-host\nanother machine\nanother boot\n"}) {
    ExpectOneRuns([&](const fs::path& lock) { std::ofstream(lock) << left; });
  }
}

TEST(Instances, WhatIsInTheWayOfTheLockFileKeepsNobodyOut) {
  ExpectOneRuns([](const fs::path& lock) { fs::create_directory(lock); });
  ExpectOneRuns([](const fs::path& lock) { ASSERT_EQ(::mkfifo(lock.c_str(), 0600), 0); });
}

TEST(Instances, AFullDiskLetsNoSecondOneRun) {
  std::signal(SIGXFSZ, SIG_IGN);
  Surroundings full;
  full.Through = {"prlimit", "--fsize=0:0"};
  ExpectOneRuns([](const fs::path&) {}, full);
  std::signal(SIGXFSZ, SIG_DFL);
}

}  // namespace
}  // namespace veerwatch
