#include "connect/ConnectDesk.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "platform/PortNames.h"
#include "tests/connect/ListenRig.h"
#include "tests/support/FakeMainWindow.h"
#include "tests/support/ListedPorts.h"

namespace veerwatch {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ConnectDeskTest : public testing::Test {
 protected:
  ListenRig Rig;
  FakeMainWindow Main;
  Profile Store;
  ListedPorts Finder;
  bool Smooth = false;
  ConnectDesk Desk{{Main,
                    Store,
                    Rig.Time,
                    &Finder,
                    Rig.Maker(),
                    [](const std::string&) { return false; },
                    {[this] { return Smooth; }, [this](bool smooth) { Smooth = smooth; }}}};

  /// Ten seconds of winds and speed on a device, and headings on a gateway.
  void Hear() {
    Finder.Plugged = {{"/dev/ttyUSB0", "FTDI", ""}};
    Desk.Search("boat:2000");
    for (int second = 0; second < 10; ++second) {
      const std::string digit = std::to_string(second);
      Rig.Second([this] { Desk.Tick(); },
                 {{Rig.Ports.at("/dev/ttyUSB0?baud=auto"), "IIMWV,03" + digit + ",R,10,N,A"},
                  {Rig.Ports.at("/dev/ttyUSB0?baud=auto"), "IIVHW,,T,,M,6." + digit + ",N,,"},
                  {Rig.Ports.at("tcp://boat:2000"), "HCHDG,10" + digit + ",,,3,E"}});
    }
  }
};

TEST_F(ConnectDeskTest, ListensToThePortsTheUsualPlacesAndTheHost) {
  Finder.Plugged = {{"/dev/ttyUSB0", "FTDI", ""}};
  Desk.Search("boat:2000");
  EXPECT_EQ(Desk.Heard().Count(), 7U);
  Desk.SearchAnnounced("=;e;IPv4;pi;_signalk-ws._tcp;local;pi.local;10.0.0.9;3000;\n");
  EXPECT_EQ(Desk.Heard().RowAt(7).Text, "pi at 10.0.0.9 (Signal K, announced): listening...");
}

TEST_F(ConnectDeskTest, OnlyWhatIsTickedGoesIntoTheValues) {
  Hear();
  EXPECT_EQ(Desk.Values().Chosen(BoatValue::Heading), "") << "nothing was ticked before";
  Rig.Ports.at("tcp://boat:2000")->Receive(Sentence("HCHDG,100,,,3,E"));
  EXPECT_EQ(Desk.Values().Chosen(BoatValue::Heading), "HDG");
}

TEST_F(ConnectDeskTest, SaysWhatItWouldWriteAndWritesThat) {
  Hear();
  Hear();
  Desk.SetPilotPort("/dev/ttyUSB1");
  Desk.PilotForm().PilotProfile = static_cast<int>(PilotProfile::Hsc);
  RecommendedTicks ticks{};
  ticks.fill(true);
  Desk.SetRecommended(ticks);
  const std::string words = PlanText(Desk.Words());
  EXPECT_THAT(words, AllOf(HasSubstr("Port 5 leads to /dev/ttyUSB0?baud=4800, tcp://boat:2000\n"),
                           HasSubstr("Port 1 leads to /dev/ttyUSB1\n"),
                           HasSubstr("Tracking method: Direction (now Sentence)\n"),
                           HasSubstr("Polar between winds: smooth (now in steps)")));
  EXPECT_THAT(Main.Calls, IsEmpty());
  EXPECT_EQ(Store.Content(), "");
  Desk.Save();
  EXPECT_THAT(Main.Calls, ElementsAre("Off 5 5", "Setup 5 1"));
  EXPECT_EQ(Main.m_ePilotProfile, PilotProfile::Hsc);
  EXPECT_EQ(Main.m_eTrackMethod, TrackMethod::Direction);
  EXPECT_TRUE(Smooth);
  EXPECT_FALSE(Rig.Ports.at("tcp://boat:2000")->PortOpen());
}

TEST_F(ConnectDeskTest, ThePilotSharesTheDeviceOfTheInstrumentsAndThatIsSaid) {
  Hear();
  EXPECT_THAT(Desk.PilotPorts(), ElementsAre("/dev/ttyUSB0?baud=4800", "tcp://boat:2000",
                                             "/dev/ttyUSB0?baud=4800, tcp://boat:2000"));
  EXPECT_EQ(Desk.PilotPort(), "/dev/ttyUSB0?baud=4800");
  EXPECT_EQ(Desk.PilotPortWords(), "One port for both ways: the instruments and the autopilot.");
  Desk.SetPilotPort("tcp://pilot:2000");
  EXPECT_EQ(Desk.PilotPortWords(), "");
  EXPECT_THAT(Desk.PilotPortWrong("tcp://x"), Not(IsEmpty()));
}

TEST_F(ConnectDeskTest, ThePilotsPortIsTypedAsAPlaceIsOnTheFirstPage) {
  Desk.SetPilotPort(" gateway:2000 ");
  EXPECT_EQ(Desk.PilotPort(), "tcp://gateway:2000");
  EXPECT_EQ(Desk.PilotPortWords(), "");
  EXPECT_THAT(Desk.PilotPortWrong("gateway:2000x"), HasSubstr("\"2000x\" is no port"));
}

TEST_F(ConnectDeskTest, ADeviceThatIsNotThereIsSaidOfThePilotsPort) {
  Desk.SetPilotPort("/dev/ttyUSB1?baud=4800");
  EXPECT_EQ(Desk.PilotPortWords(), "/dev/ttyUSB1 is not there now");
  Desk.SetPilotPort("gateway");
  EXPECT_EQ(Desk.PilotPortWords(), "gateway is not there now");
}

TEST_F(ConnectDeskTest, ThePortThatTheProfileNamesIsProposedFirst) {
  NamePort(Store, 5, "/dev/ttyUSB7");
  Hear();
  EXPECT_EQ(Desk.PilotPort(), "/dev/ttyUSB7");
}

TEST_F(ConnectDeskTest, TheSentencesAreThoseOfTheChosenProfile) {
  Main.m_fAutoPilot = 123.0F;
  EXPECT_THAT(Desk.Preview().Sentences, HasSubstr("$ECAPB,"));
  Desk.PilotForm().PilotProfile = static_cast<int>(PilotProfile::Hsc);
  EXPECT_THAT(Desk.Preview().Note, HasSubstr("Needs the Variation"));
  Hear();
  Rig.Ports.at("tcp://boat:2000")->Receive(Sentence("HCHDG,100,,,3,E"));
  EXPECT_THAT(Desk.Preview().Sentences, HasSubstr("HSC,")) << "with the variation of what is ticked";
}

TEST_F(ConnectDeskTest, HowFullTheLineIsGoesByThePortThatIsChosen) {
  Main.Answer.PilotBaud = 4800;
  Main.Answer.WindsASecond = 5.0;
  Desk.SetPilotPort("tcp://pilot:2000");
  EXPECT_EQ(Desk.Preview().Note, "") << "nothing bounds a socket";
  Desk.SetPilotPort("/dev/ttyUSB1?baud=9600");
  EXPECT_THAT(Desk.Preview().Note, HasSubstr("9600 baud"));
}

TEST_F(ConnectDeskTest, TheTrackingIsSetForTheLagThatWasMeasured) {
  Main.Answer.Heading = 100.0F;
  Main.Answer.WindsASecond = 1.0;
  Main.Answer.BoatSpeedKnown = true;
  Desk.TakeLag("");
  EXPECT_EQ(Desk.Chosen().m_eTrackMethod, TrackMethod::Sentence);
  Desk.TakeLag("6.5");
  EXPECT_EQ(Desk.Chosen().m_eTrackMethod, TrackMethod::Direction);
}

TEST_F(ConnectDeskTest, TheTrialGetsThePortsAndGivesThemBack) {
  Hear();
  Main.m_eTrackMode = TrackMode::Setup;
  const std::string before = Store.Content();
  Desk.TrialBegin();
  EXPECT_FALSE(Rig.Ports.at("tcp://boat:2000")->PortOpen());
  EXPECT_EQ(PortDevice(Store, 5), "/dev/ttyUSB0?baud=4800, tcp://boat:2000");
  Desk.TrialEnd();
  EXPECT_TRUE(Rig.Ports.at("tcp://boat:2000")->PortOpen());
  EXPECT_EQ(Store.Content(), before);
  Desk.TrialBegin();
  Desk.End();
  EXPECT_EQ(Store.Content(), before);
  EXPECT_FALSE(Rig.Ports.at("tcp://boat:2000")->PortOpen());
}

}  // namespace
}  // namespace veerwatch
