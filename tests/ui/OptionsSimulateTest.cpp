// The Simulate tab: its frame, its boxes and its spinners.

#include <QComboBox>
#include <QGroupBox>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;

class OptionsSimulate : public OptionsTester {
 public:
  /// Presses an arrow of a spinner.
  void Spin(const std::string& name, bool up) const {
    auto& bar = Find<QScrollBar>(name);
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = bar.orientation();
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.sliderPosition = bar.sliderPosition();
    option.subControls = QStyle::SC_All;
    const QRect arrow = bar.style()->subControlRect(
        QStyle::CC_ScrollBar, &option, up ? QStyle::SC_ScrollBarSubLine : QStyle::SC_ScrollBarAddLine, &bar);
    ASSERT_TRUE(bar.rect().contains(arrow)) << name;
    QTest::mouseClick(&bar, Qt::LeftButton, {}, arrow.center());
    EXPECT_EQ(bar.value(), 0);
    EXPECT_TRUE(bar.isEnabled());
  }
};

TEST_F(OptionsSimulate, TheDataFrameFollowsTheLastReload) {
  Start(frmOptions::Simulate);
  EXPECT_FALSE(Find<QGroupBox>("frmSimulate").isVisible());
  Click("chkSimulate");
  EXPECT_FALSE(Find<QGroupBox>("frmSimulate").isVisible());
  Click("cmdApply");
  EXPECT_TRUE(Main.m_bSimulate);
  EXPECT_TRUE(Find<QGroupBox>("frmSimulate").isVisible());
  Click("chkSimulate");
  EXPECT_TRUE(Find<QGroupBox>("frmSimulate").isVisible());
}

TEST_F(OptionsSimulate, APlainDecimalAsTimeIsStoredAs0) {
  Main.m_bSimulate = true;
  Main.m_fSimulateTime = 2.0F;
  Start(frmOptions::Simulate);
  Type("txtSimulateTime", "1.5");
  Click("cmdApply");
  EXPECT_EQ(Main.m_fSimulateTime, 0.0F);
  EXPECT_EQ(Entry("txtSimulateTime"), "0:00");
}

TEST_F(OptionsSimulate, SpinnersStepTimeAndAngle) {
  Main.m_bSimulate = true;
  Main.m_fSimulateTrueWindAngle = 355.0F;
  Start(frmOptions::Simulate);
  Spin("vscSimulateTime(0)", true);
  EXPECT_EQ(Entry("txtSimulateTime"), "0:10");
  Spin("vscSimulateTime(1)", true);
  EXPECT_EQ(Entry("txtSimulateTime"), "0:11");
  Spin("vscSimulateTime(0)", false);
  EXPECT_EQ(Entry("txtSimulateTime"), "0:01");
  Spin("vscSimulateTrueWindAngle(0)", true);
  EXPECT_EQ(Entry("txtSimulateTrueWindAngle"), "365");
  Spin("vscSimulateTrueWindAngle(1)", false);
  EXPECT_EQ(Entry("txtSimulateTrueWindAngle"), "364");
  EXPECT_TRUE(Bold());
  EXPECT_EQ(Main.m_fSimulateTrueWindAngle, 355.0F);
}

TEST_F(OptionsSimulate, TheTimeSpinnerShowsTheWaypointOfThatTime) {
  Main.m_bSimulate = true;
  Start(frmOptions::Simulate);
  Main.SimulateTimes.clear();
  Main.WaypointBearing = -12.4F;
  Main.WaypointRange = 3.04F;
  Spin("vscSimulateTime(0)", true);
  EXPECT_THAT(Main.SimulateTimes, ElementsAre(static_cast<float>(1.0 / 6.0)));
  EXPECT_EQ(Text("lblSimulateWaypointBrg"), "-12");
  EXPECT_EQ(Text("lblSimulateWaypointRng"), "3.0");
  Spin("vscSimulateTrueWindAngle(0)", true);
  EXPECT_EQ(Main.SimulateTimes.size(), 1U);
}

TEST_F(OptionsSimulate, WhatTheSteadyBoatHasNotIsGreyWithHer) {
  Main.m_bSimulate = true;
  Start(frmOptions::Simulate);
  const std::vector<std::string> names{"txtSimulatePilotLag", "txtSimulateGusts", "txtSimulateShifts",
                                       "txtSimulateLeeway", "txtSimulateSeed"};
  for (const std::string& name : names) {
    EXPECT_FALSE(Find<QLineEdit>(name).isEnabled()) << name;
  }
  Find<QComboBox>("cmbSimulateModel").setCurrentIndex(static_cast<int>(SimulateModel::Boat));
  for (const std::string& name : names) {
    EXPECT_TRUE(Find<QLineEdit>(name).isEnabled()) << name;
  }
}

TEST_F(OptionsSimulate, TheBoatsOwnNumbersAreTakenByApply) {
  Main.m_bSimulate = true;
  Main.m_eSimulateModel = SimulateModel::Boat;
  Start(frmOptions::Simulate);
  EXPECT_EQ(Entry("txtSimulatePilotLag"), "4");
  EXPECT_EQ(Entry("txtSimulateGusts"), "10");
  EXPECT_EQ(Entry("txtSimulateSeed"), "0");
  Type("txtSimulatePilotLag", "6");
  EXPECT_TRUE(Bold());
  Type("txtSimulateGusts", "15");
  Type("txtSimulateShifts", "8");
  Type("txtSimulateLeeway", "5");
  Type("txtSimulateSeed", "12");
  Click("cmdApply");
  EXPECT_FALSE(Bold());
  EXPECT_EQ(Main.m_fSimulatePilotLag, 6.0F);
  EXPECT_EQ(Main.m_fSimulateGusts, 15.0F);
  EXPECT_EQ(Main.m_fSimulateShifts, 8.0F);
  EXPECT_EQ(Main.m_fSimulateLeeway, 5.0F);
  EXPECT_EQ(Main.m_iSimulateSeed, 12);
  Type("txtSimulateGusts", "-1");
  Click("cmdApply");
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_EQ(Dialogs.Messages[0].Text, "Simulate Options Problem Invalid property value: Gusts");
  EXPECT_EQ(Main.m_fSimulateGusts, 15.0F);
}

TEST_F(OptionsSimulate, TabLeadsThroughTheBoatAsSheStandsThere) {
  Main.m_bSimulate = true;
  Main.m_eSimulateModel = SimulateModel::Boat;
  Start(frmOptions::Simulate);
  Find<QWidget>("chkSimulateAutoApply").setFocus();
  for (const char* name : {"cmbSimulateModel", "cmbSimulatePilot", "cmbSimulateSea", "txtSimulatePilotLag",
                           "txtSimulateLeeway", "txtSimulateGusts", "txtSimulateShifts", "txtSimulateSeed"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
  }
}

TEST_F(OptionsSimulate, AutoApplyAppliesEveryStep) {
  Main.m_bSimulate = true;
  Start(frmOptions::Simulate);
  Click("chkSimulateAutoApply");
  Spin("vscSimulateTrueWindAngle(0)", true);
  EXPECT_EQ(Main.m_fSimulateTrueWindAngle, 10.0F);
  EXPECT_FALSE(Bold());
  EXPECT_TRUE(Window->isVisible());
}

}  // namespace
}  // namespace veerwatch
