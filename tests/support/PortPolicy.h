// What holds for a port on every endpoint. A test program gives a rig, a class with an open port and its far
// end, and has all these claims tested on it:
//
//   Port(), Endpoint's port                     Arrive(text), as much as it takes; gives that part
//   Await(condition), turns the event loop      Heard(), all that came out
//   Pass(ms), time goes on while it runs        StandStill(ms), time goes on while it does not
//   Stick(), the next bundle gets stuck on its way and nothing leaves       Move(), everything leaves again
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/EndpointPort.h"
#include "tests/support/Bundles.h"
#include "tests/support/PortOwner.h"

namespace veerwatch {

template <typename Rig>
class PortPolicy : public testing::Test {
 protected:
  /// Turns the loop until everything that was under way before has come in.
  void PassAMark() {
    m_rig.Arrive("|");
    ASSERT_TRUE(m_rig.Await([&] { return m_owner.Text.ends_with('|'); }));
    m_owner.Text.pop_back();
  }

  Rig m_rig;
  SerialPort& m_port = m_rig.Port();
  PortOwner m_owner{m_port};
};

TYPED_TEST_SUITE_P(PortPolicy);

TYPED_TEST_P(PortPolicy, OffersAgainWhatItsOwnerLeftUnread) {
  int offers = 0;
  this->m_owner.Handle = [&] {
    if (++offers > 3) {
      this->m_owner.Read();
    }
  };
  this->m_rig.Arrive("patience");
  ASSERT_TRUE(this->m_rig.Await([&] { return this->m_owner.Text == "patience"; }));
  EXPECT_EQ(offers, 4);
}

TYPED_TEST_P(PortPolicy, HoldsALimitedAmountUnreadAndLosesNothing) {
  bool refuse = true;
  this->m_owner.Handle = [&] {
    if (!refuse) {
      this->m_owner.Read();
    }
  };
  std::string text;
  for (int number = 0; text.size() < 100'000; ++number) {
    text += std::to_string(number) + ",";
  }
  std::string arrived = this->m_rig.Arrive(text);
  ASSERT_TRUE(this->m_rig.Await([&] { return !this->m_owner.Codes.empty(); }));
  refuse = false;
  this->m_owner.Read();
  EXPECT_EQ(this->m_owner.Text.size(), EndpointPort::kLargestUnread);
  ASSERT_TRUE(this->m_rig.Await([&] { return this->m_owner.Text.size() >= arrived.size(); }));
  EXPECT_EQ(this->m_owner.Text, arrived);
}

TYPED_TEST_P(PortPolicy, DropsWhatWaitedWhileTheProgramStoodStill) {
  this->PassAMark();
  this->m_rig.Arrive("old");
  this->m_rig.StandStill(3000);
  ASSERT_TRUE(this->m_rig.Await([&] { return this->m_owner.Overslept > 0; }));
  this->m_rig.Pass(400);
  this->m_rig.Arrive("new");
  ASSERT_TRUE(this->m_rig.Await([&] { return this->m_owner.Text.ends_with("new"); }));
  EXPECT_EQ(this->m_owner.Text, "new");
  EXPECT_EQ(this->m_owner.Overslept, 1);
}

TYPED_TEST_P(PortPolicy, HandsABundleOverBeforeItReturns) {
  this->m_port.Output(kFirst);
  EXPECT_EQ(this->m_rig.Heard(), kFirst);
  EXPECT_EQ(this->m_port.Sent(), 1U);
}

TYPED_TEST_P(PortPolicy, PutsTheNewestBundleAsAWholeInPlaceOfTheOneThatWaits) {
  this->m_rig.Stick();
  for (const char* bundle : {kFirst, kSecond, kThird}) {
    this->m_port.Output(bundle);
  }
  this->m_rig.Pass(100);
  this->m_rig.Move();
  ASSERT_TRUE(this->m_rig.Await([&] { return this->m_rig.Heard().ends_with(kThird); }));
  EXPECT_EQ(this->m_rig.Heard(), std::string(kFirst) + kThird);
  EXPECT_EQ(this->m_port.Sent(), 2U);
}

TYPED_TEST_P(PortPolicy, ForgetsABundleThatHasWaitedForTwoSeconds) {
  this->m_rig.Stick();
  this->m_port.Output(kFirst);
  this->m_port.Output(kSecond);
  this->m_rig.Pass(2100);
  this->m_rig.Move();
  ASSERT_TRUE(this->m_rig.Await([&] { return this->m_rig.Heard().ends_with(kFirst); }));
  this->m_rig.Pass(100);
  this->m_port.Output(kThird);
  ASSERT_TRUE(this->m_rig.Await([&] { return this->m_rig.Heard().ends_with(kThird); }));
  EXPECT_EQ(this->m_rig.Heard(), std::string(kFirst) + kThird);
}

TYPED_TEST_P(PortPolicy, ForgetsABundleThatIsWithdrawnButNotTheOneOnItsWay) {
  this->m_rig.Stick();
  this->m_port.Output(kFirst);
  this->m_port.Output(kSecond);
  this->m_port.Withdraw();
  this->m_rig.Move();
  ASSERT_TRUE(this->m_rig.Await([&] { return this->m_rig.Heard().ends_with(kFirst); }));
  this->m_rig.Pass(100);
  this->m_port.Output(kThird);
  ASSERT_TRUE(this->m_rig.Await([&] { return this->m_rig.Heard().ends_with(kThird); }));
  EXPECT_EQ(this->m_rig.Heard(), std::string(kFirst) + kThird);
}

TYPED_TEST_P(PortPolicy, LeavesNothingForTheNextTimeThatItIsOpened) {
  this->m_owner.Handle = [] {};
  this->m_rig.Arrive("old");
  ASSERT_TRUE(this->m_rig.Await([&] { return !this->m_owner.Codes.empty(); }));
  this->m_rig.Stick();
  this->m_port.Output(kFirst);
  this->m_port.Output(kSecond);
  this->m_port.PortOpen(false);
  this->m_rig.Move();
  this->m_rig.Pass(100);
  this->m_owner.Handle = nullptr;
  ASSERT_TRUE(this->m_port.PortOpen(true));
  const std::string before = this->m_rig.Heard();
  this->m_port.Output(kThird);
  this->m_rig.Arrive("new");
  ASSERT_TRUE(this->m_rig.Await([&] { return this->m_owner.Text.ends_with("new"); }));
  EXPECT_EQ(this->m_owner.Text, "new");
  ASSERT_TRUE(this->m_rig.Await([&] { return this->m_rig.Heard().ends_with(kThird); }));
  EXPECT_EQ(this->m_rig.Heard(), before + kThird);
}

TYPED_TEST_P(PortPolicy, TellsNothingToAnOwnerWhoIsGone) {
  auto gone = std::make_unique<PortOwner>(this->m_port);
  bool offered = false;
  gone->Handle = [&] { offered = true; };
  this->m_rig.Arrive("first,");
  ASSERT_TRUE(this->m_rig.Await([&] { return offered; }));
  gone.reset();
  this->m_rig.Arrive("second,");
  this->m_rig.StandStill(3000);
  this->m_rig.Pass(1000);
  PortOwner next(this->m_port);
  this->m_rig.Arrive("third");
  ASSERT_TRUE(this->m_rig.Await([&] { return next.Text.ends_with("third"); }));
  EXPECT_EQ(this->m_owner.Codes.size(), 0U) << "it was replaced";
}

REGISTER_TYPED_TEST_SUITE_P(PortPolicy, OffersAgainWhatItsOwnerLeftUnread,
                            HoldsALimitedAmountUnreadAndLosesNothing,
                            DropsWhatWaitedWhileTheProgramStoodStill, HandsABundleOverBeforeItReturns,
                            PutsTheNewestBundleAsAWholeInPlaceOfTheOneThatWaits,
                            ForgetsABundleThatHasWaitedForTwoSeconds,
                            ForgetsABundleThatIsWithdrawnButNotTheOneOnItsWay,
                            LeavesNothingForTheNextTimeThatItIsOpened, TellsNothingToAnOwnerWhoIsGone);

}  // namespace veerwatch
