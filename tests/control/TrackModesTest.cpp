#include "control/TrackModes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/HandClock.h"
#include "tests/support/HandTimer.h"
#include "tests/support/Origins.h"
#include "tests/support/RecordingView.h"
#include "tests/support/ScriptedPort.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TrackModesTest : public testing::Test {
 protected:
  TrackModesTest() { m_settings.m_iPilotPort = 6; }

  Settings m_settings;
  RecordingView m_view;
  InstrumentRecord m_record{m_settings};
  ScriptedPort m_nmeaPort;
  ScriptedPort m_pilotPort;
  HandTimer m_timer;
  HandClock m_clock;
  NmeaReceiver m_receiver{m_settings, m_nmeaPort, m_timer, m_clock, m_record, m_view};
  PilotOutput m_pilot{m_settings, m_nmeaPort, m_pilotPort, m_view};
  TrackLoop m_loop{m_settings, m_record.Data()};
  TrackModes m_modes{m_settings, m_receiver, m_pilot, m_loop, m_view};
};

TEST_F(TrackModesTest, SetupStartsTheInputAndSeesToThePilotPort) {
  m_modes.TrackSetSetup();
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Setup);
  EXPECT_TRUE(m_receiver.Started());
  EXPECT_TRUE(m_nmeaPort.PortOpen());
  EXPECT_TRUE(m_pilotPort.PortOpen());
  EXPECT_EQ(m_view.Count("OnInputStarts"), 1U);
  EXPECT_THAT(m_view.Only({"OnTrackMode"}), ElementsAre("OnTrackMode 3"));
}

TEST_F(TrackModesTest, SetupFreesTheDeviceThatTheInstrumentsAreToHave) {
  m_nmeaPort.Other = &m_pilotPort;
  m_pilotPort.Other = &m_nmeaPort;
  m_settings.m_iNmeaPort = 3;
  m_settings.m_iPilotPort = 5;
  m_modes.TrackSetSetup();
  m_settings.m_iNmeaPort = 5;
  m_modes.TrackSetSetup();
  EXPECT_TRUE(m_nmeaPort.PortOpen());
  EXPECT_EQ(m_nmeaPort.CommPort(), 5);
  EXPECT_FALSE(m_pilotPort.PortOpen());
}

TEST_F(TrackModesTest, SetupSwapsTheDevices) {
  m_nmeaPort.Other = &m_pilotPort;
  m_pilotPort.Other = &m_nmeaPort;
  m_settings.m_iNmeaPort = 3;
  m_settings.m_iPilotPort = 5;
  m_modes.TrackSetSetup();
  std::swap(m_settings.m_iNmeaPort, m_settings.m_iPilotPort);
  m_modes.TrackSetSetup();
  EXPECT_TRUE(m_nmeaPort.PortOpen());
  EXPECT_EQ(m_nmeaPort.CommPort(), 5);
  EXPECT_TRUE(m_pilotPort.PortOpen());
  EXPECT_EQ(m_pilotPort.CommPort(), 3);
}

TEST_F(TrackModesTest, OffTakesBackThatAPortIsNotOpen) {
  m_nmeaPort.OpensOtherwise = false;
  m_pilotPort.OpensOtherwise = false;
  m_modes.TrackSetSetup();
  m_view.Take();
  m_modes.TrackSetOff();
  EXPECT_EQ(m_view.Count("OnInputStatus"), 1U);
  EXPECT_EQ(m_view.Count("OnOutputStatus"), 1U);
}

TEST_F(TrackModesTest, ManualSeesToThePilotPortOnly) {
  m_modes.TrackSetManual();
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Manual);
  EXPECT_FALSE(m_receiver.Started());
  EXPECT_TRUE(m_pilotPort.PortOpen());
  EXPECT_THAT(m_view.Only({"OnTrackMode"}), ElementsAre("OnTrackMode 5"));
}

TEST_F(TrackModesTest, TrackComputesTheGainsAndSeesToThePilotPort) {
  m_modes.TrackSetTrack();
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Track);
  EXPECT_GT(m_loop.TrackGainProportional(), 0.0);
  EXPECT_TRUE(m_pilotPort.PortOpen());
  EXPECT_THAT(m_view.Only({"OnTrackMode"}), ElementsAre("OnTrackMode 7"));
}

TEST_F(TrackModesTest, OffStopsTheInputAndClosesBothPorts) {
  m_modes.TrackSetSetup();
  m_modes.TrackSetOff();
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Off);
  EXPECT_FALSE(m_receiver.Started());
  EXPECT_FALSE(m_timer.Enabled());
  EXPECT_FALSE(m_nmeaPort.PortOpen());
  EXPECT_FALSE(m_pilotPort.PortOpen());
}

TEST_F(TrackModesTest, SwitchingBetweenSetupManualAndTrackKeepsThePortsOpen) {
  m_modes.TrackSetSetup();
  m_modes.TrackSetManual();
  m_modes.TrackSetTrack();
  m_modes.TrackSetManual();
  EXPECT_EQ(m_nmeaPort.OpenedNumbers.size(), 1U);
  EXPECT_EQ(m_pilotPort.OpenedNumbers.size(), 1U);
  EXPECT_TRUE(m_receiver.Started());
}

TEST_F(TrackModesTest, EnteringTrackAgainZeroesTheAccumulator) {
  m_modes.TrackSetTrack();
  m_record.WindApparentUpdate(50.0F, 12.0F, false, kOrigin);
  m_loop.ControlStep(kOrigin.At);
  ASSERT_NE(m_loop.TrackIntegral(), 0.0);
  m_modes.TrackSetTrack();
  EXPECT_EQ(m_loop.TrackIntegral(), 0.0);
}

TEST_F(TrackModesTest, WithoutUsableGainsTrackIsRefusedWithAReasonAndTheModeStays) {
  m_modes.TrackSetManual();
  for (const float bandwidth : {0.0F, -1.0F}) {
    m_settings.m_fTrackBandwidth = bandwidth;
    m_view.Take();
    m_modes.TrackSetTrack();
    EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Manual);
    EXPECT_THAT(m_view.Only({"OnTrackMode", "OnTrackRefused"}),
                ElementsAre("OnTrackMode 5", "OnTrackRefused 0"));
  }
}

TEST(TrackRefusalText, SaysWhatTrackNeeds) {
  EXPECT_EQ(TrackRefusalText(TrackRefusal::NoGains), "Track needs a bandwidth above 0 and a usable damping");
}

TEST_F(TrackModesTest, LeavingTrackWithdrawsAnAlarmThatShows) {
  using Switch = void (TrackModes::*)();
  for (const Switch leave : {Switch{&TrackModes::TrackSetOff}, Switch{&TrackModes::TrackSetSetup},
                             Switch{&TrackModes::TrackSetManual}}) {
    m_modes.TrackSetTrack();
    m_record.WindApparentUpdate(m_settings.DesiredAngle[1] + 20.0F, 12.0F, false, kOrigin);
    ASSERT_EQ(m_loop.ControlStep(kOrigin.At).Rings, LoopStep::Alarm::Raised);
    ASSERT_EQ(m_view.Count("OnAlarmOver"), 0U);
    (m_modes.*leave)();
    EXPECT_EQ(m_view.Count("OnAlarmOver"), 1U);
    m_view.Take();
  }
}

TEST_F(TrackModesTest, WhileSimulatingNoPortIsOpened) {
  m_settings.m_bSimulate = true;
  m_modes.TrackSetSetup();
  m_modes.TrackSetManual();
  m_modes.TrackSetTrack();
  EXPECT_THAT(m_nmeaPort.OpenedNumbers, IsEmpty());
  EXPECT_THAT(m_pilotPort.OpenedNumbers, IsEmpty());
  EXPECT_TRUE(m_timer.Enabled());
}

std::string Answering(TrackMode mode, TrackSide side) {
  const TrackControls c = ControlsFor(mode, side);
  std::string text;
  text += c.AutoPilot ? "AutoPilot " : "";
  text += c.Side ? "Side " : "";
  text += c.DesiredApparent ? "DesiredApparent " : "";
  text += c.DesiredTrue ? "DesiredTrue " : "";
  text += c.NudgeApparent ? "NudgeApparent " : "";
  text += c.NudgeTrue ? "NudgeTrue " : "";
  return text;
}

TEST(ControlsFor, NothingAnswersInOff) {
  EXPECT_EQ(Answering(TrackMode::Off, TrackSide::Apparent), "");
  EXPECT_EQ(Answering(TrackMode::Off, TrackSide::True), "");
}

TEST(ControlsFor, InSetupAndManualTheBearingTheSidesAndTheChosenEntryAnswer) {
  for (const TrackMode mode : {TrackMode::Setup, TrackMode::Manual}) {
    EXPECT_EQ(Answering(mode, TrackSide::Apparent), "AutoPilot Side DesiredApparent ");
    EXPECT_EQ(Answering(mode, TrackSide::True), "AutoPilot Side DesiredTrue ");
  }
}

TEST(ControlsFor, InTrackEntryAndNudgesOfTheChosenSideAnswer) {
  const TrackControls apparent = ControlsFor(TrackMode::Track, TrackSide::Apparent);
  EXPECT_TRUE(apparent.DesiredApparent);
  EXPECT_TRUE(apparent.NudgeApparent);
  EXPECT_FALSE(apparent.DesiredTrue);
  EXPECT_FALSE(apparent.NudgeTrue);
  const TrackControls trueSide = ControlsFor(TrackMode::Track, TrackSide::True);
  EXPECT_FALSE(trueSide.DesiredApparent);
  EXPECT_FALSE(trueSide.NudgeApparent);
  EXPECT_TRUE(trueSide.DesiredTrue);
  EXPECT_TRUE(trueSide.NudgeTrue);
}

TEST_F(TrackModesTest, AMethodThatNeedsAHeadingIsRefusedWithoutOne) {
  for (const TrackMethod method : {TrackMethod::Clock, TrackMethod::Direction}) {
    m_settings.m_eTrackMethod = method;
    m_modes.TrackSetManual();
    m_modes.TrackSetTrack();
    EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Manual);
  }
  m_record.HeadingUpdate(100.0F, kOrigin);
  m_modes.TrackSetTrack();
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Track);
  EXPECT_EQ(TrackRefusalText(TrackRefusal::NoHeading), "Track Needs a Heading");
}

}  // namespace
}  // namespace veerwatch
