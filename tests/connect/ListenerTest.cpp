#include "connect/Listener.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/connect/ListenRig.h"

namespace veerwatch {
namespace {

class ListenerTest : public testing::Test {
 protected:
  static constexpr const char* kDevice = "/dev/ttyUSB0?baud=auto";
  static constexpr const char* kHost = "tcp://boat:2000";

  ListenRig Rig;
  std::vector<std::string> Lines;
  std::unique_ptr<Listener> On;

  void Listen(const std::string& endpoint) {
    On = std::make_unique<Listener>(
        Candidate{"It", endpoint}, Rig.Maker(),
        [](const std::string& path) { return path == "/dev/ttyUSB0"; }, Rig.Time,
        [this](std::string_view line, const Moment&) { Lines.emplace_back(line); });
  }
  ScriptedPort& Port() { return *Rig.Ports.begin()->second; }
  void Pass(std::int64_t milliseconds) {
    Rig.Time.Pass(milliseconds);
    On->Tick();
  }
};

TEST_F(ListenerTest, TheTenSecondsOfASerialLineBeginWithItsRate) {
  Rig.Script = [](const std::string&, ScriptedPort& port) { port.Rate = 9600; };
  Listen(kDevice);
  EXPECT_EQ(On->Says(), "searching the rate, now 9600 baud");
  EXPECT_EQ(On->LeadsTo(), kDevice);
  Pass(Listener::kSearches - 1);
  EXPECT_FALSE(On->Over());
  Port().Rate = 38400;
  for (int second = 0; second < 10; ++second) {
    Port().Receive(Sentence("IIMWV,045,R,10,N,A"));
    Port().Receive(Sentence("IIHDG,100,,,,"));
    EXPECT_FALSE(On->Over());
    Pass(1000);
  }
  EXPECT_TRUE(On->Over());
  EXPECT_EQ(On->Says(), "38400: MWV R 1/s, HDG 1/s");
  EXPECT_EQ(On->LeadsTo(), "/dev/ttyUSB0?baud=38400");
  EXPECT_EQ(Lines.size(), 20U);
  Port().Receive(Sentence("IIHDG,100,,,,"));
  EXPECT_EQ(Lines.size(), 21U) << "it goes on";
  EXPECT_TRUE(On->Brings());
}

TEST_F(ListenerTest, NoiseAtEveryRateIsSaidAndClosesThePort) {
  Rig.Script = [](const std::string&, ScriptedPort& port) { port.Noisy = true; };
  Listen(kDevice);
  Pass(Listener::kSearches);
  EXPECT_TRUE(On->Over());
  EXPECT_EQ(On->Says(), "noise at every rate, no sentences");
  EXPECT_FALSE(Port().PortOpen());
  EXPECT_FALSE(On->Brings());
}

TEST_F(ListenerTest, ASilentDeviceIsSaid) {
  Listen(kDevice);
  Pass(Listener::kSearches);
  EXPECT_EQ(On->Says(), "nothing comes, at no rate");
}

TEST_F(ListenerTest, APortThatDoesNotOpenSaysWhy) {
  Rig.Script = [](const std::string&, ScriptedPort& port) {
    port.OpensOtherwise = false;
    port.Failure = "/dev/ttyUSB0: in use by another program, minicom";
  };
  Listen(kDevice);
  EXPECT_TRUE(On->Over());
  EXPECT_EQ(On->Says(), "in use by another program, minicom");
}

TEST_F(ListenerTest, ADeviceThatIsPulledOutIsSaidAndTheRestGoesOn) {
  Listen(kDevice);
  Port().Receive(Sentence("IIHDG,100,,,,"));
  Port().Lose();
  EXPECT_TRUE(On->Over());
  EXPECT_EQ(On->Says(), "vanished while it was listened to");
  Pass(Listener::kListens);
  EXPECT_EQ(On->Says(), "vanished while it was listened to");
}

TEST_F(ListenerTest, AHostThatDoesNotAnswerIsSaid) {
  Listen(kHost);
  EXPECT_EQ(On->Says(), "listening...");
  Port().Complaint = "tcp://boat:2000: no answer, next try in 4 s";
  Pass(Listener::kListens);
  EXPECT_EQ(On->Says(), "the host does not answer");
}

TEST_F(ListenerTest, ARefusalAndASilenceAreSaidApart) {
  Listen(kHost);
  Port().Complaint = "tcp://boat:2000: connection refused, next try in 1 s";
  Pass(Listener::kListens);
  EXPECT_EQ(On->Says(), "connection refused");
  Listen("udp://0.0.0.0:2000");
  Pass(Listener::kListens);
  EXPECT_EQ(On->Says(), "nothing comes");
}

TEST_F(ListenerTest, LinesThatAreNoSentencesAreCountedAndOthersPassedOn) {
  Listen(kHost);
  Port().Receive("hello\r\n$IIHDG,100,,,,*00\r\n" + Sentence("IIHDG,100,,,,") + "!AIVDM,1,1,,A,x,0\r\n");
  Pass(Listener::kListens);
  EXPECT_EQ(On->Says(), "HDG 0.1/s, VDM 0.1/s, 2 errors");
  EXPECT_EQ(Lines, std::vector<std::string>{"$IIHDG,100,,,,*56"});
}

TEST_F(ListenerTest, AHostThatSendsOtherThingsBringsNothing) {
  Listen(kHost);
  Port().Receive("{\"name\":\"server\"}\r\n");
  Pass(Listener::kListens);
  EXPECT_EQ(On->Says(), "no sentences, only lines that are none");
  EXPECT_FALSE(On->Brings());
}

TEST_F(ListenerTest, WhatIsNoEndpointSaysSo) {
  Listen("tcp://boat:99999");
  EXPECT_TRUE(On->Over());
  EXPECT_EQ(On->Says(), "\"99999\" is no port (1 to 65535)") << "the row's name says where";
}

TEST_F(ListenerTest, AHostThatBreaksOffAfterTheTenSecondsIsSaid) {
  Listen(kHost);
  for (int second = 0; second < 10; ++second) {
    Port().Receive(Sentence("IIHDG,100,,,,"));
    Pass(1000);
  }
  EXPECT_EQ(On->Says(), "HDG 1/s");
  Pass(Listener::kListens - 999);
  EXPECT_EQ(On->Says(), "HDG 1/s; nothing more comes");
  Port().Complaint = "tcp://boat:2000: connection refused, next try in 8 s";
  EXPECT_EQ(On->Says(), "HDG 1/s; connection refused");
  Port().Receive(Sentence("IIHDG,100,,,,"));
  EXPECT_EQ(On->Says().find("refused"), std::string::npos) << "it is back";
}

TEST_F(ListenerTest, WhatTheProgramHasOpenIsHeardThroughIt) {
  Listener use({"Port 1", "/dev/ttyUSB0"}, Rig.Time,
               [this](std::string_view line, const Moment&) { Lines.emplace_back(line); });
  use.Hear("$IIHDG,100,,,,", LineFault::Decode);
  use.Hear("x", LineFault::Sentence);
  Rig.Time.Pass(Listener::kListens);
  use.Tick();
  EXPECT_TRUE(use.Over());
  EXPECT_EQ(use.Says(), "in use now: HDG 0.1/s, 1 error");
  EXPECT_EQ(Lines.size(), 1U);
  EXPECT_EQ(use.LeadsTo(), "/dev/ttyUSB0");
}

TEST_F(ListenerTest, OfAPortInUseThatBringsNothingTheWayOnIsSaid) {
  Listener silent({"Port 1", "/dev/ttyUSB0"}, Rig.Time, Listener::Line());
  Listener noisy({"Port 1", "/dev/ttyUSB0"}, Rig.Time, Listener::Line());
  noisy.Hear("x", LineFault::Sentence);
  Rig.Time.Pass(Listener::kListens);
  silent.Tick();
  noisy.Tick();
  EXPECT_EQ(silent.Says(), "in use now: nothing comes; press Off (F5), then Listen Again, to try every rate");
  EXPECT_EQ(noisy.Says(), "in use now: noise; press Off (F5), then Listen Again, to try every rate");
}

}  // namespace
}  // namespace veerwatch
