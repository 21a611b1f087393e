// What storing the options starts anew: ports and simulator, between Off and Setup.

#include <gmock/gmock.h>

#include <optional>

#include "options/OptionsStore.h"
#include "tests/support/FakeMainWindow.h"
#include "tests/support/SetPorts.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OptionsRestarting : public testing::Test {
 public:
  FakeMainWindow Main;
  SetPorts Ports;
  Profile Ini;
  OptionsStore Store{Main, Ports, Ini};
};

TEST_F(OptionsRestarting, AnOpenInputPortIsChangedBetweenOffAndSetup) {
  Ports.Nmea = true;
  OptionsForm form = OptionsFormOf(Main);
  form.NmeaPort = "7";
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, ElementsAre("Off 5 5", "Setup 7 5"));
}

TEST_F(OptionsRestarting, AnOpenOutputPortIsChangedBetweenOffAndSetup) {
  Ports.Pilot = true;
  OptionsForm form = OptionsFormOf(Main);
  form.PilotPort = "8";
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, ElementsAre("Off 5 5", "Setup 5 8"));
}

TEST_F(OptionsRestarting, AClosedPortIsChangedWithoutTurningTrackingOff) {
  OptionsForm form = OptionsFormOf(Main);
  form.NmeaPort = "7";
  form.PilotPort = "8";
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, IsEmpty());
  EXPECT_EQ(Main.m_iNmeaPort, 7);
  EXPECT_EQ(Main.m_iPilotPort, 8);
}

TEST_F(OptionsRestarting, ComparesPortsAsNumbers) {
  Ports.Nmea = Ports.Pilot = true;
  OptionsForm form = OptionsFormOf(Main);
  form.NmeaPort = " 5.0 ";
  form.PilotPort = "0.5e1";
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, IsEmpty());
  // Another number that is the same port.
  form.NmeaPort = "5.25";
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, ElementsAre("Off 5 5", "Setup 5 5"));
}

TEST_F(OptionsRestarting, ATextThatIsNoPortRestartsNothing) {
  Ports.Nmea = true;
  OptionsForm form = OptionsFormOf(Main);
  for (const char* text : {"", "x", "99999", "0"}) {
    form.NmeaPort = text;
    EXPECT_NE(Store.Store(form), std::nullopt);
  }
  EXPECT_THAT(Main.Calls, IsEmpty());
  EXPECT_EQ(Main.m_iNmeaPort, 5);
}

// The simulator

TEST_F(OptionsRestarting, TheSimulatorIsSwitchedBetweenOffAndSetup) {
  OptionsForm form = OptionsFormOf(Main);
  form.Simulate = true;
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, ElementsAre("Off 5 5", "Setup 5 5 simulating"));
  EXPECT_TRUE(Main.m_bSimulate);
}

TEST_F(OptionsRestarting, AnotherBoatIsBegunBetweenOffAndSetupWhileSheSails) {
  OptionsForm form = OptionsFormOf(Main);
  form.SimulateModel = 1;
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, IsEmpty()) << "nothing is simulated";
  EXPECT_EQ(Main.m_eSimulateModel, SimulateModel::Boat);
  Main.m_bSimulate = form.Simulate = true;
  form.SimulateModel = 0;
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, ElementsAre("Off 5 5 simulating", "Setup 5 5 simulating"));
  Main.Calls.clear();
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, IsEmpty());
}

TEST_F(OptionsRestarting, AnotherSeedBeginsTheBoatWithHullAndPilotAnew) {
  OptionsForm form = OptionsFormOf(Main);
  form.Simulate = Main.m_bSimulate = true;
  form.SimulateSeed = "7";
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, IsEmpty()) << "the steady boat has none";
  form.SimulateModel = 1;
  Main.m_eSimulateModel = SimulateModel::Boat;
  form.SimulateSeed = "8";
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_EQ(Main.m_iSimulateSeed, 8);
  EXPECT_THAT(Main.Calls, ElementsAre("Off 5 5 simulating", "Setup 5 5 simulating"));
  Main.Calls.clear();
  EXPECT_EQ(Store.Store(form), std::nullopt);
  form.SimulateSeed = "x";
  EXPECT_NE(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, IsEmpty());
  Main.m_bSimulate = form.Simulate = false;
  form.SimulateSeed = "9";
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.Calls, IsEmpty()) << "nothing is simulated";
}

TEST_F(OptionsRestarting, ATimeThatDiffersMovesTheBoat) {
  OptionsForm form = OptionsFormOf(Main);
  form.SimulateTime = "1:30";
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.SimulateTimes, ElementsAre(1.5F));
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_THAT(Main.SimulateTimes, ElementsAre(1.5F));
}

TEST_F(OptionsRestarting, APlainDecimalIsStoredAsTime0) {
  OptionsForm form = OptionsFormOf(Main);
  Main.m_fSimulateTime = 2.0F;
  form.SimulateTime = "1.5";
  EXPECT_EQ(Store.Store(form), std::nullopt);
  EXPECT_EQ(Main.m_fSimulateTime, 0.0F);
}

}  // namespace
}  // namespace veerwatch
