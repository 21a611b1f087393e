#include "connect/Listening.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/PortNames.h"
#include "tests/connect/ListenRig.h"
#include "tests/support/FakeMainWindow.h"

namespace veerwatch {
namespace {

using testing::HasSubstr;

class ListeningTest : public testing::Test {
 protected:
  ListenRig Rig;
  FakeMainWindow Main;
  Profile Store;
  std::vector<std::string> Lines;
  std::unique_ptr<Listening> All;

  void Make() {
    All = std::make_unique<Listening>(
        Listening::Parts{Main, Store, Rig.Time, Rig.Maker(), [](const std::string&) { return false; }},
        [this](std::string_view line, const Moment&) { Lines.emplace_back(line); });
  }
  ScriptedPort* Port(const std::string& endpoint) { return Rig.Ports.at(endpoint); }
  void Second(std::initializer_list<std::pair<ScriptedPort*, std::string>> brings) {
    Rig.Second([this] { All->Tick(); }, brings);
  }
};

TEST_F(ListeningTest, TicksWhatBringsSentencesAndJoinsTheirEndpoints) {
  Make();
  All->Begin({{"USB", "/dev/ttyUSB0?baud=auto"}, {"TCP", "tcp://boat:2000"}, {"UDP", "udp://:2000"}});
  ASSERT_EQ(All->Count(), 3U);
  EXPECT_EQ(All->RowAt(1).Text, "TCP: listening...");
  for (int second = 0; second < 10; ++second) {
    Second({{Port("/dev/ttyUSB0?baud=auto"), "IIMWV,045,R,10." + std::to_string(second) + ",N,A"},
            {Port("tcp://boat:2000"), "IIHDG,10" + std::to_string(second) + ",,,,"}});
  }
  EXPECT_EQ(All->RowAt(0).Text, "USB, 4800: MWV R 1/s");
  EXPECT_TRUE(All->RowAt(0).Ticked);
  EXPECT_EQ(All->RowAt(1).Text, "TCP: HDG 1/s");
  EXPECT_EQ(All->RowAt(1).Details, "tcp://boat:2000\nII HDG: 1/s");
  EXPECT_TRUE(All->RowAt(1).Ticked);
  EXPECT_EQ(All->RowAt(2).Text, "UDP: nothing comes");
  EXPECT_FALSE(All->RowAt(2).Ticked);
  EXPECT_TRUE(All->Over());
  EXPECT_EQ(All->Ticked(), "/dev/ttyUSB0?baud=4800, tcp://boat:2000");
  All->SetTicked(0, false);
  All->SetTicked(2, true);
  EXPECT_EQ(All->Ticked(), "tcp://boat:2000") << "what brings nothing cannot be ticked";
  Second({{Port("tcp://boat:2000"), "IIHDG,200,,,,"}, {Port("/dev/ttyUSB0?baud=auto"), "IIHDG,201,,,,"}});
  EXPECT_EQ(All->RowAt(0).Ticked, false) << "it is offered once";
  EXPECT_THAT(Lines.back(), HasSubstr("HDG,200")) << "only what is ticked is passed on";
}

TEST_F(ListeningTest, TwoGatewaysThatRelayEachOtherAreSaidAndOneIsTicked) {
  Make();
  All->Begin({{"A", "tcp://a:2000"}, {"B", "tcp://b:2000"}});
  for (int second = 0; second < 10; ++second) {
    const std::string body = "IIMWV,0" + std::to_string(10 + second) + ",R,10,N,A";
    Second({{Port("tcp://a:2000"), body}, {Port("tcp://b:2000"), body}});
  }
  EXPECT_EQ(All->RowAt(0).Text, "A: MWV R 1/s; the same comes on B");
  EXPECT_EQ(All->RowAt(1).Text, "B: MWV R 1/s; the same comes on A");
  EXPECT_TRUE(All->RowAt(0).Ticked);
  EXPECT_FALSE(All->RowAt(1).Ticked);
  All->SetTicked(1, true);
  EXPECT_EQ(All->RowAt(1).Text, "B: MWV R 1/s; the same comes on A: tick one of them");
}

TEST_F(ListeningTest, OfThreeThatBringTheSameOneIsTicked) {
  Make();
  All->Begin({{"A", "tcp://a:2000"}, {"B", "tcp://b:2000"}, {"C", "tcp://c:2000"}});
  for (int second = 0; second < 10; ++second) {
    const std::string body = "IIMWV,0" + std::to_string(10 + second) + ",R,10,N,A";
    Second({{Port("tcp://a:2000"), body}, {Port("tcp://b:2000"), body}, {Port("tcp://c:2000"), body}});
  }
  EXPECT_EQ(All->Ticked(), "tcp://a:2000");
  EXPECT_EQ(All->RowAt(2).Text, "C: MWV R 1/s; the same comes on A");
}

TEST_F(ListeningTest, ThePortInUseStaysOpenAndIsHeardThroughTheHelm) {
  Main.m_iNmeaPort = 3;
  Main.m_iPilotPort = 4;
  Main.Answer.InputStarted = true;
  Main.Answer.InputOpen = true;
  Main.Answer.OutputOpen = true;
  NamePort(Store, 3, "/dev/ttyUSB0?baud=38400");
  NamePort(Store, 4, "/dev/ttyUSB1");
  Make();
  All->Begin({{"In", "/dev/ttyUSB0?baud=auto"}, {"Out", "/dev/ttyUSB1?baud=auto"}, {"UDP", "udp://:2000"}});
  ASSERT_EQ(All->Count(), 3U);
  EXPECT_EQ(Rig.Ports.size(), 1U) << "only what is free is opened";
  EXPECT_EQ(All->RowAt(1).Text, "Out: in use now: the autopilot's port");
  for (int second = 0; second < 10; ++second) {
    Main.Tells.Tell([](HelmObserver& told) { told.OnNmeaLine("$IIHDG,100,,,,", LineFault::None, true); });
    Rig.Time.Pass(1000);
    All->Tick();
  }
  EXPECT_EQ(All->RowAt(0).Text, "Port 3 (/dev/ttyUSB0?baud=38400): in use now: HDG 1/s");
  EXPECT_TRUE(All->RowAt(0).Ticked);
  EXPECT_EQ(All->Ticked(), "/dev/ttyUSB0?baud=38400");
}

TEST_F(ListeningTest, WhatIsClosedKeepsItsRow) {
  Make();
  All->Begin({{"A", "tcp://a:2000"}});
  Second({{Port("tcp://a:2000"), "IIHDG,100,,,,"}});
  ScriptedPort* port = Port("tcp://a:2000");
  All->End();
  EXPECT_FALSE(port->PortOpen());
  EXPECT_THAT(All->RowAt(0).Text, HasSubstr("A: HDG"));
}

TEST_F(ListeningTest, APilotIsLikelyOnASilentAdapterThenOnWhatIsTicked) {
  Make();
  All->Begin({{"/dev/ttyS0", "/dev/ttyS0?baud=auto"},
              {"USB serial (FTDI)", "/dev/ttyUSB0?baud=auto", true},
              {"A", "tcp://a:2000"},
              {"B", "tcp://b:2000"}});
  for (int second = 0; second < 19; ++second) {
    Second({{Port("tcp://a:2000"), "IIHDG,10" + std::to_string(second) + ",,,,"}});
  }
  EXPECT_THAT(All->ForPilot(), testing::ElementsAre("/dev/ttyUSB0", "tcp://a:2000", "/dev/ttyS0"));
}

}  // namespace
}  // namespace veerwatch
