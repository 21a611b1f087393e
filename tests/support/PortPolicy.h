// What holds for a port on every endpoint. A test program gives rigs, and has all these claims tested on
// each.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/EndpointPort.h"
#include "tests/support/Bundles.h"
#include "tests/support/PortOwner.h"

namespace veerwatch {

/// An open port and its far end.
class PortRig {
 public:
  virtual ~PortRig() = default;
  virtual SerialPort& Port() = 0;
  /// Lets text come in, as much as the endpoint takes; returns that part.
  virtual std::string Arrive(std::string_view text) = 0;
  /// All that came out.
  virtual const std::string& Heard() = 0;
  /// Turns the event loop until the condition holds; false when it never does.
  virtual bool Await(const std::function<bool()>& condition) = 0;
  /// Time goes on while the loop turns [ms], and while it does not.
  virtual void Pass(int milliseconds) = 0;
  virtual void StandStill(int milliseconds) = 0;
  /// The next bundle gets stuck on its way and nothing leaves; everything leaves again.
  virtual void Stick() = 0;
  virtual void Move() = 0;
};

struct PortRigKind {
  const char* Name;
  std::unique_ptr<PortRig> (*Make)();
};

template <class Rig>
std::unique_ptr<PortRig> MakeRig() {
  return std::make_unique<Rig>();
}

class PortPolicy : public testing::TestWithParam<PortRigKind> {
 protected:
  /// Turns the loop until everything that was under way before has come in.
  void PassAMark() {
    m_rig.Arrive("|");
    ASSERT_TRUE(m_rig.Await([&] { return m_owner.Text.ends_with('|'); }));
    m_owner.Text.pop_back();
  }

 private:
  std::unique_ptr<PortRig> m_made = GetParam().Make();

 protected:
  PortRig& m_rig = *m_made;
  SerialPort& m_port = m_rig.Port();
  PortOwner m_owner{m_port};
};

inline std::string PortRigName(const testing::TestParamInfo<PortRigKind>& rig) { return rig.param.Name; }

TEST_P(PortPolicy, OffersAgainWhatItsOwnerLeftUnread) {
  int offers = 0;
  m_owner.Handle = [&] {
    if (++offers > 3) {
      m_owner.Read();
    }
  };
  m_rig.Arrive("patience");
  ASSERT_TRUE(m_rig.Await([&] { return m_owner.Text == "patience"; }));
  EXPECT_EQ(offers, 4);
}

TEST_P(PortPolicy, HoldsALimitedAmountUnreadAndLosesNothing) {
  bool refuse = true;
  m_owner.Handle = [&] {
    if (!refuse) {
      m_owner.Read();
    }
  };
  std::string text;
  for (int number = 0; text.size() < 100'000; ++number) {
    text += std::to_string(number) + ",";
  }
  std::string arrived = m_rig.Arrive(text);
  ASSERT_TRUE(m_rig.Await([&] { return !m_owner.Codes.empty(); }));
  refuse = false;
  m_owner.Read();
  EXPECT_EQ(m_owner.Text.size(), EndpointPort::kLargestUnread);
  ASSERT_TRUE(m_rig.Await([&] { return m_owner.Text.size() >= arrived.size(); }));
  EXPECT_EQ(m_owner.Text, arrived);
}

TEST_P(PortPolicy, DropsWhatWaitedWhileTheProgramStoodStill) {
  PassAMark();
  m_rig.Arrive("old");
  m_rig.StandStill(3000);
  ASSERT_TRUE(m_rig.Await([&] { return m_owner.Standstills > 0; }));
  m_rig.Pass(400);
  m_rig.Arrive("new");
  ASSERT_TRUE(m_rig.Await([&] { return m_owner.Text.ends_with("new"); }));
  EXPECT_EQ(m_owner.Text, "new");
  EXPECT_EQ(m_owner.Standstills, 1);
}

TEST_P(PortPolicy, HandsABundleOverBeforeItReturns) {
  m_port.Output(kFirst);
  EXPECT_EQ(m_rig.Heard(), kFirst);
  EXPECT_EQ(m_port.Sent(), 1U);
}

TEST_P(PortPolicy, PutsTheNewestBundleAsAWholeInPlaceOfTheOneThatWaits) {
  m_rig.Stick();
  for (const char* bundle : {kFirst, kSecond, kThird}) {
    m_port.Output(bundle);
  }
  m_rig.Pass(100);
  m_rig.Move();
  ASSERT_TRUE(m_rig.Await([&] { return m_rig.Heard().ends_with(kThird); }));
  EXPECT_EQ(m_rig.Heard(), std::string(kFirst) + kThird);
  EXPECT_EQ(m_port.Sent(), 2U);
}

TEST_P(PortPolicy, ForgetsABundleThatHasWaitedForTwoSeconds) {
  m_rig.Stick();
  m_port.Output(kFirst);
  m_port.Output(kSecond);
  m_rig.Pass(2100);
  m_rig.Move();
  ASSERT_TRUE(m_rig.Await([&] { return m_rig.Heard().ends_with(kFirst); }));
  m_rig.Pass(100);
  m_port.Output(kThird);
  ASSERT_TRUE(m_rig.Await([&] { return m_rig.Heard().ends_with(kThird); }));
  EXPECT_EQ(m_rig.Heard(), std::string(kFirst) + kThird);
}

TEST_P(PortPolicy, ForgetsABundleThatIsWithdrawnButNotTheOneOnItsWay) {
  m_rig.Stick();
  m_port.Output(kFirst);
  m_port.Output(kSecond);
  m_port.Withdraw();
  m_rig.Move();
  ASSERT_TRUE(m_rig.Await([&] { return m_rig.Heard().ends_with(kFirst); }));
  m_rig.Pass(100);
  m_port.Output(kThird);
  ASSERT_TRUE(m_rig.Await([&] { return m_rig.Heard().ends_with(kThird); }));
  EXPECT_EQ(m_rig.Heard(), std::string(kFirst) + kThird);
}

TEST_P(PortPolicy, LeavesNothingForTheNextTimeThatItIsOpened) {
  m_owner.Handle = [] {};
  m_rig.Arrive("old");
  ASSERT_TRUE(m_rig.Await([&] { return !m_owner.Codes.empty(); }));
  m_rig.Stick();
  m_port.Output(kFirst);
  m_port.Output(kSecond);
  m_port.PortOpen(false);
  m_rig.Move();
  m_rig.Pass(100);
  m_owner.Handle = nullptr;
  ASSERT_TRUE(m_port.PortOpen(true));
  const std::string before = m_rig.Heard();
  m_port.Output(kThird);
  m_rig.Arrive("new");
  ASSERT_TRUE(m_rig.Await([&] { return m_owner.Text.ends_with("new"); }));
  EXPECT_EQ(m_owner.Text, "new");
  ASSERT_TRUE(m_rig.Await([&] { return m_rig.Heard().ends_with(kThird); }));
  EXPECT_EQ(m_rig.Heard(), before + kThird);
}

TEST_P(PortPolicy, TellsNothingToAnOwnerWhoIsGone) {
  auto gone = std::make_unique<PortOwner>(m_port);
  bool offered = false;
  gone->Handle = [&] { offered = true; };
  m_rig.Arrive("first,");
  ASSERT_TRUE(m_rig.Await([&] { return offered; }));
  gone.reset();
  m_rig.Arrive("second,");
  m_rig.StandStill(3000);
  m_rig.Pass(1000);
  PortOwner next(m_port);
  m_rig.Arrive("third");
  ASSERT_TRUE(m_rig.Await([&] { return next.Text.ends_with("third"); }));
  EXPECT_EQ(m_owner.Codes.size(), 0U) << "it was replaced";
}

}  // namespace veerwatch
