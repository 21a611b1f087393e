// What the user does in the options dialog: edits, Apply, OK, Cancel, the close.

#include <QComboBox>

#include "tests/ui/OptionsTester.h"

namespace veerwatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OptionsDialog : public OptionsTester {};

// Bold Apply

struct Marking {
  const char* Name;
  int Tab;
  bool Marks;
};

void PrintTo(const Marking& marking, std::ostream* out) { *out << marking.Name; }

class OptionsMarking : public OptionsTester, public testing::WithParamInterface<Marking> {};

TEST_P(OptionsMarking, ABoxMarksWhileItHasTheKeyboard) {
  Main.m_bSimulate = true;
  Start(GetParam().Tab);
  Type(GetParam().Name, "7");
  EXPECT_EQ(Bold(), GetParam().Marks);
}

TEST_P(OptionsMarking, AChangeWithoutTheKeyboardNeverMarks) {
  Main.m_bSimulate = true;
  Start(GetParam().Tab);
  Find<QPushButton>("cmdOk").setFocus();
  Find<QLineEdit>(GetParam().Name).setText("7");
  EXPECT_FALSE(Bold());
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, OptionsMarking,
    testing::Values(Marking{"txtNmeaPort", 0, true}, Marking{"txtNmeaTrueWindAverage", 1, true},
                    Marking{"txtNmeaWindIndicatorAverage", 1, true}, Marking{"txtPilotPort", 2, true},
                    Marking{"txtTrackAlarmLimit", 3, true}, Marking{"txtTrackBandwidth", 3, true},
                    Marking{"txtTrackDamping", 3, true}, Marking{"txtTrackMaxSteerTo", 3, false},
                    Marking{"txtTrackOffset", 3, true}, Marking{"txtTrackMin", 3, true},
                    Marking{"txtTrackMax", 3, true}, Marking{"txtTrackTime", 3, true},
                    Marking{"txtTrackNoise", 3, true}, Marking{"txtTrackAlarmAverage", 3, true},
                    Marking{"txtTrackLag", 3, true}, Marking{"txtSimulateBoatSpeed", 4, true},
                    Marking{"txtSimulateCompassOffset", 4, true},
                    Marking{"txtSimulateTrueWindAngle", 4, true},
                    Marking{"txtSimulateTrueWindSpeed", 4, true}, Marking{"txtSimulateVariation", 4, true},
                    Marking{"txtSimulateWaypointBrg", 4, true}, Marking{"txtSimulateWaypointRng", 4, true},
                    Marking{"txtSimulateTime", 4, true}, Marking{"txtSimulateNoiseAngle", 4, true},
                    Marking{"txtSimulateNoiseSpeed", 4, true}),
    [](const auto& marking) { return marking.param.Name; });

TEST_F(OptionsDialog, ABoxThatDoesNotMarkIsStoredAllTheSame) {
  Start(frmOptions::Tracking);
  Type("txtTrackMaxSteerTo", "33");
  Click("chkTrackAlarm");
  EXPECT_FALSE(Bold());
  Click("cmdApply");
  EXPECT_EQ(Main.m_fTrackMaxSteerTo, 33.0F);
  EXPECT_FALSE(Main.m_bTrackAlarm);
}

TEST_F(OptionsDialog, ShowsMarksAndStoresTheMethod) {
  Main.m_eTrackMethod = TrackMethod::Clock;
  Start(frmOptions::Tracking);
  auto& method = Find<QComboBox>("cmbTrackMethod");
  EXPECT_EQ(method.currentText(), "Clock");
  EXPECT_TRUE(Find<QWidget>("txtTrackDamping").isEnabled());
  EXPECT_FALSE(Bold());
  method.setFocus();
  QTest::keyClick(&method, Qt::Key_Down);
  EXPECT_EQ(method.currentText(), "Direction");
  EXPECT_TRUE(Bold());
  EXPECT_FALSE(Find<QWidget>("txtTrackDamping").isEnabled());
  EXPECT_EQ(Find<QWidget>("txtTrackDamping").toolTip(), "The method Direction has no damping");
  Click("cmdApply");
  EXPECT_EQ(Main.m_eTrackMethod, TrackMethod::Direction);
  method.setFocus();
  QTest::keyClick(&method, Qt::Key_Home);
  Click("cmdApply");
  EXPECT_EQ(Main.m_eTrackMethod, TrackMethod::Sentence);
  EXPECT_TRUE(Find<QWidget>("txtTrackDamping").isEnabled());
}

TEST_F(OptionsDialog, TickingTheAlarmAloneLeavesApplyNormalAndOkStoresIt) {
  Start(frmOptions::Tracking);
  Click("chkTrackAlarm");
  EXPECT_FALSE(Bold());
  Click("cmdOk");
  EXPECT_FALSE(Main.m_bTrackAlarm);
  EXPECT_FALSE(Window->isVisible());
}

TEST_F(OptionsDialog, TheSimulatorMarks) {
  Main.m_bSimulate = true;
  Start(frmOptions::Simulate);
  Click("chkSimulateAutoApply");
  EXPECT_FALSE(Bold());
  Click("chkSimulate");
  EXPECT_TRUE(Bold());
}

TEST_F(OptionsDialog, ATickedSentenceMarks) {
  Start(frmOptions::Data);
  auto& list = Find<QTreeWidget>("lstNmeaSentence");
  const QRect row = list.visualItemRect(list.topLevelItem(2));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(row.left() + 10, row.center().y()));
  EXPECT_EQ(list.topLevelItem(2)->checkState(0), Qt::Unchecked);
  EXPECT_TRUE(Bold());
  Click("cmdApply");
  EXPECT_FALSE(Main.m_bNmeaSentenceMWV);
  EXPECT_FALSE(Bold());
}

TEST_F(OptionsDialog, TheSpaceBarTicksASentence) {
  Start(frmOptions::Data);
  auto& list = Find<QTreeWidget>("lstNmeaSentence");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Space);
  EXPECT_EQ(list.topLevelItem(1)->checkState(0), Qt::Unchecked);
  EXPECT_TRUE(Bold());
}

TEST_F(OptionsDialog, AMnemonicOfTheSimulatorMarksToo) {
  Start(frmOptions::Simulate);
  QTest::keyClick(Window.get(), Qt::Key_L, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Find<QCheckBox>("chkSimulate").isChecked(); }));
  EXPECT_TRUE(Bold());
}

TEST_F(OptionsDialog, ChoosingASourceOrWhatIsListedDoesNotMark) {
  Start(frmOptions::Data);
  auto& box = Find<QComboBox>("cmbNmeaHeading");
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Up);
  EXPECT_EQ(box.currentIndex(), 0);
  EXPECT_FALSE(Bold());
  Tab(frmOptions::Input);
  Click("optNmeaDataFormat(2)");
  Click("optNmeaListOn");
  EXPECT_FALSE(Bold());
  Click("cmdApply");
  EXPECT_EQ(Main.m_iNmeaHeading, 0);
}

// The buttons

TEST_F(OptionsDialog, ApplyStoresShowsAndStaysOpen) {
  Start(frmOptions::Tracking);
  Type("txtTrackBandwidth", " 12.50 ");
  EXPECT_TRUE(Bold());
  Click("cmdApply");
  EXPECT_EQ(Main.m_fTrackBandwidth, 12.5F);
  EXPECT_EQ(Entry("txtTrackBandwidth"), "12.5");
  EXPECT_FALSE(Bold());
  EXPECT_TRUE(Window->isVisible());
  EXPECT_THAT(Dialogs.Messages, IsEmpty());
}

TEST_F(OptionsDialog, OkStoresAndHides) {
  Start(frmOptions::Input);
  Type("txtNmeaPort", "9");
  Click("cmdOk");
  EXPECT_EQ(Main.m_iNmeaPort, 9);
  EXPECT_FALSE(Window->isVisible());
  EXPECT_FALSE(Bold());
}

TEST_F(OptionsDialog, EnterIsOk) {
  Start(frmOptions::Input);
  Type("txtNmeaPort", "9");
  QTest::keyClick(&Find<QLineEdit>("txtNmeaPort"), Qt::Key_Return);
  EXPECT_EQ(Main.m_iNmeaPort, 9);
  EXPECT_FALSE(Window->isVisible());
}

TEST_F(OptionsDialog, CancelHidesAndKeepsWhatWasTyped) {
  Start(frmOptions::Tracking);
  Type("txtTrackBandwidth", "12.5");
  Click("cmdCancel");
  EXPECT_FALSE(Window->isVisible());
  EXPECT_FALSE(Bold());
  EXPECT_EQ(Main.m_fTrackBandwidth, 20.0F);
  Show(frmOptions::Tracking);
  EXPECT_EQ(Entry("txtTrackBandwidth"), "12.5");
  EXPECT_FALSE(Bold());
  Click("cmdApply");
  EXPECT_EQ(Main.m_fTrackBandwidth, 12.5F);
}

TEST_F(OptionsDialog, ABoxIsEditedUntilItIsApplied) {
  Start(frmOptions::Tracking);
  auto& box = *Window->findChild<QLineEdit*>(QStringLiteral("txtTrackBandwidth"));
  const auto edited = [&] { return dynamic_cast<EntryLineQt&>(box).Edited(); };
  QTest::mouseClick(&box, Qt::LeftButton, {}, box.rect().center() + QPoint(box.width() / 2 - 4, 0));
  EXPECT_EQ(box.selectedText(), box.text());
  EXPECT_FALSE(edited());
  QTest::keyClicks(&box, "12.5");
  EXPECT_EQ(box.text(), "12.5");
  EXPECT_TRUE(edited());
  Click("cmdApply");
  EXPECT_FALSE(edited());
  Type("txtTrackBandwidth", "13");
  Click("cmdOk");
  EXPECT_FALSE(edited());
}

TEST_F(OptionsDialog, EscapeIsCancel) {
  Start(frmOptions::Tracking);
  Type("txtTrackBandwidth", "12.5");
  QTest::keyClick(&Find<QLineEdit>("txtTrackBandwidth"), Qt::Key_Escape);
  EXPECT_FALSE(Window->isVisible());
  EXPECT_FALSE(Bold());
  EXPECT_EQ(Entry("txtTrackBandwidth"), "12.5");
}

// Each group in turn, through the boxes.

struct Group {
  const char* Name;
  int Tab;
  const char* Box;
  const char* Caption;
  int Stored;  ///< groups before it
};

void PrintTo(const Group& group, std::ostream* out) { *out << group.Name; }

class OptionsGroups : public OptionsTester, public testing::WithParamInterface<Group> {};

TEST_P(OptionsGroups, FailWithTheirNameAfterWhatIsStored) {
  Main.m_bSimulate = true;
  Start(frmOptions::Data);
  Type("txtNmeaTrueWindAverage", "3");
  Tab(frmOptions::Input);
  Type("txtNmeaPort", "7");
  Tab(frmOptions::Output);
  Type("txtPilotPort", "8");
  Tab(frmOptions::Simulate);
  Type("txtSimulateWaypointRng", "9");
  Tab(frmOptions::Tracking);
  Type("txtTrackMaxSteerTo", "10.5");
  Tab(GetParam().Tab);
  Type(GetParam().Box, "1.2.3");
  for (const char* button : {"cmdApply", "cmdOk"}) {
    Dialogs.Messages.clear();
    Click(button);
    ASSERT_EQ(Dialogs.Messages.size(), 1U);
    EXPECT_EQ(Dialogs.Messages[0].Title, "Veerwatch");
    EXPECT_EQ(Dialogs.Messages[0].Text,
              std::string(GetParam().Name) + " Options Problem Type mismatch: " + GetParam().Caption);
    EXPECT_TRUE(Window->isVisible());
    EXPECT_TRUE(Bold());
    EXPECT_EQ(Entry(GetParam().Box), "1.2.3");
  }
  EXPECT_EQ(Main.m_fNmeaTrueWindAverage == 3.0F, GetParam().Stored > 0);
  EXPECT_EQ(Main.m_iNmeaPort == 7, GetParam().Stored > 1);
  EXPECT_EQ(Main.m_iPilotPort == 8, GetParam().Stored > 2);
  EXPECT_EQ(Main.m_fSimulateWaypointRange == 9.0F, GetParam().Stored > 3);
  EXPECT_NE(Main.m_fTrackMaxSteerTo, 10.5F);
}

INSTANTIATE_TEST_SUITE_P(Each, OptionsGroups,
                         testing::Values(Group{"Data", 1, "txtNmeaTrueWindAverage", "True Wind Average", 0},
                                         Group{"Input", 0, "txtNmeaPort", "Comm", 1},
                                         Group{"Output", 2, "txtPilotPort", "Comm", 2},
                                         Group{"Simulate", 4, "txtSimulateNoiseAngle", "Angle Noise", 3},
                                         Group{"Tracking", 3, "txtTrackAlarmLimit", "Alarm Limit", 4}),
                         [](const auto& group) { return group.param.Name; });

TEST_F(OptionsDialog, ACountWithWhichAnAverageRunsAwayIsToldAndNotStored) {
  Start(frmOptions::Data);
  Type("txtNmeaTrueWindAverage", "0.4");
  Click("cmdApply");
  ASSERT_EQ(Dialogs.Messages.size(), 1U);
  EXPECT_EQ(Dialogs.Messages[0].Text, "Data Options Problem Must be 0 or above 0.5: True Wind Average");
  EXPECT_EQ(Main.m_fNmeaTrueWindAverage, 2.0F);
  EXPECT_TRUE(Bold());
}

// Coming and going

TEST_F(OptionsDialog, StandsInTheMiddleOfTheScreen) {
  Start(frmOptions::Input);
  const QRect display = Window->screen()->geometry();
  EXPECT_NEAR(Window->frameGeometry().center().x(), display.center().x(), 1);
  EXPECT_NEAR(Window->frameGeometry().center().y(), display.center().y(), 1);
  EXPECT_FALSE(Window->isModal());
}

TEST_F(OptionsDialog, StandsWhereItIsPut) {
  Make();
  Window->TabSelect(frmOptions::Diagram);
  Window->ShowAt({40, 30});
  EXPECT_EQ(Window->pos(), QPoint(40, 30));
  EXPECT_TRUE(Window->isVisible());
  EXPECT_TRUE(Find<QWidget>("pctDiagram").isVisible());
}

TEST_F(OptionsDialog, TheFrameHidesItAndTellsItsOwner) {
  Start(frmOptions::Input);
  int closed = 0;
  Window->Closed([&] {
    ++closed;
    EXPECT_FALSE(Window->isVisible());
  });
  EXPECT_TRUE(Window->close());
  EXPECT_EQ(closed, 1);
}

TEST_F(OptionsDialog, TheSentencesAreSeenOnTheDataTabOnly) {
  Start(frmOptions::Input);
  const auto& list = Find<QWidget>("lstNmeaSentence");
  EXPECT_EQ(list.parentWidget(), Window.get());
  for (int tab = 0; tab < 7; ++tab) {
    Tab(tab);
    EXPECT_EQ(list.isVisible(), tab == frmOptions::Data) << tab;
  }
}

TEST_F(OptionsDialog, ItsLayoutFollowsTheWindow) {
  Start(frmOptions::Input);
  for (const QSize size : {QSize(1000, 700), QSize(1200, 820)}) {
    Window->resize(size);
    const QRect apply = Find<QPushButton>("cmdApply").geometry();
    const QRect cancel = Find<QPushButton>("cmdCancel").geometry();
    const QRect ok = Find<QPushButton>("cmdOk").geometry();
    // The margins and gaps [px].
    EXPECT_EQ(apply.right() + 1, size.width() - 8);
    EXPECT_EQ(apply.bottom() + 1, size.height() - 8);
    EXPECT_EQ(cancel.right() + 1, apply.left() - 16);
    EXPECT_EQ(ok.right() + 1, cancel.left() - 16);
    EXPECT_EQ(cancel.top(), apply.top());
    EXPECT_EQ(ok.top(), apply.top());
    auto& tabs = Find<QTabWidget>("SSTab");
    EXPECT_EQ(tabs.width(), size.width() - 16);
    EXPECT_EQ(tabs.height(), apply.top() - 16);
    for (const auto& [tab, name] :
         {std::pair{0, "lstNmeaData"}, std::pair{1, "lstNmeaSentence"}, std::pair{2, "lstPilotData"}}) {
      Tab(tab);
      QApplication::processEvents();
      const auto& list = Find<QWidget>(name);
      const int top = list.mapTo(Window.get(), QPoint(0, 0)).y() - tabs.y();
      EXPECT_EQ(list.width(), tabs.width() - 16) << name;
      EXPECT_EQ(list.height(), tabs.height() - top - 8) << name;
      EXPECT_EQ(list.mapTo(Window.get(), QPoint(0, 0)).x() - tabs.x(), 8) << name;
    }
  }
}

TEST_F(OptionsDialog, TheTabKeyReachesEverythingInOrder) {
  Start(frmOptions::Data);
  Find<QWidget>("cmbNmeaTrueWind").setFocus();
  std::vector<std::string> reached;
  for (int i = 0; i < 17; ++i) {
    reached.push_back(QApplication::focusWidget()->objectName().toStdString());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_THAT(
      reached,
      ElementsAre("cmbNmeaTrueWind", "cmbNmeaHeading", "cmbNmeaBoatSpeed", "txtNmeaWindIndicatorAverage",
                  "txtNmeaTrueWindAverage", "cmbNmeaChecksum", "cmbNmeaInvalidStatus", "cmbNmeaForeignLines",
                  "chkNmeaWindUnits", "chkNmeaLowerCase", "txtNmeaWindOffset", "txtNmeaHeadingOffset",
                  "txtNmeaBoatSpeedFactor", "lstNmeaSentence", "cmdOk", "cmdCancel", "cmdApply"));
}

}  // namespace
}  // namespace veerwatch
