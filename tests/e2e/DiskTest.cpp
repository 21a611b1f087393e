// What a disk may do to the profile of the real program process, and what may happen to the program
// meanwhile.

#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include "tests/e2e/RealPorts.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;

using Disk = RealPorts;

TEST_F(Disk, AFullOneAtTheCloseKeepsTheOldProfile) {
  // What a full disk refuses is refused by a limit here, whose signal nobody handles.
  std::signal(SIGXFSZ, SIG_IGN);
  const std::string profile = ProfileText(1, 2, "1=none\r\n2=none\r\n");
  LaunchRemote(profile);
  const rlimit none{0, 0};
  ASSERT_EQ(::prlimit(m_program->Id(), RLIMIT_FSIZE, &none, nullptr), 0);
  m_program->Terminate();
  EXPECT_EQ(m_program->AwaitEnd(), 1) << m_program->Said();
  EXPECT_EQ(m_program->Profile(), profile);
  EXPECT_THAT(m_program->Said(), HasSubstr("Veerwatch.ini")) << "it says that nothing was kept";
  std::signal(SIGXFSZ, SIG_DFL);
}

/// Around a program that may write only where the modes of files and folders let it, even for root.
Surroundings WithoutOverride() {
  Surroundings around;
  if (::geteuid() == 0) {
    around.Through = {"setpriv", "--bounding-set", "-dac_override"};
  }
  return around;
}

TEST_F(Disk, OneThatBecomesReadOnlyKeepsTheOldProfile) {
  const std::string profile = ProfileText(1, 2, "1=none\r\n2=none\r\n");
  LaunchRemote(profile, WithoutOverride());
  fs::permissions(m_program->Folder(), fs::perms::owner_read | fs::perms::owner_exec);
  m_program->Terminate();
  EXPECT_EQ(m_program->AwaitEnd(), 1) << m_program->Said();
  fs::permissions(m_program->Folder(), fs::perms::owner_all);
  EXPECT_EQ(m_program->Profile(), profile);
  EXPECT_THAT(m_program->Said(), HasSubstr("Veerwatch.ini")) << "it says that nothing was kept";
}

/// The program in a folder that became read-only, with the message that File > Exit brings then.
class Unsaved : public RealPorts {
 protected:
  void SetUp() override {
    LaunchRemote(ProfileText(1, 2, "1=none\r\n2=none\r\n"), WithoutOverride());
    Click("mnuViewHistory");
    fs::permissions(m_program->Folder(), fs::perms::owner_read | fs::perms::owner_exec);
    Click("mnuFileExit");
    ASSERT_TRUE(AwaitText("qt_msgbox_label", "The settings could not be saved:"));
  }
  void TearDown() override { fs::permissions(m_program->Folder(), fs::perms::owner_all); }
};

TEST_F(Unsaved, SettingsAreToldInAWindowThatWaitsToBeRead) {
  EXPECT_EQ(Text("qt_msgbox_label"), "The settings could not be saved:");
  EXPECT_TRUE(m_program->Runs());
  Click("cmdMessageOk");
  EXPECT_EQ(m_program->AwaitEnd(), 1) << m_program->Said();
}

TEST_F(Unsaved, SettingsHoldNobodyUpWhoEndsTheProgram) {
  m_program->Terminate();
  EXPECT_EQ(m_program->AwaitEnd(), 1) << m_program->Said();
}

TEST_F(Disk, OneThatIsReadOnlyLetsTheProgramSteer) {
  const std::string profile = BetweenTerminals();
  m_program.emplace(VEERWATCH_REMOTE, profile);
  fs::permissions(m_program->Folder(), fs::perms::owner_read | fs::perms::owner_exec);
  ASSERT_TRUE(
      m_program->Start({"--profile", (m_program->Folder() / "Veerwatch.ini").string()}, WithoutOverride()));
  ASSERT_TRUE(Says("ready")) << m_program->Said();
  SailInManual(In, Pilots);
  m_program->Terminate();
  EXPECT_EQ(m_program->AwaitEnd(), 1) << m_program->Said();
  fs::permissions(m_program->Folder(), fs::perms::owner_all);
  EXPECT_EQ(m_program->Profile(), profile);
  EXPECT_THAT(m_program->Said(), HasSubstr("Veerwatch.ini")) << "it says that nothing was kept";
}

TEST_F(Disk, KilledAtAnyMomentOfTheCloseTheProfileIsWhole) {
  const std::string old = ProfileText(1, 2, "1=none\r\n2=none\r\n");
  LaunchRemote(old);
  m_program->Terminate();
  ASSERT_EQ(m_program->AwaitEnd(), 0);
  const std::string fresh = m_program->Profile();
  ASSERT_NE(fresh, old);
  std::mt19937 random(5);
  int killed = 0;
  for (int round = 0; round < 25; ++round) {
    LaunchRemote(old);
    m_program->Terminate();
    // Spread over the time that a close takes.
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 12'000));
    m_program->Kill();
    killed += m_program->AwaitEnd() == -SIGKILL ? 1 : 0;
    const std::string left = m_program->Profile();
    EXPECT_TRUE(left == old || left == fresh) << left;
  }
  EXPECT_GT(killed, 0);
}

}  // namespace
}  // namespace veerwatch
