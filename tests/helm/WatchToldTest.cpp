// That the watch sees what the helm does, and is told.

#include <functional>
#include <string>

#include "platform/NumberText.h"
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

/// The winds of both sides, with a heading and the boat speed of a log and of a satellite receiver.
class WatchedTrack : public WatchTold {
 protected:
  WatchedTrack() {
    m_settings.m_iNmeaHeading = 0;
    m_settings.m_iNmeaBoatSpeed = 0;
    m_settings.m_eTrackMethod = TrackMethod::Clock;
  }

  /// What is sent each second; "" for nothing.
  std::string Heading = "$HCHDG,40.0,,,5.0,W";
  std::string Log = "$IIVHW,,T,,M,6.0,N,,K";
  std::string Ground = "$GPRMC,120000,A,5000.0,N,00500.0,W,6.0,40.0,221126,5.0,W";
  std::string True = "$IIMWV,060,T,9.5,N,A";
  double Angle = 45.0;

  void Sail(int seconds, const std::function<void()>& each = {}) {
    for (int i = 0; i < seconds; ++i) {
      if (each) {
        each();
      }
      // A vane is never still.
      m_swing = -m_swing;
      const std::string apparent =
          "$IIMWV," + ShortestText(static_cast<float>(Angle + m_swing)) + ",R,10.5,N,A";
      for (const std::string& body : {Heading, Log, Ground, Wind ? apparent : std::string(), True}) {
        if (!body.empty()) {
          Receive(body);
        }
      }
      m_clock.Pass(1000);
      m_timer.Tick();
    }
  }
  void Track(TrackSide side) {
    Sail(3);
    m_helm.Track(side);
    m_helm.Modes().TrackSetTrack();
    Sail(2);
    EXPECT_EQ(Latest().Count, 0U) << "all is well";
  }
  /// The seconds until the condition is told, at most 30.
  int Until(Condition what, const std::function<void()>& each = {}) {
    int seconds = 0;
    while (Latest().Find(what) == nullptr && seconds < 30) {
      Sail(1, each);
      ++seconds;
    }
    return seconds;
  }

  bool Wind = true;

 private:
  double m_swing = 0.5;
};

TEST_F(WatchedTrack, EachLossIsToldWithinFourSecondsAndATick) {
  Track(TrackSide::Apparent);
  Wind = false;
  EXPECT_EQ(Until(Condition::NoWind), 4) << "the latest was a second old already";
  Wind = true;
  Sail(3);
  EXPECT_EQ(Latest().Count, 0U);
  Heading.clear();
  EXPECT_EQ(Until(Condition::NoHeading), 4);
  EXPECT_EQ(Latest().Find(Condition::NoHeading)->Rank, Level::Amber);
}

TEST_F(WatchedTrack, TheTrueWindsAgeIsItsOwn) {
  Track(TrackSide::True);
  True.clear();
  Sail(4);
  ASSERT_NE(Latest().Find(Condition::NoWind), nullptr);
  EXPECT_EQ(Latest().Find(Condition::NoWind)->Value, Watched::WindTrue);
  EXPECT_TRUE(Latest().Of(Watched::WindApparent).Fresh());
}

TEST_F(WatchedTrack, TheBoatSpeedIsMissedOnlyWhereTheHeldTrueWindFollowsFromIt) {
  m_settings.m_iNmeaTrueWind = 1;
  Track(TrackSide::True);
  Log.clear();
  EXPECT_EQ(Until(Condition::NoBoatSpeed), 4);
  m_helm.Track(TrackSide::Apparent);
  Sail(1);
  EXPECT_EQ(Latest().Count, 0U);
}

TEST_F(WatchedTrack, ATrueWindIsAsOldAsTheBoatSpeedThatItFollowsFrom) {
  m_settings.m_iNmeaTrueWind = 1;
  Track(TrackSide::Apparent);
  Log.clear();
  Sail(5);
  EXPECT_EQ(Latest().Of(Watched::WindTrue).State, Freshness::Stale);
  EXPECT_EQ(Latest().Of(Watched::WindTrue).Age, 6000);
  EXPECT_TRUE(Latest().Of(Watched::WindApparent).Fresh());
  m_settings.m_iNmeaTrueWind = 0;
  Sail(1);
  EXPECT_TRUE(Latest().Of(Watched::WindTrue).Fresh()) << "from a sensor";
}

TEST_F(WatchedTrack, ABoatSpeedOfZeroIsAFaultWhereTheBoatMoves) {
  m_settings.m_iNmeaTrueWind = 1;
  Track(TrackSide::True);
  Log = "$IIVHW,,T,,M,0.0,N,,K";
  Ground = "$GPRMC,120000,A,5000.0,N,00500.0,W,2.0,40.0,221126,5.0,W";
  Sail(10);
  EXPECT_EQ(Latest().Find(Condition::NoBoatSpeed), nullptr) << "at anchor, in a current of 2 knots";
  Ground = "$GPRMC,120000,A,5000.0,N,00500.0,W,2.1,40.0,221126,5.0,W";
  EXPECT_EQ(Until(Condition::NoBoatSpeed), 1);
}

TEST_F(WatchedTrack, ASpeedOverGroundThatDoesNotHoldSaysNothingOfTheLog) {
  m_settings.m_iNmeaTrueWind = 1;
  Track(TrackSide::True);
  Log = "$IIVHW,,T,,M,0.0,N,,K";
  Ground = "$GPRMC,120000,V,5000.0,N,00500.0,W,6.0,40.0,221126,5.0,W";
  Sail(10);
  EXPECT_EQ(Latest().Find(Condition::NoBoatSpeed), nullptr);
}

TEST_F(WatchedTrack, ALogOrCompassThatIsNotFittedIsNotMissed) {
  m_settings.m_iNmeaTrueWind = 1;
  Track(TrackSide::True);
  m_settings.m_bWatchLogFitted = false;
  m_settings.m_bWatchCompassFitted = false;
  Log.clear();
  Heading.clear();
  Sail(20);
  EXPECT_EQ(Latest().Count, 0U);
  EXPECT_EQ(Latest().Of(Watched::BoatSpeed).State, Freshness::NotFitted);
}

TEST_F(WatchedTrack, AStuckVaneIsTold) {
  Track(TrackSide::Apparent);
  Wind = false;
  const int seconds = Until(Condition::WindNotChanging, [this] { Receive("$IIMWV,047,R,10.5,N,A"); });
  EXPECT_EQ(seconds, 20) << "twenty winds alike";
}

TEST_F(WatchedTrack, TwoWindsThatDifferAreToldWithTheirTalkers) {
  Track(TrackSide::Apparent);
  EXPECT_EQ(Until(Condition::TwoWinds, [this] { Receive("$WIMWV,056,R,10.5,N,A"); }), 10);
  EXPECT_EQ(Latest().Find(Condition::TwoWinds)->Talkers,
            (std::array<Talker, 2>{Talker{'I', 'I'}, {'W', 'I'}}));
}

TEST_F(WatchedTrack, TwoCompassesThatDifferAreTold) {
  Track(TrackSide::Apparent);
  EXPECT_LE(Until(Condition::TwoHeadings, [this] { Receive("$IIHDG,60.0,,,5.0,W"); }), 12);
}

TEST_F(WatchedTrack, OfTwoCompassesTheFirstShowsWhetherThePilotFollows) {
  Track(TrackSide::Apparent);
  m_helm.Modes().TrackSetManual();
  m_helm.UserSteersTo(40.0);
  True = "$HEHDG,60.0,,,5.0,W";  // the latest of each second
  for (int second = 0; second < 30; ++second) {
    Sail(1);
    EXPECT_EQ(Latest().Find(Condition::PilotNotFollowing), nullptr) << second;
  }
}

TEST_F(WatchedTrack, LeapingWindsAreTold) {
  Track(TrackSide::Apparent);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Latest().Find(Condition::WindJumps), nullptr);
    Angle = 145.0;
    Sail(2);
    Angle = 45.0;
    Sail(2);
  }
  EXPECT_NE(Latest().Find(Condition::WindJumps), nullptr);
}

TEST_F(WatchedTrack, APilotThatDoesNotFollowIsToldWithinTwelveSeconds) {
  Track(TrackSide::Apparent);
  m_helm.Modes().TrackSetManual();
  Sail(1);
  EXPECT_EQ(Latest().Follow, FollowVerdict::Follows);
  m_helm.UserSteersTo(56.0);
  EXPECT_LE(Until(Condition::PilotNotFollowing), 12);
  EXPECT_EQ(Latest().Find(Condition::PilotNotFollowing)->Rank, Level::Red);
  EXPECT_EQ(Latest().Find(Condition::PilotNotFollowing)->Follow, FollowVerdict::DoesNotFollow);
  EXPECT_EQ(Latest().Follow, FollowVerdict::DoesNotFollow);
  m_helm.UserSteersTo(49.0);
  Sail(3);
  EXPECT_NE(Latest().Find(Condition::PilotNotFollowing), nullptr);
  Sail(1);
  EXPECT_EQ(Latest().Find(Condition::PilotNotFollowing), nullptr);
  m_helm.Modes().TrackSetSetup();
  EXPECT_EQ(Latest().Follow, FollowVerdict::Unknown) << "nothing is sent";
}

TEST_F(WatchedTrack, WithoutAHeadingNothingIsSaidOfThePilot) {
  Track(TrackSide::Apparent);
  m_helm.Modes().TrackSetManual();
  m_helm.UserSteersTo(90.0);
  Until(Condition::PilotNotFollowing);
  ASSERT_EQ(Latest().Follow, FollowVerdict::DoesNotFollow);
  Heading.clear();
  Sail(6);
  for (int second = 0; second < 60; ++second) {
    EXPECT_EQ(Latest().Follow, FollowVerdict::Unknown) << second;
    EXPECT_EQ(Latest().Find(Condition::PilotNotFollowing), nullptr) << second;
    Sail(1);
  }
}

TEST_F(WatchedTrack, TheCompassShowsWhetherThePilotFollowsAlsoWhereTheCourseIsTheHeading) {
  m_settings.m_iNmeaHeading = 1;
  Ground = "$GPRMC,120000,A,5000.0,N,00500.0,W,6.0,90.0,221126,5.0,W";
  Track(TrackSide::Apparent);
  m_helm.Modes().TrackSetManual();
  m_helm.UserSteersTo(42.0);
  Sail(30);
  EXPECT_EQ(Latest().Count, 0U) << "a strong current, and the compass on the bearing";
}

TEST_F(WatchedTrack, ALostOutputIsToldWithTheNumberOfItsPort) {
  Track(TrackSide::Apparent);
  m_pilotPort.OpensOtherwise = false;
  m_pilotPort.Lose();
  EXPECT_EQ(Until(Condition::PilotLost), 1);
  EXPECT_EQ(Latest().Find(Condition::PilotLost)->Figure, 6.0);
  m_pilotPort.OpensOtherwise = true;
  Sail(6);
  EXPECT_EQ(Latest().Count, 0U);
  m_pilotPort.Stuck = true;
  EXPECT_LE(Until(Condition::PilotLost), 5) << "steps are made and nothing leaves";
}

TEST_F(WatchedTrack, AWindFromDeadAsternIsToldUntilItIsWellForward) {
  True = "$IIMWV,165,T,9.5,N,A";
  Track(TrackSide::True);
  Sail(10);
  True = "$IIMWV,172,T,9.5,N,A";
  Sail(20);
  EXPECT_EQ(Latest().Find(Condition::GybeRisk), nullptr);
  True = "$IIMWV,173,T,9.5,N,A";
  EXPECT_LE(Until(Condition::GybeRisk), 12);
  True = "$IIMWV,169,T,9.5,N,A";
  Sail(20);
  EXPECT_NE(Latest().Find(Condition::GybeRisk), nullptr);
  True = "$IIMWV,167,T,9.5,N,A";
  Sail(20);
  EXPECT_EQ(Latest().Find(Condition::GybeRisk), nullptr);
}

TEST_F(WatchedTrack, AWindAcrossTheSternIsTold) {
  True = "$IIMWV,160,T,9.5,N,A";
  Track(TrackSide::True);
  Sail(10);
  True = "$IIMWV,200,T,9.5,N,A";
  EXPECT_LE(Until(Condition::GybeRisk), 4);
}

TEST_F(WatchedTrack, TheAlarmOfTheLoopIsAmongTheConditions) {
  Track(TrackSide::Apparent);
  m_settings.m_fTrackAlarmLimit = 20.0F;
  m_settings.m_fTrackMaxRate = 0.01F;
  Angle = 75.0;
  EXPECT_EQ(Until(Condition::OffCourse), 1);
  EXPECT_NEAR(Latest().Find(Condition::OffCourse)->Figure, 30.0, 1.1);
  Angle = 45.0;
  Sail(1);
  EXPECT_EQ(Latest().Find(Condition::OffCourse), nullptr);
}

TEST_F(WatchedTrack, AnAlarmOfBeforeIsOverWithItsMode) {
  Track(TrackSide::Apparent);
  m_settings.m_fTrackAlarmLimit = 20.0F;
  Angle = 75.0;
  ASSERT_LT(Until(Condition::OffCourse), 30);
  m_settings.m_fTrackAlarmLimit = 90.0F;
  m_helm.Modes().TrackSetTrack();
  Sail(1);
  EXPECT_EQ(Latest().Find(Condition::OffCourse), nullptr);
}

TEST_F(WatchedTrack, MoreWindsThanTheBandwidthTakesAreANote) {
  m_settings.m_eTrackMethod = TrackMethod::Sentence;
  Track(TrackSide::Apparent);
  const auto quick = [this] {
    for (int i = 0; i < 3; ++i) {
      m_clock.Pass(100);
      Receive("$IIMWV,045." + std::to_string(i) + ",R,10.5,N,A");
    }
  };
  EXPECT_LT(Until(Condition::ManyWinds, quick), 30);
  EXPECT_EQ(Latest().Find(Condition::ManyWinds)->Rank, Level::Note);
}

TEST_F(WatchedTrack, MoreThanThePilotsLineCarriesIsANote) {
  Track(TrackSide::Apparent);
  const auto quick = [this] {
    for (int i = 0; i < 20; ++i) {
      m_clock.Pass(50);
      Receive(kApparent);
    }
  };
  ASSERT_LT(Until(Condition::PilotLineFull, quick), 30);
  EXPECT_EQ(Latest().Find(Condition::PilotLineFull)->Rank, Level::Note);
  m_pilotPort.Rate = 38400;
  Sail(11, quick);
  EXPECT_EQ(Latest().Find(Condition::PilotLineFull), nullptr);
}

TEST_F(WatchedTrack, OfOneLevelTheNewerComesFirst) {
  m_settings.m_iNmeaTrueWind = 1;
  Track(TrackSide::True);
  Heading.clear();
  Sail(4);
  Log.clear();
  Sail(4);
  m_pilotPort.OpensOtherwise = false;
  m_pilotPort.Lose();
  Sail(1);
  std::vector<Condition> order;
  for (const Standing& one : Latest().Conditions()) {
    order.push_back(one.What);
  }
  EXPECT_THAT(order,
              testing::ElementsAre(Condition::PilotLost, Condition::NoBoatSpeed, Condition::NoHeading));
}

TEST_F(WatchedTrack, ASuspendedComputerFindsAllStaleAndNoOlderThanItWas) {
  Track(TrackSide::Apparent);
  m_clock.Pass(3600000);
  m_timer.Tick();
  EXPECT_EQ(Latest().Of(Watched::WindApparent).State, Freshness::Stale);
  EXPECT_EQ(Latest().Of(Watched::WindApparent).Age, 1000);
  EXPECT_EQ(Latest().Of(Watched::Heading).State, Freshness::Stale);
  Sail(2);
  EXPECT_EQ(Latest().Count, 0U);
}

TEST_F(WatchedTrack, NothingIsMissedThatNeverCame) {
  Log.clear();
  Heading.clear();
  m_settings.m_eTrackMethod = TrackMethod::Sentence;
  m_settings.m_iNmeaTrueWind = 0;
  Track(TrackSide::True);
  Sail(30);
  EXPECT_EQ(Latest().Of(Watched::Heading).State, Freshness::Waiting);
  EXPECT_EQ(Latest().Find(Condition::NoHeading), nullptr);
  EXPECT_EQ(Latest().Find(Condition::NoBoatSpeed), nullptr);
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
