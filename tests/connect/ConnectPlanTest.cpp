#include "connect/ConnectPlan.h"

#include <gmock/gmock.h>

#include <string>

#include "connect/PlanWords.h"
#include "platform/PortNames.h"
#include "tests/support/FakeMainWindow.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ConnectPlanTest : public testing::Test {
 protected:
  FakeMainWindow Main;
  Profile Store;
  ConnectPlan Plan;

  static bool Exists(const std::string& /*path*/) { return false; }
  PlannedPorts Ports() { return PortsOf(Plan, Main, Store, Exists); }
  void Apply() { PlanApply(Plan, Main, Store, Exists); }
};

TEST_F(ConnectPlanTest, TwoDevicesGetTwoNumbers) {
  Plan.Input = "/dev/ttyUSB0?baud=38400";
  Plan.Pilot = "/dev/ttyUSB1";
  Apply();
  EXPECT_EQ(Main.m_iNmeaPort, 5);
  EXPECT_EQ(Main.m_iPilotPort, 1);
  EXPECT_EQ(PortDevice(Store, 5), "/dev/ttyUSB0?baud=38400");
  EXPECT_EQ(PortDevice(Store, 1), "/dev/ttyUSB1");
  EXPECT_THAT(Main.Calls, ElementsAre("Off 5 5", "Setup 5 1"));
  EXPECT_THAT(PlanLines(Plan, Main, Store, Exists), IsEmpty()) << "it is so already";
}

TEST_F(ConnectPlanTest, AnAutopilotOnADeviceOfTheInstrumentsSharesTheirPort) {
  Main.m_iPilotPort = 6;
  Plan.Input = "/dev/ttyUSB0?baud=38400, tcp://boat:2000";
  Plan.Pilot = "/dev/ttyUSB0";
  EXPECT_EQ(Ports().Pilot, 5);
  Apply();
  EXPECT_EQ(Main.m_iPilotPort, 5);
  EXPECT_EQ(PortEntries(Store).size(), 1U);
}

TEST_F(ConnectPlanTest, WhatLeadsThereAlreadyKeepsItsNumber) {
  NamePort(Store, 2, "tcp://boat:2000");
  NamePort(Store, 1, "/dev/ttyUSB1");
  Plan.Input = "tcp://boat:2000";
  Plan.Pilot = "/dev/ttyUSB1";
  EXPECT_EQ(Ports().Input, 2);
  EXPECT_EQ(Ports().Pilot, 1);
  Plan.Pilot = "/dev/ttyUSB9";
  Main.m_iPilotPort = 2;
  EXPECT_EQ(Ports().Pilot, 3) << "1 and 2 lead elsewhere";
}

TEST_F(ConnectPlanTest, WithoutPortsThoseOfNowStay) {
  Main.m_iNmeaPort = 7;
  Main.m_iPilotPort = 8;
  Main.m_bSimulate = true;
  Plan.Chosen = Main;
  Plan.Chosen.m_fTrackAlarmLimit = 12.0F;
  Apply();
  EXPECT_EQ(Main.m_iNmeaPort, 7);
  EXPECT_EQ(Main.m_iPilotPort, 8);
  EXPECT_EQ(Main.m_fTrackAlarmLimit, 12.0F);
  EXPECT_TRUE(Main.m_bSimulate);
}

TEST_F(ConnectPlanTest, BearingAnglesColoursAndModeAreNotOfThePlan) {
  Main.m_fAutoPilot = 222.0F;
  Main.DesiredAngle[1] = -33.0F;
  Main.m_bNightColours = true;
  Main.m_sProfileFile = "here";
  Plan.Input = "udp://:2000";
  Apply();
  EXPECT_EQ(Main.m_fAutoPilot, 222.0F);
  EXPECT_EQ(Main.DesiredAngle[1], -33.0F);
  EXPECT_TRUE(Main.m_bNightColours);
  EXPECT_EQ(Main.m_sProfileFile, "here");
}

TEST_F(ConnectPlanTest, InstrumentsEndTheSimulatedBoat) {
  Main.m_bSimulate = true;
  Plan.Chosen = Main;
  Plan.Input = "udp://:2000";
  Apply();
  EXPECT_FALSE(Main.m_bSimulate);
}

}  // namespace
}  // namespace veerwatch
