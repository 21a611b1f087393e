// Opening, what comes in, and a standstill.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/platform/EndpointPortFixture.h"
#include "tests/support/PortPolicy.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Every port's claims, on an endpoint that takes everything and sends it in its own time, as a driver does,
// and on one that takes a few characters at a time and keeps none, as a socket may.

class MemoryRig : public PortRig {
 public:
  MemoryRig() { m_port.PortOpen(true); }

  SerialPort& Port() override { return m_port; }
  std::string Arrive(std::string_view text) override {
    m_port.Arrive(text);
    return std::string(text);
  }
  bool Await(const std::function<bool()>& condition) override {
    for (int step = 0; step < 10'000 && !condition(); ++step) {
      m_port.Pass(1);
    }
    return condition();
  }
  const std::string& Heard() override { return m_port.Heard; }
  void Pass(int milliseconds) override { m_port.Pass(milliseconds); }
  void StandStill(int milliseconds) override { m_clock.Pass(milliseconds); }

 protected:
  HandClock m_clock;
  MemoryEndpoint m_port{m_clock};
};

class DriverRig : public MemoryRig {
 public:
  void Stick() override { m_port.Holds = true; }
  void Move() override {
    m_port.Holds = false;
    m_port.Drain();
  }
};

class TrickleRig : public MemoryRig {
 public:
  TrickleRig() { m_port.Takes = std::string_view(kFirst).size(); }
  void Stick() override {
    m_port.Takes = 2;
    m_port.TakesInAll = 2;
  }
  void Move() override { m_port.TakesInAll = MemoryEndpoint::kAll; }
};

INSTANTIATE_TEST_SUITE_P(Memory, PortPolicy,
                         testing::Values(PortRigKind{"Driver", &MakeRig<DriverRig>},
                                         PortRigKind{"Trickle", &MakeRig<TrickleRig>}),
                         PortRigName);

// Opening.

TEST_F(EndpointPortTest, SaysWhyItDoesNotOpenUntilItDoes) {
  m_port.PortOpen(false);
  m_port.Failure = "no such place";
  EXPECT_FALSE(m_port.PortOpen(true));
  EXPECT_FALSE(m_port.PortOpen());
  EXPECT_EQ(m_port.OpenFailure(), "no such place");
  m_port.Failure = "";
  EXPECT_TRUE(m_port.PortOpen(true));
  EXPECT_EQ(m_port.OpenFailure(), "");
}

TEST_F(EndpointPortTest, GivesWhetherItIsAsAsked) {
  EXPECT_TRUE(m_port.PortOpen(true));
  EXPECT_TRUE(m_port.OpenAtTheEnd);
  EXPECT_TRUE(m_port.PortOpen(false));
  EXPECT_FALSE(m_port.OpenAtTheEnd);
  EXPECT_TRUE(m_port.PortOpen(false));
  EXPECT_TRUE(m_port.PortOpen(true));
  EXPECT_TRUE(m_port.OpenAtTheEnd);
}

TEST_F(EndpointPortTest, TakesAnotherNumberOnlyWhileItIsClosed) {
  EXPECT_EQ(m_port.CommPort(), 1);
  m_port.CommPort(7);
  EXPECT_EQ(m_port.CommPort(), 1);
  m_port.PortOpen(false);
  m_port.CommPort(7);
  EXPECT_EQ(m_port.CommPort(), 7);
}

TEST_F(EndpointPortTest, DoesNothingOnceItIsClosed) {
  m_port.Arrive("x");
  m_port.PortOpen(false);
  m_port.Output("lost\r\n");
  m_port.Arrive("y");
  m_port.Drain();
  m_port.Fail();
  m_port.WakeNow();
  m_port.Pass(10'000);
  std::string text = "old";
  m_port.Input(text);
  EXPECT_EQ(text, "");
  EXPECT_EQ(m_port.Heard, "");
  EXPECT_THAT(m_owner.Codes, IsEmpty());
  EXPECT_EQ(m_owner.Lost, 0);
  EXPECT_EQ(m_owner.Standstills, 0);
  EXPECT_EQ(m_port.WakeAsked, std::nullopt);
}

TEST_F(EndpointPortTest, OffersNothingFromTheTimeBeforeItWasOpenedAgain) {
  m_owner.Handle = [] {};
  m_port.Arrive("x");
  m_port.Turn();
  m_port.Arrive("y");
  m_port.PortOpen(false);
  m_owner.Codes.clear();
  m_port.PortOpen(true);
  m_port.Pass(400);
  EXPECT_THAT(m_owner.Codes, IsEmpty());
}

TEST_F(EndpointPortTest, AsksForItsBeatAndNoMoreEachTimeThatItIsOpened) {
  m_port.Takes = 0;
  m_port.Output("a\r\n");
  m_port.Arrive("x");
  m_port.PortOpen(false);
  EXPECT_EQ(m_port.WakeAsked, std::nullopt);
  m_clock.Time = HandClock().Time;  // the wait for the line has taken its time
  m_port.PortOpen(true);
  EXPECT_EQ(m_port.WakeAsked, 500);
}

// What comes in.

TEST_F(EndpointPortTest, OffersWhatArrivesWhenTheLoopComesRound) {
  m_port.Arrive("x");
  EXPECT_EQ(m_port.WakeAsked, 0);
  EXPECT_THAT(m_owner.Codes, IsEmpty()) << "never from inside a call";
  m_port.Turn();
  EXPECT_EQ(m_owner.Text, "x");
  EXPECT_THAT(m_owner.Codes, ElementsAre(CommEvent::kReceive));
}

TEST_F(EndpointPortTest, AsksOnceForAllThatArrivesAtOneMoment) {
  m_port.Arrive("x");
  m_port.WakeAsked.reset();
  m_port.Arrive("y");
  EXPECT_EQ(m_port.WakeAsked, std::nullopt);
  m_port.Turn();
  EXPECT_EQ(m_owner.Text, "xy");
  EXPECT_EQ(m_owner.Codes.size(), 1U);
}

TEST_F(EndpointPortTest, OffersAgainAfterAHundredMillisecondsUntilItIsRead) {
  m_owner.Handle = [] {};
  m_port.Arrive("x");
  m_port.Turn();
  EXPECT_EQ(m_owner.Codes.size(), 1U);
  m_port.Pass(99);
  EXPECT_EQ(m_owner.Codes.size(), 1U);
  m_port.Pass(1);
  EXPECT_EQ(m_owner.Codes.size(), 2U);
  m_owner.Handle = nullptr;
  m_port.Pass(1000);
  EXPECT_EQ(m_owner.Codes.size(), 3U);
  EXPECT_EQ(m_owner.Text, "x");
}

TEST_F(EndpointPortTest, OffersAtOnceWhatArrivesAfterSomethingUnread) {
  m_owner.Handle = [] {};
  m_port.Arrive("x");
  m_port.Turn();
  m_port.Arrive("y");
  m_port.Turn();
  EXPECT_EQ(m_owner.Codes.size(), 2U);
}

TEST_F(EndpointPortTest, AsksForNothingMoreThanItsBeatWhenEverythingIsRead) {
  m_port.Arrive("x");
  m_port.Turn();
  EXPECT_EQ(m_port.WakeAsked, 500);
}

TEST_F(EndpointPortTest, HoldsSixtyFourKibibytes) { EXPECT_EQ(EndpointPort::kLargestUnread, 65'536U); }

TEST_F(EndpointPortTest, HoldsNoMoreHoweverOftenSomethingArrives) {
  m_owner.Handle = [] {};
  for (int i = 0; i < 3; ++i) {
    m_port.Arrive(std::string(EndpointPort::kLargestUnread - 10, 'x'));
    m_port.Turn();
  }
  m_port.Arrive("y");
  m_owner.Read();
  EXPECT_EQ(m_owner.Text.size(), EndpointPort::kLargestUnread);
}

TEST_F(EndpointPortTest, OffersAtOnceWhatHadNoRoom) {
  m_owner.Handle = [] {};
  m_port.Arrive(std::string(EndpointPort::kLargestUnread + 5, 'x'));
  m_port.Turn();
  m_owner.Handle = nullptr;
  m_owner.Read();
  EXPECT_EQ(m_owner.Text.size(), EndpointPort::kLargestUnread);
  m_port.Turn();
  EXPECT_EQ(m_owner.Text.size(), EndpointPort::kLargestUnread + 5);
}

TEST_F(EndpointPortTest, GivesAsManyAsItHoldsToAReadThatNobodyAskedFor) {
  m_port.Arrive("x");
  m_owner.Read();
  EXPECT_EQ(m_owner.Text, "x");
  m_port.Pass(1000);
  EXPECT_THAT(m_owner.Codes, IsEmpty());
}

TEST_F(EndpointPortTest, AsksForLineErrorsAfterEachReceiveEventOnly) {
  m_port.LineErrors = {CommEvent::kBreak};
  m_port.Pass(2000);
  EXPECT_EQ(m_port.Polls, 0);
  m_port.Arrive("x");
  m_port.Turn();
  EXPECT_EQ(m_port.Polls, 1);
  EXPECT_THAT(m_owner.Codes, ElementsAre(CommEvent::kReceive, CommEvent::kBreak));
}

TEST_F(EndpointPortTest, AsksForNoLineErrorsOnceItsOwnerHasClosedIt) {
  m_owner.Handle = [&] { m_port.PortOpen(false); };
  m_port.Arrive("x");
  m_port.Turn();
  EXPECT_EQ(m_port.Polls, 0);
  m_port.Pass(1000);
  EXPECT_EQ(m_owner.Codes.size(), 1U);
}

TEST_F(EndpointPortTest, OffersNothingMoreToSomebodyWhoClosesItForALineError) {
  class Closer : public SerialPort::Events {
   public:
    explicit Closer(SerialPort& port) : m_port(port), m_connection(port.Connect(*this)) {}
    void OnComm(int commEvent) override {
      Codes.push_back(commEvent);
      if (commEvent == CommEvent::kBreak) {
        m_port.PortOpen(false);
      }
    }
    void OnPortLost() override {}
    std::vector<int> Codes;

   private:
    SerialPort& m_port;
    SerialPort::Connection m_connection;
  };
  const Closer closer(m_port);
  m_port.LineErrors = {CommEvent::kBreak};
  m_port.Arrive("x");
  m_port.Turn();
  m_port.PortOpen(true);
  m_port.Pass(1000);
  EXPECT_THAT(closer.Codes, ElementsAre(CommEvent::kReceive, CommEvent::kBreak));
}

TEST_F(EndpointPortTest, OffersWhatArrivesDuringAnEventThatTurnsTheLoop) {
  int depth = 0;
  int deepest = 0;
  m_owner.Handle = [&] {
    deepest = std::max(deepest, ++depth);
    m_owner.Read();
    if (deepest == 1) {
      m_port.Arrive("second");
      m_port.Turn();
    }
    --depth;
  };
  m_port.Arrive("first,");
  m_port.Turn();
  EXPECT_EQ(m_owner.Text, "first,second");
  EXPECT_EQ(deepest, 2);
  EXPECT_EQ(m_port.Polls, 1) << "once, by the outer one";
}

TEST_F(EndpointPortTest, KeepsBeatingWhileAnEventTurnsTheLoop) {
  m_owner.Handle = [&] {
    m_owner.Read();
    m_owner.Handle = nullptr;
    m_port.Pass(10'000);
  };
  m_port.Arrive("x");
  m_port.Turn();
  m_port.Arrive("y");
  m_port.Turn();
  EXPECT_EQ(m_owner.Standstills, 0);
  EXPECT_EQ(m_owner.Text, "xy");
}

// A standstill.

TEST_F(EndpointPortTest, BeatsTwiceASecond) {
  EXPECT_EQ(m_port.WakeAsked, 500);
  m_port.Pass(499);
  EXPECT_EQ(m_port.WakeAsked, 500) << "not woken before";
  m_port.Pass(1);
  EXPECT_EQ(m_port.WakeAsked, 500) << "asked anew";
  m_port.Pass(3'600'000);
  EXPECT_EQ(m_owner.Standstills, 0);
}

TEST_F(EndpointPortTest, TakesTwoSecondsWithoutABeatForNoStandstill) {
  m_port.Arrive("x");
  m_clock.Pass(2000);
  m_port.Turn();
  EXPECT_EQ(m_owner.Standstills, 0);
  EXPECT_EQ(m_owner.Text, "x");
}

TEST_F(EndpointPortTest, DropsWhatWaitedForMoreThanTwoSecondsWithoutABeat) {
  m_port.Arrive("old");
  m_clock.Pass(2001);
  m_port.Turn();
  EXPECT_EQ(m_owner.Standstills, 1);
  EXPECT_EQ(m_owner.Text, "");
  EXPECT_THAT(m_owner.Codes, IsEmpty());
}

TEST_F(EndpointPortTest, DropsWhatArrivesInTheFirstThreeTenthsAfterAStandstill) {
  m_clock.Pass(2001);
  m_port.Turn();
  m_port.Pass(299);
  m_port.Arrive("old");
  m_port.Turn();
  EXPECT_EQ(m_owner.Text, "");
  m_port.Pass(1);
  m_port.Arrive("new");
  m_port.Turn();
  EXPECT_EQ(m_owner.Text, "new");
  EXPECT_EQ(m_owner.Standstills, 1);
}

TEST_F(EndpointPortTest, DropsAllThatWaitedAlsoWhatHadNoRoom) {
  m_owner.Handle = [] {};
  m_port.Arrive(std::string(3 * EndpointPort::kLargestUnread, 'x'));
  m_clock.Pass(2001);
  m_port.Pass(299);
  m_owner.Handle = nullptr;
  m_port.Pass(200);
  EXPECT_THAT(m_owner.Codes, IsEmpty());
  m_owner.Read();
  EXPECT_EQ(m_owner.Text, "");
}

TEST_F(EndpointPortTest, TakesWhatArrivesOnceItIsOpenedAgainForNew) {
  m_clock.Pass(2001);
  m_port.Turn();
  m_port.PortOpen(false);
  m_port.PortOpen(true);
  m_port.Arrive("new");
  m_port.Turn();
  EXPECT_EQ(m_owner.Text, "new");
}

TEST_F(EndpointPortTest, TakesTheTimeWhenItWasClosedForNoStandstill) {
  m_port.PortOpen(false);
  m_clock.Pass(5000);
  m_port.PortOpen(true);
  m_port.Arrive("new");
  m_port.Turn();
  EXPECT_EQ(m_owner.Standstills, 0);
  EXPECT_EQ(m_owner.Text, "new");
}

TEST_F(EndpointPortTest, MayBeWokenBeforeItsTime) {
  m_owner.Handle = [] {};
  m_port.Arrive("x");
  m_port.Turn();
  m_clock.Pass(50);
  m_port.WakeNow();
  EXPECT_EQ(m_owner.Codes.size(), 1U);
  EXPECT_EQ(m_port.WakeAsked, 50);
  m_port.Pass(50);
  EXPECT_EQ(m_owner.Codes.size(), 2U);
}

}  // namespace
}  // namespace veerwatch
