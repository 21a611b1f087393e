// How the helm ends a turn that runs.

#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TurnOnTheHelm : public HelmTest {
 protected:
  TurnOnTheHelm() {
    m_settings.m_iNmeaTrueWind = 0;
    m_helm.Modes().TrackSetSetup();
    m_helm.Modes().TrackSetManual();
    m_helm.TurnBegins();
    m_view.Take();
  }

  /// One second in which `bodies` come.
  void Second(const std::vector<std::string_view>& bodies) {
    for (const std::string_view body : bodies) {
      Receive(body);
    }
    m_timer.Tick();
  }
  std::vector<std::string> Ends() const { return m_view.Only({"OnTurnEnds"}); }
};

TEST_F(TurnOnTheHelm, GoesOnWhileTheWindsCome) {
  for (int i = 0; i < 10; ++i) {
    Second({kApparent, kTrue});
  }
  EXPECT_THAT(Ends(), IsEmpty());
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::Turn);
}

TEST_F(TurnOnTheHelm, EveryOtherModeTakesThePilotOnceBeforeItIsTold) {
  using Switch = void (TrackModes::*)();
  for (const auto& [take, mode] : {std::pair{Switch{&TrackModes::TrackSetOff}, "OnTrackMode 1"},
                                   std::pair{Switch{&TrackModes::TrackSetSetup}, "OnTrackMode 3"},
                                   std::pair{Switch{&TrackModes::TrackSetTrack}, "OnTrackMode 7"}}) {
    (m_helm.Modes().*take)();
    EXPECT_THAT(m_view.Only({"OnTurnEnds", "OnTrackMode"}), ElementsAre("OnTurnEnds Taken", mode));
    m_helm.Modes().TrackSetSetup();
    m_helm.Modes().TrackSetManual();
    EXPECT_EQ(Ends().size(), 1U);
    EXPECT_EQ(m_helm.Now().Hand, PilotHand::User);
    m_helm.TurnBegins();
    m_view.Take();
  }
}

TEST_F(TurnOnTheHelm, ManualAgainAndARefusedTrackLetItGoOn) {
  m_helm.Modes().TrackSetManual();
  m_settings.m_fTrackBandwidth = 0.0F;
  m_helm.Modes().TrackSetTrack();
  ASSERT_EQ(m_view.Count("OnTrackRefused"), 1U);
  EXPECT_THAT(Ends(), IsEmpty());
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::Turn);
}

TEST_F(TurnOnTheHelm, TheUsersBearingEndsItOnceAndIsTaken) {
  m_helm.UserSteersTo(405.0);
  EXPECT_THAT(m_view.Calls, ElementsAre("OnTurnEnds Taken"));
  EXPECT_EQ(m_settings.m_fAutoPilot, 45.0F);
  m_helm.UserSteersTo(50.0);
  EXPECT_THAT(m_view.Calls, ElementsAre("OnTurnEnds Taken"));
  EXPECT_EQ(m_settings.m_fAutoPilot, 50.0F);
}

TEST_F(TurnOnTheHelm, TheBearingThatTheTurnHasSetIsToldBeforeTheUsersIsTaken) {
  m_helm.TurnSteersTo(77.0F);
  float bearing = 0.0F;
  struct AtTheEnd final : HelmObserver {
    explicit AtTheEnd(const Settings& settings, float& bearing) : Set(settings), Bearing(bearing) {}
    void OnTurnEnds(TurnFate /*why*/) override { Bearing = Set.m_fAutoPilot; }
    const Settings& Set;
    float& Bearing;
  } atTheEnd(m_settings, bearing);
  const auto told = m_helm.Observers().Join(atTheEnd);
  m_helm.UserSteersTo(50.0);
  EXPECT_EQ(bearing, 77.0F);
}

TEST_F(TurnOnTheHelm, AUserWhoTakesThePilotEndsItOnceWithTheBearingAsItIs) {
  m_helm.TurnSteersTo(77.0F);
  m_view.Take();
  m_helm.UserTakesPilot();
  m_helm.UserTakesPilot();
  EXPECT_THAT(m_view.Calls, ElementsAre("OnTurnEnds Taken"));
  EXPECT_EQ(m_settings.m_fAutoPilot, 77.0F);
}

TEST_F(TurnOnTheHelm, AStoppedInputEndsItOnce) {
  m_helm.Receiver().NmeaStop();
  m_helm.Receiver().NmeaStop();
  EXPECT_THAT(Ends(), ElementsAre("OnTurnEnds InputStopped"));
  EXPECT_THAT(m_view.Only({"OnTurnEnds", "OnInputState"}).front(), "OnTurnEnds InputStopped");
}

TEST_F(TurnOnTheHelm, ASilentInputEndsItOnce) {
  m_timer.Tick(3);
  EXPECT_THAT(Ends(), IsEmpty());
  m_timer.Tick(10);
  EXPECT_THAT(Ends(), ElementsAre("OnTurnEnds NoInputData"));
}

TEST_F(TurnOnTheHelm, ALostWindEndsItOnce) {
  for (const std::string_view coming : {kApparent, kTrue}) {
    Receive(kApparent);
    Receive(kTrue);
    for (int i = 0; i < 12; ++i) {
      Second({coming});
      EXPECT_EQ(Ends().size(), i < 4 ? 0U : 1U) << i;
    }
    EXPECT_THAT(m_view.Only({"OnWindLost", "OnTurnEnds"}),
                ElementsAre("OnWindLost yes", "OnTurnEnds NoWind"));
    Second({kApparent, kTrue});
    m_helm.TurnBegins();
    m_view.Take();
  }
}

TEST_F(TurnOnTheHelm, WithTheWindLostBeforeItEndsAtTheNextSecond) {
  m_helm.TurnOver();
  for (int i = 0; i < 6; ++i) {
    Second({kSpeed});
  }
  EXPECT_THAT(Ends(), IsEmpty()) << "none runs";
  m_helm.TurnBegins();
  Second({kSpeed});
  EXPECT_THAT(Ends(), ElementsAre("OnTurnEnds NoWind"));
}

TEST_F(TurnOnTheHelm, OneThatIsOverIsNotEnded) {
  m_helm.TurnOver();
  m_helm.UserSteersTo(50.0);
  m_timer.Tick(10);
  m_helm.Modes().TrackSetOff();
  EXPECT_THAT(Ends(), IsEmpty());
}

TEST_F(TurnOnTheHelm, ItsBearingIsFoldedToldAndSentWithTheNextWind) {
  Receive(kApparent);
  Receive(kTrue);
  m_view.Take();
  m_pilotPort.Written.clear();
  m_helm.TurnSteersTo(-90.0F);
  EXPECT_THAT(m_view.Calls, ElementsAre("OnAutoPilot 270"));
  EXPECT_THAT(m_pilotPort.Written, IsEmpty());
  Receive(kApparent);
  EXPECT_THAT(m_pilotPort.Written, ElementsAre(Sentence("270.0") + "\r\n"));
  m_helm.TurnSteersTo(std::numeric_limits<float>::quiet_NaN());
  EXPECT_EQ(m_settings.m_fAutoPilot, 270.0F);
  EXPECT_THAT(Ends(), IsEmpty());
}

TEST_F(TurnOnTheHelm, InManualTheBearingIsSentAtOnceWhereItIsAskedFor) {
  Receive(kApparent);
  Receive(kTrue);
  m_pilotPort.Written.clear();
  m_helm.TurnSteersTo(77.0F);
  m_view.Take();
  m_helm.PilotSendNow();
  EXPECT_THAT(m_pilotPort.Written, ElementsAre(Sentence("077.0") + "\r\n"));
  EXPECT_EQ(m_view.Count("OnPilotData"), 1U);
  m_helm.Modes().TrackSetSetup();
  m_pilotPort.Written.clear();
  m_helm.PilotSendNow();
  EXPECT_THAT(m_pilotPort.Written, IsEmpty());
}

}  // namespace
}  // namespace veerwatch
