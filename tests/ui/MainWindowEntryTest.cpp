// Entry boxes and nudges of the main window.

#include <QContextMenuEvent>
#include <QMenuBar>
#include <QShortcut>

#include "platform/ColoursQt.h"
#include "tests/ui/MainWindowTester.h"

namespace veerwatch {
namespace {

class MainWindowEntry : public MainWindowTester {};

TEST_F(MainWindowEntry, EnterTakesTheLeadingNumberAndShowsItAgain) {
  Start(kOnPorts);
  Type("txtAutoPilot", "123.4 degrees");
  EXPECT_EQ(Window->m_fAutoPilot, 100.0F);
  Enter("txtAutoPilot");
  EXPECT_EQ(Window->m_fAutoPilot, 123.4F);
  EXPECT_EQ(Entry("txtAutoPilot"), "123.4");
}

TEST_F(MainWindowEntry, EnterIsSwallowed) {
  Start(kOnPorts);
  for (const char* name : {"txtAutoPilot", "txtDesired(1)"}) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
      QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("\r"));
      press.ignore();
      QApplication::sendEvent(&Find<QLineEdit>(name), &press);
      EXPECT_TRUE(press.isAccepted()) << name;
    }
  }
}

TEST_F(MainWindowEntry, ATypedBearingIsFolded) {
  Start(kOnPorts);
  Type("txtAutoPilot", "-10");
  Enter("txtAutoPilot");
  EXPECT_EQ(Window->m_fAutoPilot, 350.0F);
  EXPECT_EQ(Entry("txtAutoPilot"), "350.0");
}

TEST_F(MainWindowEntry, ATypedWindAngleIsFolded) {
  Start(kOnPorts);
  Type("txtDesired(1)", "270");
  Enter("txtDesired(1)");
  EXPECT_EQ(Window->DesiredAngle[1], -90.0F);
  EXPECT_EQ(Entry("txtDesired(1)"), "-90");
  EXPECT_EQ(Window->DesiredAngle[2], 92.0F);
}

TEST_F(MainWindowEntry, ATextThatIsNoNumberCountsAsZero) {
  Start(kOnPorts);
  Type("txtAutoPilot", "north");
  Enter("txtAutoPilot");
  EXPECT_EQ(Window->m_fAutoPilot, 0.0F);
  EXPECT_EQ(Entry("txtAutoPilot"), "0.0");
  Type("txtAutoPilot", "55");
  Enter("txtAutoPilot");
  Type("txtAutoPilot", "");
  Enter("txtAutoPilot");
  EXPECT_EQ(Window->m_fAutoPilot, 0.0F);
}

TEST_F(MainWindowEntry, LeavingTheBoxTakesTheText) {
  Start(kOnPorts);
  Type("txtAutoPilot", "77.7");
  QTest::keyClick(&Find<QLineEdit>("txtAutoPilot"), Qt::Key_Tab);
  EXPECT_EQ(Window->m_fAutoPilot, 77.7F);
  Click("optControl(2)");
  Type("txtDesired(2)", "-101");
  Click("txtAutoPilot");
  EXPECT_EQ(Window->DesiredAngle[2], -101.0F);
}

TEST_F(MainWindowEntry, LeavingTheBoxUneditedKeepsThePreciseValue) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("72.4", "100.6"));
  Mode(7);
  EXPECT_EQ(Entry("txtDesired(1)"), "72");
  Click("txtDesired(1)");
  QTest::keyClick(&Find<QLineEdit>("txtDesired(1)"), Qt::Key_Tab);
  EXPECT_EQ(Window->DesiredAngle[1], 72.4F);
}

TEST_F(MainWindowEntry, TypingIsNotOverwrittenByTheControlStep) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Type("txtDesired(1)", "4");
  NmeaPort.Receive(Winds("31", "41"));
  EXPECT_EQ(Entry("txtDesired(1)"), "4");
  EXPECT_EQ(Entry("txtDesired(2)"), "41");
  QTest::keyClicks(&Find<QLineEdit>("txtDesired(1)"), "5");
  Enter("txtDesired(1)");
  EXPECT_EQ(Window->DesiredAngle[1], 45.0F);
  NmeaPort.Receive(Winds("32", "42"));
  EXPECT_EQ(Entry("txtDesired(1)"), "32") << "taken and followed again";
}

TEST_F(MainWindowEntry, AFocusedBoxThatIsNotEditedFollows) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Click("txtDesired(1)");
  NmeaPort.Receive(Winds("33", "40"));
  EXPECT_EQ(Entry("txtDesired(1)"), "33");
}

TEST_F(MainWindowEntry, ANudgeMovesTheBearingByOneDegreeOutsideTrack) {
  Start(kOnPorts);
  for (const int mode : {3, 5}) {
    Mode(mode);
    Type("txtAutoPilot", "359.5");
    Enter("txtAutoPilot");
    Click("cmdAutoPilot(2)");
    EXPECT_EQ(Entry("txtAutoPilot"), "0.5");
    Click("cmdAutoPilot(1)");
    Click("cmdAutoPilot(1)");
    EXPECT_EQ(Window->m_fAutoPilot, 358.5F);
    EXPECT_EQ(Entry("txtAutoPilot"), "358.5");
  }
}

TEST_F(MainWindowEntry, ANudgeInTrackMovesHeldAngleAndBearingTogether) {
  Start(kOnPorts);
  Click("optControl(2)");
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  Click("cmdDesiredTrue(2)");
  EXPECT_EQ(Window->DesiredAngle[2], 39.0F);
  EXPECT_EQ(Window->m_fAutoPilot, 101.0F);
  EXPECT_EQ(Entry("txtDesired(2)"), "39");
  EXPECT_EQ(Entry("txtAutoPilot"), "101.0");
  Click("cmdDesiredTrue(1)");
  Click("cmdDesiredTrue(1)");
  EXPECT_EQ(Window->DesiredAngle[2], 41.0F);
  EXPECT_EQ(Window->m_fAutoPilot, 99.0F);
}

TEST_F(MainWindowEntry, NudgesOfTheApparentAngleSteerWhileItIsTracked) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  // Without boat speed both winds are the same, so the angle turns by the whole degree.
  Click("cmdDesiredApp(1)");
  EXPECT_NEAR(Window->DesiredAngle[1], 31.0F, 0.001F);
  EXPECT_EQ(Window->m_fAutoPilot, 99.0F);
}

TEST_F(MainWindowEntry, NudgeKeysWorkOnWhatAnswers) {
  Start(kOnPorts);
  QTest::keyClick(Window.get(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Window->m_fAutoPilot, 101.0F);
  Click("optControl(2)");
  NmeaPort.Receive(Winds("30", "40"));
  Mode(7);
  QTest::keyClick(Window.get(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Window->DesiredAngle[2], 41.0F);
  EXPECT_EQ(Window->m_fAutoPilot, 100.0F);
  Mode(1);
  QTest::keyClick(Window.get(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Window->m_fAutoPilot, 100.0F);
}

TEST_F(MainWindowEntry, AHeldNudgeKeyTurnsOnce) {
  Start(kOnPorts);
  QTest::keyPress(Window.get(), Qt::Key_Right, Qt::AltModifier);
  ASSERT_EQ(Window->m_fAutoPilot, 101.0F);
  for (const QShortcut* shortcut : Window->findChildren<QShortcut*>()) {
    EXPECT_FALSE(shortcut->autoRepeat()) << shortcut->key().toString().toStdString();
  }
  for (const int mode : {1, 3, 5, 7}) {
    const auto name = QStringLiteral("tbrTrack(%1)").arg(mode).toLatin1();
    EXPECT_FALSE(Find<QAction>(name.constData()).autoRepeat()) << mode;
  }
}

TEST_F(MainWindowEntry, AModeButtonTakesWhatWasTypedBeforeItSwitches) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Mode(5);
  Type("txtAutoPilot", "275");
  Mode(7);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  EXPECT_EQ(Window->m_fAutoPilot, 275.0F);
  EXPECT_EQ(Entry("txtAutoPilot"), "275.0");
}

TEST_F(MainWindowEntry, AModeButtonHandsTheKeyboardToNoOtherControl) {
  Start(kOnPorts);
  NmeaPort.Receive(Winds("30", "40"));
  Mode(5);
  Type("txtAutoPilot", "275");
  Enter("txtAutoPilot");
  Mode(7);
  ASSERT_EQ(Window->m_eTrackMode, TrackMode::Track);
  QTest::keyClick(Window->focusWidget(), Qt::Key_Space);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
}

TEST_F(MainWindowEntry, AnotherWindowTakesTheTextAndItIsSent) {
  Start(kOnPorts);
  Mode(5);
  Type("txtAutoPilot", "300");
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_EQ(Window->m_fAutoPilot, 300.0F);
  EXPECT_EQ(Entry("txtAutoPilot"), "300.0");
  NmeaPort.Receive(Winds("30", "40"));
  ASSERT_FALSE(PilotPort.Written.empty());
  EXPECT_NE(PilotPort.Written[0].find(",300.0,M,1,"), std::string::npos) << PilotPort.Written[0];
}

TEST_F(MainWindowEntry, AMenuTakesTheText) {
  Start(kOnPorts);
  Type("txtAutoPilot", "300");
  QMenuBar& bar = *Window->menuBar();
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(bar.actions().at(0)).center());
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(Window->m_fAutoPilot, 300.0F);
  EXPECT_EQ(Entry("txtAutoPilot"), "300.0");
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
}

TEST_F(MainWindowEntry, ItsOwnMenuLeavesTheTextAlone) {
  Start(kOnPorts);
  Type("txtAutoPilot", "30");
  auto& box = Find<QLineEdit>("txtAutoPilot");
  QContextMenuEvent asks(QContextMenuEvent::Mouse, box.rect().center(), box.mapToGlobal(box.rect().center()));
  QApplication::sendEvent(&box, &asks);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(Window->m_fAutoPilot, 100.0F);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  ASSERT_TRUE(box.hasFocus());
  QTest::keyClicks(&box, "0");
  Enter("txtAutoPilot");
  EXPECT_EQ(Window->m_fAutoPilot, 300.0F);
}

TEST_F(MainWindowEntry, ACloseTakesTheTextIntoTheProfile) {
  Start(kOnPorts);
  Type("txtAutoPilot", "300");
  Window->close();
  EXPECT_NE(ReadProfile().find("Bearing=300\n"), std::string::npos) << ReadProfile();
}

TEST_F(MainWindowEntry, ATypedBearingIsSentUnchangedInManual) {
  Start(kOnPorts);
  Mode(5);
  Type("txtAutoPilot", "7.5");
  Enter("txtAutoPilot");
  NmeaPort.Receive(Winds("30", "40"));
  NmeaPort.Receive("$WIMWV,50.0,R,10.0,N,A\r");
  ASSERT_EQ(PilotPort.Written.size(), 2U);
  for (const std::string& sentence : PilotPort.Written) {
    EXPECT_NE(sentence.find(",007.5,M,1,007.5,M,007.5,M*"), std::string::npos) << sentence;
  }
}

TEST_F(MainWindowEntry, AClickSelectsAllSoThatTypingReplaces) {
  Start(kOnPorts);
  Mode(5);
  auto& box = Find<QLineEdit>("txtAutoPilot");
  // Beyond the last figure.
  QTest::mouseClick(&box, Qt::LeftButton, {}, box.rect().center() + QPoint(box.width() / 2 - 4, 0));
  EXPECT_EQ(box.selectedText(), "100.0");
  QTest::keyClicks(&box, "150");
  EXPECT_EQ(Entry("txtAutoPilot"), "150");
  Enter("txtAutoPilot");
  EXPECT_EQ(Window->m_fAutoPilot, 150.0F);
  QTest::keyClicks(&box, "160");
  EXPECT_EQ(Entry("txtAutoPilot"), "160") << "nor behind what Enter took";
}

TEST_F(MainWindowEntry, TabSelectsAllAndASecondClickKeepsIt) {
  Start(kOnPorts);
  auto& box = Find<QLineEdit>("txtAutoPilot");
  Find<QWidget>("optControl(1)").setFocus();
  for (int i = 0; i < 20 && !box.hasFocus(); ++i) {
    QTest::keyClick(Window->focusWidget(), Qt::Key_Tab);
  }
  ASSERT_TRUE(box.hasFocus());
  EXPECT_EQ(box.selectedText(), "100.0");
  Click("txtAutoPilot");
  EXPECT_EQ(box.selectedText(), "100.0");
}

TEST_F(MainWindowEntry, AClickIntoWhatIsBeingTypedPlacesTheCursor) {
  Start(kOnPorts);
  Type("txtAutoPilot", "23");
  auto& box = Find<QLineEdit>("txtAutoPilot");
  QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(4, box.height() / 2));
  EXPECT_FALSE(box.hasSelectedText());
  QTest::keyClicks(&box, "1");
  EXPECT_EQ(Entry("txtAutoPilot"), "123");
}

TEST_F(MainWindowEntry, EscapeBringsBackWhatHolds) {
  Start(kOnPorts);
  Type("txtAutoPilot", "300");
  QTest::keyClick(&Find<QLineEdit>("txtAutoPilot"), Qt::Key_Escape);
  EXPECT_EQ(Entry("txtAutoPilot"), "100.0");
  Click("txtDesired(1)");
  EXPECT_EQ(Window->m_fAutoPilot, 100.0F);
}

/// Pixels of `colour` along the upper edge of a box.
int EdgePixels(QWidget& box, const QColor& colour) {
  const QImage picture = box.grab().toImage();
  int count = 0;
  for (int x = 0; x < picture.width(); ++x) {
    count += picture.pixelColor(x, 1).rgb() == colour.rgb() ? 1 : 0;
  }
  return count;
}

TEST_F(MainWindowEntry, ABoxThatIsNotTakenHasAnAmberFrame) {
  Start(kOnPorts);
  for (const bool night : {false, true}) {
    Find<QAction>("mnuViewNight").setChecked(night);
    auto& box = Find<QLineEdit>("txtAutoPilot");
    const QColor amber = AmberEdge(Window->palette().color(QPalette::Window));
    Click("txtAutoPilot");
    EXPECT_EQ(EdgePixels(box, amber), 0);
    QTest::keyClicks(&box, "150");
    EXPECT_GT(EdgePixels(box, amber), box.width() * 9 / 10);
    Enter("txtAutoPilot");
    EXPECT_EQ(EdgePixels(box, amber), 0);
  }
  Find<QAction>("mnuViewNight").setChecked(false);
}

TEST_F(MainWindowEntry, ShiftNudgesByTen) {
  Start(kOnPorts);
  QTest::mouseClick(&Find<QWidget>("cmdAutoPilot(2)"), Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(Window->m_fAutoPilot, 110.0F);
  QTest::mouseClick(&Find<QWidget>("cmdAutoPilot(1)"), Qt::LeftButton);
  EXPECT_EQ(Window->m_fAutoPilot, 109.0F);
  Window->setFocus();
  QTest::keyClick(Window.get(), Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
  EXPECT_EQ(Window->m_fAutoPilot, 99.0F);
  QTest::keyClick(Window.get(), Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Window->m_fAutoPilot, 109.0F);
  QTest::keyClick(Window.get(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Window->m_fAutoPilot, 110.0F);
}

TEST_F(MainWindowEntry, ShiftAndAnArrowSelectInABox) {
  Start(kOnPorts);
  Type("txtAutoPilot", "23");
  QTest::keyClick(&Find<QLineEdit>("txtAutoPilot"), Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(Find<QLineEdit>("txtAutoPilot").selectedText(), "3");
  EXPECT_EQ(Window->m_fAutoPilot, 100.0F);
}

class MainWindowCarefulEntry : public MainWindowTester {
 public:
  void StartCareful() {
    Start(std::string(kOnPorts) + "[View]\nCareful Entry=True\n");
    NmeaPort.Receive(Winds("30", "40"));
    Mode(5);
  }
};

TEST_F(MainWindowCarefulEntry, AnEmptiedBoxRestores) {
  StartCareful();
  Type("txtAutoPilot", "");
  Enter("txtAutoPilot");
  EXPECT_EQ(Window->m_fAutoPilot, 100.0F);
  EXPECT_EQ(Entry("txtAutoPilot"), "100.0");
  Type("txtAutoPilot", "");
  Click("txtDesired(1)");
  EXPECT_EQ(Window->m_fAutoPilot, 100.0F);
  EXPECT_EQ(Entry("txtAutoPilot"), "100.0");
}

TEST_F(MainWindowCarefulEntry, AFarBearingIsAskedAboutOnce) {
  StartCareful();
  Dialogs.Answers = {false, true};
  Type("txtAutoPilot", "150");
  Enter("txtAutoPilot");
  ASSERT_EQ(Dialogs.Warnings.size(), 1U);
  EXPECT_EQ(Dialogs.Warnings[0].Text,
            "AutoPilot Bearing: from 100 to 150?\rThat is more than 10 degrees, and the pilot follows.");
  EXPECT_EQ(Window->m_fAutoPilot, 100.0F);
  EXPECT_EQ(Entry("txtAutoPilot"), "100.0");
  Type("txtAutoPilot", "150");
  Enter("txtAutoPilot");
  EXPECT_EQ(Window->m_fAutoPilot, 150.0F);
  EXPECT_EQ(Entry("txtAutoPilot"), "150.0");
  EXPECT_EQ(Dialogs.Warnings.size(), 2U);
  Type("txtAutoPilot", "159");
  Enter("txtAutoPilot");
  EXPECT_EQ(Window->m_fAutoPilot, 159.0F);
  EXPECT_EQ(Dialogs.Warnings.size(), 2U);
}

TEST_F(MainWindowCarefulEntry, AFarAngleIsAskedAboutInTrack) {
  StartCareful();
  Mode(7);
  Type("txtDesired(1)", "120");
  Enter("txtDesired(1)");
  ASSERT_EQ(Dialogs.Warnings.size(), 1U);
  EXPECT_EQ(Window->DesiredAngle[1], 30.0F);
  EXPECT_EQ(Entry("txtDesired(1)"), "30");
}

TEST_F(MainWindowCarefulEntry, NothingIsAskedWhileNothingIsSent) {
  StartCareful();
  Mode(3);
  Type("txtAutoPilot", "275");
  Enter("txtAutoPilot");
  EXPECT_TRUE(Dialogs.Warnings.empty());
  EXPECT_EQ(Window->m_fAutoPilot, 275.0F);
}

TEST_F(MainWindowCarefulEntry, AnAnswerThatComesInAnotherModeIsDropped) {
  StartCareful();
  Dialogs.Later = true;
  Dialogs.Answers = {true};
  Type("txtAutoPilot", "275");
  Enter("txtAutoPilot");
  ASSERT_TRUE(Dialogs.Open());
  EXPECT_EQ(Entry("txtAutoPilot"), "100.0") << "nothing is left to be taken when the box is left";
  Window->TrackSetTrack();
  Dialogs.Answer();
  EXPECT_EQ(Window->m_fAutoPilot, 100.0F);
}

}  // namespace
}  // namespace veerwatch
