#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veerwatch {
namespace {

CommandLine Read(const std::vector<std::string>& words) {
  std::vector<const char*> pointers{"veerwatch"};
  for (const std::string& word : words) {
    pointers.push_back(word.c_str());
  }
  return ReadCommandLine(static_cast<int>(pointers.size()), pointers.data());
}

TEST(CommandLine, MayBeEmpty) {
  const CommandLine line = Read({});
  EXPECT_FALSE(line.Help || line.Version || line.Profile);
  EXPECT_EQ(line.Trouble, "");
  EXPECT_EQ(ReadCommandLine(0, nullptr).Trouble, "");
}

TEST(CommandLine, AsksForHelpOrTheVersion) {
  for (const char* word : {"-h", "--help"}) {
    EXPECT_TRUE(Read({word}).Help);
    EXPECT_FALSE(Read({word}).Version);
    EXPECT_TRUE(Read({"-platform", "offscreen", word}).Help) << "after the toolkit's options";
  }
  for (const char* word : {"-v", "--version"}) {
    EXPECT_TRUE(Read({word}).Version);
    EXPECT_FALSE(Read({word}).Help);
  }
  EXPECT_FALSE(Read({"--", "--help"}).Help);
}

TEST(CommandLine, AsksForTheReport) {
  EXPECT_FALSE(Read({}).Diagnose);
  const CommandLine line = Read({"--diagnose", "--profile", "a.ini"});
  EXPECT_TRUE(line.Diagnose);
  EXPECT_EQ(line.Profile, "a.ini");
  EXPECT_EQ(line.Trouble, "");
}

TEST(CommandLine, NamesAProfileInItsOwnBytes) {
  EXPECT_EQ(Read({"--profile", "a.ini"}).Profile, "a.ini");
  EXPECT_EQ(Read({"--profile=a=b.ini"}).Profile, "a=b.ini");
  EXPECT_EQ(Read({"--profile", "a.ini", "--profile", "b.ini"}).Profile, "b.ini");
  EXPECT_EQ(Read({"--profile", "\xFF\x1B.ini"}).Profile, "\xFF\x1B.ini");
  const CommandLine odd = Read({"--profile", "--help"});
  EXPECT_EQ(odd.Profile, "--help");
  EXPECT_FALSE(odd.Help);
  EXPECT_EQ(odd.Trouble, "");
}

TEST(CommandLine, SaysWhatIsWrongInOneVisibleLine) {
  EXPECT_EQ(Read({"nonsense", "more"}).Trouble, "unexpected argument nonsense; --help shows the known ones");
  EXPECT_EQ(Read({"-"}).Trouble, "unexpected argument -; --help shows the known ones");
  EXPECT_EQ(Read({"--", "-h"}).Trouble, "unexpected argument -h; --help shows the known ones");
  EXPECT_EQ(Read({"--sail"}).Trouble, "unknown option --sail; --help shows the known ones");
  EXPECT_EQ(Read({"--profiles=a"}).Trouble, "unknown option --profiles=a; --help shows the known ones");
  EXPECT_EQ(Read({"-x\x1B[2J\n"}).Trouble, "unknown option -x\u241B[2J\u240A; --help shows the known ones");
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"--profile"}, {"--profile", ""}, {"--profile="}}) {
    EXPECT_EQ(Read(words).Trouble, "--profile takes the name of a file");
  }
}

}  // namespace
}  // namespace veerwatch
