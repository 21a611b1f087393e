#include "connect/PlanWords.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/PortNames.h"

namespace veerwatch {
namespace {

class PlanWordsTest : public testing::Test {
 protected:
  Settings Present;
  Profile Store;
  ConnectPlan Plan;

  std::string Text() {
    return PlanText(PlanLines(Plan, Present, Store, [](const std::string&) { return false; }));
  }
};

TEST_F(PlanWordsTest, NothingIsSaidWhereEverythingIsSoAlready) { EXPECT_EQ(Text(), ""); }

TEST_F(PlanWordsTest, EachLineStandsUnderItsPart) {
  Plan.Input = "/dev/ttyUSB0?baud=38400";
  Plan.Pilot = "/dev/ttyUSB1";
  Plan.Chosen.m_fTrackBandwidth = 40.0F;
  Plan.Chosen.m_iPilotCadence = 2;
  Plan.Chosen.m_iNmeaHeading = 0;
  EXPECT_EQ(Text(),
            "Instruments\n"
            "\u2022 Port 5 leads to /dev/ttyUSB0?baud=38400\n"
            "\u2022 Heading: from the compass (now the course over ground)\n"
            "\n"
            "Autopilot\n"
            "\u2022 Port 1 leads to /dev/ttyUSB1\n"
            "\u2022 Sentences to the pilot: 2 a second (now with each wind)\n"
            "\n"
            "How it steers\n"
            "\u2022 Bandwidth: 40 s (now 20 s)");
}

TEST_F(PlanWordsTest, APortThatLeadsThereAlreadyIsOnlyTaken) {
  NamePort(Store, 2, "tcp://boat:2000");
  NamePort(Store, 1, "/dev/ttyUSB1");
  Plan.Input = "tcp://boat:2000";
  Plan.Pilot = "/dev/ttyUSB1";
  EXPECT_EQ(Text(),
            "Instruments\n"
            "\u2022 Port 2, which leads to tcp://boat:2000 (now port 5)\n"
            "\n"
            "Autopilot\n"
            "\u2022 Port 1, which leads to /dev/ttyUSB1 (now port 5)");
}

TEST_F(PlanWordsTest, OnePortForBothWays) {
  Present.m_iPilotPort = 6;
  Plan.Input = "/dev/ttyUSB0";
  Plan.Pilot = "/dev/ttyUSB0";
  EXPECT_EQ(Text(),
            "Instruments\n"
            "\u2022 Port 5 leads to /dev/ttyUSB0\n"
            "\n"
            "Autopilot\n"
            "\u2022 On the port of the instruments, both ways");
}

}  // namespace
}  // namespace veerwatch
