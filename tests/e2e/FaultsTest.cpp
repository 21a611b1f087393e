// What may go wrong around the real program process: plugs, floods, disks, signals.

#include <sys/resource.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <memory>
#include <random>
#include <thread>

#include "tests/e2e/RealPorts.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;

class Faults : public RealPorts {
 protected:
  fs::path Link(const char* name) const {
    return fs::path(testing::TempDir()) / ("veerwatch-" + std::string(name) + std::to_string(::getpid()));
  }
};

TEST_F(Faults, TheInputIsPulledTenTimes) {
  auto in = std::make_unique<Pty>();
  Pty out;
  Listener pilot(out);
  const fs::path link = Link("input-");
  Socket socket(link);
  socket.Plug(*in);
  LaunchRemote(ProfileText(1, 2, "1=" + link.string() + "\r\n2=" + out.Device() + "\r\n"));
  SailInManual(*in, pilot);
  for (int time = 1; time <= 10; ++time) {
    WriteAll(*in, "$IIMWV,17");
    in.reset();
    ASSERT_TRUE(AwaitText("StatusBar(2)", "Input Port 1 Not Open")) << time;
    in = std::make_unique<Pty>();
    socket.Plug(*in);
    const std::string angle = "0" + std::to_string(50 + time);
    WriteAll(*in, ApparentWind(angle));
    ASSERT_TRUE(pilot.Hears(Pilot("100.0"))) << time;
    EXPECT_EQ(Text("lblAppWindAngle"), std::to_string(50 + time));
  }
  EXPECT_EQ(pilot.Heard(), "") << "a sentence a wind";
  fs::remove(link);
  ExpectOrderlyEnd();
}

TEST_F(Faults, AFloodOnTheInputLeavesTheProgramAnswering) {
  Pty in;
  Pty out;
  Listener pilot(out);
  LaunchRemote(ProfileText(1, 2, "1=" + in.Device() + "\r\n2=" + out.Device() + "\r\n"));
  SailInManual(in, pilot);
  // Ten seconds at a hundred times the rate of a full line, as fast as the terminal takes them.
  constexpr std::size_t kBytes = std::size_t{480} * 100 * 10;
  const std::string wind = ApparentWind("041");
  std::size_t winds = 0;
  for (std::size_t sent = 0; sent < kBytes; ++winds, sent += wind.size()) {
    ASSERT_TRUE(WriteAll(in, wind));
    constexpr std::size_t kEvery = 2000;
    if (winds % kEvery == 0) {
      EXPECT_EQ(Text("txtAutoPilot"), "100.0") << "in the middle of it";
    }
    pilot.Heard();
  }
  WriteAll(in, ApparentWind("055"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "55"));
  ASSERT_TRUE(Await([&] { return pilot.Heard().ends_with("\r\n"); }));
  const auto bearings = Bearings(pilot.Heard());
  ASSERT_TRUE(bearings.has_value());
  EXPECT_LE(bearings->size(), winds + 1);
  ExpectOrderlyEnd();
}

TEST_F(Faults, HalfASentenceAndThenSilenceSendsNothing) {
  Pty in;
  Pty out;
  Listener pilot(out);
  LaunchRemote(ProfileText(1, 2, "1=" + in.Device() + "\r\n2=" + out.Device() + "\r\n"));
  SailInManual(in, pilot);
  const std::string wind = ApparentWind("044");
  WriteAll(in, wind.substr(0, wind.size() / 2));
  ASSERT_TRUE(AwaitText("StatusBar(2)", "No Input Data"));
  EXPECT_EQ(pilot.Heard(), "");
  EXPECT_EQ(Text("lblAppWindAngle"), "40");
  WriteAll(in, wind.substr(wind.size() / 2) + ApparentWind("045"));
  EXPECT_TRUE(AwaitText("lblAppWindAngle", "45"));
  EXPECT_TRUE(AwaitText("StatusBar(2)", ""));
  EXPECT_TRUE(pilot.Hears(Pilot("100.0")));
  ExpectOrderlyEnd();
}

TEST_F(Faults, MinutesOfNoiseEndWithTheFirstGoodSentence) {
  Pty in;
  Pty out;
  Listener pilot(out);
  LaunchRemote(ProfileText(1, 2, "1=" + in.Device() + "\r\n2=" + out.Device() + "\r\n"));
  SailInManual(in, pilot);
  // As much as a line at 4800 baud brings in ten minutes.
  std::mt19937 random(77);
  std::string noise(std::size_t{480} * 600, '\0');
  std::generate(noise.begin(), noise.end(), [&random] { return static_cast<char>(random() & 0xFFU); });
  ASSERT_TRUE(WriteAll(in, noise + "\r"));
  WriteAll(in, ApparentWind("061"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "61"));
  EXPECT_TRUE(pilot.Hears(Pilot("100.0")));
  ExpectOrderlyEnd();
}

TEST_F(Faults, AFullDiskAtTheCloseKeepsTheOldProfile) {
  // What a full disk refuses is refused by a limit here, whose signal nobody handles.
  std::signal(SIGXFSZ, SIG_IGN);
  const std::string profile = ProfileText(1, 2, "1=none\r\n2=none\r\n");
  LaunchRemote(profile);
  const rlimit none{0, 0};
  ASSERT_EQ(::prlimit(m_program->Id(), RLIMIT_FSIZE, &none, nullptr), 0);
  m_program->Terminate();
  EXPECT_EQ(m_program->AwaitEnd(), 0) << m_program->Said();
  EXPECT_EQ(m_program->Profile(), profile);
  EXPECT_THAT(m_program->Said(), HasSubstr("Veerwatch.ini")) << "it says that nothing was kept";
  std::signal(SIGXFSZ, SIG_DFL);
}

TEST_F(Faults, AFolderThatCannotBeWrittenKeepsTheOldProfile) {
  if (::geteuid() == 0) {
    GTEST_SKIP() << "root may write everywhere";
  }
  const std::string profile = ProfileText(1, 2, "1=none\r\n2=none\r\n");
  LaunchRemote(profile);
  fs::permissions(m_program->Folder(), fs::perms::owner_read | fs::perms::owner_exec);
  m_program->Terminate();
  EXPECT_EQ(m_program->AwaitEnd(), 0) << m_program->Said();
  fs::permissions(m_program->Folder(), fs::perms::owner_all);
  EXPECT_EQ(m_program->Profile(), profile);
}

TEST_F(Faults, KilledAtAnyMomentOfTheCloseTheProfileIsWhole) {
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

TEST_F(Faults, AProcessThatWasStoppedGoesOnWithWhatIsNew) {
  Pty in;
  Pty out;
  Listener pilot(out);
  LaunchRemote(ProfileText(1, 2, "1=" + in.Device() + "\r\n2=" + out.Device() + "\r\n"));
  SailInManual(in, pilot);
  ASSERT_EQ(::kill(m_program->Id(), SIGSTOP), 0);
  // What the terminal holds waits for it, as in a computer that was asleep.
  for (int i = 0; i < 2000; ++i) {
    in.Write(ApparentWind("042"));
  }
  ASSERT_EQ(::kill(m_program->Id(), SIGCONT), 0);
  ASSERT_TRUE(WriteAll(in, "\r\n" + ApparentWind("048")));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "48"));
  ASSERT_TRUE(Await([&] { return pilot.Heard().ends_with("\r\n"); }));
  EXPECT_TRUE(Bearings(pilot.Heard()).has_value()) << pilot.Heard();
  EXPECT_EQ(Text("txtAutoPilot"), "100.0");
  ExpectOrderlyEnd();
}

}  // namespace
}  // namespace veerwatch
