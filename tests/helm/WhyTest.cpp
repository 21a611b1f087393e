// Why the last sentence says what it says.

#include "tests/helm/HelmFixture.h"

namespace veerwatch {
namespace {

class HelmWhy : public HelmTest {
 protected:
  HelmWhy() { m_settings.m_iNmeaTrueWind = 0; }

  void Track() {
    m_helm.Modes().TrackSetSetup();
    Receive("$HCHDG,100.0,,,5.0,W");
    Receive(kSpeed);
    Receive(kApparent);
    Receive(kTrue);
    m_helm.Modes().TrackSetTrack();
  }
};

TEST_F(HelmWhy, SaysThatNothingWasSentYet) {
  EXPECT_FALSE(m_helm.LastSentence().Sent);
  EXPECT_EQ(WhyText(m_helm.Now().Sentence), "nothing was sent yet");
}

TEST_F(HelmWhy, HasTheReadingsWithSourcesAndAgesAndWhatTheLoopMadeOfThem) {
  Track();
  m_clock.Pass(1500);
  Receive("$WIMWV,049,R,11.5,N,A");
  const Why& why = m_helm.LastSentence();
  EXPECT_EQ(why.Step.Error, 4.0F);
  EXPECT_EQ(why.Step.Correction, 1.0F) << "the gain is 0.25";
  EXPECT_EQ(why.Bearing, 41.0F);
  EXPECT_EQ(
      WhyText(why),
      "41.0 by Sentence: apparent 49.0 held 45.0, error 4.0, 0.0 s, correction 1.0; Apparent Wind 49.0 "
      "deg 11.5 kn MWV (WI) 0.0 s, True Wind 60.0 deg 9.5 kn MWV (II) 1.5 s, Boat Speed 6.0 kn VTG (GP) "
      "1.5 s, Heading 0.0 deg VTG (GP) 1.5 s");
}

TEST_F(HelmWhy, IsOfTheLastSentenceNotOfWhatCameSince) {
  Track();
  Receive("$WIMWV,049,R,11.5,N,A");
  m_helm.Modes().TrackSetSetup();
  Receive("$WIMWV,080,R,11.5,N,A");
  EXPECT_EQ(m_helm.LastSentence().Data.WindAngleApparent, 49.0F);
}

TEST_F(HelmWhy, NamesTheLimitsThatBit) {
  m_settings.m_eTrackMethod = TrackMethod::Clock;
  Track();
  m_helm.Loop().SetAutoPilot(0.0);
  m_clock.Pass(1000);
  Receive("$WIMWV,045,R,11.5,N,A");
  m_clock.Pass(1000);
  Receive("$WIMWV,145,R,11.5,N,A");
  EXPECT_TRUE(m_helm.LastSentence().Step.ByRate);
  EXPECT_EQ(m_helm.LastSentence().Step.Correction, 3.0F);
  EXPECT_NE(WhyText(m_helm.LastSentence()).find("limited by Max Rate"), std::string::npos);
  m_helm.Loop().SetAutoPilot(40.0);
  Receive(kSpeed);  // with the heading
  m_clock.Pass(1000);
  Receive("$WIMWV,145,R,11.5,N,A");
  EXPECT_TRUE(m_helm.LastSentence().Step.ByAhead);
  EXPECT_EQ(m_helm.LastSentence().Bearing, 30.0F);
}

TEST_F(HelmWhy, ABearingThatIsSentByHandSaysSo) {
  Track();
  m_helm.Modes().TrackSetManual();
  Receive(kApparent);
  EXPECT_NE(WhyText(m_helm.LastSentence()).find("40.0 by hand; Apparent Wind"), std::string::npos);
}

}  // namespace
}  // namespace veerwatch
