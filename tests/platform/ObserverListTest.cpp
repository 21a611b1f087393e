#include "platform/ObserverList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What an observer does when it is told.
struct Listener {
  std::function<void()> Told;
};

using List = ObserverList<Listener>;
using Membership = List::Membership;

class ObserverListTest : public testing::Test {
 protected:
  /// A listener that writes its name down, and then does `more`.
  Listener Named(const std::string& name, const std::function<void()>& more = {}) {
    return {[this, name, more] {
      m_told.push_back(name);
      if (more) {
        more();
      }
    }};
  }
  void Tell() {
    m_list->Tell([](Listener& listener) { listener.Told(); });
  }
  std::vector<std::string> TakeTold() { return std::exchange(m_told, {}); }

  std::optional<List> m_list{std::in_place};
  std::vector<std::string> m_told;
};

TEST_F(ObserverListTest, TellsInTheOrderOfJoining) {
  Listener a = Named("a");
  Listener b = Named("b");
  Listener c = Named("c");
  const Membership second = m_list->Join(b);
  const Membership first = m_list->Join(a);
  const Membership third = m_list->Join(c);
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("b", "a", "c"));
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("b", "a", "c"));
}

TEST_F(ObserverListTest, WithNobodyThereTellsNobody) {
  Tell();
  EXPECT_THAT(m_told, IsEmpty());
}

TEST_F(ObserverListTest, TheEndOfAMembershipIsTheEndOfBeingTold) {
  Listener a = Named("a");
  Listener b = Named("b");
  const Membership stays = m_list->Join(a);
  {
    const Membership goes = m_list->Join(b);
    Tell();
    EXPECT_THAT(TakeTold(), ElementsAre("a", "b"));
  }
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("a"));
}

TEST_F(ObserverListTest, OneThatComesBackIsToldLast) {
  Listener a = Named("a");
  Listener b = Named("b");
  Membership first = m_list->Join(a);
  const Membership second = m_list->Join(b);
  first = Membership();
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("b"));
  first = m_list->Join(a);
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("b", "a"));
}

// --- Joining and leaving while told
// ------------------------------------------------------------------------------

TEST_F(ObserverListTest, OneThatJoinsWhileTheListTellsIsTold) {
  Listener late = Named("late");
  Membership joined;
  Listener a = Named("a", [&] { joined = m_list->Join(late); });
  const Membership first = m_list->Join(a);
  Listener b = Named("b");
  const Membership second = m_list->Join(b);
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("a", "b", "late"));
}

TEST_F(ObserverListTest, ManyThatJoinWhileTheListTellsAreTold) {
  // More than any room that the list may have kept.
  std::vector<Listener> late(100, Named("late"));
  std::vector<Membership> joined;
  Listener a = Named("a", [&] {
    for (Listener& listener : late) {
      joined.push_back(m_list->Join(listener));
    }
  });
  const Membership first = m_list->Join(a);
  Tell();
  EXPECT_EQ(m_told.size(), 101U);
}

TEST_F(ObserverListTest, OneThatLeavesWhileToldSkipsNobody) {
  Membership own;
  Listener a = Named("a", [&] { own = Membership(); });
  own = m_list->Join(a);
  Listener b = Named("b");
  const Membership second = m_list->Join(b);
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("a", "b"));
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("b"));
}

TEST_F(ObserverListTest, OneThatIsSentAwayBeforeItsTurnIsNotTold) {
  Membership others;
  Listener a = Named("a", [&] { others = Membership(); });
  const Membership first = m_list->Join(a);
  Listener b = Named("b");
  others = m_list->Join(b);
  Listener c = Named("c");
  const Membership third = m_list->Join(c);
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("a", "c"));
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("a", "c"));
}

TEST_F(ObserverListTest, OneThatIsSentAwayAfterItsTurnSkipsNobody) {
  Membership others;
  Listener a = Named("a");
  others = m_list->Join(a);
  Listener b = Named("b", [&] { others = Membership(); });
  const Membership second = m_list->Join(b);
  Listener c = Named("c");
  const Membership third = m_list->Join(c);
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("a", "b", "c"));
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("b", "c"));
}

// --- Telling while telling
// ---------------------------------------------------------------------------------------

TEST_F(ObserverListTest, WhoIsToldMayTell) {
  bool inner = false;
  Listener a = Named("a", [&] {
    if (!std::exchange(inner, true)) {
      Tell();
    }
  });
  Listener b = Named("b");
  const Membership first = m_list->Join(a);
  const Membership second = m_list->Join(b);
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("a", "a", "b", "b"));
}

TEST_F(ObserverListTest, OneThatLeavesInTheInnerTellingSkipsNobodyInTheOuterOne) {
  bool inner = false;
  Membership own;
  Listener a = Named("a", [&] {
    if (std::exchange(inner, true)) {
      own = Membership();
    }
  });
  Listener b = Named("b", [&] {
    if (m_told.size() == 2) {
      Tell();
    }
  });
  Listener c = Named("c");
  own = m_list->Join(a);
  const Membership second = m_list->Join(b);
  const Membership third = m_list->Join(c);
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("a", "b", "a", "b", "c", "c"));
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("b", "c"));
}

// --- Memberships
// -------------------------------------------------------------------------------------------------

TEST_F(ObserverListTest, AMembershipMayOutliveTheList) {
  Listener a = Named("a");
  Membership membership = m_list->Join(a);
  m_list.reset();
  const Membership moved = std::move(membership);
  EXPECT_THAT(m_told, IsEmpty());
}

TEST_F(ObserverListTest, AMembershipOfNothingIsHarmless) {
  Membership none;
  const Membership moved = std::move(none);
  none = Membership();
  Tell();
  EXPECT_THAT(m_told, IsEmpty());
}

TEST_F(ObserverListTest, AMovedMembershipLastsAsLongAsItsNewPlace) {
  Listener a = Named("a");
  {
    Membership last;
    {
      Membership first = m_list->Join(a);
      Membership second = std::move(first);
      last = std::move(second);
    }
    Tell();
    EXPECT_THAT(TakeTold(), ElementsAre("a"));
  }
  Tell();
  EXPECT_THAT(TakeTold(), IsEmpty());
}

TEST_F(ObserverListTest, AMembershipThatIsRenewedStays) {
  Listener a = Named("a");
  Membership membership = m_list->Join(a);
  membership = m_list->Join(a);
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("a"));
}

TEST_F(ObserverListTest, AMembershipThatIsReplacedEnds) {
  Listener a = Named("a");
  Listener b = Named("b");
  Membership membership = m_list->Join(a);
  membership = m_list->Join(b);
  Tell();
  EXPECT_THAT(TakeTold(), ElementsAre("b"));
}

}  // namespace
}  // namespace veerwatch
