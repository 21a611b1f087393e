// The real program from one profile to another.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "tests/e2e/Process.h"

namespace veerwatch {
namespace {

constexpr const char* kHome = "[Simulate]\nNmea=True\n[View]\nNight Colours=True\n";

std::size_t CountOf(std::string_view text, std::string_view what) {
  std::size_t count = 0;
  for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what, at + 1)) {
    ++count;
  }
  return count;
}

class Profiles : public testing::Test {
 protected:
  void Begin() {
    std::ofstream(m_program.Folder() / "Charter.ini") << "[Simulate]\nNmea=False\n[Track]\nBandwidth=33\n";
    ASSERT_TRUE(m_program.Start());
    ASSERT_TRUE(Ready(1));
  }
  /// Whether a window was shown so often.
  bool Ready(std::size_t times) {
    return Await([&] { return CountOf(m_program.Said(), "ready") >= times || !m_program.Runs(); }) &&
           m_program.Runs();
  }
  bool IsThere(const char* name) const { return std::filesystem::exists(m_program.Folder() / name); }

  Process m_program{VEERWATCH_REMOTE, kHome};
};

TEST_F(Profiles, AreChangedAsOftenAsTheUserLikes) {
  Begin();
  EXPECT_TRUE(IsThere("Veerwatch.ini.lock"));
  m_program.Tell("click mnuFileProfile(Charter)");
  ASSERT_TRUE(Ready(2)) << m_program.Said();
  EXPECT_TRUE(IsThere("Charter.ini.lock"));
  EXPECT_FALSE(IsThere("Veerwatch.ini.lock"));
  EXPECT_NE(m_program.Profile().find("Bandwidth=20"), std::string::npos) << "written at its close";
  m_program.Tell("click mnuFileProfile(Veerwatch)");
  ASSERT_TRUE(Ready(3)) << m_program.Said();
  m_program.Tell("click mnuFileProfile(Charter)");
  ASSERT_TRUE(Ready(4)) << m_program.Said();
  m_program.Tell("click mnuFileExit");
  EXPECT_EQ(m_program.AwaitEnd(), 0) << m_program.Said();
  EXPECT_EQ(CountOf(m_program.Said(), "ready"), 4U);
  EXPECT_FALSE(IsThere("Charter.ini.lock"));
}

TEST_F(Profiles, TheNextStartBeginsWithTheOneThatWasInUse) {
  Begin();
  m_program.Tell("click mnuFileProfile(Charter)");
  ASSERT_TRUE(Ready(2));
  m_program.Kill();
  Process again(&m_program);
  ASSERT_TRUE(again.Start());
  EXPECT_TRUE(Await([&] { return again.Said().find("ready") != std::string::npos; }));
  EXPECT_TRUE(IsThere("Charter.ini.lock"));
  EXPECT_FALSE(IsThere("Veerwatch.ini.lock"));
  again.Terminate();
  EXPECT_EQ(again.AwaitEnd(), 0);
}

TEST_F(Profiles, ASecondPlainStartDoesNotTakeTheFirstOneMeanwhile) {
  Begin();
  m_program.Tell("click mnuFileProfile(Charter)");
  ASSERT_TRUE(Ready(2));
  Process other(&m_program);
  ASSERT_TRUE(other.Start());
  EXPECT_TRUE(Await([&] { return other.Said().find("Charter.ini.lock") != std::string::npos; }))
      << other.Said();
  EXPECT_EQ(other.Said().find("ready"), std::string::npos);
  other.Terminate();
  EXPECT_TRUE(other.AwaitEnd().has_value());
}

TEST_F(Profiles, OneThatAnotherProgramHasIsNotTaken) {
  Begin();
  Process other(&m_program);
  ASSERT_TRUE(other.Start({"--profile", (other.Folder() / "Charter.ini").string()}));
  ASSERT_TRUE(Await([&] { return other.Said().find("ready") != std::string::npos; }));
  m_program.Tell("click mnuFileProfile(Charter)");
  m_program.Tell("text cmdNothing");
  ASSERT_TRUE(Await([&] { return m_program.Said().find("no cmdNothing") != std::string::npos; }));
  EXPECT_EQ(CountOf(m_program.Said(), "ready"), 1U);
  EXPECT_TRUE(IsThere("Veerwatch.ini.lock"));
  other.Terminate();
  EXPECT_EQ(other.AwaitEnd(), 0);
}

}  // namespace
}  // namespace veerwatch
