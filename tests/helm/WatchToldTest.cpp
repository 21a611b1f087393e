// That the watch sees what the helm does, and is told.

#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

class WatchTold : public HelmTest {
 protected:
  WatchTold() {
    m_settings.m_iNmeaTrueWind = 0;
    m_helm.Modes().TrackSetSetup();
  }

  /// Seconds in which `body` comes, where it is not empty.
  void Seconds(int seconds, std::string_view body = {}) {
    for (int i = 0; i < seconds; ++i) {
      if (!body.empty()) {
        Receive(body);
      }
      m_clock.Pass(1000);
      m_timer.Tick();
    }
  }
  const WatchNow& Latest() const { return m_view.Watches.back(); }
  const ValueAge& Wind() const { return Latest().Of(Watched::WindApparent); }
};

TEST_F(WatchTold, EachSecondOnceAndAtAChangeOfMode) {
  m_view.Watches.clear();
  Seconds(3);
  EXPECT_EQ(m_view.Watches.size(), 3U);
  m_helm.Modes().TrackSetManual();
  EXPECT_EQ(m_view.Watches.size(), 4U);
  EXPECT_EQ(Latest().Mode, TrackMode::Manual);
}

TEST_F(WatchTold, AnswersWhoComesLater) {
  Seconds(1, kApparent);
  const WatchNow now = m_helm.Now().Watch;
  EXPECT_EQ(now.Of(Watched::WindApparent).State, Freshness::Fresh);
  EXPECT_EQ(now.Of(Watched::WindApparent).Age, 1000);
  EXPECT_EQ(now.Of(Watched::WindApparent).From.Talker, (Talker{'I', 'I'}));
  EXPECT_EQ(now.Of(Watched::WindTrue).State, Freshness::Waiting);
}

TEST_F(WatchTold, ALostWindIsToldInTrackWithItsSeconds) {
  Seconds(1, kApparent);
  Receive(kTrue);
  m_helm.Modes().TrackSetTrack();
  Seconds(3);
  EXPECT_EQ(Latest().Find(Condition::NoWind), nullptr) << "it is 4 s old";
  Seconds(3);
  const Standing* const lost = Latest().Find(Condition::NoWind);
  ASSERT_NE(lost, nullptr);
  EXPECT_EQ(lost->Rank, Level::Red);
  EXPECT_EQ(lost->Figure, 7.0);
  EXPECT_EQ(lost->Value, Watched::WindApparent);
}

TEST_F(WatchTold, AWindThatIsNoneKeepsNothingFresh) {
  for (const std::string_view none :
       {"$IIMWV,045,R,10.5,N,V", "$IIMWV,,R,10.5,N,A", "$IIMWV,045,R,10.5,M,A", "$IIMWV,361,R,10.5,N,A"}) {
    m_helm.Modes().TrackSetSetup();
    Seconds(1, kApparent);
    Seconds(4, none);
    EXPECT_EQ(Wind().State, Freshness::Stale) << none;
    EXPECT_EQ(Wind().Age, 5000) << none;
  }
}

TEST_F(WatchTold, TheSimulatorsValuesAreAlwaysFresh) {
  m_settings.m_bSimulate = true;
  m_helm.Modes().TrackSetSetup();
  Seconds(2);
  m_clock.Pass(60000);
  m_timer.Tick();
  for (std::size_t i = 0; i < kWatchedCount; ++i) {
    EXPECT_TRUE(Latest().Of(static_cast<Watched>(i)).Fresh()) << i;
  }
  ASSERT_EQ(Latest().Count, 1U);
  EXPECT_EQ(Latest().All[0].What, Condition::Simulation);
}

}  // namespace
}  // namespace veerwatch
