// Turns that are followed to their end: by keys while tracking, and by the dialog with "Then track".

#include <QCheckBox>
#include <QComboBox>
#include <QMessageBox>
#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "platform/Angles.h"
#include "platform/NumberText.h"
#include "tests/support/PictureQt.h"
#include "tests/ui/TackTester.h"

namespace veerwatch {
namespace {

/// A boat that is where her pilot is told to be, 8 degrees less, in a true wind from 145.
class TackFollow : public TackTester {
 public:
  double WindFrom = 145.0;

  /// On 100, tracking the true wind at 45.
  void StartTracking(const std::string& more = "") {
    Start(std::string(kOnPorts) + "[Track]\nBandwidth=60\n" + more);
    Window->AutoPilotSet(108.0F);
    Click("optControl(2)");
    Sail(12);
    Mode(7);
    Sail(2);
    ASSERT_EQ(Window->m_eTrackMode, TrackMode::Track);
  }

  double Heading() const { return static_cast<double>(Window->m_fAutoPilot) - 8.0; }

  /// Seconds in which the instruments send and a turn makes its steps.
  void Sail(int seconds) {
    for (int second = 0; second < seconds; ++second) {
      const auto tenths = [](double angle) { return FormatNumber(FoldBearing(angle), "0.0"); };
      NmeaPort.Receive("$GPVTG,,T," + tenths(Heading()) + ",M,6.0,N,11.0,K,A\r");
      const double wind = WindFrom - Heading();
      NmeaPort.Receive(Winds(tenths(wind), tenths(wind)));
      tmrNmea.Tick();
      if (TimerTack.Enabled()) {
        TimerTack.Tick();
      } else {
        Time.Pass(1000);
      }
    }
  }

  void Key(Qt::Key key) const { QTest::keyClick(Window.get(), key, Qt::ControlModifier); }

  QDialog* Turn() const { return Window->findChild<QDialog*>(QStringLiteral("frmTurn")); }
  bool Turns() const { return Turn() != nullptr && Turn()->isVisible() && TimerTack.Enabled(); }
  std::string Status() const { return Text("StatusBar(1)"); }
};

TEST_F(TackFollow, CtrlTTacksWithTheStoredRateAndTracksTheMirroredAngle) {
  StartTracking("[Tack Data]\nRate 2=5\nOvershoot 2=4\n");
  Key(Qt::Key_T);
  ASSERT_TRUE(Turns());
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
  EXPECT_EQ(Turn()->windowTitle(), "Veerwatch - Tack");
  EXPECT_EQ(Text("lblTurn"), "Tack, 90 degrees to starboard through the wind");
  EXPECT_EQ(Text("lblStage"), "Turning: 0 of 45 degrees");
  EXPECT_EQ(Window->m_fAutoPilot, 108.0F) << "said before it begins";
  Sail(1);
  EXPECT_EQ(Window->m_fAutoPilot, 113.0F);
  double farthest = 0.0;
  for (int second = 0; second < 100 && TimerTack.Enabled(); ++second) {
    Sail(1);
    farthest = std::max(farthest, static_cast<double>(Window->m_fAutoPilot));
  }
  EXPECT_NEAR(farthest, 108.0 + 94.0, 0.5);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  EXPECT_EQ(Status(), "Tracking True Wind");
  EXPECT_EQ(Entry("txtDesired(2)"), "-45");
  EXPECT_NEAR(Window->m_fAutoPilot, 198.0F, 2.5F);
  EXPECT_FALSE(Turn()->isVisible());
  EXPECT_EQ(Dialogs.Beeps, 0);
}

TEST_F(TackFollow, TheMenuHasTheKeysAndDoesAsThey) {
  StartTracking();
  EXPECT_EQ(Find<QAction>("mnuTurnTack").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_T));
  EXPECT_EQ(Find<QAction>("mnuTurnJibe").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_J));
  Find<QAction>("mnuTurnTack").trigger();
  ASSERT_TRUE(Turns());
  EXPECT_EQ(Turn()->windowTitle(), "Veerwatch - Tack");
  KeepPicture(Turn()->grab().toImage(), QStringLiteral("turn"));
  Find<QAction>("mnuTurnStop").trigger();
  EXPECT_FALSE(Turns());
  EXPECT_EQ(Status(), "Turn stopped");
  Find<QAction>("mnuTurnStop").trigger();
  EXPECT_EQ(Status(), "Turn stopped") << "nothing runs";
  Find<QAction>("mnuTurnJibe").trigger();
  EXPECT_FALSE(Turns());
  EXPECT_EQ(Status(), "No turn: Ctrl+T and Ctrl+J turn in Track");
}

TEST_F(TackFollow, CtrlJJibesByTheStern) {
  WindFrom = 250.0;
  StartTracking();
  Key(Qt::Key_J);
  ASSERT_TRUE(Turns());
  EXPECT_EQ(Text("lblTurn"), "GYBE, 60 degrees to port, by the stern");
  Sail(60);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  EXPECT_EQ(Entry("txtDesired(2)"), "-150");
}

TEST_F(TackFollow, ATurnOf150DegreesIsAskedAboutAndGoesAsItIsWhenTheAnswerComes) {
  WindFrom = 180.0;
  StartTracking();
  Dialogs.Answers = {false};
  Key(Qt::Key_T);
  ASSERT_EQ(Dialogs.Warnings.size(), 1U);
  EXPECT_EQ(Dialogs.Warnings.front().Text, "Tack, 160 degrees to starboard through the wind?");
  EXPECT_FALSE(TimerTack.Enabled());
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  Dialogs.Later = true;
  Dialogs.Answers = {true};
  Key(Qt::Key_T);
  Mode(5);
  Dialogs.Answer();
  EXPECT_FALSE(TimerTack.Enabled()) << "the mode was changed meanwhile";
  EXPECT_EQ(Status(), "No turn: Ctrl+T and Ctrl+J turn in Track");
  Mode(7);
  Dialogs.Answers = {true};
  Key(Qt::Key_T);
  Dialogs.Answer();
  EXPECT_TRUE(Turns());
}

TEST_F(TackFollow, AKeyThatCannotTurnSaysWhy) {
  StartTracking();
  Key(Qt::Key_J);
  EXPECT_EQ(Status(), "No turn: it would be half a circle or more");
  Mode(5);
  Key(Qt::Key_T);
  EXPECT_EQ(Status(), "No turn: Ctrl+T and Ctrl+J turn in Track");
  Mode(1);
  Key(Qt::Key_T);
  EXPECT_EQ(Status(), "No turn: Ctrl+T and Ctrl+J turn in Track");
  Mode(3);
  Sail(5);
  Mode(7);
  PilotPort.OpensOtherwise = false;
  PilotPort.Lose();
  Key(Qt::Key_T);
  EXPECT_EQ(Status(), "No turn: Output Port 4 Not Open");
  EXPECT_FALSE(TimerTack.Enabled());
}

TEST_F(TackFollow, ASecondKeyInATurnLeavesItAlone) {
  StartTracking();
  Key(Qt::Key_T);
  Sail(2);
  Key(Qt::Key_T);
  EXPECT_EQ(Status(), "No turn: one runs, Escape stops it");
  EXPECT_TRUE(Turns());
}

TEST_F(TackFollow, StopTheFrameAndEscapeEndItWhereThePilotHeardLast) {
  StartTracking();
  const std::vector<std::function<void()>> ways{
      [&] { QTest::mouseClick(Turn()->findChild<QPushButton*>(QStringLiteral("cmdStop")), Qt::LeftButton); },
      [&] { Turn()->close(); }, [&] { QTest::keyClick(Window.get(), Qt::Key_Escape); },
      [&] { QTest::keyClick(Turn(), Qt::Key_Escape); },
      [&] { QTest::keyClick(&Find<QLineEdit>("txtAutoPilot"), Qt::Key_Escape); }};
  for (const auto& way : ways) {
    Key(Qt::Key_T);
    Sail(3);
    ASSERT_TRUE(Turns());
    const float set = Window->m_fAutoPilot;
    way();
    EXPECT_FALSE(TimerTack.Enabled());
    EXPECT_FALSE(Turn()->isVisible());
    EXPECT_EQ(Window->m_fAutoPilot, FoldBearing(static_cast<double>(set) - 10.0))
        << "the last step had not left";
    EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
    EXPECT_EQ(Status(), "Turn stopped");
    Window->AutoPilotSet(108.0F);
    Sail(12);
    Mode(7);
    Sail(1);
  }
}

TEST_F(TackFollow, EscapeInAnotherWindowStopsTheTurnFirstAndThenIsTheWindows) {
  StartTracking();
  Find<QAction>("mnuOptionsTrack").trigger();
  QDialog* options = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    options = window->objectName() == QLatin1String("frmOptions") ? qobject_cast<QDialog*>(window) : options;
  }
  QMessageBox question(QMessageBox::Question, QStringLiteral("A"), QStringLiteral("B?"),
                       QMessageBox::Yes | QMessageBox::No, Window.get());
  question.open();
  Key(Qt::Key_T);
  if (!TimerTack.Enabled()) {
    // The question has the keyboard: nobody turns from behind it.
    question.hide();
    Key(Qt::Key_T);
    question.open();
  }
  Sail(2);
  ASSERT_TRUE(TimerTack.Enabled());
  QTest::keyClick(&question, Qt::Key_Escape);
  EXPECT_FALSE(TimerTack.Enabled());
  EXPECT_TRUE(question.isVisible()) << "the turn came first";
  QTest::keyClick(&question, Qt::Key_Escape);
  EXPECT_FALSE(question.isVisible());
  if (options != nullptr) {
    EXPECT_TRUE(options->isVisible());
  }
}

TEST_F(TackFollow, ALostHeadingEndsItWithAReasonAndABeep) {
  StartTracking();
  Key(Qt::Key_T);
  Sail(3);
  for (int second = 0; second < 30 && TimerTack.Enabled(); ++second) {
    NmeaPort.Receive(Winds("20", "20"));
    tmrNmea.Tick();
    TimerTack.Tick();
  }
  EXPECT_EQ(Status(), "Turn ended: No Heading");
  EXPECT_EQ(Dialogs.Beeps, 1);
  EXPECT_FALSE(Turn()->isVisible());
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Manual);
}

TEST_F(TackFollow, ABoatThatDoesNotTurnEndsItAfterTheLimitOfTheProfile) {
  StartTracking("[Tack Data]\nStage Limit=8\n");
  Key(Qt::Key_T);
  for (int second = 0; second < 100 && TimerTack.Enabled(); ++second) {
    NmeaPort.Receive("$GPVTG,,T,100.0,M,6.0,N,11.0,K,A\r");
    NmeaPort.Receive(Winds("45", "45"));
    tmrNmea.Tick();
    TimerTack.Tick();
  }
  EXPECT_EQ(Status(), "Turn ended: Boat does not turn");
}

TEST_F(TackFollow, WhoeverTakesThePilotEndsIt) {
  StartTracking();
  Key(Qt::Key_T);
  Sail(2);
  Click("cmdAutoPilot(1)");
  EXPECT_FALSE(TimerTack.Enabled());
  EXPECT_FALSE(Turn()->isVisible());
  EXPECT_EQ(Window->m_fAutoPilot, 127.0F);
}

TEST_F(TackFollow, TheTickIsOffByDefaultAndKeptByOk) {
  StartTracking();
  OpenTack();
  auto& tick = Find<QCheckBox>("chkThenTrack");
  EXPECT_EQ(tick.text().remove('&'), "Then track");
  EXPECT_FALSE(tick.isChecked());
  EXPECT_FALSE(Enabled("cboAngle"));
  QTest::mouseClick(&tick, Qt::LeftButton);
  ASSERT_TRUE(tick.isChecked());
  EXPECT_TRUE(Enabled("cboAngle"));
  Click("cmdCancel");
  OpenTack();
  EXPECT_FALSE(tick.isChecked()) << "only OK keeps it";
  QTest::mouseClick(&tick, Qt::LeftButton);
  Find<QComboBox>("cboAngle").setCurrentIndex(0);
  Click("cmdOk");
  Click("cmdOk");
  QTest::keyClick(Window.get(), Qt::Key_Escape);
  EXPECT_TRUE(Window->close());
  EXPECT_NE(ReadProfile().find("Then Track=True\nThen Track Angle=0\nStage Limit=60\n"), std::string::npos)
      << ReadProfile();
}

TEST_F(TackFollow, TheDialogShowsTheTurnOfThisMomentAndHandsItOver) {
  StartTracking("[Tack Data]\nThen Track=True\n");
  Window->TackOpen(170.0F, 100.0F, 45.0F);
  EXPECT_EQ(Text("lblWords"), "Tack, 90 degrees to starboard through the wind");
  EXPECT_EQ(Entry("txtHeading"), "190") << "where the mirrored angle is, whatever was asked for";
  EXPECT_TRUE(Find<QLineEdit>("txtHeading").isReadOnly());
  Click("cmdOk");
  EXPECT_FALSE(TimerTack.Enabled());
  EXPECT_EQ(Text("lblNote"), "Tack to starboard: OK once more?") << "no button has named it";
  Click("cmdOk");
  EXPECT_FALSE(Open());
  EXPECT_TRUE(Turns());
  Sail(60);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  EXPECT_EQ(Entry("txtDesired(2)"), "-45");
}

TEST_F(TackFollow, WithThePolarsBestAndNoPolarTheDialogSaysSo) {
  StartTracking("[Tack Data]\nThen Track=True\nThen Track Angle=1\n");
  Window->TackOpen(190.0F, 100.0F, 45.0F);
  EXPECT_EQ(Text("lblNote"), "No turn: the polar has no best angle");
  EXPECT_FALSE(Enabled("cmdOk"));
  Find<QComboBox>("cboAngle").setCurrentIndex(0);
  EXPECT_EQ(Text("lblNote"), "");
  EXPECT_TRUE(Enabled("cmdOk"));
}

TEST_F(TackFollow, ABoxThatHoldsNoNumberIsNamed) {
  StartTracking("[Tack Data]\nThen Track=True\n");
  Window->TackOpen(190.0F, 100.0F, 45.0F);
  Type("txtOvershoot", "a bit");
  EXPECT_EQ(Text("lblNote"), "No turn: the overshoot is no number");
  EXPECT_FALSE(Enabled("cmdOk"));
  Type("txtOvershoot", "6");
  EXPECT_TRUE(Enabled("cmdOk"));
  Type("txtRate", "");
  Sail(1);
  EXPECT_EQ(Text("lblNote"), "No turn: the rate is no number");
}

TEST_F(TackFollow, AnotherHeadingOfASteeringChangeIsTrackedThen) {
  StartTracking("[Tack Data]\nThen Track=True\n");
  Window->TackOpen(85.0F, 100.0F, 45.0F);
  EXPECT_EQ(Text("lblWords"), "Steer, 15 degrees to port");
  EXPECT_FALSE(Find<QLineEdit>("txtHeading").isReadOnly());
  EXPECT_FALSE(Enabled("cboAngle"));
  Type("txtHeading", "80");
  Click("cmdOk");
  ASSERT_TRUE(Turns());
  Sail(40);
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  EXPECT_EQ(Entry("txtDesired(2)"), "65");
}

TEST_F(TackFollow, ATurnOfTheDialogsOwnEndsTheOneThatIsFollowed) {
  StartTracking();
  Key(Qt::Key_T);
  Sail(2);
  OpenTack();
  EXPECT_TRUE(Turns()) << "the dialog is open, and nobody has pressed OK";
  Click("cmdOk");
  Click("cmdOk");
  EXPECT_FALSE(Turn()->isVisible());
  EXPECT_TRUE(TimerTack.Enabled());
  const float before = Window->m_fAutoPilot;
  TimerTack.Tick();
  EXPECT_NE(Window->m_fAutoPilot, before);
}

TEST_F(TackFollow, TheDialogsOwnTurnHasALargeStopAsWell) {
  Start(kOnPorts);
  RunTack();
  auto& stop = *Dialog()->findChild<QPushButton*>(QStringLiteral("cmdStop"));
  EXPECT_TRUE(stop.isVisible());
  EXPECT_GE(stop.height(), 60);
  QTest::mouseClick(&stop, Qt::LeftButton);
  EXPECT_FALSE(TimerTack.Enabled());
  EXPECT_FALSE(Open());
  EXPECT_EQ(Window->m_fAutoPilot, 132.0F);
  RunTack();
  QTest::keyClick(Window.get(), Qt::Key_Escape);
  EXPECT_FALSE(TimerTack.Enabled()) << "Escape in the main window";
  EXPECT_EQ(Window->m_fAutoPilot, 132.0F);
  EXPECT_EQ(Status(), "Manual");
}

TEST_F(TackFollow, SailsATackInTheSimulator) {
  Start(kSimulated);
  tmrNmea.Tick(12);
  Click("optControl(2)");
  Mode(7);
  Key(Qt::Key_T);
  ASSERT_TRUE(TimerTack.Enabled()) << Status();
  for (int second = 0; second < 100 && TimerTack.Enabled(); ++second) {
    tmrNmea.Tick();
    TimerTack.Tick();
  }
  EXPECT_EQ(Window->m_eTrackMode, TrackMode::Track);
  EXPECT_NEAR(Window->DesiredAngle[2], 50.0F, 1.5F);
}

}  // namespace
}  // namespace veerwatch
