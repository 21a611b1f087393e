// Two programs at a time: one profile is taken by one of them, two profiles sail side by side.
#include <gtest/gtest.h>

#include <fstream>

#include "tests/e2e/Process.h"

namespace veerwatch {
namespace {

constexpr const char* kSimulated = "[Simulate]\nNmea=True\n";

bool Says(Process& program, std::string_view text) {
  return Await([&] { return program.Said().find(text) != std::string::npos || !program.Runs(); }) &&
         program.Said().find(text) != std::string::npos;
}

TEST(Instances, TheSecondOneOfAProfileSaysSoAndTouchesNothing) {
  Process first(VEERWATCH_REMOTE, kSimulated);
  ASSERT_TRUE(first.Start());
  ASSERT_TRUE(Says(first, "ready"));
  Process second(&first);
  ASSERT_TRUE(second.Start());
  EXPECT_TRUE(Says(second, "another Veerwatch is running with this profile")) << second.Said();
  EXPECT_EQ(second.Said().find("ready"), std::string::npos);
  EXPECT_TRUE(second.Runs()) << "its message waits to be read";
  second.Terminate();
  EXPECT_TRUE(second.AwaitEnd().has_value());
  EXPECT_TRUE(first.Runs());
  EXPECT_EQ(first.Profile(), kSimulated) << "nothing was written";
  first.Tell("quit");
  EXPECT_EQ(first.AwaitEnd(), 0);
}

TEST(Instances, AnotherProfileSailsBesideIt) {
  Process first(VEERWATCH_REMOTE, kSimulated);
  ASSERT_TRUE(first.Start());
  ASSERT_TRUE(Says(first, "ready"));
  const std::string other = (first.Folder() / "other.ini").string();
  std::ofstream(other) << kSimulated;
  Process second(&first);
  ASSERT_TRUE(second.Start({"--profile", other}));
  ASSERT_TRUE(Says(second, "ready")) << second.Said();
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
  ASSERT_TRUE(Says(first, "ready"));
  first.Kill();
  EXPECT_EQ(first.AwaitEnd(), -9);
  EXPECT_TRUE(std::filesystem::exists(first.Folder() / "Veerwatch.ini.lock"));
  Process second(&first);
  ASSERT_TRUE(second.Start());
  EXPECT_TRUE(Says(second, "ready")) << second.Said();
  second.Tell("quit");
  EXPECT_EQ(second.AwaitEnd(), 0);
}

}  // namespace
}  // namespace veerwatch
