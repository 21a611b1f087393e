// The real program process talks through real pseudo terminals.

#include <memory>
#include <random>

#include "tests/e2e/RealPorts.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;

TEST_F(RealPorts, SendsForEachWindInManualAndTrackButNotInSetup) {
  LaunchRemote(BetweenTerminals());
  for (int i = 0; i < 5; ++i) {
    WriteAll(In, ApparentWind("040") + TrueWind("060"));
  }
  WriteAll(In, ApparentWind("041"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "41"));
  EXPECT_EQ(Pilots.Heard(), "");

  SailInManual(In, Pilots);
  WriteAll(In, TrueWind("060"));
  EXPECT_TRUE(Pilots.Hears(Pilot("100.0")));

  // With the gains of the defaults, 0.2 * 64 / 65 and 0.2 / 65, an error of 3 degrees moves the bearing by
  // 3 * 0.196923 and then by 3.009231 * 0.196923.
  Click("tbrTrack(7)");
  WriteAll(In, ApparentWind("043"));
  EXPECT_TRUE(Pilots.Hears(Pilot("100.6")));
  WriteAll(In, ApparentWind("043"));
  EXPECT_TRUE(Pilots.Hears(Pilot("101.2")));
  EXPECT_EQ(Text("txtAutoPilot"), "101.2");

  Click("tbrTrack(1)");
  WriteAll(In, ApparentWind("050"));
  Click("tbrTrack(5)");
  EXPECT_EQ(Pilots.Heard(), "");
  ExpectOrderlyEnd();
  EXPECT_THAT(m_program->Profile(), HasSubstr("Bearing=101.183"));
}

TEST_F(RealPorts, TalksBothWaysThroughOnePort) {
  Pty both;
  Listener pilot(both);
  LaunchRemote(ProfileText(3, 3, "3=" + both.Device() + "\r\n"));
  SailInManual(both, pilot);
  Click("tbrTrack(7)");
  WriteAll(both, ApparentWind("037"));
  EXPECT_TRUE(pilot.Hears(Pilot("099.4")));
  WriteAll(both, ApparentWind("040") + ApparentWind("040"));
  EXPECT_TRUE(pilot.HearsBearings().has_value()) << pilot.Heard();
  ExpectOrderlyEnd();
}

TEST_F(RealPorts, GoesOnWhenTheInputDeviceComesBack) {
  auto in = std::make_unique<Pty>();
  Pty out;
  Listener pilot(out);
  const fs::path folder = fs::path(testing::TempDir());
  const fs::path link = folder / ("veerwatch-input-" + std::to_string(::getpid()));
  Socket socket(link);
  socket.Plug(*in);
  LaunchRemote(ProfileText(1, 2, "1=" + link.string() + "\r\n2=" + out.Device() + "\r\n"));
  SailInManual(*in, pilot);
  m_program->Tell("watch StatusBar(2)");
  ASSERT_TRUE(Says("shows StatusBar(2)="));

  // The plug is pulled in the middle of a line.
  WriteAll(*in, ApparentWind("040") + "$IIMWV,0");
  ASSERT_TRUE(pilot.Hears(Pilot("100.0")));
  socket.Pull();
  in.reset();
  EXPECT_TRUE(Says("shows StatusBar(2)=Input Port 1 Not Open")) << m_program->Said();

  // One single sentence waits in the device that comes back: after the rest of the old line it would be
  // lost.
  Pty back;
  WriteAll(back, ApparentWind("042"));
  socket.Plug(back);
  EXPECT_TRUE(pilot.Hears(Pilot("100.0")));
  EXPECT_EQ(Text("lblAppWindAngle"), "42");
  EXPECT_EQ(Text("lblTrueWindAngle"), "60");
  EXPECT_EQ(Text("StatusBar(2)"), "");
  WriteAll(back, ApparentWind("044"));
  EXPECT_TRUE(pilot.Hears(Pilot("100.0")));
  fs::remove(link);
  ExpectOrderlyEnd();
}

TEST_F(RealPorts, GoesOnWhenThePilotDeviceComesBack) {
  auto out = std::make_unique<Pty>();
  const fs::path link = fs::path(testing::TempDir()) / ("veerwatch-pilot-" + std::to_string(::getpid()));
  Socket socket(link);
  socket.Plug(*out);
  LaunchRemote(ProfileText(1, 2, "1=" + In.Device() + "\r\n2=" + link.string() + "\r\n"));
  Listener before(*out);
  SailInManual(In, before);
  Click("tbrTrack(7)");
  m_program->Tell("watch StatusBar(3)");
  ASSERT_TRUE(Says("shows StatusBar(3)="));
  socket.Pull();
  out.reset();
  EXPECT_TRUE(Says("shows StatusBar(3)=Output Port 2 Not Open")) << m_program->Said();
  // The bearing moves on meanwhile, so that an old sentence is told from a new one.
  for (int i = 0; i < 20; ++i) {
    WriteAll(In, ApparentWind("041"));
  }
  WriteAll(In, ApparentWind("042"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "42"));

  Pty back;
  Listener after(back);
  socket.Plug(back);
  EXPECT_TRUE(Says("shows StatusBar(3)=")) << m_program->Said();
  EXPECT_EQ(after.Heard(), "") << "nothing of the time without it";
  WriteAll(In, ApparentWind("043"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "43"));
  EXPECT_TRUE(after.Hears(PresentSentence()));
  WriteAll(In, ApparentWind("044"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "44"));
  EXPECT_TRUE(after.Hears(PresentSentence()));
  EXPECT_EQ(after.Heard(), "");
  fs::remove(link);
  ExpectOrderlyEnd();
}

TEST_F(RealPorts, SurvivesNoise) {
  Sail();
  std::mt19937 random(20240607);
  std::string noise;
  for (int i = 0; i < 100'000; ++i) {
    noise.push_back(static_cast<char>(random() & 0xFFU));
  }
  noise += std::string(50'000, '$') + "\r" + std::string(2'000, '\r') + std::string(5'000, '\0') +
           "\r$\r$*\r$*00\r";
  for (int i = 0; i < 20'000; ++i) {
    noise.push_back("$IMWVRC,*0123456789.AN\r"[random() % 23]);
  }
  ASSERT_TRUE(WriteAll(In, noise + "\r"));
  WriteAll(In, ApparentWind("077"));
  ASSERT_TRUE(AwaitText("lblAppWindAngle", "77"));
  EXPECT_TRUE(Pilots.Hears(Pilot("100.0")));
  // Noise on the pilot's side is read off and changes nothing.
  ASSERT_TRUE(WriteAll(Out, noise));
  WriteAll(In, ApparentWind("078"));
  EXPECT_TRUE(Pilots.Hears(Pilot("100.0")));
  EXPECT_TRUE(AwaitText("StatusBar(3)", "Receive Error"));
  EXPECT_EQ(Pilots.Heard(), "");
  ExpectOrderlyEnd();
}

TEST_F(RealPorts, StartsWithoutItsDevices) {
  LaunchRemote(ProfileText(1, 2, "1=no such device\r\n2=/\r\n"));
  m_program->Tell("watch StatusBar(2)");
  EXPECT_EQ(Text("StatusBar(3)"), "Output Port 2 Not Open");
  EXPECT_TRUE(Says("shows StatusBar(2)=No Input Data")) << m_program->Said();
  EXPECT_THAT(m_program->Said(), HasSubstr("shows StatusBar(2)=Input Port 1 Not Open"));
  ExpectOrderlyEnd();
}

TEST_F(RealPorts, EndsInOrderOnRequestAndKeepsWhatItMeasured) {
  Launch(VEERWATCH_PROGRAM, BetweenTerminals());
  // More than the terminal holds: when all of it is taken the program has read.
  const std::string winds = TrueWind("051") + ApparentWind("033");
  for (int i = 0; i < 4000; ++i) {
    ASSERT_TRUE(WriteAll(In, winds)) << m_program->Said();
  }
  EXPECT_EQ(Out.Read(), "");
  ExpectOrderlyEnd();
  EXPECT_THAT(m_program->Profile(), HasSubstr("Desired 1=33\r\n"));
  EXPECT_THAT(m_program->Profile(), HasSubstr("Desired 2=51\r\n"));
  EXPECT_THAT(m_program->Profile(), HasSubstr("1=" + In.Device() + "\r\n2=" + Out.Device() + "\r\n"));
}

}  // namespace
}  // namespace veerwatch
