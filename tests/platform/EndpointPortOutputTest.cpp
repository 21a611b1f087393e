// What goes out, the close, and a loss.

#include <string>

#include "tests/platform/EndpointPortFixture.h"
#include "tests/support/Bundles.h"

namespace veerwatch {
namespace {

// What goes out.

TEST_F(EndpointPortTest, AsksForNothingMoreThanItsBeatWhenABundleHasLeft) {
  m_port.Pass(100);
  m_port.WakeAsked.reset();
  m_port.Output("a\r\n");
  EXPECT_EQ(m_port.Heard, "a\r\n");
  m_port.Drain();
  EXPECT_EQ(m_port.WakeAsked, std::nullopt);
}

TEST_F(EndpointPortTest, TriesAgainAfterTwentyMillisecondsWhatTheLineDidNotTake) {
  m_port.Takes = 0;
  m_port.Output("a\r\n");
  EXPECT_EQ(m_port.WakeAsked, 20);
  m_port.Pass(19);
  m_port.Takes = MemoryEndpoint::kAll;
  EXPECT_EQ(m_port.Heard, "");
  EXPECT_EQ(m_port.Sent(), 0U);
  m_port.Pass(1);
  EXPECT_EQ(m_port.Heard, "a\r\n");
  EXPECT_EQ(m_port.Sent(), 1U);
}

TEST_F(EndpointPortTest, SendsTheNextOneAtOnceWhenTheLineSaysThatItHasRoom) {
  m_port.Holds = true;
  m_port.Output("a\r\n");
  m_port.Output("b\r\n");
  m_port.Pass(1000);
  m_port.Drain();
  EXPECT_EQ(m_port.WakeAsked, 0);
  EXPECT_EQ(m_port.Sent(), 1U);
  m_port.Turn();
  EXPECT_EQ(m_port.Sent(), 2U);
}

TEST_F(EndpointPortTest, SendsABundleThatHasWaitedForJustTwoSeconds) {
  m_port.Holds = true;
  m_port.Output("a\r\n");
  m_port.Output("b\r\n");
  m_port.Pass(1999);
  m_clock.Pass(1);
  m_port.Drain();
  m_port.Turn();
  m_port.Drain();
  EXPECT_EQ(m_port.Heard, "a\r\nb\r\n");
}

TEST_F(EndpointPortTest, ForgetsABundleThatHasWaitedForMoreThanTwoSeconds) {
  m_port.Holds = true;
  m_port.Output("a\r\n");
  m_port.Output("b\r\n");
  m_port.Pass(1999);
  m_clock.Pass(2);
  m_port.Drain();
  m_port.Turn();
  m_port.Drain();
  EXPECT_EQ(m_port.Heard, "a\r\n");
  EXPECT_EQ(m_port.Sent(), 1U);
}

TEST_F(EndpointPortTest, TriesNoMoreWhatItHasForgotten) {
  m_port.Takes = 0;
  m_port.Output("a\r\n");
  m_port.Pass(2100);
  EXPECT_GT(m_port.WakeAsked, 20) << "only the beat";
}

TEST_F(EndpointPortTest, SendsABundleOnceThoughTheLineTellsMeanwhile) {
  m_port.TellsInside = true;
  m_port.Output("a\r\n");
  m_port.Pass(100);
  EXPECT_EQ(m_port.Heard, "a\r\n");
  EXPECT_EQ(m_port.Sent(), 1U);
}

TEST_F(EndpointPortTest, SendsWhatWaitsBeforeItOffersWhatArrived) {
  m_owner.Handle = [&] {
    m_owner.Read();
    m_port.Output("answer\r\n");
  };
  m_port.Takes = 0;
  m_port.Output("a\r\n");
  m_port.Arrive("x");
  m_clock.Pass(20);
  m_port.Takes = MemoryEndpoint::kAll;
  m_port.Turn();
  EXPECT_EQ(m_port.Heard, "a\r\nanswer\r\n");
}

// The close.

TEST_F(EndpointPortTest, ClosesAtOnceWhenEverythingHasLeft) {
  m_port.Output("a\r\n");
  m_port.PortOpen(false);
  EXPECT_EQ(m_port.Waits, 0);
}

TEST_F(EndpointPortTest, LetsTheBundleOnItsWayLeaveAndNotTheOneThatWaits) {
  m_port.Holds = true;
  m_port.Output(kFirst);
  m_port.Output(kSecond);
  m_port.DrainsWhileSent = 10;
  m_port.PortOpen(false);
  EXPECT_EQ(m_port.Heard, kFirst);
  EXPECT_EQ(m_port.Waits, 3);
}

TEST_F(EndpointPortTest, WritesTheRestOfABundleWhileItCloses) {
  m_port.Takes = 5;
  m_port.Output(kFirst);
  m_port.Output(kSecond);
  EXPECT_EQ(m_port.Heard, std::string(kFirst).substr(0, 10)) << "a part at each call";
  m_port.PortOpen(false);
  EXPECT_EQ(m_port.Heard, kFirst);
  EXPECT_EQ(m_port.Sent(), 1U);
}

TEST_F(EndpointPortTest, WaitsForAStuckLineForAQuarterOfASecondOnly) {
  m_port.Holds = true;
  m_port.Output("a\r\n");
  m_port.SendsLonger = 5;
  const std::int64_t before = m_clock.Time.Steady;
  m_port.PortOpen(false);
  EXPECT_EQ(m_clock.Time.Steady - before, 250) << "ten waits of 25";
  EXPECT_EQ(m_port.Heard, "");
  m_port.Holds = false;
  m_port.PortOpen(true);
  m_port.Pass(1000);
  EXPECT_EQ(m_port.Heard, "");
}

TEST_F(EndpointPortTest, ForgetsTheRestOfABundleWhenItIsClosedInTheMiddle) {
  m_port.TakesInAll = 5;
  m_port.Output(kFirst);
  m_port.PortOpen(false);
  m_port.TakesInAll = MemoryEndpoint::kAll;
  m_port.PortOpen(true);
  m_port.Output(kThird);
  m_port.Pass(1000);
  EXPECT_EQ(m_port.Heard, std::string(kFirst).substr(0, 5) + kThird);
  EXPECT_EQ(m_port.Sent(), 1U);
}

// A loss.

TEST_F(EndpointPortTest, ClosesItselfWhenTheEndpointFailsAndSaysSoOnceFromTheLoop) {
  m_port.Fail();
  m_port.Fail();
  EXPECT_TRUE(m_port.PortOpen());
  EXPECT_EQ(m_port.WakeAsked, 0);
  m_port.Pass(5000);
  EXPECT_EQ(m_owner.Lost, 1);
  EXPECT_FALSE(m_owner.OpenWhenLost);
  EXPECT_FALSE(m_port.PortOpen());
}

TEST_F(EndpointPortTest, HandsOverWhatCameBeforeTheLoss) {
  m_port.Fail();
  m_port.Arrive("last words");
  m_owner.HandleLoss = [&] { EXPECT_EQ(m_owner.Text, "last words"); };
  m_port.Turn();
  EXPECT_EQ(m_owner.Text, "last words");
  EXPECT_EQ(m_owner.Lost, 1);
}

TEST_F(EndpointPortTest, WaitsForNothingToLeaveWhenItIsLost) {
  m_port.Holds = true;
  m_port.Output("a\r\n");
  m_port.Fail();
  m_port.Turn();
  EXPECT_EQ(m_port.Waits, 0);
  EXPECT_EQ(m_owner.Lost, 1);
}

TEST_F(EndpointPortTest, IsNotLostWhenItsOwnerOpenedItAgainBefore) {
  m_owner.Handle = [&] {
    m_port.PortOpen(false);
    m_port.PortOpen(true);
  };
  m_port.Arrive("x");
  m_port.Fail();
  m_port.Pass(1000);
  EXPECT_TRUE(m_port.PortOpen());
  EXPECT_EQ(m_owner.Lost, 0);
}

TEST_F(EndpointPortTest, MayBeOpenedAgainFromInsideItsLoss) {
  m_owner.HandleLoss = [&] { m_port.PortOpen(true); };
  m_port.Fail();
  m_port.Pass(1000);
  EXPECT_TRUE(m_port.PortOpen());
  EXPECT_EQ(m_owner.Lost, 1);
  m_port.Arrive("x");
  m_port.Turn();
  EXPECT_EQ(m_owner.Text, "x");
}

TEST_F(EndpointPortTest, IsLostWithoutAnybodyListening) {
  { const PortOwner passing(m_port); }
  m_port.Fail();
  m_port.Arrive("x");
  m_port.RaiseError(CommEvent::kBreak);
  m_clock.Pass(2001);
  m_port.Turn();
  EXPECT_FALSE(m_port.PortOpen());
  EXPECT_EQ(m_owner.Lost, 0);
}

}  // namespace
}  // namespace veerwatch
