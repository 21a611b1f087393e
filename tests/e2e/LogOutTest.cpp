// The real program process in a desktop's session, on a real X server: what a log-out does to it.

#include <optional>
#include <sstream>
#include <string>

#include "tests/e2e/RealPorts.h"
#include "tests/e2e/SessionManager.h"

namespace veerwatch {
namespace {

using testing::Contains;
using testing::HasSubstr;

/// An X server that nobody looks at.
class XServer {
 public:
  /// The value of DISPLAY; "" when there is none. Two that start at a time may want the same number.
  std::string Display() {
    for (int times = 0; times < 10; ++times) {
      m_server.emplace();
      m_server->Start({"Xvfb", "-displayfd", "1", "-nolisten", "tcp"});
      Await([this] { return !Number().empty() || !m_server->Runs(); });
      if (!Number().empty()) {
        return ":" + Number();
      }
    }
    return "";
  }

  const std::string& Said() { return m_server->Said(); }

 private:
  /// The line that is nothing but a number.
  std::string Number() {
    std::istringstream lines(m_server->Said());
    for (std::string line; std::getline(lines, line) && !lines.eof();) {
      if (!line.empty() && line.find_first_not_of("0123456789") == line.npos) {
        return line;
      }
    }
    return "";
  }

  std::optional<Child> m_server;
};

class LogOut : public RealPorts {
 protected:
  /// In a session, tracking an apparent wind of 40 degrees.
  void SailInASession() {
    const std::string display = m_screen.Display();
    ASSERT_NE(display, "") << m_screen.Said();
    m_profile = BetweenTerminals();
    m_program.emplace(VEERWATCH_REMOTE, m_profile);
    ASSERT_TRUE(m_program->Start(
        {"--profile", (m_program->Folder() / "Veerwatch.ini").string()},
        {{"QT_QPA_PLATFORM=xcb", "DISPLAY=" + display, "SESSION_MANAGER=" + Desktop.Address()}, {}}));
    ASSERT_TRUE(Desktop.AwaitClient()) << m_program->Said();
    ASSERT_TRUE(Says("ready")) << m_program->Said();
    SailInManual(In, Pilots);
    Click("tbrTrack(7)");
  }

  void ExpectToSteer(const std::string& angle) {
    const std::size_t before = Pilots.Heard().size();
    WriteAll(In, ApparentWind(angle));
    EXPECT_TRUE(Await([&] {
      Desktop.Serve();
      return Pilots.Heard().size() > before && Pilots.Heard().ends_with("\r\n");
    })) << m_program->Said();
    EXPECT_TRUE(Bearings(Pilots.Heard()).has_value());
    EXPECT_EQ(Text("lblAppWindAngle"), std::to_string(std::stoi(angle)));
  }

  void ExpectWholeProfile() {
    EXPECT_NE(m_program->Profile(), m_profile);
    EXPECT_THAT(m_program->Profile(), HasSubstr("; a comment of the skipper\r\n"));
    EXPECT_THAT(m_program->Profile(), HasSubstr("Sentence HDG=True\r\n"));
  }

  SessionManager Desktop;

 private:
  XServer m_screen;
  std::string m_profile;
};

TEST_F(LogOut, EndsItInOrderWithoutAQuestion) {
  SailInASession();
  ASSERT_TRUE(Desktop.Save(true)) << m_program->Said();
  ExpectWholeProfile();
  ExpectToSteer("041");
  Desktop.End();
  EXPECT_EQ(m_program->AwaitEnd(), 0) << m_program->Said();
  ExpectWholeProfile();
}

TEST_F(LogOut, WithoutAnySaveEndsItInOrderToo) {
  SailInASession();
  Desktop.End();
  EXPECT_EQ(m_program->AwaitEnd(), 0) << m_program->Said();
  ExpectWholeProfile();
}

TEST_F(LogOut, EndsItWithoutAWindowWhenNothingCanBeSaved) {
  SailInASession();
  // A folder takes the profile's place.
  const fs::path profile = m_program->Folder() / "Veerwatch.ini";
  fs::remove(profile);
  fs::create_directory(profile);
  Desktop.End();
  EXPECT_EQ(m_program->AwaitEnd(), 1) << m_program->Said();
  EXPECT_THAT(m_program->Said(), HasSubstr("it is a folder"));
}

TEST_F(LogOut, ThatIsCalledOffLeavesItSteering) {
  SailInASession();
  ASSERT_TRUE(Desktop.Save(true)) << m_program->Said();
  Desktop.CallOff();
  ExpectToSteer("042");
  ExpectOrderlyEnd();
}

TEST_F(LogOut, ASessionThatIsOnlySavedLeavesItSteering) {
  SailInASession();
  ASSERT_TRUE(Desktop.Save(false)) << m_program->Said();
  ExpectWholeProfile();
  ExpectToSteer("043");
  ASSERT_TRUE(Desktop.Save(false)) << m_program->Said();
  ExpectToSteer("044");
  ExpectOrderlyEnd();
}

TEST_F(LogOut, TheNextSessionStartsItAsThisOneDid) {
  SailInASession();
  ASSERT_TRUE(Desktop.Save(true)) << m_program->Said();
  EXPECT_THAT(Desktop.RestartCommand(), Contains("-session"));
  EXPECT_THAT(Desktop.RestartCommand().front(), HasSubstr("veerwatch_remote"));
  EXPECT_THAT(Desktop.RestartCommand(), Contains("--profile"));
}

}  // namespace
}  // namespace veerwatch
