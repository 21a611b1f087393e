// The profile at start and close, and the order of the close.

#include <QDir>
#include <filesystem>

#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class MainWindowClose : public MainWindowTester {};

TEST_F(MainWindowClose, OutsideTrackAsksNothingAndWritesTheProfile) {
  Start(kOnPorts);
  Type("txtAutoPilot", "222.5");
  Enter("txtAutoPilot");
  EXPECT_TRUE(Window->close());
  EXPECT_TRUE(Dialogs.Questions.empty());
  EXPECT_FALSE(NmeaPort.PortOpen());
  EXPECT_FALSE(PilotPort.PortOpen());
  EXPECT_FALSE(tmrNmea.Enabled());
  EXPECT_NE(ReadProfile().find("Bearing=222.5"), std::string::npos);
  EXPECT_NE(ReadProfile().find("[History Window]"), std::string::npos);
}

TEST_F(MainWindowClose, AskedWhileTrackingNoLeavesEverythingRunning) {
  Start(kOnPorts);
  const std::string before = ReadProfile();
  Mode(7);
  Dialogs.Answers = {false};
  Find<QAction>("mnuFileExit").trigger();
  ASSERT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_EQ(Dialogs.Questions[0].Title, "Veerwatch - Closing");
  EXPECT_EQ(Dialogs.Questions[0].Text,
            "Veerwatch is current tracking the wind.\rDo you wish to stop tracking?");
  EXPECT_TRUE(Window->isVisible());
  EXPECT_TRUE(NmeaPort.PortOpen());
  EXPECT_TRUE(PilotPort.PortOpen());
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  EXPECT_EQ(ReadProfile(), before);
  EXPECT_FALSE(Window->close()) << "asks again";
  EXPECT_EQ(Dialogs.Questions.size(), 2U);
}

TEST_F(MainWindowClose, AskedWhileTrackingYesCloses) {
  Start(kOnPorts);
  Mode(7);
  Dialogs.Answers = {true};
  EXPECT_TRUE(Window->close());
  EXPECT_FALSE(Window->isVisible());
  EXPECT_FALSE(NmeaPort.PortOpen());
  EXPECT_FALSE(PilotPort.PortOpen());
  EXPECT_NE(ReadProfile().find("[Track]"), std::string::npos);
}

TEST_F(MainWindowClose, IsRetriedWithoutAQuestionWhileASentenceIsBeingHandled) {
  Start(kOnPorts);
  const std::string before = ReadProfile();
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  Dialogs.Answers = {true};
  bool closed = true;
  Dialogs.DuringBeep = [&] { closed = Window->close(); };
  NmeaPort.Receive("$WIMWV,80,R,10,N,A\r");
  EXPECT_FALSE(closed);
  EXPECT_TRUE(Window->isVisible());
  EXPECT_FALSE(NmeaPort.PortOpen());
  EXPECT_FALSE(PilotPort.PortOpen());
  EXPECT_EQ(ReadProfile(), before);
  EXPECT_TRUE(tmrUnload.Enabled());
  EXPECT_EQ(tmrUnload.Milliseconds, 1000);
  tmrUnload.Tick();
  EXPECT_FALSE(Window->isVisible());
  EXPECT_FALSE(tmrUnload.Enabled());
  EXPECT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_NE(ReadProfile(), before);
}

TEST_F(MainWindowClose, OfTheSessionAsksNothing) {
  Start(kOnPorts);
  Mode(7);
  Window->CloseUnasked();
  EXPECT_TRUE(Dialogs.Questions.empty());
  EXPECT_FALSE(Window->isVisible());
  EXPECT_FALSE(PilotPort.PortOpen());
  EXPECT_NE(ReadProfile().find("[Polar Window]"), std::string::npos);
}

TEST_F(MainWindowClose, OfTheSessionEndsAnOpenQuestion) {
  Start(kOnPorts);
  Mode(7);
  Dialogs.Later = true;
  EXPECT_FALSE(Window->close());
  ASSERT_TRUE(Dialogs.Open());
  Window->CloseUnasked();
  EXPECT_FALSE(Window->isVisible());
  EXPECT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_NE(ReadProfile().find("[Polar Window]"), std::string::npos);
}

TEST_F(MainWindowClose, GoesOnSteeringWhileItAsks) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  Dialogs.Later = true;
  EXPECT_FALSE(Window->close());
  const std::size_t sent = PilotPort.Written.size();
  NmeaPort.Receive(Winds("33", "43"));
  EXPECT_GT(PilotPort.Written.size(), sent);
  EXPECT_FALSE(Window->close()) << "the question stands";
  EXPECT_EQ(Dialogs.Questions.size(), 1U);
  EXPECT_EQ(Dialogs.Refused, 1);
}

TEST_F(MainWindowClose, AYesClosesWhateverTheModeIsByThen) {
  Start(kOnPorts);
  Mode(7);
  Dialogs.Later = true;
  EXPECT_FALSE(Window->close());
  Window->TrackSetSetup();
  Dialogs.Answers = {true};
  Dialogs.Answer();
  EXPECT_FALSE(Window->isVisible());
  EXPECT_EQ(Dialogs.Questions.size(), 1U);
}

TEST_F(MainWindowClose, ANoLeavesTheModeThatItHasByThen) {
  Start(kOnPorts);
  Mode(7);
  Dialogs.Later = true;
  EXPECT_FALSE(Window->close());
  Window->TrackSetManual();
  Dialogs.Answer();
  EXPECT_TRUE(Window->isVisible());
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
  EXPECT_TRUE(NmeaPort.PortOpen());
  EXPECT_TRUE(Window->close()) << "nothing to ask about";
  EXPECT_EQ(Dialogs.Questions.size(), 1U);
}

TEST_F(MainWindowClose, WritesTheProfileOnce) {
  Start(kOnPorts);
  Window->close();
  std::filesystem::remove(ProfileFile());
  Window->close();
  EXPECT_FALSE(std::filesystem::exists(ProfileFile()));
}

TEST_F(MainWindowClose, StoresTheHistoryThenThePolarThenTheManoeuvre) {
  Start(kOnPorts);
  for (const char* window : {"mnuViewPolar", "mnuViewHistory"}) {
    Find<QAction>(window).trigger();
  }
  Window->TackOpen(190.0F, 100.0F, 45.0F);
  Window->close();
  const std::string profile = ReadProfile();
  const std::size_t history = profile.find("[History Trace]");
  const std::size_t polar = profile.find("[Polar Data]");
  const std::size_t manoeuvre = profile.find("[Tack Data]");
  ASSERT_NE(manoeuvre, std::string::npos) << profile;
  EXPECT_LT(history, polar);
  EXPECT_LT(polar, manoeuvre);
}

TEST_F(MainWindowClose, KeepsWhatTheNextStartReads) {
  Start(std::string("; my boat\n") + kOnPorts);
  Type("txtAutoPilot", "12.3");
  Enter("txtAutoPilot");
  Type("txtDesired(1)", "-44");
  Enter("txtDesired(1)");
  Window->m_bTrackAlarm = false;
  Window->close();
  EXPECT_EQ(ReadProfile().substr(0, 10), "; my boat\n");
  Start();
  EXPECT_EQ(Window->m_fAutoPilot, 12.3F);
  EXPECT_EQ(Entry("txtAutoPilot"), "12.3");
  EXPECT_EQ(Window->DesiredAngle[1], -44.0F);
  EXPECT_EQ(Entry("txtDesired(1)"), "-44");
  EXPECT_FALSE(Window->m_bTrackAlarm);
}

TEST_F(MainWindowClose, DefaultRestoresTheDefaultsAndSetupWithoutReadingTheFile) {
  Start("[Track]\nDesired 1=10\nDesired 2=20\n[Pilot]\nBearing=100\n");
  EXPECT_EQ(Entry("txtDesired(1)"), "10");
  Mode(7);
  Find<QAction>("mnuFileDefault").trigger();
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Setup);
  EXPECT_EQ(Entry("txtDesired(1)"), "45");
  EXPECT_EQ(Entry("txtDesired(2)"), "92");
  EXPECT_EQ(Entry("txtAutoPilot"), "40.0");
  EXPECT_EQ(NmeaPort.CommPort(), 5);
}

TEST_F(MainWindowClose, DefaultReplacesWhatIsBeingTyped) {
  Start(kOnPorts);
  Type("txtAutoPilot", "17");
  Find<QAction>("mnuFileDefault").trigger();
  EXPECT_EQ(Entry("txtAutoPilot"), "40.0");
  EXPECT_EQ(Window->m_fAutoPilot, 40.0F);
}

TEST_F(MainWindowClose, ADamagedProfileStartsWithTheDefaults) {
  std::string noise;
  for (int i = 0; i < 4000; ++i) {
    noise.push_back(static_cast<char>(i * 131 % 256));
  }
  Start(noise + "[Track\nDesired 1\n=\n[Pilot]\nBearing=nan\n");
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Setup);
  EXPECT_EQ(Entry("txtAutoPilot"), "40.0");
  EXPECT_EQ(Entry("txtDesired(1)"), "45");
}

TEST_F(MainWindowClose, AProfileThatCannotBeReadStartsWithTheDefaults) {
  std::filesystem::create_directory(ProfileFile());
  Start();
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Setup);
  EXPECT_EQ(Entry("txtAutoPilot"), "40.0");
  EXPECT_TRUE(Window->close());
}

TEST_F(MainWindowClose, KeepsWhatWasEditedInTheProfileMeanwhile) {
  Start(kOnPorts);
  WriteProfile("; by hand\n[Ports]\n3=/dev/ttyUSB0\n[Nmea]\nPort=9\n");
  EXPECT_TRUE(Window->close());
  const std::string content = ReadProfile();
  EXPECT_EQ(content.find("; by hand\n[Ports]\n3=/dev/ttyUSB0\n[Nmea]\nPort=3\n"), 0U) << content;
}

TEST_F(MainWindowClose, SurvivesAProfileThatCannotBeWritten) {
  Start(kOnPorts);
  Window->m_sProfileFile = "/dev/null/nowhere/Veerwatch.ini";
  EXPECT_TRUE(Window->close());
  EXPECT_FALSE(Window->isVisible());
}

}  // namespace
}  // namespace veerwatch
