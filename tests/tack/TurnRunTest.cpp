// A turn from a plan to the hand-over, on the real helm.

#include "tack/TurnRun.h"

#include <cmath>
#include <string>

#include "platform/Angles.h"
#include "platform/NumberText.h"
#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A boat that is where her pilot is told to be, in a true wind from 145 and with the apparent one 10 degrees
/// before it.
class TurnRunTest : public HelmTest {
 protected:
  TurnRunTest() {
    m_settings.m_iNmeaTrueWind = 0;
    m_settings.m_fTrackBandwidth = 60.0F;
    m_settings.m_fTrackDamping = 4.0F;
    m_settings.m_fAutoPilot = 112.0F;
    m_turnTimer.OnTick = [this] { m_run.Tick(); };
    m_helm.Loop().Side(TrackSide::True);
    m_helm.Modes().TrackSetSetup();
    m_helm.Modes().TrackSetManual();
    Sail(12);
    m_helm.Modes().TrackSetTrack();
    Sail(3);
    m_view.Take();
  }

  double Heading() const { return static_cast<double>(m_settings.m_fAutoPilot) - m_offset; }

  void Winds() {
    const double angle = std::remainder(145.0 - Heading(), 360.0);
    const auto wind = [&](double at, const char* reference) {
      Receive("$IIMWV," + FormatNumber(FoldBearing(at), "0.0") + "," + reference + ",10.0,N,A");
    };
    wind(angle > 0.0 ? angle - 10.0 : angle + 10.0, "R");
    wind(angle, "T");
  }

  void Second(bool withHeading = true, bool withWind = true) {
    m_clock.Pass(1000);
    if (withHeading) {
      Receive("$GPVTG,,T," + FormatNumber(FoldBearing(Heading()), "0.0") + ",M,6.0,N,,K");
    }
    if (withWind) {
      Winds();
    }
    m_timer.Tick();
    m_turnTimer.Tick();
  }
  void Sail(int seconds) {
    for (int second = 0; second < seconds; ++second) {
      Second();
    }
  }

  TurnPlan Tack() const {
    TurnAsk ask;
    ask.Overshoot = 5.0F;
    ask.Rate = 10.0F;
    return m_run.Plan(ask);
  }
  void Begin() {
    const TurnPlan plan = Tack();
    ASSERT_EQ(plan.Refusal, "");
    m_run.Begin(plan, TurnEngine::kUsualLimit);
    ASSERT_TRUE(m_run.Running());
  }
  std::vector<std::string> Ends() const { return m_view.Only({"OnTurnEnds"}); }

  double m_offset = 12.0;  ///< of the pilot's bearing from the heading [deg]
  HandTimer m_turnTimer;
  TurnRun m_run{m_helm, m_turnTimer, m_clock};
};

TEST_F(TurnRunTest, TracksTheMirroredAngleOnTheSameSideWithoutAJump) {
  Begin();
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Manual);
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::Turn);
  EXPECT_EQ(m_turnTimer.Milliseconds, 1000);
  float before = m_settings.m_fAutoPilot;
  int seconds = 0;
  while (m_run.Running() && seconds < 100) {
    before = m_settings.m_fAutoPilot;
    Second();
    ++seconds;
  }
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Track);
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::Loop);
  EXPECT_EQ(m_helm.Loop().Side(), TrackSide::True);
  EXPECT_NEAR(m_settings.DesiredAngle[2], -45.0F, 1.0F);
  EXPECT_EQ(m_settings.m_fAutoPilot, before);
  EXPECT_EQ(m_helm.Loop().TrackIntegral(), 0.0);
  EXPECT_THAT(Ends(), IsEmpty()) << "it was not ended";
  EXPECT_FALSE(m_turnTimer.Enabled());
  Sail(1);
  EXPECT_NEAR(m_settings.m_fAutoPilot, before, 1.0F);
}

TEST_F(TurnRunTest, KeepsThePilotsOwnOffsetThoughTrackWouldBeginAtTheHeading) {
  m_helm.Modes().TrackSetManual();
  m_settings.m_eTrackMethod = TrackMethod::Clock;
  m_offset = 20.0;
  m_settings.m_fAutoPilot = 120.0F;
  Sail(12);
  Begin();
  while (m_run.Running()) {
    Second();
  }
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Track);
  EXPECT_NEAR(m_settings.m_fAutoPilot, 210.0F, 2.0F);
  Sail(5);
  EXPECT_NEAR(m_settings.m_fAutoPilot, 210.0F, 2.0F);
}

TEST_F(TurnRunTest, WhoeverTakesThePilotEndsItAndSaysWhereItSteers) {
  Begin();
  Sail(3);
  m_helm.UserSteersTo(50.0);
  EXPECT_FALSE(m_run.Running());
  EXPECT_EQ(m_settings.m_fAutoPilot, 50.0F);
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::User);
  EXPECT_THAT(Ends(), ElementsAre("OnTurnEnds Taken"));
  Sail(3);
  EXPECT_EQ(m_settings.m_fAutoPilot, 50.0F);
}

TEST_F(TurnRunTest, AModeEndsIt) {
  for (const auto take : {&TrackModes::TrackSetOff, &TrackModes::TrackSetSetup}) {
    m_helm.Modes().TrackSetSetup();
    m_helm.Modes().TrackSetManual();
    Sail(12);
    Begin();
    Sail(2);
    (m_helm.Modes().*take)();
    EXPECT_FALSE(m_run.Running());
  }
}

TEST_F(TurnRunTest, StopLeavesThePilotWhereItHeardLast) {
  Begin();
  Sail(3);
  const float heard = m_run.Engine().BearingSent();
  EXPECT_NE(heard, m_settings.m_fAutoPilot) << "the latest step has not left yet";
  m_run.Stop();
  EXPECT_EQ(m_settings.m_fAutoPilot, heard);
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Manual);
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::User);
  EXPECT_THAT(Ends(), IsEmpty());
  m_run.Stop();
}

TEST_F(TurnRunTest, ALostHeadingEndsItWithItsReason) {
  Begin();
  Sail(3);
  for (int second = 0; second < 30 && m_run.Running(); ++second) {
    Second(false);
  }
  EXPECT_THAT(Ends(), ElementsAre("OnTurnEnds NoHeading"));
  EXPECT_EQ(m_settings.m_fAutoPilot, m_run.Engine().BearingSent());
  EXPECT_EQ(m_settings.m_eTrackMode, TrackMode::Manual);
}

TEST_F(TurnRunTest, ALostWindEndsItWithItsReason) {
  Begin();
  Sail(3);
  const float heard = m_run.Engine().BearingSent();
  for (int second = 0; second < 30 && m_run.Running(); ++second) {
    Second(true, false);
  }
  EXPECT_THAT(Ends(), ElementsAre("OnTurnEnds NoWind"));
  EXPECT_EQ(m_settings.m_fAutoPilot, heard);
}

TEST_F(TurnRunTest, AnOutputThatIsLostEndsItWithItsReason) {
  Begin();
  Sail(3);
  m_pilotPort.Lose();
  for (int second = 0; second < 30 && m_run.Running(); ++second) {
    Second();
  }
  EXPECT_THAT(Ends(), ElementsAre("OnTurnEnds NoOutput"));
  EXPECT_EQ(m_settings.m_fAutoPilot, m_run.Engine().BearingSent());
}

TEST_F(TurnRunTest, AnotherTurnTakesThePilot) {
  Begin();
  Sail(3);
  m_helm.TurnBegins();
  EXPECT_FALSE(m_run.Running());
  EXPECT_EQ(m_helm.Now().Hand, PilotHand::Turn);
  EXPECT_THAT(Ends(), ElementsAre("OnTurnEnds Taken"));
}

TEST_F(TurnRunTest, ASecondTurnWhileTheBoatStillSwingsStartsFromTheHeldAngle) {
  Begin();
  while (m_run.Running()) {
    Second();
  }
  Sail(1);
  const TurnPlan back = Tack();
  EXPECT_NEAR(back.Change, -90.0, 2.0);
  EXPECT_EQ(back.Crossing, WindCrossing::Bow);
}

TEST_F(TurnRunTest, TellsWhatHasChanged) {
  int told = 0;
  m_run.Changed([&] { ++told; });
  Begin();
  EXPECT_EQ(told, 1);
  Sail(2);
  EXPECT_EQ(told, 3);
  m_run.Stop();
  EXPECT_EQ(told, 4);
}

}  // namespace
}  // namespace veerwatch
