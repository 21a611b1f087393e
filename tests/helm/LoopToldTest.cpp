// What a pass of the loop sends and tells.

#include <limits>
#include <vector>

#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LoopTold : public HelmTest {
 protected:
  LoopTold() {
    m_settings.m_iNmeaTrueWind = 0;
    m_helm.Modes().TrackSetSetup();
    Apparent(45);
    Receive(kTrue);
    m_view.Take();
  }

  /// A pass with the apparent wind at `angle` [deg].
  void Apparent(int angle) { Receive("$IIMWV," + std::to_string(angle) + ",R,14.0,N,A"); }
  /// A pass with the true wind at `angle` [deg].
  void True(int angle) { Receive("$IIMWV," + std::to_string(angle) + ",T,10.0,N,A"); }
  /// Tracks with the angles of the moment.
  void Track() {
    m_helm.Modes().TrackSetTrack();
    m_view.Take();
  }
  std::vector<std::string> Loop() const {
    return m_view.Only({"OnDesired", "OnDelta", "OnPilotDelta", "OnAutoPilot", "OnAlarm", "OnAlarmOver",
                        "OnPilotData", "OnPilotHeading"});
  }
};

TEST_F(LoopTold, NothingInOffOrWhileSwitching) {
  for (const TrackMode mode : {TrackMode::Off, TrackMode::Switching}) {
    m_settings.m_eTrackMode = mode;
    Apparent(50);
    EXPECT_EQ(m_view.Count("OnWindApparent"), 1U);
    EXPECT_THAT(Loop(), IsEmpty());
    EXPECT_THAT(m_pilotPort.Written, IsEmpty());
    m_view.Take();
  }
}

TEST_F(LoopTold, InSetupTheAnglesAndNothingIsSent) {
  Apparent(50);
  EXPECT_THAT(Loop(), ElementsAre("OnDesired 50 60", "OnDelta 0 0"));
  EXPECT_THAT(m_pilotPort.Written, IsEmpty());
}

TEST_F(LoopTold, InManualTheTypedBearingIsSentUnchangedAtEveryPass) {
  m_helm.Modes().TrackSetManual();
  m_helm.UserSteersTo(123.5);
  for (const int angle : {10, 20, 30}) {
    m_view.Take();
    Apparent(angle);
    EXPECT_THAT(Loop(), ElementsAre("OnDesired " + std::to_string(angle) + " 60", "OnDelta 0 0",
                                    "OnPilotData " + Sentence("123.5"), "OnPilotHeading 123.5"));
  }
  const std::string sent = Sentence("123.5") + "\r\n";
  EXPECT_THAT(m_pilotPort.Written, ElementsAre(sent, sent, sent));
}

TEST_F(LoopTold, InTrackTheStepsInTheirOrderWithTheNewBearing) {
  m_settings.m_fAutoPilot = 100.0F;
  Track();
  Apparent(53);
  EXPECT_THAT(Loop(), ElementsAre("OnDelta 8 0", "OnPilotDelta 8", "OnAutoPilot 102", "OnAlarm apparent 8",
                                  "OnPilotData " + Sentence("102.0"), "OnPilotHeading 102"));
  EXPECT_THAT(m_pilotPort.Written, ElementsAre(Sentence("102.0") + "\r\n"));
}

TEST_F(LoopTold, TheSentenceIsToldWithoutAPortToTakeIt) {
  m_pilotPort.Lose();
  m_helm.Modes().TrackSetManual();
  m_pilotPort.Lose();
  m_view.Take();
  Apparent(45);
  EXPECT_THAT(m_view.Only({"OnPilotData"}), ElementsAre("OnPilotData " + Sentence("040.0")));
  EXPECT_THAT(m_pilotPort.Written, IsEmpty());
}

TEST_F(LoopTold, NoSentenceIsToldOfABearingThatIsNotFinite) {
  m_helm.Modes().TrackSetManual();
  m_settings.m_fAutoPilot = std::numeric_limits<float>::quiet_NaN();
  m_view.Take();
  Apparent(45);
  EXPECT_EQ(m_view.Count("OnDelta"), 1U);
  EXPECT_EQ(m_view.Count("OnPilotData"), 0U);
  EXPECT_THAT(m_pilotPort.Written, IsEmpty());
}

// --- The alarm
// ---------------------------------------------------------------------------------------------------

TEST_F(LoopTold, TheAlarmAtEveryPassBeyondTheLimitAndItsEndOnce) {
  Track();
  for (const int angle : {55, 33, 52, 46, 46, 53}) {
    Apparent(angle);
  }
  EXPECT_THAT(m_view.Only({"OnAlarm", "OnAlarmOver"}),
              ElementsAre("OnAlarm apparent 10", "OnAlarm apparent -12", "OnAlarm apparent 7", "OnAlarmOver",
                          "OnAlarm apparent 8"));
}

TEST_F(LoopTold, TheAlarmOfTheTrueSide) {
  m_helm.Loop().Side(TrackSide::True);
  Track();
  Apparent(145);
  EXPECT_EQ(m_view.Count("OnAlarm"), 0U);
  True(68);
  EXPECT_THAT(m_view.Only({"OnAlarm", "OnAlarmOver"}), ElementsAre("OnAlarm true 8"));
  True(60);
  EXPECT_THAT(m_view.Only({"OnAlarm", "OnAlarmOver"}), ElementsAre("OnAlarm true 8", "OnAlarmOver"));
}

TEST_F(LoopTold, AnAlarmThatIsSwitchedOffWhileItRingsIsOverOnce) {
  Track();
  Apparent(55);
  m_settings.m_bTrackAlarm = false;
  Apparent(55);
  Apparent(55);
  EXPECT_THAT(m_view.Only({"OnAlarm", "OnAlarmOver"}), ElementsAre("OnAlarm apparent 10", "OnAlarmOver"));
}

TEST_F(LoopTold, AnAlarmIsOverWithItsMode) {
  Track();
  Apparent(55);
  m_helm.Modes().TrackSetManual();
  EXPECT_THAT(m_view.Only({"OnAlarm", "OnAlarmOver", "OnTrackMode"}),
              ElementsAre("OnAlarm apparent 10", "OnAlarmOver", "OnTrackMode 5"));
}

// --- Steering
// ----------------------------------------------------------------------------------------------------

TEST_F(LoopTold, ASteeringChangeIsToldAtOnceAndSentWithTheNextWind) {
  m_helm.Loop().Side(TrackSide::True);
  Track();
  m_settings.m_fAutoPilot = 355.0F;
  m_helm.TrackSteerTo(10.0F);
  EXPECT_THAT(m_view.Calls,
              ElementsAre("OnAutoPilot 5", "OnDesired " + ShortestText(m_settings.DesiredAngle[1]) + " 50"));
  EXPECT_THAT(m_pilotPort.Written, IsEmpty());
  True(50);
  EXPECT_THAT(m_pilotPort.Written, ElementsAre(Sentence("005.0") + "\r\n"));
}

TEST_F(LoopTold, ASteeringChangeThatChangesNothingIsNotTold) {
  m_helm.TrackSteerTo(10.0F);
  Track();
  m_helm.TrackSteerTo(std::numeric_limits<float>::infinity());
  EXPECT_THAT(m_view.Calls, IsEmpty());
}

TEST_F(LoopTold, ARefusalIsToldAfterTheModeThatStays) {
  m_settings.m_fTrackBandwidth = 0.0F;
  m_helm.Modes().TrackSetTrack();
  EXPECT_THAT(m_view.Calls, ElementsAre("OnTrackMode 3", "OnTrackRefused 0"));
}

}  // namespace
}  // namespace veerwatch
