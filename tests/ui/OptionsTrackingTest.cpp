// What the Tracking tab makes of the sentences that come: a suggestion, a warning, and its preview.

#include <QComboBox>

#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

class OptionsTracking : public OptionsTester {
 protected:
  OptionsTracking() {
    Main.Answer.WindsASecond = 5.0;
    Main.Answer.Heading = 100.0F;
    Main.Answer.BoatSpeedKnown = true;
  }
  const TrackPreview& Picture() const {
    return dynamic_cast<TrackPreviewQt&>(Find<QWidget>("pctTrack")).Picture();
  }
  void Choose(TrackMethod method) const {
    auto& box = Find<QComboBox>("cmbTrackMethod");
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Home);
    for (int i = 0; i < static_cast<int>(method); ++i) {
      QTest::keyClick(&box, Qt::Key_Down);
    }
    ASSERT_EQ(box.currentIndex(), static_cast<int>(method));
  }
  /// A wind a second of the record, each a pass.
  void Sail(int seconds) {
    for (int second = 0; second < seconds; ++second) {
      m_at.At.Steady += 1000;
      Main.Instruments.HeadingUpdate(100.0F, m_at);
      Main.Instruments.WindApparentUpdate(30.0F, 14.0F, false, m_at);
      Main.Instruments.WindTrueUpdate(second % 60 < 30 ? 42.0F : 50.0F, 12.0F, true, m_at);
      Main.Tells.Tell([](HelmObserver& told) {
        told.OnWindTrue(0.0F, 0.0F);
        told.OnDelta(0.0F, 0.0F);
      });
    }
  }

 private:
  Origin m_at;
};

TEST_F(OptionsTracking, SuggestFillsTheBoxesAndStoresNothingBeforeApply) {
  Start(frmOptions::Tracking);
  Type("txtTrackLag", "8");
  Click("cmdTrackSuggest");
  EXPECT_EQ(Find<QComboBox>("cmbTrackMethod").currentText(), "Direction");
  EXPECT_EQ(Entry("txtTrackBandwidth"), "40");
  EXPECT_EQ(Entry("txtTrackAlarmAverage"), "5");
  EXPECT_EQ(Entry("txtNmeaTrueWindAverage"), "2");
  EXPECT_EQ(
      Text("lblTrackReason"),
      "Direction holds at 5 wind sentences a second without tuning;\n40 s follow closely and cost little "
      "rudder on a boat that takes 8 s to answer.");
  EXPECT_TRUE(Find<QLabel>("lblTrackReason").isVisible());
  EXPECT_TRUE(Bold());
  EXPECT_EQ(Main.m_eTrackMethod, TrackMethod::Sentence);
  EXPECT_EQ(Main.m_fTrackBandwidth, 20.0F);
  EXPECT_EQ(Main.m_fTrackAlarmAverage, 0.0F);
  Click("cmdApply");
  EXPECT_EQ(Main.m_eTrackMethod, TrackMethod::Direction);
  EXPECT_EQ(Main.m_fTrackBandwidth, 40.0F);
  EXPECT_EQ(Main.m_fTrackAlarmAverage, 5.0F);
  EXPECT_FALSE(Find<QLabel>("lblTrackReason").isVisible());
}

TEST_F(OptionsTracking, SuggestGoesByWhatIsMeasured) {
  Main.Answer.Heading.reset();
  Start(frmOptions::Tracking);
  Click("cmdTrackSuggest");
  EXPECT_EQ(Find<QComboBox>("cmbTrackMethod").currentText(), "Sentence");
  EXPECT_EQ(Entry("txtTrackBandwidth"), "300");
  EXPECT_EQ(Entry("txtNmeaTrueWindAverage"), "8");
  Main.Answer.Heading = 100.0F;
  Main.Answer.BoatSpeedKnown = false;
  Click("cmdTrackSuggest");
  EXPECT_EQ(Find<QComboBox>("cmbTrackMethod").currentText(), "Clock");
  EXPECT_EQ(Entry("txtTrackBandwidth"), "60");
}

TEST_F(OptionsTracking, SuggestNeedsALag) {
  Start(frmOptions::Tracking);
  for (const char* lag : {"four", "", "-1"}) {
    Type("txtTrackLag", lag);
    Click("cmdTrackSuggest");
    EXPECT_EQ(Text("lblTrackReason"), "Boat lag must be a number from 0 on.");
    EXPECT_EQ(Entry("txtTrackBandwidth"), "20");
    EXPECT_EQ(Find<QComboBox>("cmbTrackMethod").currentText(), "Sentence");
  }
}

TEST_F(OptionsTracking, AYellowLineTellsABandwidthThatSwings) {
  Start(frmOptions::Tracking);
  auto& line = Find<QLabel>("lblTrackSwings");
  EXPECT_TRUE(line.isVisible());
  EXPECT_EQ(Text("lblTrackSwings"), "5 wind sentences a second: this bandwidth swings; choose Clock");
  EXPECT_EQ(line.grab().toImage().pixelColor(1, 1), QColor(255, 224, 102));
  Type("txtTrackBandwidth", "200");
  EXPECT_FALSE(line.isVisible());
  Type("txtTrackBandwidth", "199");
  EXPECT_TRUE(line.isVisible());
  Choose(TrackMethod::Clock);
  EXPECT_FALSE(line.isVisible());
  Choose(TrackMethod::Sentence);
  EXPECT_TRUE(line.isVisible());
  Main.Answer.WindsASecond = 1.0;
  Main.Tells.Tell([](HelmObserver& told) { told.OnTick(); });
  EXPECT_FALSE(line.isVisible());
}

TEST_F(OptionsTracking, SaysAtWhichRateThePreviewSteps) {
  Start(frmOptions::Tracking);
  EXPECT_EQ(Text("lblTrackRate"), "5 wind sentences a second");
  EXPECT_EQ(Random.Draws % 601, 0U) << "120 seconds with five passes each, and the first";
  Main.Answer.WindsASecond.reset();
  Random.Draws = 0;
  Click("cmdApply");
  EXPECT_EQ(Text("lblTrackRate"), "1 wind sentence a second (none measured)");
  EXPECT_EQ(Random.Draws, 121U);
}

TEST_F(OptionsTracking, ThePreviewShowsTheChosenMethod) {
  Main.Answer.WindsASecond = 1.0;
  Start(frmOptions::Tracking);
  const auto sentence = Picture().Trace;
  Choose(TrackMethod::Direction);
  EXPECT_NE(Picture().Trace, sentence);
  ASSERT_TRUE(Picture().Figures);
  Main.m_fTrackMaxRate = 0.5F;
  const auto quick = *Picture().Figures->SettlingTime;
  Click("cmdApply");
  EXPECT_GT(*Picture().Figures->SettlingTime, quick + 5.0) << "by the limits of the settings";
  Choose(TrackMethod::Sentence);
  EXPECT_EQ(Picture().Trace, sentence);
}

TEST_F(OptionsTracking, OnMyWindSaysWhenTooLittleIsRecorded) {
  Sail(31);
  Start(frmOptions::Tracking);
  Click("chkTrackOnMyWind");
  EXPECT_EQ(Picture().Trouble, "Two minutes of wind and heading are needed; 30 seconds are recorded");
  EXPECT_TRUE(Picture().Empty());
  EXPECT_EQ(Text("lblTrackFigures"), "");
}

TEST_F(OptionsTracking, OnMyWindShowsEveryMethodAndGreysTheOthersBoxes) {
  Sail(600);
  Start(frmOptions::Tracking);
  Click("chkTrackOnMyWind");
  ASSERT_EQ(Picture().Curves.size(), 3U);
  EXPECT_TRUE(Picture().Trace.empty());
  for (const char* box : {"txtTrackOffset", "txtTrackNoise", "txtTrackTime", "txtTrackMin", "txtTrackMax"}) {
    EXPECT_FALSE(Find<QWidget>(box).isEnabled()) << box;
  }
  const std::string direction = Picture().Curves[2].Text;
  EXPECT_TRUE(direction.starts_with("Direction: mean ")) << direction;
  EXPECT_NE(Find<QWidget>("pctTrack").accessibleDescription().toStdString().find(direction),
            std::string::npos);
  Type("txtTrackLag", "12");
  Click("cmdApply");
  EXPECT_NE(Picture().Curves[2].Text, direction) << "by the lag beside";
  Type("txtTrackLag", "x");
  Click("cmdApply");
  EXPECT_EQ(Picture().Trouble, "Boat lag is not a number");
  Click("chkTrackOnMyWind");
  EXPECT_FALSE(Picture().Trace.empty());
  EXPECT_TRUE(Find<QWidget>("txtTrackOffset").isEnabled());
}

}  // namespace
}  // namespace veerwatch
