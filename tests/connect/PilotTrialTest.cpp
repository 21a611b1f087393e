#include "connect/PilotTrial.h"

#include <gmock/gmock.h>

#include <string>

#include "platform/PortNames.h"
#include "tests/support/FakeMainWindow.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class PilotTrialTest : public testing::Test {
 protected:
  FakeMainWindow Main;
  Profile Store;
  ConnectPlan Plan;
  PilotTrial Trial{Main, Store};

  PilotTrialTest() {
    Main.m_eTrackMode = TrackMode::Setup;
    Main.m_bSaveWhileRunning = true;
    Plan.Chosen = Main;
    Plan.Chosen.m_ePilotProfile = PilotProfile::Hsc;
    Plan.Input = "/dev/ttyUSB0?baud=38400";
    Plan.Pilot = "/dev/ttyUSB1";
  }
  void Begin() {
    Trial.Begin(Plan, [](const std::string&) { return false; });
  }
  /// The winds and the heading come.
  void Arrive() {
    Main.Answer.Mode = TrackMode::Setup;
    Main.Answer.InputStarted = true;
    Main.Answer.InputOpen = true;
    Main.Answer.Heading = 123.6F;
    Main.Instruments.WindApparentUpdate(30.0F, 10.0F, false, {});
  }
};

TEST_F(PilotTrialTest, EverythingComesBackAsItWas) {
  NamePort(Store, 5, "tcp://boat:2000");
  Main.m_fAutoPilot = 77.0F;
  const std::string before = Store.Content();
  Begin();
  EXPECT_TRUE(Trial.Runs());
  EXPECT_EQ(Main.m_ePilotProfile, PilotProfile::Hsc);
  EXPECT_EQ(PortDevice(Store, 5), "/dev/ttyUSB0?baud=38400");
  EXPECT_FALSE(Main.m_bSaveWhileRunning) << "what is only tried is not saved";
  Main.Calls.clear();
  Main.m_fAutoPilot = 99.0F;
  Trial.End();
  EXPECT_EQ(Main.m_ePilotProfile, PilotProfile::MagneticApb);
  EXPECT_EQ(Main.m_iPilotPort, 5);
  EXPECT_EQ(Main.m_fAutoPilot, 77.0F);
  EXPECT_TRUE(Main.m_bSaveWhileRunning);
  EXPECT_EQ(Store.Content(), before);
  EXPECT_THAT(Main.Calls, ElementsAre(HasSubstr("Off"), "Setup 5 5"));
  Main.Calls.clear();
  Trial.End();
  EXPECT_THAT(Main.Calls, IsEmpty()) << "once";
}

TEST_F(PilotTrialTest, FromOffItEndsInOff) {
  Main.m_eTrackMode = TrackMode::Off;
  Begin();
  Main.Calls.clear();
  Trial.End();
  EXPECT_THAT(Main.Calls, ElementsAre(HasSubstr("Off")));
}

TEST_F(PilotTrialTest, WhoSteersIsNotDisturbed) {
  for (const TrackMode mode : {TrackMode::Manual, TrackMode::Track}) {
    Main.m_eTrackMode = mode;
    EXPECT_THAT(Trial.Hindrance(), HasSubstr("press Setup"));
    Begin();
    EXPECT_FALSE(Trial.Runs());
    EXPECT_THAT(Main.Calls, IsEmpty());
  }
}

TEST_F(PilotTrialTest, ManualBeginsOnThePresentHeadingOnceItIsKnown) {
  Begin();
  Main.Calls.clear();
  EXPECT_EQ(Trial.Tick(), "Waiting for a heading and the wind...");
  EXPECT_THAT(Main.Calls, IsEmpty());
  Arrive();
  Trial.Tick();
  EXPECT_EQ(Main.Bearing, 124.0F) << "the boat is not to turn yet";
  EXPECT_THAT(Main.Calls, ElementsAre("Manual 5 1"));
}

TEST_F(PilotTrialTest, ItsEndOfLifeBringsEverythingBackToo) {
  {
    PilotTrial other(Main, Store);
    other.Begin(Plan, [](const std::string&) { return false; });
    EXPECT_EQ(Main.m_iPilotPort, 1);
  }
  EXPECT_EQ(Main.m_iPilotPort, 5);
}

}  // namespace
}  // namespace veerwatch
